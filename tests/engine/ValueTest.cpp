// SPDX-License-Identifier: MIT
#include "engine/values/Error.h"
#include "engine/values/Value.h"
#include "tests/support/TestDatabase.h"

#include <limits>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::ErrorNumberOf;

namespace {

const QDateTime Leap(QDate(2024, 2, 29), QTime(13, 5, 9), Qt::UTC);

TEST(Value, Text_EachKind_IsTheOneForm) {
  EXPECT_EQ(Value(true).Text(), u"-1");
  EXPECT_EQ(Value(false).Text(), u"0");
  EXPECT_EQ(Value(12).Text(), u"12");
  EXPECT_EQ(Value(2.0).Text(), u"2");
  EXPECT_EQ(Value(-0.5).Text(), u"-0.5");
  EXPECT_EQ(Value(u"Größe"_s).Text(), u"Größe");
  EXPECT_EQ(Value(QDate(2024, 2, 29)).TextOr({}), u"2/29/2024");
  EXPECT_EQ(Value().TextOr(u"none"_s), u"none");
}

TEST(Value, Read_Null_Fails94) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(Value().Text()); }), 94);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(Value().Long()); }), 94);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(Value().Number()); }), 94);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(Value().Truth()); }), 94);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(Value().DateTime()); }), 94);
}

struct LongCase {
  Value Given;
  std::int32_t Long;
};

TEST(Value, Long_Halves_RoundToEven) {
  const std::vector<LongCase> cases{{2.5, 2},
                                    {3.5, 4},
                                    {-1.5, -2},
                                    {-2.5, -2},
                                    {0.5, 0},
                                    {2.4999999, 2},
                                    {u" 12 "_s, 12},
                                    {u"2.5"_s, 2},
                                    {true, -1},
                                    {false, 0},
                                    {7, 7},
                                    {2147483647.4, 2147483647},
                                    {-2147483648.5, std::numeric_limits<std::int32_t>::min()}};
  for (const LongCase& entry : cases)
    EXPECT_EQ(entry.Given.Long(), entry.Long) << entry.Given.Text().toStdString();
}

TEST(Value, Long_BeyondTheRange_Fails3349) {
  for (const Value& value :
       {Value(2147483647.5), Value(-2147483648.6), Value(std::int64_t{2147483648}), Value(1e300),
        Value(std::numeric_limits<double>::infinity()), Value(u"99999999999"_s)}) {
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(value.Long()); }), 3349) << value.Text().toStdString();
  }
}

TEST(Value, Long_TextThatIsNoNumber_Fails3421) {
  for (const QString& text : {u""_s, u" "_s, u"12a"_s, u"abc"_s, u"1,5"_s}) {
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(Value(text).Long()); }), 3421) << text.toStdString();
  }
}

TEST(Value, Truth_AnythingButZero_IsTrue) {
  for (const Value& value : {Value(-1), Value(1), Value(0.001), Value(u"yes"_s), Value(u" TRUE "_s),
                             Value(u"On"_s), Value(u"7"_s)}) {
    EXPECT_TRUE(value.Truth()) << value.Text().toStdString();
  }
  for (const Value& value :
       {Value(0), Value(0.0), Value(u"no"_s), Value(u"False"_s), Value(u"off"_s), Value(u"0"_s)}) {
    EXPECT_FALSE(value.Truth()) << value.Text().toStdString();
  }
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(Value(u"maybe"_s).Truth()); }), 3421);
}

TEST(Value, DateTime_TextsAndNumbers_AreRead) {
  EXPECT_EQ(Value(u"2/29/2024"_s).DateTime().date(), QDate(2024, 2, 29));
  EXPECT_EQ(Value(u"2024-02-29 13:05:09"_s).DateTime(), Leap);
  EXPECT_EQ(Value(0).DateTime().date(), QDate(1899, 12, 30));
  EXPECT_EQ(Value(45351.5).DateTime(), QDateTime(QDate(2024, 2, 29), QTime(12, 0), Qt::UTC));
  EXPECT_EQ(Value(-1.25).DateTime(), QDateTime(QDate(1899, 12, 29), QTime(6, 0), Qt::UTC));
  EXPECT_EQ(Value(-657434).DateTime().date(), QDate(100, 1, 1));
  EXPECT_EQ(Value(2958465).DateTime().date(), QDate(9999, 12, 31));
}

TEST(Value, DateTime_NoDate_Fails3421) {
  for (const Value& value : {Value(u"2/30/2024"_s), Value(u""_s), Value(u"soon"_s), Value(2958466),
                             Value(-657435.0), Value(std::numeric_limits<double>::quiet_NaN())}) {
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(value.DateTime()); }), 3421)
        << value.Text().toStdString();
  }
}

TEST(Value, Number_OfADate_CountsDaysBothWays) {
  EXPECT_DOUBLE_EQ(Value(QDate(1899, 12, 31)).Number(), 1);
  EXPECT_DOUBLE_EQ(Value(QDateTime(QDate(1899, 12, 29), QTime(6, 0), Qt::UTC)).Number(), -1.25);
}

TEST(Value, Value_OfAMoment_KeepsTheClockReadingInWholeSeconds) {
  const QDateTime elsewhere(QDate(2024, 7, 1), QTime(23, 59, 59, 999), Qt::OffsetFromUTC, 3 * 60 * 60);
  EXPECT_EQ(Value(elsewhere).DateTime(), QDateTime(QDate(2024, 7, 1), QTime(23, 59, 59), Qt::UTC));
}

}  // namespace
}  // namespace velmora::db
