// SPDX-License-Identifier: MIT
#include "base/system/Clock.h"

#include <gtest/gtest.h>

using namespace velmora;

TEST(ClockTest, Now_ClockIsSet_IsThatTime) {
  const QDateTime moment(QDate(2024, 2, 29), QTime(23, 59, 58));
  Clock::Set([moment] { return moment; });
  EXPECT_EQ(Clock::Now(), moment);
  EXPECT_EQ(Clock::Today(), QDate(2024, 2, 29));
  Clock::Set({});
}

TEST(ClockTest, Now_NothingIsSet_IsTheSystems) {
  Clock::Set({});
  const QDateTime before = QDateTime::currentDateTime();
  const QDateTime now = Clock::Now();
  EXPECT_LE(before, now);
  EXPECT_LE(now, QDateTime::currentDateTime());
}
