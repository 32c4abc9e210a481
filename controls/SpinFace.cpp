// SPDX-License-Identifier: MIT
#include "controls/SpinFace.h"

#include "forms/ProgramStyle.h"
#include "forms/Twips.h"

#include <QKeyEvent>
#include <QPainter>

namespace velmora {

using namespace Qt::StringLiterals;

SpinFace::SpinFace(QWidget* parent, const ui::Place& place)
    : QWidget(parent), Control(this), m_cmdTemp(new QWidget(this)) {
  m_cmdTemp->setObjectName(u"cmdTemp"_s);
  m_cmdTemp->setFocusPolicy(Qt::StrongFocus);
  m_cmdTemp->installEventFilter(this);
  setFocusProxy(m_cmdTemp);
  SetPlace(place);
}

QSize SpinFace::sizeHint() const { return {ui::Pixels(Width()), ui::Pixels(Height())}; }

ui::SSCommand* SpinFace::AddButton(const QString& name, const ui::Place& place) {
  auto* button = new ui::SSCommand(this);
  button->SetName(name);
  button->SetPlace(place);
  // A click hands the focus on, so that no button of the face looks like the one to press.
  button->setFocusPolicy(Qt::ClickFocus);
  button->setFocusProxy(m_cmdTemp);
  return button;
}

ui::SSCommand* SpinFace::AddArrow(const QString& name, const QString& accessibleName, Qt::ArrowType arrow,
                                  const ui::Place& place) {
  ui::SSCommand* const button = AddButton(name, place);
  button->SetArrow(arrow);
  button->setAccessibleName(accessibleName);
  return button;
}

void SpinFace::keyPressEvent(QKeyEvent* event) {
  const Stride stride = event->modifiers().testFlag(Qt::ControlModifier) ? Stride::Middle : Stride::Short;
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
      Step(stride, 1);
      return;
    case Qt::Key_Down:
    case Qt::Key_Left:
      Step(stride, -1);
      return;
    case Qt::Key_PageUp:
      Step(Stride::Long, 1);
      return;
    case Qt::Key_PageDown:
      Step(Stride::Long, -1);
      return;
    case Qt::Key_Home:
      Reset();
      return;
    case Qt::Key_Space:
      FaceClicked();
      return;
    default:
      QWidget::keyPressEvent(event);
  }
}

bool SpinFace::eventFilter(QObject* target, QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
  return QWidget::eventFilter(target, event);
}

void SpinFace::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  if (m_cmdTemp->hasFocus()) ui::DrawFocusFrame(painter, rect(), palette());
}

}  // namespace velmora
