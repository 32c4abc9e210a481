// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace velmora {

/// How text looks.
struct RtfFace {
  /// In half points.
  int Size = PlainSize;
  bool IsBold = false;
  bool IsItalic = false;
  bool IsUnderlined = false;

  bool operator==(const RtfFace&) const = default;

  static constexpr int PlainSize = 24;
};

/// A piece of a paragraph in one face.
struct RtfRun {
  QString Text;
  RtfFace Face;

  bool operator==(const RtfRun&) const = default;
};

/// A paragraph; its measures are in twips.
struct RtfParagraph {
  QList<RtfRun> Runs;
  int LeftIndent = 0;
  int FirstIndent = 0;
  int SpaceBefore = 0;
  int SpaceAfter = 0;
  bool IsCentred = false;

  bool operator==(const RtfParagraph&) const = default;
};

/// The text of a document in Rich Text Format: paragraphs with their indents and spaces, bold, italic and
/// underlined text in its sizes. What it does not know, it passes over; of a broken document it gives what it
/// could read. An RTF document begins with "{\rtf"; anything else gives nothing.
[[nodiscard]] QList<RtfParagraph> ReadRtf(const QByteArray& document);

}  // namespace velmora
