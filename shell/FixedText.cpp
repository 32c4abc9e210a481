// SPDX-License-Identifier: MIT
#include "shell/FixedText.h"

#include "forms/Makers.h"

#include <QTextDocument>

#include <cmath>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

/// What the lines need, with the margins of the document.
QSize SizeOf(const ui::MemoBox& box, const QString& text) {
  const QStringList lines = WithPlainBreaks(text).split(u'\n');
  int width = 0;
  for (const QString& line : lines) width = std::max(width, box.fontMetrics().horizontalAdvance(line));
  const int margins = static_cast<int>(std::ceil(2 * box.document()->documentMargin()));
  // A pixel more for the text cursor at a line's end.
  return {width + margins + 1, static_cast<int>(lines.size()) * box.fontMetrics().lineSpacing() + margins};
}

}  // namespace

ui::MemoBox* NewFixedText(QWidget* parent, const QString& name, const QString& text, const QString& spoken) {
  auto* box = ui::NewControl<ui::MemoBox>(parent, name, {.Spoken = spoken});
  box->SetText(text);
  box->SetLocked(true);
  box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  box->setFrameStyle(QFrame::NoFrame);
  box->viewport()->setAutoFillBackground(false);
  box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  box->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  box->setLineWrapMode(QPlainTextEdit::NoWrap);
  box->setFixedSize(SizeOf(*box, text));
  return box;
}

QString WithPlainBreaks(const QString& text) { return QString(text).replace(u"\r\n"_s, u"\n"_s); }

}  // namespace velmora
