// SPDX-License-Identifier: MIT
#pragma once

#include "forms/TextBox.h"

namespace velmora {

/// A box for a whole number. When a key other than those of the digit row is let go, the last edit is undone,
/// one key's worth: a letter goes as soon as it has come, and so do a point, a minus and a digit of the
/// numeric pad; a deletion comes back. Undone once, there is nothing more to undo until the next edit.
class DigitBox final : public ui::TextBox {
  Q_OBJECT

 public:
  explicit DigitBox(QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void NoteEdit();
  void UndoLastEdit();

  /// The text before the last edit, and now.
  QString m_before;
  QString m_now;
  /// A key that was pressed in another box, such as the Tab that led here, says nothing when it is let go.
  bool m_pressedHere = false;
  bool m_repeats = false;
};

}  // namespace velmora
