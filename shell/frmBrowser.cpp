// SPDX-License-Identifier: MIT
#include "shell/frmBrowser.h"

#include "base/system/Files.h"
#include "forms/Notice.h"
#include "frame/Frame.h"
#include "resources/strings.h"
#include "shell/RtfDocument.h"

#include <QFile>
#include <QTextEdit>

#include <utility>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int innerWidth = 8400;
constexpr int innerHeight = 4500;
constexpr int margin = 12;  // pixels
constexpr qint64 longestDocument = 1 << 20;

/// The document; nothing when it can't be read, or is far too long to be ours.
QList<RtfParagraph> ReadDocument(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly) || file.size() > longestDocument) return {};
  return ReadRtf(file.read(longestDocument));
}

}  // namespace

frmBrowser::frmBrowser() : Form(u"frmBrowser"_s, strings::browser::Title) {
  Text1 = new QTextEdit(this);
  Text1->setObjectName(u"Text1"_s);
  Text1->setAccessibleName(strings::browser::Title);
  Text1->setReadOnly(true);
  Text1->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  Text1->setTabChangesFocus(true);
  Text1->setFrameShape(QFrame::NoFrame);
  SetInnerSize(innerWidth, innerHeight);
}

void frmBrowser::OnLoad() {
  setWindowIcon(Frame::Main().ScreenIcon());
  const QList<RtfParagraph> document = ReadDocument(ProgramDir() + u"Velmora.rtf"_s);
  m_isMissing = document.isEmpty();
  ShowRtf(*Text1, document);
  Text1->document()->setDocumentMargin(margin);
}

void frmBrowser::OnActivate() {
  // Told once, when the screen is there for it.
  if (std::exchange(m_isMissing, false)) ui::Notify(Text1, strings::browser::Missing);
}

void frmBrowser::resizeEvent(QResizeEvent* event) {
  Form::resizeEvent(event);
  Text1->setGeometry(rect());
}

}  // namespace velmora
