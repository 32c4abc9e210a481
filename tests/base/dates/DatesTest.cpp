// SPDX-License-Identifier: MIT
#include "base/dates/Dates.h"

#include <QLocale>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

class DatesTest : public testing::Test {
 protected:
  void TearDown() override { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
  static void Use(const QString& locale) { QLocale::setDefault(QLocale(locale)); }
  static std::optional<QDate> DateIn(QStringView text) {
    const auto moment = ParseDate(text);
    return moment ? std::optional(moment->date()) : std::nullopt;
  }
};

QDateTime At(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
}

}  // namespace

TEST_F(DatesTest, ShortDateOrder_FollowsTheSystem) {
  EXPECT_EQ(ShortDateOrder(), DateOrder::MonthDayYear);
  Use(u"de_DE"_s);
  EXPECT_EQ(ShortDateOrder(), DateOrder::DayMonthYear);
  Use(u"sv_SE"_s);
  EXPECT_EQ(ShortDateOrder(), DateOrder::YearMonthDay);
}

TEST_F(DatesTest, ShortDate_YearHasFourDigitsEverywhere) {
  const QDate date(2024, 3, 5);
  EXPECT_EQ(ShortDate(date), u"3/5/2024"_s);
  Use(u"en_GB"_s);
  EXPECT_EQ(ShortDate(date), u"05/03/2024"_s);
  Use(u"de_DE"_s);
  EXPECT_EQ(ShortDate(date), u"05.03.2024"_s);
  Use(u"sv_SE"_s);
  EXPECT_EQ(ShortDate(date), u"2024-03-05"_s);
  EXPECT_EQ(ShortDate(QDate(476, 9, 4)), u"0476-09-04"_s);
}

TEST_F(DatesTest, ShortDate_TimeOtherThanMidnight_Follows) {
  EXPECT_EQ(ShortDate(At(2024, 3, 5)), u"3/5/2024"_s);
  EXPECT_EQ(ShortDate(At(2024, 3, 5, 7, 8, 9)), u"3/5/2024 07:08:09"_s);
}

TEST_F(DatesTest, ShortDate_NoDate_IsEmpty) {
  EXPECT_EQ(ShortDate(QDate()), QString());
  EXPECT_EQ(ShortDate(QDateTime()), QString());
}

TEST_F(DatesTest, ParseDate_ReadsWhatShortDateWrites_InEveryLocale) {
  const QDate date(2024, 11, 30);
  const auto locales =
      QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
  ASSERT_GT(locales.size(), 300);
  for (const QLocale& locale : locales) {
    QLocale::setDefault(locale);
    EXPECT_EQ(DateIn(ShortDate(date)), date)
        << locale.name().toStdString() << " " << ShortDate(date).toStdString();
    EXPECT_EQ(DateIn(ShortDate(QDate(2003, 2, 1))), QDate(2003, 2, 1)) << locale.name().toStdString();
  }
}

TEST_F(DatesTest, ParseDate_OrderOfTheSystem_Decides) {
  EXPECT_EQ(DateIn(u"3/5/2024"), QDate(2024, 3, 5));
  Use(u"de_DE"_s);
  EXPECT_EQ(DateIn(u"3/5/2024"), QDate(2024, 5, 3));
  EXPECT_EQ(DateIn(u"03.05.2024"), QDate(2024, 5, 3));
  Use(u"sv_SE"_s);
  EXPECT_EQ(DateIn(u"24-03-05"), QDate(2024, 3, 5));
  EXPECT_EQ(DateIn(u"3/5/2024"), QDate(2024, 3, 5));
}

TEST_F(DatesTest, ParseDate_Iso_IsReadEverywhere) {
  for (const QString& locale : {u"en_US"_s, u"de_DE"_s, u"sv_SE"_s}) {
    Use(locale);
    EXPECT_EQ(DateIn(u"2024-03-05"), QDate(2024, 3, 5));
    EXPECT_EQ(ParseDate(u"2024-03-05 14:30:15"), At(2024, 3, 5, 14, 30, 15));
    EXPECT_EQ(ParseDate(u"2024-03-05T14:30:15"), At(2024, 3, 5, 14, 30, 15));
  }
}

TEST_F(DatesTest, ParseDate_PartThatIsNoMonth_IsTheDay) {
  EXPECT_EQ(DateIn(u"31/12/2024"), QDate(2024, 12, 31));
  EXPECT_EQ(DateIn(u"2024-31-12"), QDate(2024, 12, 31));
  Use(u"de_DE"_s);
  EXPECT_EQ(DateIn(u"12/31/2024"), QDate(2024, 12, 31));
}

