// SPDX-License-Identifier: MIT
#include "shell/ClockText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

TEST(ClockTextTest, ClockText_HourHasNoLeadingZero) {
  EXPECT_EQ(ClockText(QTime(9, 5)), u"9:05 AM"_s);
  EXPECT_EQ(ClockText(QTime(21, 45, 59)), u"9:45 PM"_s);
}

TEST(ClockTextTest, ClockText_TwelveOClock_IsTwelve) {
  EXPECT_EQ(ClockText(QTime(0, 0)), u"12:00 AM"_s);
  EXPECT_EQ(ClockText(QTime(12, 0)), u"12:00 PM"_s);
}

TEST(ClockTextTest, StopwatchText_IsTheTimeSinceTheStart) {
  EXPECT_EQ(StopwatchText(QTime(10, 0, 5), QTime(8, 59, 59)), u"01:00:06"_s);
  EXPECT_EQ(StopwatchText(QTime(8, 0), QTime(8, 0)), u"00:00:00"_s);
}

TEST(ClockTextTest, StopwatchText_OverMidnight_GoesOn) {
  EXPECT_EQ(StopwatchText(QTime(0, 0, 10), QTime(23, 59, 50)), u"00:00:20"_s);
}
