// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"

#include <QLineEdit>

namespace velmora::ui {

/// A box for one line of text. What the program loads into it with SetText is no change; what the user types
/// and what a dialog writes for the user is.
class TextBox : public QLineEdit, public Control {
  Q_OBJECT

 public:
  explicit TextBox(QWidget* parent);

  [[nodiscard]] QString Text() const { return text(); }
  /// Puts a text in without a Change; there is nothing to undo afterwards, and its beginning is in view.
  void SetText(const QString& text);
  /// Writes a text as the user's doing: raises Change once, also when the text stays the same, and can be
  /// undone.
  void Write(const QString& text);
  void SelectAll() { selectAll(); }
  [[nodiscard]] bool Locked() const { return isReadOnly(); }
  void SetLocked(bool locked) { setReadOnly(locked); }

  void OnGotFocus() override { Q_EMIT GotFocus(); }
  void OnLostFocus() override { Q_EMIT LostFocus(); }

 Q_SIGNALS:
  /// The user changed the text, or Write did.
  void Change();
  void GotFocus();
  void LostFocus();
  void Click();
  void DblClick();
  /// A key that makes a character was pressed, before it has its effect; Enter is 13.
  void KeyPress(int character);
  void EnterPressed();
  /// A key (Qt::Key) was let go, after it had its effect.
  void KeyReleased(int key);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  /// Whether what the user just did is a change.
  [[nodiscard]] virtual bool IsEdit() const { return true; }

 private:
  bool m_writing = false;
};

}  // namespace velmora::ui