TEST_F(DatesTest, ParseDate_TwoDigitYear_IsOfItsCentury) {
  EXPECT_EQ(DateIn(u"1/1/00"), QDate(2000, 1, 1));
  EXPECT_EQ(DateIn(u"1/1/29"), QDate(2029, 1, 1));
  EXPECT_EQ(DateIn(u"1/1/30"), QDate(1930, 1, 1));
  EXPECT_EQ(DateIn(u"1/1/99"), QDate(1999, 1, 1));
  EXPECT_EQ(DateIn(u"1/1/5"), QDate(2005, 1, 1));
}

TEST_F(DatesTest, ParseDate_TimeOfDay_IsRead) {
  EXPECT_EQ(ParseDate(u" 3/5/2024  7:08 "), At(2024, 3, 5, 7, 8));
  EXPECT_EQ(ParseDate(u"3/5/2024 7:08 pm"), At(2024, 3, 5, 19, 8));
  EXPECT_EQ(ParseDate(u"3/5/2024 12:00 AM"), At(2024, 3, 5));
}

TEST_F(DatesTest, ParseDate_NoDate_IsNothing) {
  for (const QStringView text :
       {u"", u" ", u"abc", u"3/5", u"2/30/2024", u"2/29/2023", u"13/13/2024", u"0/1/2024", u"1/1/0099",
        u"1/1/10000", u"1/1/20245", u"3/5/2024 25:00", u"3/5/2024 x", u"3/5/2024x", u"3/5/2024 13:00 PM",
        u"1/2024/3", u"12:30", u"-3/5/2024", u"3/5/2024 7:08 pm x"}) {
    EXPECT_EQ(ParseDate(text), std::nullopt) << text.toString().toStdString();
  }
}

TEST_F(DatesTest, ParseDate_EndsOfTheRange_AreRead) {
  EXPECT_EQ(DateIn(u"1/1/100"), QDate(100, 1, 1));
  EXPECT_EQ(DateIn(u"12/31/9999"), QDate(9999, 12, 31));
}

TEST_F(DatesTest, ParseDateMonthFirst_SystemWithDayFirst_StillMonthFirst) {
  Use(u"de_DE"_s);
  EXPECT_EQ(ParseDateMonthFirst(u"3/5/2024"), At(2024, 3, 5));
  EXPECT_EQ(ParseDateMonthFirst(u"31/5/2024"), At(2024, 5, 31));
  EXPECT_EQ(ParseDateMonthFirst(u"2024-03-05"), At(2024, 3, 5));
}

TEST_F(DatesTest, StoredDate_HasATimeOnlyWhenThereIsOne) {
  EXPECT_EQ(StoredDate(At(2024, 3, 5)), u"2024-03-05"_s);
  EXPECT_EQ(StoredDate(At(2024, 3, 5, 1, 2, 3)), u"2024-03-05 01:02:03"_s);
  EXPECT_EQ(StoredDate(At(100, 1, 1)), u"0100-01-01"_s);
}

TEST_F(DatesTest, AddMonths_DayThatTheMonthLacks_IsItsLast) {
  EXPECT_EQ(AddMonths(QDate(2023, 3, 31), -1), QDate(2023, 2, 28));
  EXPECT_EQ(AddMonths(QDate(2024, 3, 31), -1), QDate(2024, 2, 29));
  EXPECT_EQ(AddMonths(QDate(2023, 1, 31), 1), QDate(2023, 2, 28));
  EXPECT_EQ(AddMonths(QDate(2023, 12, 15), 1), QDate(2024, 1, 15));
}

TEST_F(DatesTest, AddYears_LeapDay_IsTheLastOfFebruary) {
  EXPECT_EQ(AddYears(QDate(2000, 2, 29), 1), QDate(2001, 2, 28));
  EXPECT_EQ(AddYears(QDate(2000, 2, 29), 4), QDate(2004, 2, 29));
}

TEST_F(DatesTest, MediumTime_BothHalvesOfTheDay_HasTheSystemsWords) {
  Use(u"en_US"_s);
  EXPECT_EQ(MediumTime(QTime(0, 5), false), u"12:05 AM"_s);
  EXPECT_EQ(MediumTime(QTime(9, 5, 7), true), u"09:05:07 AM"_s);
  EXPECT_EQ(MediumTime(QTime(12, 0), false), u"12:00 PM"_s);
  EXPECT_EQ(MediumTime(QTime(23, 59, 58), true), u"11:59:58 PM"_s);
  Use(u"el_GR"_s);
  EXPECT_EQ(MediumTime(QTime(15, 9), false), u"03:09 μ.μ."_s);
}
