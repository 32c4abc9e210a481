// SPDX-License-Identifier: MIT
#include "shell/RtfDocument.h"

#include "forms/Twips.h"

#include <QFontInfo>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextEdit>

namespace velmora {

namespace {

QTextBlockFormat ShapeOf(const RtfParagraph& paragraph) {
  QTextBlockFormat shape;
  shape.setLeftMargin(ui::Pixels(paragraph.LeftIndent));
  shape.setTextIndent(ui::Pixels(paragraph.FirstIndent));
  shape.setTopMargin(ui::Pixels(paragraph.SpaceBefore));
  shape.setBottomMargin(ui::Pixels(paragraph.SpaceAfter));
  if (paragraph.IsCentred) shape.setAlignment(Qt::AlignHCenter);
  // What is set out to the left of its paragraph ends in a tab to where the paragraph begins.
  if (paragraph.FirstIndent < 0) {
    shape.setTabPositions({QTextOption::Tab(ui::Pixels(-paragraph.FirstIndent), QTextOption::LeftTab)});
  }
  return shape;
}

QTextCharFormat FaceOf(const RtfFace& face, double plainPoints) {
  QTextCharFormat format;
  format.setFontPointSize(plainPoints * face.Size / RtfFace::PlainSize);
  format.setFontWeight(face.IsBold ? QFont::Bold : QFont::Normal);
  format.setFontItalic(face.IsItalic);
  format.setFontUnderline(face.IsUnderlined);
  return format;
}

}  // namespace

void ShowRtf(QTextEdit& box, const QList<RtfParagraph>& paragraphs) {
  const double plainPoints = QFontInfo(box.font()).pointSizeF();
  box.clear();
  QTextCursor cursor(box.document());
  cursor.beginEditBlock();
  for (const RtfParagraph& paragraph : paragraphs) {
    if (&paragraph == &paragraphs.first()) {
      cursor.setBlockFormat(ShapeOf(paragraph));
    } else {
      cursor.insertBlock(ShapeOf(paragraph));
    }
    for (const RtfRun& run : paragraph.Runs) cursor.insertText(run.Text, FaceOf(run.Face, plainPoints));
  }
  cursor.endEditBlock();
  box.moveCursor(QTextCursor::Start);
}

}  // namespace velmora
