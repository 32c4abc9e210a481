// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

namespace velmora::test {

/// A disk that fills up: it stands between SQLite and the real one while this object lives, for all files
/// that are opened meanwhile. One at a time.
class FailingDisk final {
 public:
  FailingDisk();
  ~FailingDisk();
  FailingDisk(const FailingDisk&) = delete;
  FailingDisk& operator=(const FailingDisk&) = delete;

  /// Lets `writes` writes pass; from then on the disk is full.
  static void FillAfter(int writes);
  /// Lets no file be deleted by SQLite until Free.
  static void KeepFiles();
  /// Makes room again.
  static void Free();
  /// Whether a write has been refused since FillAfter.
  [[nodiscard]] static bool WasFull();
};

}  // namespace velmora::test
