// SPDX-License-Identifier: MIT
#include "engine/text/LikePattern.h"
#include "engine/text/TextFolding.h"

#include <gtest/gtest.h>

#include <ostream>
#include <random>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

struct Match {
  QString Pattern;
  QString Value;
  bool Matches;
};

void PrintTo(const Match& match, std::ostream* out) {
  *out << match.Value.toStdString() << " LIKE " << match.Pattern.toStdString();
}

const Match Matches[] = {
    {u"abc"_s, u"ABC"_s, true},
    {u"abc"_s, u"abcd"_s, false},
    {u"abc"_s, u"abc "_s, false},
    {u"abc "_s, u"abc"_s, false},
    {u""_s, u""_s, true},
    {u""_s, u"a"_s, false},
    {u"*"_s, u""_s, true},
    {u"*"_s, u"anything"_s, true},
    {u"**"_s, u""_s, true},
    {u"a*"_s, u"a"_s, true},
    {u"a*"_s, u"Abc"_s, true},
    {u"*c"_s, u"abc"_s, true},
    {u"*c"_s, u"abcd"_s, false},
    {u"a*c"_s, u"abcbc"_s, true},
    {u"a*b*c"_s, u"aXXbYYc"_s, true},
    {u"a*b*c"_s, u"aXXcYYb"_s, false},
    {u"*ab*"_s, u"xxabyy"_s, true},
    {u"*ab*"_s, u"xxa byy"_s, false},
    {u"*aab*"_s, u"aaab"_s, true},
    {u"*abab*"_s, u"xabaabab"_s, true},
    {u"?"_s, u""_s, false},
    {u"?"_s, u"x"_s, true},
    {u"?"_s, u"é"_s, true},
    {u"?"_s, u"中"_s, true},
    {u"?"_s, u"\U0001F600"_s, true},
    {u"?"_s, u"ß"_s, true},
    {u"?"_s, u"xy"_s, false},
    {u"?yon"_s, u"Lyon"_s, true},
    {u"*?"_s, u""_s, false},
    {u"#"_s, u"5"_s, true},
    {u"#"_s, u"a"_s, false},
    {u"#"_s, u"٣"_s, false},
    {u"##.#"_s, u"12.5"_s, true},
    {u"##.#"_s, u"12.55"_s, false},
    {u"[abc]"_s, u"B"_s, true},
    {u"[abc]"_s, u"d"_s, false},
    {u"[abc]"_s, u""_s, false},
    {u"[a-f]x"_s, u"Cx"_s, true},
    {u"[a-f]x"_s, u"gx"_s, false},
    {u"[A-F]"_s, u"c"_s, true},
    {u"[!a-f]"_s, u"g"_s, true},
    {u"[!a-f]"_s, u"C"_s, false},
    {u"[a-z]"_s, u"é"_s, false},
    {u"[!a-z]"_s, u"é"_s, true},
    {u"[é]"_s, u"É"_s, true},
    {u"[0-9a-c]"_s, u"B"_s, true},
    {u"[0-9a-c]"_s, u"7"_s, true},
    {u"[-a]"_s, u"-"_s, true},
    {u"[a-]"_s, u"-"_s, true},
    {u"[!-a]"_s, u"-"_s, false},
    {u"[a-c-f]"_s, u"-"_s, true},
    {u"[a-c-f]"_s, u"e"_s, false},
    {u"[*]"_s, u"*"_s, true},
    {u"[*]"_s, u"x"_s, false},
    {u"[?]"_s, u"x"_s, false},
    {u"[#]"_s, u"#"_s, true},
    {u"[#]"_s, u"5"_s, false},
    {u"[[]"_s, u"["_s, true},
    {u"[[]x]"_s, u"[x]"_s, true},
    {u"a]"_s, u"a]"_s, true},
    {u"]"_s, u"]"_s, true},
    {u"[!]"_s, u"!"_s, true},
    {u"[]"_s, u""_s, true},
    {u"a[]b"_s, u"ab"_s, true},
    {u"[abc"_s, u"a"_s, false},
    {u"[abc"_s, u"[abc"_s, false},
    {u"[z-a]"_s, u"b"_s, false},
    {u"*[100]*"_s, u"1"_s, true},
    {u"100%"_s, u"100%"_s, true},
    {u"%"_s, u"abc"_s, false},
    {u"a_c"_s, u"abc"_s, false},
    {u"a_c"_s, u"A_C"_s, true},
    {u"a\\*"_s, u"a\\b"_s, true},
    {u"a'b"_s, u"A'B"_s, true},
    {u"émile"_s, u"ÉMILE"_s, true},
    {u"emile"_s, u"Émile"_s, false},
    {u"*emile*"_s, u"xÉmilex"_s, false},
    {u"*ÉMILE*"_s, u"xémilex"_s, true},
    {u"*ОЛЬГА*"_s, u"Иванова Ольга"_s, true},
    {u"*strasse*"_s, u"Hauptstraße 5"_s, true},
    {u"*straße*"_s, u"HAUPTSTRASSE"_s, true},
    {u"stra?e"_s, u"Straße"_s, true},
    {u"stra?e"_s, u"Strasse"_s, false},
    {u"stras*"_s, u"Straße"_s, true},
    {u"*ae*"_s, u"Ærø"_s, true},
    {u"*thor*"_s, u"Þor"_s, true},
    {u"*e*"_s, u"e\u0301"_s, false},
    {u"*é*"_s, u"e\u0301"_s, true},
    {u"*e*"_s, u"e\u0301e"_s, true},
    {u"*k*"_s, u"\u212a"_s, true},
    {u"*i*"_s, u"İ"_s, false},
};

