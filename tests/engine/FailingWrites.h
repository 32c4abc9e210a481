// SPDX-License-Identifier: MIT
#pragma once

#include "engine/sqlite/SqliteHandle.h"

namespace velmora::test {

/// Makes writes fail on every connection that is opened while it lives: at the commit, or in the middle of a
/// statement after so many of SQLite's own steps. One at a time.
class FailingWrites final {
 public:
  FailingWrites() {
    s_failsCommit = false;
    s_stepsLeft = Never;
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(&Install));
  }
  ~FailingWrites() {
    Stop();
    sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&Install));
  }
  FailingWrites(const FailingWrites&) = delete;
  FailingWrites& operator=(const FailingWrites&) = delete;

  static void FailNextCommit() { s_failsCommit = true; }
  static void FailAfterSteps(int steps) { s_stepsLeft = steps; }
  static void Stop() {
    s_failsCommit = false;
    s_stepsLeft = Never;
  }

 private:
  static constexpr int Never = -1;

  static int Install(sqlite3* connection, char**, const void*) {
    sqlite3_commit_hook(
        connection, [](void*) { return std::exchange(s_failsCommit, false) ? 1 : 0; }, nullptr);
    sqlite3_progress_handler(
        connection, 1, [](void*) { return IsDue() ? 1 : 0; }, nullptr);
    return SQLITE_OK;
  }
  static bool IsDue() {
    if (s_stepsLeft == Never) return false;
    if (s_stepsLeft > 0) {
      --s_stepsLeft;
      return false;
    }
    s_stepsLeft = Never;
    return true;
  }

  inline static bool s_failsCommit = false;
  inline static int s_stepsLeft = Never;
};

}  // namespace velmora::test
