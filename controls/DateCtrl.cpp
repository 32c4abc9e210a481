// SPDX-License-Identifier: MIT
#include "controls/DateCtrl.h"

#include "controls/ReminderMark.h"
#include "forms/Twips.h"
#include "resources/strings.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int MarkWidth = 510;

bool AsksForDate(const QKeyEvent& event) {
  const bool altDown = event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier);
  return altDown || (event.key() == Qt::Key_F4 && event.modifiers() == Qt::NoModifier);
}

}  // namespace

DateCtrl::DateCtrl(QWidget* parent)
    : QWidget(parent), Control(this), m_picture1(new ReminderMark(this)), m_dateVal(new ui::TextBox(this)) {
  m_picture1->SetName(u"Picture1"_s);
  m_picture1->SetVisible(false);
  m_dateVal->SetName(u"DateVal"_s);
  m_dateVal->installEventFilter(this);
  setFocusProxy(m_dateVal);
  connect(m_dateVal, &ui::TextBox::Click, this, &DateCtrl::Click);
  connect(m_dateVal, &ui::TextBox::DblClick, this, &DateCtrl::DblClick);
  connect(m_dateVal, &ui::TextBox::KeyPress, this, &DateCtrl::KeyPress);
  connect(m_dateVal, &ui::TextBox::Change, this, &DateCtrl::Change);
  connect(m_dateVal, &ui::TextBox::GotFocus, this, &DateCtrl::GotFocus);
  connect(m_dateVal, &ui::TextBox::LostFocus, this, &DateCtrl::LostFocus);
  connect(m_dateVal, &ui::TextBox::EnterPressed, this, &DateCtrl::EnterPressed);
}

void DateCtrl::SetText(const QString& text) {
  m_dateVal->SetText(text);
  Q_EMIT Change();
}

void DateCtrl::SetIsActive(bool active) {
  m_isActive = active;
  m_dateVal->setAccessibleDescription(active ? QString(strings::reminder::Reminder) : QString());
  Arrange();
}

void DateCtrl::setAccessibleName(const QString& name) {
  QWidget::setAccessibleName(name);
  m_dateVal->setAccessibleName(name);
}

void DateCtrl::RefreshColors() {
  m_dateVal->Control::SetForeColor(ForeColor());
  m_dateVal->Control::SetBackColor(BackColor());
}

bool DateCtrl::eventFilter(QObject* target, QEvent* event) {
  if (event->type() == QEvent::KeyPress && AsksForDate(*static_cast<QKeyEvent*>(event))) {
    Q_EMIT Click();
    return true;
  }
  return QWidget::eventFilter(target, event);
}

void DateCtrl::mouseReleaseEvent(QMouseEvent* event) {
  QWidget::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Q_EMIT Click();
}

void DateCtrl::mouseDoubleClickEvent(QMouseEvent* event) {
  QWidget::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton) Q_EMIT DblClick();
}

void DateCtrl::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Arrange();
}

ui::Place DateCtrl::OwnPlace() const {
  // The size in twips as it was given, unless a layout of pixels has changed it since.
  const int given = ui::Pixels(Left() + Width()) - ui::Pixels(Left());
  return {0, 0, given == width() ? Width() : ui::TwipsOf(width()),
          Height() > 0 ? Height() : ui::TwipsOf(height())};
}

void DateCtrl::Arrange() {
  const ui::Place own = OwnPlace();
  const int left = m_isActive ? MarkWidth : 0;
  m_picture1->SetPlace({0, 0, MarkWidth, own.Height});
  m_picture1->SetVisible(m_isActive);
  m_dateVal->SetPlace({left, 0, own.Width - left, own.Height});
  // Rounding must leave no stripe of a pixel at the right and lower edge.
  m_dateVal->setGeometry(ui::Pixels(left), 0, width() - ui::Pixels(left), height());
}

}  // namespace velmora
