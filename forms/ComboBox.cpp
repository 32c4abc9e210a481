// SPDX-License-Identifier: MIT
#include "forms/ComboBox.h"

#include "forms/Keys.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

namespace velmora::ui {

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent), Control(this) {
  setInsertPolicy(QComboBox::NoInsert);
  // Its place is given; a list of long entries must not ask for more.
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(this, &QComboBox::activated, this, [this] { Q_EMIT Click(); });
  SetMode(ComboMode::FreeText);
}

void ComboBox::SetMode(ComboMode mode) {
  const bool free = mode == ComboMode::FreeText;
  if (free == isEditable() && lineEdit() != nullptr) return;
  setEditable(free);
  if (!free) return;
  // Typing would be completed to an entry behind the user's back.
  setCompleter(nullptr);
  lineEdit()->installEventFilter(this);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this] { Q_EMIT Change(); });
}

void ComboBox::AddItem(const QString& text) { Insert(count(), text); }

void ComboBox::InsertItem(int index, const QString& text) {
  if (index >= 0 && index <= count()) Insert(index, text);
}

void ComboBox::Insert(int index, const QString& text) {
  // Qt picks the first entry that comes into an empty list.
  const bool first = count() == 0;
  const QString shown = currentText();
  insertItem(index, text);
  if (!first) return;
  setCurrentIndex(-1);
  if (isEditable()) setEditText(shown);
}

void ComboBox::RemoveItem(int index) {
  if (index < 0 || index >= count()) return;
  const bool picked = index == currentIndex();
  removeItem(index);
  if (picked) setCurrentIndex(-1);
}

void ComboBox::Clear() {
  clear();
  if (isEditable()) clearEditText();
}

void ComboBox::SetText(const QString& text) {
  if (!isEditable()) {
    setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    return;
  }
  setEditText(text);
  lineEdit()->setCursorPosition(0);
}

int ComboBox::ListIndex() const {
  const int index = currentIndex();
  return index >= 0 && currentText() == itemText(index) ? index : -1;
}

bool ComboBox::eventFilter(QObject* target, QEvent* event) {
  if (target == lineEdit() && event->type() == QEvent::KeyPress && IsEnter(*static_cast<QKeyEvent*>(event))) {
    Q_EMIT EnterPressed();
    return true;
  }
  return QComboBox::eventFilter(target, event);
}

void ComboBox::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(*event)) {
    event->accept();
    Q_EMIT EnterPressed();
    return;
  }
  QComboBox::keyPressEvent(event);
}

void ComboBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace velmora::ui
