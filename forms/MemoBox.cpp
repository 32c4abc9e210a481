// SPDX-License-Identifier: MIT
#include "forms/MemoBox.h"

#include <QMouseEvent>
#include <QTextCursor>
#include <QTextDocument>

namespace velmora::ui {

using namespace Qt::StringLiterals;

MemoBox::MemoBox(QWidget* parent) : QPlainTextEdit(parent), Control(this) {
  setTabChangesFocus(true);
  connect(this, &QPlainTextEdit::textChanged, this, [this] {
    if (!m_quiet) Q_EMIT Change();
  });
}

QString MemoBox::Text() const {
  if (!document()->isModified()) return m_loaded;
  // Not toPlainText, which turns no-break spaces into plain ones.
  QString text = document()->toRawText();
  for (QChar& character : text) {
    if (character == QChar::ParagraphSeparator || character == QChar::LineSeparator) character = u'\n';
  }
  return text;
}

void MemoBox::SetText(const QString& text) {
  m_loaded = text;
  m_quiet = true;
  setPlainText(text);
  m_quiet = false;
}

void MemoBox::Write(const QString& text) {
  m_quiet = true;
  QTextCursor cursor(document());
  cursor.select(QTextCursor::Document);
  cursor.insertText(text);
  m_quiet = false;
  Q_EMIT Change();
}

void MemoBox::mouseDoubleClickEvent(QMouseEvent* event) {
  QPlainTextEdit::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton) Q_EMIT DblClick();
}

}  // namespace velmora::ui
