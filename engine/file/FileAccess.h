// SPDX-License-Identifier: MIT
#pragma once

#include "engine/values/Error.h"

#include <QByteArray>
#include <QString>

#include <sys/stat.h>
#include <utility>

namespace velmora::db {

/// The system calls under the work on whole files, with failures as Error. Included within
/// engine/ alone. Paths are UTF-8 or the file system's bytes.

/// What a system call's error number means for a card file: 3024, 3026, 3027 or 3051.
[[nodiscard]] Error FileErrorOf(int number, const QString& path);
/// The path of the real file, absolute and with all links followed. 3024 when it is missing.
[[nodiscard]] QString RealPath(const QString& path);
/// The folder that holds a file, for a path as RealPath gives it.
[[nodiscard]] QString FolderOf(const QString& path);
/// Whether anything bears that name: a file, a folder, or a link that leads nowhere.
[[nodiscard]] bool NameIsTaken(const QString& path);
/// Gives a file the owner and mode of another one; the mode last, for a change of owner takes bits away.
void TakeOver(const QString& path, const struct stat& like);
void SyncFile(const QString& path);
/// Makes renamings and new names within a folder last.
void SyncFolder(const QString& folder);
/// The file that an open descriptor stands for.
[[nodiscard]] struct stat StatusOf(int descriptor);
/// Reads up to `length` bytes at a place; fewer at the file's end or where the disk fails.
[[nodiscard]] QByteArray ReadAt(int descriptor, std::int64_t offset, std::int64_t length);
/// Copies a file's bytes into an existing, empty file.
void CopyBytes(int descriptor, const QString& path);

/// A file being made: it did not exist before, no other user may look into it, and it is removed again unless
/// Keep is called. SQLite takes it for a new database.
class NewFile final {
 public:
  /// 3204 when the name is taken.
  explicit NewFile(const QString& path);
  /// A file with a name of its own beside another one.
  [[nodiscard]] static NewFile Beside(const QString& path);
  /// A second name for a file, "PATH.damaged" or one with a number behind; a copy where the disk knows no
  /// such names.
  [[nodiscard]] static NewFile KeptOf(const QString& path, int descriptor);
  ~NewFile();
  NewFile(NewFile&& other) noexcept : m_path(std::exchange(other.m_path, {})) {}
  NewFile& operator=(NewFile&& other) noexcept {
    std::swap(m_path, other.m_path);
    return *this;
  }

  [[nodiscard]] const QString& Path() const { return m_path; }
  void Keep() { m_path.clear(); }

 private:
  NewFile() = default;
  QString m_path;
};

/// 3027 for a file that its owner has protected, though its folder would let it be replaced.
void RequireWritable(const QString& path);

/// Removes a file with all that SQLite may have left beside it.
void RemoveFile(const QString& path);
/// Removes what SQLite may have left beside a file that no longer is, or is no longer the same.
void RemoveSideFiles(const QString& path);

}  // namespace velmora::db
