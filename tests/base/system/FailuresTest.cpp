// SPDX-License-Identifier: MIT
#include "base/system/Failures.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace velmora;

namespace {

class Refused final : public EnvironmentFailure {};

}  // namespace

TEST(FailuresTest, IgnoringErrors_StatementFails_NextOneRuns) {
  int runs = 0;
  IgnoringErrors([&] {
    ++runs;
    throw Refused();
  });
  IgnoringErrors([&] { ++runs; });
  EXPECT_EQ(runs, 2);
}

TEST(FailuresTest, Trap_RoutineFails_LeavesItThere) {
  int steps = 0;
  EXPECT_FALSE(Trap([&] {
    ++steps;
    if (steps == 1) throw Refused();
    ++steps;
  }));
  EXPECT_EQ(steps, 1);
}

TEST(FailuresTest, Trap_RoutineRunsThrough_IsTrue) {
  EXPECT_TRUE(Trap([] {}));
}

TEST(FailuresTest, AnyOtherException_InEither_GoesOn) {
  EXPECT_THROW(IgnoringErrors([] { throw std::logic_error("a bug"); }), std::logic_error);
  EXPECT_THROW(Trap([] { throw std::logic_error("a bug"); }), std::logic_error);
}

TEST(FailuresTest, FailureLog_NobodyAsked_IsOff) { EXPECT_FALSE(FailureLog().isDebugEnabled()); }
