// SPDX-License-Identifier: MIT
#include "shell/RtfText.h"

#include <gtest/gtest.h>

#include <random>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

/// The text of a paragraph without its faces.
QString TextOf(const RtfParagraph& paragraph) {
  QString text;
  for (const RtfRun& run : paragraph.Runs) text += run.Text;
  return text;
}

/// The paragraphs of a document of that inside.
QStringList Texts(const QByteArray& inside) {
  QStringList texts;
  for (const RtfParagraph& paragraph : ReadRtf("{\\rtf1\\ansi " + inside + "}")) texts += TextOf(paragraph);
  return texts;
}

RtfParagraph First(const QByteArray& inside) { return ReadRtf("{\\rtf1 " + inside + "}").value(0); }

TEST(RtfTextTest, ReadRtf_Paragraphs_EndWithParOrTheDocument) {
  EXPECT_EQ(Texts("One\\par Two\r\n and more\\par\n\nThree"),
            QStringList({u"One"_s, u"Two and more"_s, u"Three"_s}));
  EXPECT_EQ(Texts("One\\par\\par Two\\par"), QStringList({u"One"_s, QString(), u"Two"_s}));
  EXPECT_EQ(Texts("One\\\nTwo"), QStringList({u"One"_s, u"Two"_s}));
}

TEST(RtfTextTest, ReadRtf_Signs_AreText) {
  EXPECT_EQ(Texts("a\\{b\\}c\\\\d\\~e\\_f\\-g"), QStringList{u"a{b}c\\d\u00a0e\u2011fg"_s});
  EXPECT_EQ(Texts("\\lquote a\\rquote  \\ldblquote b\\rdblquote\\emdash\\endash\\bullet\\tab x\\line y"),
            QStringList{u"\u2018a\u2019 \u201cb\u201d\u2014\u2013\u2022\tx\u2028y"_s});
}

TEST(RtfTextTest, ReadRtf_CodePage_IsHeeded) {
  EXPECT_EQ(Texts("caf\\'e9 \\'80 \\'93x\\'94 \\'81"), QStringList{u"café € \u201cx\u201d \ufffd"_s});
  EXPECT_EQ(Texts("caf\xe9"), QStringList{u"café"_s});
}

TEST(RtfTextTest, ReadRtf_UnicodeCodes_PassOverTheirStandIns) {
  EXPECT_EQ(Texts("\\u322?\\'f3d\\u378 ?"), QStringList{u"łódź"_s}) << "the blank ends the code";
  EXPECT_EQ(Texts("{\\uc2\\u8364 EUR}x"), QStringList{u"€Rx"_s});
  EXPECT_EQ(Texts("{\\uc0\\u8364 }1"), QStringList{u"€1"_s});
  EXPECT_EQ(Texts("\\u8364\\'80 1"), QStringList{u"€ 1"_s});
  EXPECT_EQ(Texts("\\u-10179?\\u-8704?"), QStringList{u"\U0001f600"_s});
  EXPECT_EQ(Texts("a\\u-10179?b"), QStringList{u"a?b"_s}) << "half a character";
}

TEST(RtfTextTest, ReadRtf_Faces_LastUntilTheirGroupEnds) {
  const QList<RtfRun> expected{{.Text = u"a"_s, .Face = {}},
                               {.Text = u"b"_s, .Face = {.IsBold = true}},
                               {.Text = u"c"_s, .Face = {.Size = 36, .IsBold = true, .IsItalic = true}},
                               {.Text = u"d"_s, .Face = {.IsBold = true}},
                               {.Text = u"e"_s, .Face = {.IsUnderlined = true}},
                               {.Text = u"f"_s, .Face = {}}};
  EXPECT_EQ(First("a\\b b{\\i\\fs36 c}d\\b0\\ul e\\ulnone f").Runs, expected);
  EXPECT_EQ(First("\\b\\i\\fs40 a\\plain b").Runs.value(1), (RtfRun{.Text = u"b"_s, .Face = {}}));
}

