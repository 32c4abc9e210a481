// SPDX-License-Identifier: MIT
#include "forms/TextBox.h"

#include "forms/Keys.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace velmora::ui {

namespace {

// Longer than any text that a card holds; Qt's own limit would cut one silently.
constexpr int NoLimit = 1 << 30;
constexpr int EnterCharacter = 13;

}  // namespace

TextBox::TextBox(QWidget* parent) : QLineEdit(parent), Control(this) {
  setMaxLength(NoLimit);
  connect(this, &QLineEdit::textEdited, this, [this] {
    if (!m_writing && IsEdit()) Q_EMIT Change();
  });
}

void TextBox::SetText(const QString& text) {
  setText(text);
  setCursorPosition(0);
}

void TextBox::Write(const QString& text) {
  m_writing = true;
  selectAll();
  insert(text);
  m_writing = false;
  if (!hasFocus()) setCursorPosition(0);
  Q_EMIT Change();
}

void TextBox::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(*event)) {
    event->accept();
    Q_EMIT KeyPress(EnterCharacter);
    Q_EMIT EnterPressed();
    return;
  }
  if (!event->text().isEmpty()) Q_EMIT KeyPress(event->text().at(0).unicode());
  QLineEdit::keyPressEvent(event);
}

void TextBox::keyReleaseEvent(QKeyEvent* event) {
  QLineEdit::keyReleaseEvent(event);
  if (!event->isAutoRepeat()) Q_EMIT KeyReleased(event->key());
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Q_EMIT Click();
}

void TextBox::mouseDoubleClickEvent(QMouseEvent* event) {
  QLineEdit::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton) Q_EMIT DblClick();
}

}  // namespace velmora::ui
