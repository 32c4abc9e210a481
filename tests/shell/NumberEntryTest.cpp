// SPDX-License-Identifier: MIT
#include "shell/NumberEntry.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

const NumberEntry Nothing{};
const NumberEntry Cleared{.Clear = true, .Card = {}};

NumberEntry Card(std::int32_t number) { return {.Clear = false, .Card = number}; }

}  // namespace

TEST(NumberEntryTest, ReadNumberEntry_Digits_AskForThatCard) {
  EXPECT_EQ(ReadNumberEntry(u"1"_s), Card(1));
  EXPECT_EQ(ReadNumberEntry(u"12"_s), Card(12));
  EXPECT_EQ(ReadNumberEntry(u"123"_s), Card(123));
  EXPECT_EQ(ReadNumberEntry(u"2147483647"_s), Card(2147483647));
}

TEST(NumberEntryTest, ReadNumberEntry_BlankText_DoesNothing) {
  EXPECT_EQ(ReadNumberEntry(QString()), Nothing);
  EXPECT_EQ(ReadNumberEntry(u"  "_s), Nothing);
}

TEST(NumberEntryTest, ReadNumberEntry_Zero_IsWiped) { EXPECT_EQ(ReadNumberEntry(u"0"_s), Cleared); }

TEST(NumberEntryTest, ReadNumberEntry_AnythingButPlainDigits_IsWiped) {
  for (const QString& text :
       {u"12a"_s, u" 12"_s, u"12 "_s, u"007"_s, u"a"_s, u"-5"_s, u"+5"_s, u"1.5"_s, u"99999999999"_s}) {
    EXPECT_EQ(ReadNumberEntry(text), Cleared) << text.toStdString();
  }
}
