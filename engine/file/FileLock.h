// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

namespace velmora::db {

class FileRegistry;

/// A descriptor for looking into a card file beside SQLite.
///
/// POSIX drops all locks that a process holds on a file as soon as it closes any descriptor of it, SQLite's
/// among them. So no part of the program opens a card file by itself: it pins it here, and the descriptors of
/// one file are closed together when its last pin has gone. Whoever has the file open in SQLite keeps a pin
/// (its FileLock) until SQLite has closed it; only then is this promise kept.
class PinnedFile final {
 public:
  /// Follows links. Throws 3024 when the file is missing, 3051 when it is a folder or a device, or may not be
  /// read.
  explicit PinnedFile(const QString& path);
  ~PinnedFile();
  PinnedFile(const PinnedFile&) = delete;
  PinnedFile& operator=(const PinnedFile&) = delete;

  [[nodiscard]] int Descriptor() const { return m_descriptor; }

 private:
  std::shared_ptr<FileRegistry> m_registry;
  int m_descriptor;
};

enum class LockKind { Shared, Exclusive };

/// The mark of use that each open card file bears: a flock on a descriptor of its own, because an idle SQLite
/// connection holds none. Taken before SQLite opens the file and released after SQLite has closed it. Several
/// shared locks may stand in one program, on one file too; an exclusive one tolerates nobody else, in this
/// program either.
class FileLock final {
 public:
  /// Waits up to `patience` milliseconds, and looks the file up anew while it waits: a compaction may have
  /// put another file under the name. Throws 3024 when the file is missing, 3356 when it stays held. An
  /// exclusive lock is refused as well while a program that knows nothing of these marks has the file open.
  FileLock(const QString& path, LockKind kind, int patience);
  ~FileLock();
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

  /// For reading the locked file beside SQLite; never to be closed.
  [[nodiscard]] int Descriptor() const { return m_file->Descriptor(); }

 private:
  std::unique_ptr<PinnedFile> m_file;
};

}  // namespace velmora::db
