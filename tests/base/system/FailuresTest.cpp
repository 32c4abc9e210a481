// SPDX-License-Identifier: MIT
#include "base/system/Failures.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace velmora;

TEST(FailuresTest, IgnoringErrors_StatementFails_NextOneRuns) {
  int runs = 0;
  IgnoringErrors([&] {
    ++runs;
    throw std::runtime_error("no");
  });
  IgnoringErrors([&] { ++runs; });
  EXPECT_EQ(runs, 2);
}

TEST(FailuresTest, Trap_RoutineFails_LeavesItThere) {
  int steps = 0;
  EXPECT_FALSE(Trap([&] {
    ++steps;
    if (steps == 1) throw std::runtime_error("no");
    ++steps;
  }));
  EXPECT_EQ(steps, 1);
}

TEST(FailuresTest, Trap_RoutineRunsThrough_IsTrue) {
  EXPECT_TRUE(Trap([] {}));
}

TEST(FailuresTest, FailureLog_NobodyAsked_IsOff) { EXPECT_FALSE(FailureLog().isDebugEnabled()); }
