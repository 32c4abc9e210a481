// SPDX-License-Identifier: MIT
#include "help/HelpPage.h"

#include "forms/Palette.h"
#include "help/HelpCollection.h"
#include "resources/strings.h"

#include <QApplication>
#include <QDesktopServices>
#include <QPrinter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>

#include <algorithm>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr double PageMargin = 12;

bool IsOfHelp(const QUrl& address) { return address.scheme() == "qthelp"_L1; }

/// The picture of the same screen in the dark look, as its name tells.
QUrl DarkSister(const QUrl& picture) {
  QUrl sister = picture;
  sister.setPath(picture.path().replace("-light."_L1, "-dark."_L1));
  return sister;
}

QList<QUrl> PicturesOf(const QTextDocument& document, const QUrl& page) {
  QList<QUrl> pictures;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
      const QTextImageFormat format = piece.fragment().charFormat().toImageFormat();
      if (format.isValid()) pictures.append(page.resolved(QUrl(format.name())));
    }
  }
  return pictures;
}

/// A page for the printer: the file's sheet for paper in place of that for the screen, and light pictures.
class PaperPage final : public QTextDocument {
 public:
  PaperPage(const HelpCollection& collection, const QUrl& page, int width)
      : m_collection(collection), m_width(width) {
    setBaseUrl(page);
    setHtml(QString::fromUtf8(collection.Data(page)));
  }

 protected:
  QVariant loadResource(int type, const QUrl& name) override {
    QUrl wanted = baseUrl().resolved(name);
    if (type == StyleSheetResource) wanted = wanted.resolved(QUrl(u"print.css"_s));
    const QByteArray data = m_collection.Data(wanted);
    if (type != ImageResource) return data;
    const QImage picture = QImage::fromData(data);
    return picture.width() > m_width ? picture.scaledToWidth(m_width, Qt::SmoothTransformation) : picture;
  }

 private:
  const HelpCollection& m_collection;
  int m_width;
};

}  // namespace

HelpPage::HelpPage(QWidget* parent) : QTextBrowser(parent), m_dark(ui::IsDarkLook()) {
  setObjectName(u"Page"_s);
  setAccessibleName(strings::help::Page);
  // Links by Tab and Enter, text by the mouse and the arrow keys.
  setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
  setOpenLinks(false);
  document()->setDocumentMargin(PageMargin);
  connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
    const QUrl address = source().resolved(link);
    if (IsOfHelp(address)) {
      setSource(address);
    } else if (address.scheme() == "https"_L1 || address.scheme() == "http"_L1) {
      QDesktopServices::openUrl(address);
    }
  });
}

void HelpPage::SetCollection(HelpCollection* collection) {
  m_collection = collection;
  m_pictures.clear();
  document()->clear();
}

QVariant HelpPage::loadResource(int type, const QUrl& name) {
  const QUrl address = source().resolved(name);
  if (m_collection == nullptr || !IsOfHelp(address)) return {};
  if (type != QTextDocument::ImageResource) {
    const QByteArray text = m_collection->Data(address);
    if (type == QTextDocument::HtmlResource && text.isEmpty())
      return QString(strings::help::NoSuchPage).toHtmlEscaped();
    return text;
  }
  const QImage picture = Picture(address);
  return picture.isNull() ? QVariant() : Fitted(picture);
}

QImage HelpPage::Picture(const QUrl& address) {
  const auto known = m_pictures.constFind(address);
  if (known != m_pictures.constEnd()) return *known;
  QByteArray bytes;
  if (m_dark) bytes = m_collection->Data(DarkSister(address));
  if (bytes.isEmpty()) bytes = m_collection->Data(address);
  return *m_pictures.insert(address, QImage::fromData(bytes));
}

QImage HelpPage::Fitted(const QImage& picture) const {
  const int frame = qRound(2 * document()->documentMargin()) + verticalScrollBar()->sizeHint().width();
  const int room = std::max(1, width() - frame - 2 * frameWidth());
  const int wanted = std::min(room, picture.width());
  const double sharpness = devicePixelRatio();
  if (wanted == picture.width() && sharpness == 1) return picture;
  QImage fitted = picture.scaledToWidth(qRound(wanted * sharpness), Qt::SmoothTransformation);
  fitted.setDevicePixelRatio(sharpness);
  return fitted;
}

void HelpPage::FitPictures() {
  // The document keeps pictures beyond the page, in the width and the look that they had.
  const QList<QUrl> pictures = PicturesOf(*document(), source());
  for (const QUrl& address : pictures) {
    const QImage picture = Picture(address);
    if (!picture.isNull()) document()->addResource(QTextDocument::ImageResource, address, Fitted(picture));
  }
  if (!pictures.isEmpty()) document()->markContentsDirty(0, document()->characterCount());
}

void HelpPage::LoadAnew() {
  const int place = verticalScrollBar()->value();
  reload();
  verticalScrollBar()->setValue(place);
}

void HelpPage::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
  setExtraSelections({});
  QTextBrowser::doSetSource(name, type);
  FitPictures();
}

void HelpPage::Mark(const QStringList& words) {
  QStringList patterns;
  for (const QString& word : words) patterns.append(QRegularExpression::escape(word));
  if (patterns.isEmpty()) return;
  const QRegularExpression beginning(
      u"\\b(?:%1)\\w*"_s.arg(patterns.join(u'|')),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
  QList<ExtraSelection> marks;
  QTextCursor found = document()->find(beginning, 0);
  while (!found.isNull()) {
    ExtraSelection mark;
    mark.cursor = found;
    mark.format.setBackground(palette().brush(QPalette::Highlight));
    mark.format.setForeground(palette().brush(QPalette::HighlightedText));
    marks.append(mark);
    found = document()->find(beginning, found);
  }
  setExtraSelections(marks);
  if (marks.isEmpty()) return;
  QTextCursor first = marks.first().cursor;
  first.setPosition(first.selectionStart());
  setTextCursor(first);
  ensureCursorVisible();
}

QRect HelpPage::HeadingPlace() const {
  const QRect heading = cursorRect(QTextCursor(document()->begin()));
  return heading.translated(viewport()->pos());
}

std::unique_ptr<QTextDocument> HelpPage::OnPaper(int width) const {
  return std::make_unique<PaperPage>(*m_collection, source().adjusted(QUrl::RemoveFragment), width);
}

void HelpPage::PrintTo(QPrinter& printer) const {
  if (m_collection == nullptr) return;
  // A page is laid out for the screen and then scaled to the paper.
  const double width = printer.pageLayout().paintRect(QPageLayout::Inch).width() * logicalDpiX();
  OnPaper(static_cast<int>(width))->print(&printer);
}

void HelpPage::SetTextSteps(int steps) {
  const int wanted = std::clamp(steps, SmallestStep, LargestStep);
  if (wanted == m_steps) return;
  zoomIn(wanted - m_steps);
  m_steps = wanted;
  Q_EMIT TextSizeChanged();
}

void HelpPage::RefreshColors() {
  if (m_dark == ui::IsDarkLook()) return;
  m_dark = ui::IsDarkLook();
  m_pictures.clear();
  if (source().isValid()) LoadAnew();
}

void HelpPage::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  if (event->size().width() != event->oldSize().width()) FitPictures();
}

void HelpPage::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    QTextBrowser::wheelEvent(event);
    return;
  }
  SetTextSteps(m_steps + (event->angleDelta().y() > 0 ? 1 : -1));
  event->accept();
}

}  // namespace velmora
