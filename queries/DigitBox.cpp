// SPDX-License-Identifier: MIT
#include "queries/DigitBox.h"

#include <QKeyEvent>

namespace velmora {

namespace {

bool IsOfDigitRow(const QKeyEvent& event) {
  return event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9 &&
         !event.modifiers().testFlag(Qt::KeypadModifier);
}

}  // namespace

DigitBox::DigitBox(QWidget* parent) : TextBox(parent) {
  connect(this, &QLineEdit::textEdited, this, [this] { NoteEdit(); });
  connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
    // What the program loads cannot be undone.
    if (text != m_now) m_now = m_before = text;
  });
}

void DigitBox::keyPressEvent(QKeyEvent* event) {
  m_pressedHere = true;
  m_repeats = event->isAutoRepeat();
  TextBox::keyPressEvent(event);
  m_repeats = false;
}

void DigitBox::keyReleaseEvent(QKeyEvent* event) {
  TextBox::keyReleaseEvent(event);
  if (m_pressedHere && !event->isAutoRepeat() && !IsOfDigitRow(*event)) UndoLastEdit();
}

void DigitBox::focusInEvent(QFocusEvent* event) {
  m_pressedHere = false;
  TextBox::focusInEvent(event);
}

void DigitBox::NoteEdit() {
  // All that a held key does is one edit.
  if (!m_repeats) m_before = m_now;
  m_now = text();
}

void DigitBox::UndoLastEdit() {
  if (m_now == m_before) return;
  m_now = m_before;
  setText(m_now);
}

}  // namespace velmora
