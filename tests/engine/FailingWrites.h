// SPDX-License-Identifier: MIT
#pragma once

#include "engine/sqlite/SqliteHandle.h"

namespace velmora::test {

/// Makes writes fail on every connection that is opened while it lives: at the commit, or in the middle of a
/// statement after so many of SQLite's own steps. One at a time.
class FailingWrites final {
 public:
  FailingWrites() {
    Stop();
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(&Install));
  }
  ~FailingWrites() {
    Stop();
    sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&Install));
  }
  FailingWrites(const FailingWrites&) = delete;
  FailingWrites& operator=(const FailingWrites&) = delete;

  static void FailNextCommit() { FailCommitAfter(0); }
  /// So many commits go well before the one that fails.
  static void FailCommitAfter(int commits) { s_commitsLeft = commits; }
  static void FailAfterSteps(int steps) { s_stepsLeft = steps; }
  static void Stop() {
    s_commitsLeft = Never;
    s_stepsLeft = Never;
  }

 private:
  static constexpr int Never = -1;

  static int Install(sqlite3* connection, char**, const void*) {
    sqlite3_commit_hook(
        connection, [](void*) { return IsDue(s_commitsLeft) ? 1 : 0; }, nullptr);
    sqlite3_progress_handler(
        connection, 1, [](void*) { return IsDue(s_stepsLeft) ? 1 : 0; }, nullptr);
    return SQLITE_OK;
  }
  static bool IsDue(int& left) {
    if (left == Never) return false;
    return left-- == 0;
  }

  inline static int s_commitsLeft = Never;
  inline static int s_stepsLeft = Never;
};

}  // namespace velmora::test