TEST(RtfTextTest, ReadRtf_Shapes_AreThoseAtTheParagraphsEnd) {
  const RtfParagraph shaped = First("\\pard\\li360\\fi-360\\sb120\\sa60\\qc Text\\par");
  EXPECT_EQ(shaped.LeftIndent, 360);
  EXPECT_EQ(shaped.FirstIndent, -360);
  EXPECT_EQ(shaped.SpaceBefore, 120);
  EXPECT_EQ(shaped.SpaceAfter, 60);
  EXPECT_TRUE(shaped.IsCentred);
  const RtfParagraph plain = ReadRtf("{\\rtf1\\li360\\qc One\\par\\pard Two\\par}").value(1);
  EXPECT_EQ(plain.LeftIndent, 0);
  EXPECT_FALSE(plain.IsCentred);
}

TEST(RtfTextTest, ReadRtf_WhatIsNoText_IsPassedOver) {
  EXPECT_EQ(Texts("{\\fonttbl{\\f0 Sans;}}{\\colortbl;\\red0;}{\\*\\generator x;}{\\info{\\title "
                  "T}}\\f0\\unknown5 a"),
            QStringList{u"a"_s});
  EXPECT_EQ(Texts("a\\bin5 {{}}xb"), QStringList{u"ab"_s});
}

TEST(RtfTextTest, ReadRtf_SizesAndSpaces_StayWithinReason) {
  EXPECT_EQ(First("\\fs99999999999999 a").Runs.value(0).Face.Size, 96);
  EXPECT_EQ(First("\\fs-4 a").Runs.value(0).Face.Size, 12);
  EXPECT_EQ(First("\\li99999999 \\sb-5 a").LeftIndent, 5000);
  EXPECT_EQ(First("\\li99999999 \\sb-5 a").SpaceBefore, 0);
}

TEST(RtfTextTest, ReadRtf_NoDocument_IsEmpty) {
  for (const QByteArray& text : {QByteArray(), QByteArray("{"), QByteArray("plain text"),
                                 QByteArray("\\rtf1 a"), QByteArray(1000, '\0')}) {
    EXPECT_TRUE(ReadRtf(text).isEmpty()) << text.toStdString();
  }
}

TEST(RtfTextTest, ReadRtf_Truncated_GivesWhatItCouldRead) {
  const QByteArray whole =
      "{\\rtf1\\ansi{\\fonttbl{\\f0 Sans;}}\\pard\\b One\\b0  \\u8364?\\'e9\\par{Two}\\par}";
  for (qsizetype length = 0; length < whole.size(); ++length) {
    const QList<RtfParagraph> found = ReadRtf(whole.first(length));
    EXPECT_LE(found.size(), 2);
    if (length > whole.indexOf("\\par{")) {
      EXPECT_EQ(TextOf(found.value(0)).first(3), u"One"_s);
    }
  }
}

TEST(RtfTextTest, ReadRtf_DeepNesting_EndsAndGoesOnBehindIt) {
  const QByteArray deep = QByteArray(1000000, '{') + "lost" + QByteArray(1000000, '}');
  EXPECT_EQ(Texts("a" + deep + "b\\par c"), QStringList({u"ab"_s, u"c"_s}));
  EXPECT_EQ(Texts("a" + QByteArray(1000000, '{')), QStringList{u"a"_s});
  EXPECT_EQ(Texts("a" + QByteArray(1000000, '}') + "b"), QStringList{u"a"_s}) << "behind the document";
}

TEST(RtfTextTest, ReadRtf_Garbage_IsSurvived) {
  std::mt19937 random(20);
  const QByteArray signs = "{}\\\\\\'u0123456789-abfilpqrs* \n\x80\xff";
  for (int round = 0; round < 2000; ++round) {
    QByteArray document = "{\\rtf1 ";
    for (int i = 0; i < 200; ++i) document += signs[static_cast<qsizetype>(random()) % signs.size()];
    for (const RtfParagraph& paragraph : ReadRtf(document))
      EXPECT_LE(TextOf(paragraph).size(), document.size());
  }
}

}  // namespace
}  // namespace velmora
