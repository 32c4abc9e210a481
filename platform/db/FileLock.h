// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora::db {

enum class LockKind { Shared, Exclusive };

/// The mark of use that each open card file bears: a flock on a descriptor of its own, because an idle SQLite
/// connection holds none. Taken before SQLite opens the file and released after SQLite has closed it: closing any
/// other descriptor of the file in this process would drop SQLite's own locks.
class FileLock final {
 public:
  /// Waits up to `patience` milliseconds, and looks the file up anew while it waits: a compaction may have put
  /// another file under the name. Throws 3024 when the file is missing, 3356 when it stays held.
  FileLock(const QString& path, LockKind kind, int patience);
  ~FileLock();
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

 private:
  int m_descriptor = -1;
};

}  // namespace velmora::db
