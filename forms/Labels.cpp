// SPDX-License-Identifier: MIT
#include "forms/Labels.h"

#include "forms/Buttons.h"
#include "forms/CutText.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace velmora::ui {

using namespace Qt::StringLiterals;

Label::Label(QWidget* parent) : QLabel(parent), Control(this) { setTextFormat(Qt::PlainText); }

bool Label::IsCut() const {
  if (wordWrap() || text().contains(u'\n')) return false;
  return fontMetrics().horizontalAdvance(text()) > contentsRect().width() - 2 * margin();
}

bool Label::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && IsCut() && TellCutText(*event, *this, text())) return true;
  return QLabel::event(event);
}

void Label::paintEvent(QPaintEvent* event) {
  if (!IsCut()) {
    QLabel::paintEvent(event);
    return;
  }
  QPainter painter(this);
  drawFrame(&painter);
  const QRect place = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
  style()->drawItemText(&painter, place, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), palette(),
                        isEnabled(), shown, foregroundRole());
}

void Label::mouseReleaseEvent(QMouseEvent* event) {
  QLabel::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Q_EMIT Click();
}

void Label::mouseDoubleClickEvent(QMouseEvent* event) {
  QLabel::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton) Q_EMIT DblClick();
}

SSPanel::SSPanel(QWidget* parent) : Label(parent) {
  setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
  setMargin(1);
}

GroupFrame::GroupFrame(QWidget* parent) : QGroupBox(parent), Control(this) {}

void GroupFrame::SetCaption(const QString& caption) {
  m_caption = caption;
  setTitle(Escaped(caption));
}

Line::Line(QWidget* parent) : QFrame(parent), Control(this) {
  setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Sunken));
}

}  // namespace velmora::ui
