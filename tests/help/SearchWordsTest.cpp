// SPDX-License-Identifier: MIT
#include "help/SearchWords.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

TEST(SearchWords, SearchWords_SignsBetween_PartTheWords) {
  EXPECT_EQ(SearchWords(u"  L'Aquila, (two) \"three\"* "_s),
            (QStringList{u"l"_s, u"aquila"_s, u"two"_s, u"three"_s}));
}

TEST(SearchWords, SearchWords_SameWordTwice_StandsOnce) {
  EXPECT_EQ(SearchWords(u"Card card CARD"_s), QStringList{u"card"_s});
}

TEST(SearchWords, SearchWords_OtherAlphabets_AreWords) {
  EXPECT_EQ(SearchWords(u"Łódź 東京"_s), (QStringList{u"łódź"_s, u"東京"_s}));
}

TEST(SearchWords, SearchWords_SignsAlone_AreNone) { EXPECT_TRUE(SearchWords(u" '*-\" "_s).isEmpty()); }

TEST(SearchWords, SearchQuestion_TwoWords_AsksForBothBeginnings) {
  EXPECT_EQ(SearchQuestion({u"card"_s, u"or"_s}), u"\"card\"* \"or\"*"_s);
}

}  // namespace
}  // namespace velmora
