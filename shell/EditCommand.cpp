// SPDX-License-Identifier: MIT
#include "shell/EditCommand.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace velmora {

namespace {

/// QLineEdit, QPlainTextEdit and QTextEdit share these by name and not by a base class.
template <typename Edit>
void Apply(Edit& edit, EditMessage message) {
  switch (message) {
    case EditMessage::SelectAll:
      return edit.selectAll();
    case EditMessage::Undo:
      return edit.undo();
    case EditMessage::Cut:
      return edit.cut();
    case EditMessage::Copy:
      return edit.copy();
    case EditMessage::Paste:
      return edit.paste();
    case EditMessage::Clear:
      break;
  }
  if (edit.isReadOnly()) return;
  if constexpr (std::is_same_v<Edit, QLineEdit>) {
    if (edit.hasSelectedText()) edit.insert(QString());
  } else {
    edit.textCursor().removeSelectedText();
  }
}

/// A line edit drops its selection when the menu bar takes the focus, but not when a popup does.
class SelectionKeeper final : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* target, QEvent* event) override {
    if (event->type() != QEvent::FocusOut) return false;
    if (static_cast<QFocusEvent*>(event)->reason() != Qt::MenuBarFocusReason) return false;
    QFocusEvent toPopup(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(target, &toPopup);
    return true;
  }
};

}  // namespace

void EditCommand(EditMessage message) {
  QWidget* focused = QApplication::focusWidget();
  if (auto* combo = qobject_cast<QComboBox*>(focused); combo != nullptr) focused = combo->lineEdit();
  if (auto* line = qobject_cast<QLineEdit*>(focused); line != nullptr) {
    Apply(*line, message);
  } else if (auto* plain = qobject_cast<QPlainTextEdit*>(focused); plain != nullptr) {
    Apply(*plain, message);
  } else if (auto* rich = qobject_cast<QTextEdit*>(focused); rich != nullptr) {
    Apply(*rich, message);
  }
}

void KeepSelectionUnder(QMenuBar& bar) { qApp->installEventFilter(new SelectionKeeper(&bar)); }

}  // namespace velmora
