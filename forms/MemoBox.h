// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"

#include <QPlainTextEdit>

namespace velmora::ui {

/// A box for a text of several lines. Enter begins a line, Tab leaves the box.
class MemoBox : public QPlainTextEdit, public Control {
  Q_OBJECT

 public:
  explicit MemoBox(QWidget* parent);

  /// The text; to the letter what SetText put in as long as it was not edited, else with LF as its line
  /// breaks.
  [[nodiscard]] QString Text() const;
  /// Puts a text in without a Change; there is nothing to undo afterwards.
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
  void Change();
  void GotFocus();
  void LostFocus();
  void DblClick();

 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  QString m_loaded;
  bool m_quiet = false;
};

}  // namespace velmora::ui