/// The plain meaning of a pattern without lists, character by character.
bool MatchesSlowly(QStringView pattern, QStringView value) {
  if (pattern.isEmpty()) return value.isEmpty();
  if (pattern.front() == u'*') {
    return MatchesSlowly(pattern.sliced(1), value) ||
           (!value.isEmpty() && MatchesSlowly(pattern, value.sliced(1)));
  }
  if (value.isEmpty()) return false;
  const bool fits = pattern.front() == u'?' || (pattern.front() == u'#' && value.front().isDigit()) ||
                    pattern.front().toLower() == value.front().toLower();
  return fits && MatchesSlowly(pattern.sliced(1), value.sliced(1));
}

}  // namespace

class LikeSigns : public testing::TestWithParam<Match> {};

TEST_P(LikeSigns, Value_OfList_MatchesOrNot) {
  const auto& [pattern, value, matches] = GetParam();
  EXPECT_EQ(MatchesLike(pattern, value), matches);
  EXPECT_EQ(LikePattern(pattern).Matches(value.toUtf8()), matches);
  // Within a longer text the search takes other ways.
  if (matches) {
    EXPECT_TRUE(MatchesLike(u'*' + pattern + u'*', u"<<"_s + value + u">>"_s));
  }
}

INSTANTIATE_TEST_SUITE_P(All, LikeSigns, testing::ValuesIn(Matches));

TEST(LikePattern, RandomPatterns_OfPlainSigns_MatchAsTheirPlainMeaning) {
  std::mt19937 chance(3);
  const QString signs = u"aAbB1*?#"_s;
  const QString letters = u"aAbB12é"_s;
  const auto text = [&](const QString& alphabet, std::mt19937::result_type longest) {
    QString made;
    for (auto length = chance() % longest; length > 0; --length) {
      made += alphabet[static_cast<qsizetype>(chance() % static_cast<unsigned>(alphabet.size()))];
    }
    return made;
  };
  for (int i = 0; i < 100'000; ++i) {
    const QString pattern = text(signs, 8);
    const QString value = text(letters, 10);
    ASSERT_EQ(MatchesLike(pattern, value), MatchesSlowly(pattern, value))
        << value.toStdString() << " LIKE " << pattern.toStdString();
  }
}

TEST(LikePattern, ManyRuns_OnALongValue_ComeToAnEndSoon) {
  const QString pattern = QString(u"a*"_s).repeated(200) + u'b';
  EXPECT_FALSE(MatchesLike(pattern, QString(5000, u'a')));
}

TEST(LikePattern, BytesThatAreNoText_Always_AreLookedThrough) {
  const LikePattern pattern(u"*abc*");
  EXPECT_TRUE(
      pattern.Matches("\xFF\xFE"
                      "abc"));
  EXPECT_FALSE(pattern.Matches("\xC3"));
  EXPECT_FALSE(pattern.Matches("ab\xE2\x82"));
  EXPECT_TRUE(LikePattern(u"???").Matches("\xFF\xFE\xFD"));
}

// The search over the bytes goes by a short list of the letters that hold others within; it must have them
// all.
TEST(LikePattern, LettersThatHoldAscii_OfAllCharacters_AreKnown) {
  for (char32_t character = 0x80; character < 0x110000; ++character) {
    if (QChar::isSurrogate(character)) continue;
    const FoldedCharacter folded = Fold(character);
    bool holdsAscii = false;
    for (std::uint8_t i = 0; i < folded.UnitCount; ++i) {
      if (folded.Units[i] >= 0x80) continue;
      holdsAscii = true;
      const QString text = u"<"_s + QString::fromUcs4(&character, 1) + u'>';
      EXPECT_TRUE(MatchesLike(u'*' + QString(QChar(static_cast<char16_t>(folded.Units[i]))) + u'*', text))
          << static_cast<std::uint32_t>(character);
    }
    ASSERT_EQ(HoldsHiddenAscii(QString::fromUcs4(&character, 1).toUtf8()), holdsAscii)
        << static_cast<std::uint32_t>(character);
  }
}

}  // namespace velmora::db
