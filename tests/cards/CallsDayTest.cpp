// SPDX-License-Identifier: MIT
#include "cards/CallsDay.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

class CallsDayTest : public ::testing::Test {
 protected:
  CallsDayTest() {
    Clock::Set([this] { return m_now; });
    m_calls.Delay = 30;
  }
  ~CallsDayTest() override { Clock::Set({}); }
  void Later(int seconds) { m_now = m_now.addSecs(seconds); }

  QDateTime m_now{QDate(2026, 11, 20), QTime(9, 0)};
  CallsDay<int> m_calls;
};

TEST_F(CallsDayTest, Check_NothingBegun_GivesNothing) {
  m_calls.Add(7);
  m_calls.Cursor = 1;
  EXPECT_EQ(m_calls.check(), std::nullopt);
}

TEST_F(CallsDayTest, Check_DelayNotOver_GivesNothing) {
  m_calls.Add(7);
  m_calls.Cursor = 1;
  m_calls.BeginDial();
  Later(30);
  EXPECT_EQ(m_calls.check(), std::nullopt);
  Later(1);
  EXPECT_EQ(m_calls.check(), 7);
}

TEST_F(CallsDayTest, Check_CursorPastTheEnd_GoesBackToTheFirst) {
  m_calls.Add(7);
  m_calls.Add(8);
  m_calls.Cursor = 3;
  m_calls.BeginDial();
  Later(31);
  EXPECT_EQ(m_calls.check(), 7);
  EXPECT_EQ(m_calls.Cursor, 1);
}

TEST_F(CallsDayTest, Check_EmptyQueue_TakesTheCursorBack) {
  m_calls.Add(7);
  m_calls.RemoveAll();
  EXPECT_TRUE(m_calls.IsNull());
  m_calls.Cursor = 2;
  m_calls.BeginDial();
  Later(31);
  EXPECT_EQ(m_calls.check(), std::nullopt);
  EXPECT_EQ(m_calls.Cursor, 0);
}

TEST_F(CallsDayTest, Check_NoCursor_GivesNothing) {
  m_calls.Add(7);
  m_calls.BeginDial();
  Later(31);
  EXPECT_EQ(m_calls.check(), std::nullopt);
}

}  // namespace
}  // namespace velmora
