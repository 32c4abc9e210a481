// SPDX-License-Identifier: MIT
#include "controls/PictureBox.h"

#include "forms/ProgramStyle.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace velmora {

PictureBox::PictureBox(QWidget* parent) : QAbstractButton(parent), Control(this) {
  setFocusPolicy(Qt::NoFocus);
  setMouseTracking(true);
  connect(this, &QAbstractButton::clicked, this, [this] { Q_EMIT Click(); });
}

void PictureBox::SetPicture(const QIcon& picture) {
  m_picture = picture;
  update();
}

void PictureBox::focusInEvent(QFocusEvent* event) {
  QAbstractButton::focusInEvent(event);
  // Without a pointer over it, nothing else would tell what the picture means.
  QToolTip::showText(mapToGlobal(QPoint(0, height())), toolTip(), this);
}

void PictureBox::focusOutEvent(QFocusEvent* event) {
  QAbstractButton::focusOutEvent(event);
  QToolTip::hideText();
}

void PictureBox::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
      event->accept();
      Q_EMIT MoveFocus(event->key());
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      event->accept();
      if (!event->isAutoRepeat()) Q_EMIT Click();
      break;
    default:
      // Not the button's own step, which would take Escape for itself.
      event->ignore();
  }
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
  QAbstractButton::mouseMoveEvent(event);
  Q_EMIT Move();
  // A move over a button is none over the bar.
  event->accept();
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
  QAbstractButton::mousePressEvent(event);
  if (event->button() == Qt::LeftButton) Q_EMIT Down();
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Q_EMIT Up();
  QAbstractButton::mouseReleaseEvent(event);
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  m_picture.paint(&painter, rect());
  if (hasFocus()) ui::DrawFocusFrame(painter, rect(), palette());
}

}  // namespace velmora
