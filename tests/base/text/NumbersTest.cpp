// SPDX-License-Identifier: MIT
#include "base/text/Numbers.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;
using namespace velmora;

TEST(NumbersTest, NumberText_WholeNumber_HasNoPoint) {
  EXPECT_EQ(NumberText(0), u"0"_s);
  EXPECT_EQ(NumberText(-0.0), u"0"_s);
  EXPECT_EQ(NumberText(12), u"12"_s);
  EXPECT_EQ(NumberText(-12), u"-12"_s);
  EXPECT_EQ(NumberText(100), u"100"_s);
}

TEST(NumbersTest, NumberText_Fraction_HasNoTrailingZeros) {
  EXPECT_EQ(NumberText(0.5), u"0.5"_s);
  EXPECT_EQ(NumberText(-1234.25), u"-1234.25"_s);
  EXPECT_EQ(NumberText(0.1 + 0.2), u"0.3"_s);
  EXPECT_EQ(NumberText(0.00001), u"0.00001"_s);
}

TEST(NumbersTest, NumberText_FifteenDigits_HaveNoExponent) {
  EXPECT_EQ(NumberText(999999999999999.0), u"999999999999999"_s);
  EXPECT_EQ(NumberText(100000000000000.0), u"100000000000000"_s);
}

TEST(NumbersTest, NumberText_SixteenDigits_HaveAnExponent) {
  EXPECT_EQ(NumberText(1e15), u"1E+15"_s);
  EXPECT_EQ(NumberText(1234567890123456.0), u"1.23456789012346E+15"_s);
  EXPECT_EQ(NumberText(-1.5e-20), u"-1.5E-20"_s);
  EXPECT_EQ(NumberText(1e300), u"1E+300"_s);
}

TEST(NumbersTest, NumberText_AnyNumber_IsReadBack) {
  for (const double number : {1.5, 1e15, 2.5e-17, 123456.789, -7e100}) {
    EXPECT_EQ(ParseNumber(NumberText(number)), number);
  }
}

TEST(NumbersTest, SignedNumberText_LeavesThePlaceOfTheSign) {
  EXPECT_EQ(SignedNumberText(5), u" 5"_s);
  EXPECT_EQ(SignedNumberText(-5), u"-5"_s);
  EXPECT_EQ(SignedNumberText(0), u" 0"_s);
}

TEST(NumbersTest, LeadingNumber_TextBehindTheNumber_IsPassedOver) {
  EXPECT_EQ(LeadingNumber(u"12a"), 12);
  EXPECT_EQ(LeadingNumber(u"  -3.5 kg"), -3.5);
  EXPECT_EQ(LeadingNumber(u".5"), 0.5);
  EXPECT_EQ(LeadingNumber(u"7."), 7);
  EXPECT_EQ(LeadingNumber(u"1e3"), 1000);
  EXPECT_EQ(LeadingNumber(u"1e"), 1);
  EXPECT_EQ(LeadingNumber(u"1,5"), 1);
}

TEST(NumbersTest, LeadingNumber_NoNumber_IsZero) {
  for (const QStringView text : {u"", u"   ", u"a12", u"-", u".", u"nan", u"inf"})
    EXPECT_EQ(LeadingNumber(text), 0);
}

TEST(NumbersTest, LeadingWhole_TakesDigitsAlone) {
  EXPECT_EQ(LeadingWhole(u"12a"), 12);
  EXPECT_EQ(LeadingWhole(u" 12"), 12);
  EXPECT_EQ(LeadingWhole(u"007"), 7);
  EXPECT_EQ(LeadingWhole(u"1.9"), 1);
  EXPECT_EQ(LeadingWhole(u"-5"), 0);
  EXPECT_EQ(LeadingWhole(u""), 0);
}

TEST(NumbersTest, LeadingWhole_BeyondTheRange_IsTheLargest) {
  EXPECT_EQ(LeadingWhole(u"2147483647"), 2147483647);
  EXPECT_EQ(LeadingWhole(u"2147483648"), 2147483647);
  EXPECT_EQ(LeadingWhole(u"99999999999999999999999999"), 2147483647);
}

TEST(NumbersTest, AtoLong_ReadsTheSign) {
  EXPECT_EQ(AtoLong(u"42"), 42);
  EXPECT_EQ(AtoLong(u" -42x"), -42);
  EXPECT_EQ(AtoLong(u"+7"), 7);
  EXPECT_EQ(AtoLong(u"x"), 0);
  EXPECT_EQ(AtoLong(u"-2147483649"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(AtoLong(u"2147483648"), std::numeric_limits<std::int32_t>::max());
}

TEST(NumbersTest, CardNumberText_GroupsByThree) {
  EXPECT_EQ(CardNumberText(1), u"1"_s);
  EXPECT_EQ(CardNumberText(999), u"999"_s);
  EXPECT_EQ(CardNumberText(1000), u"1,000"_s);
  EXPECT_EQ(CardNumberText(1234567), u"1,234,567"_s);
  EXPECT_EQ(CardNumberText(2147483647), u"2,147,483,647"_s);
  EXPECT_EQ(CardNumberText(-1234), u"-1,234"_s);
}

TEST(NumbersTest, CardNumberText_Zero_IsEmpty) { EXPECT_EQ(CardNumberText(0), QString()); }

TEST(NumbersTest, RoundHalfEven_Halves_GoToTheEvenNumber) {
  EXPECT_EQ(RoundHalfEven(2.5), 2);
  EXPECT_EQ(RoundHalfEven(3.5), 4);
  EXPECT_EQ(RoundHalfEven(-1.5), -2);
  EXPECT_EQ(RoundHalfEven(2.51), 3);
}

TEST(NumbersTest, ParseNumber_WholeText_IsTheNumber) {
  EXPECT_EQ(ParseNumber(u"12.5"), 12.5);
  EXPECT_EQ(ParseNumber(u"  -3 "), -3.0);
  EXPECT_EQ(ParseNumber(u"1E+15"), 1e15);
}

TEST(NumbersTest, ParseNumber_AnythingElse_IsNothing) {
  for (const QStringView text :
       {u"", u" ", u"12a", u"1,5", u"inf", u"nan", u"0x10", u"1e999", u"--1", u"1 2"}) {
    EXPECT_EQ(ParseNumber(text), std::nullopt) << text.toString().toStdString();
  }
}
