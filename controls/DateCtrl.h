// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"
#include "forms/TextBox.h"

#include <QWidget>

namespace velmora {

class ReminderMark;

/// The box of a date on a card, with a mark beside it when the date has a reminder. It takes any text and
/// never looks at whether it is a date. F4 and Alt+Down do what a click does.
class DateCtrl final : public QWidget, public ui::Control {
  Q_OBJECT

 public:
  explicit DateCtrl(QWidget* parent);

  [[nodiscard]] QString Text() const { return m_dateVal->Text(); }
  /// Always raises Change, also when the text stays the same.
  void SetText(const QString& text);
  [[nodiscard]] bool IsActive() const { return m_isActive; }
  /// Tells that the date has a reminder, and shows or takes away the mark at once.
  void SetIsActive(bool active);
  [[nodiscard]] bool Locked() const { return m_dateVal->Locked(); }
  void SetLocked(bool locked) { m_dateVal->SetLocked(locked); }
  /// Gives the box the colour of button faces.
  void SetBackGround() { SetBackColor(ui::Role::ButtonFace); }
  /// Gives the text the colour of plain text.
  void SetForeColor() { Control::SetForeColor(ui::Role::Ink); }
  using Control::SetForeColor;

  /// The names that the reminder is for, parted by commas; the control only keeps them.
  QString strAgents;

  /// What assistive technology calls the box.
  void setAccessibleName(const QString& name);
  [[nodiscard]] ui::TextBox* DateVal() const { return m_dateVal; }
  void RefreshColors() override;

 Q_SIGNALS:
  void Click();
  void DblClick();
  /// A key that makes a character was pressed; Enter is 13.
  void KeyPress(int keyAscii);
  void Change();
  void GotFocus();
  void LostFocus();
  void EnterPressed();

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void OnPlaced() override { Arrange(); }

 private:
  void Arrange();
  [[nodiscard]] ui::Place OwnPlace() const;
  ReminderMark* m_picture1;
  ui::TextBox* m_dateVal;
  bool m_isActive = false;
};

}  // namespace velmora
