// SPDX-License-Identifier: MIT
#include "forms/Waiting.h"

#include <QApplication>
#include <QTimer>

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

namespace velmora::ui {
namespace {

/// Ends the process, with success when repainting is over although a handler within it has thrown.
[[noreturn]] void RepaintWithAFailure() {
  QTimer::singleShot(0, qApp, [] { throw std::runtime_error("a bug"); });
  try {
    LetRepaint();
  } catch (const std::runtime_error&) {
    std::_Exit(IsRepainting() ? EXIT_FAILURE : EXIT_SUCCESS);
  }
  std::_Exit(EXIT_FAILURE);
}

// In a process of its own: the event loop of the desktop's library is not made for exceptions.
TEST(WaitingDeathTest, LetRepaint_AHandlerThrows_IsOverAllTheSame) {
  EXPECT_EXIT(RepaintWithAFailure(), ::testing::ExitedWithCode(EXIT_SUCCESS), "");
}

TEST(Waiting, LetRepaint_WithinItself_DoesNothing) {
  int calls = 0;
  // What has not been called by then goes with the test.
  const QObject test;
  QTimer::singleShot(0, &test, [&calls, &test] {
    ++calls;
    QTimer::singleShot(0, &test, [&calls] { ++calls; });
    LetRepaint();
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(IsRepainting());
  });
  LetRepaint();
  EXPECT_FALSE(IsRepainting());
}

}  // namespace
}  // namespace velmora::ui
