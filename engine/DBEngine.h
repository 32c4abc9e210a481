// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Database.h"

namespace velmora::db {

/// The root of the engine: makes, opens, compacts and repairs database files. Stateless.
class DBEngine final {
 public:
  /// Makes an empty file: 3204 when it exists. `locale` is the field's connect string; it is kept as a
  /// property of the file and has no effect of its own.
  [[nodiscard]] std::shared_ptr<Database> CreateDatabase(const QString& path, const QString& locale);
  /// 3024 when the file is missing, 3343 when it is not a database, 3045 or 3356 when another program holds
  /// it. A file that cannot be written opens for reading; writing then fails with 3027.
  [[nodiscard]] std::shared_ptr<Database> OpenDatabase(const QString& path, bool exclusive = false);
  /// Writes a compacted copy of a closed file to a new one, synced to the disk: 3204 when the destination
  /// exists, 3024 when the source is missing, 3356 when it is in use.
  void CompactDatabase(const QString& source, const QString& destination);
  /// Puts a compacted copy into the place of its source: an atomic rename within the directory, synced. Keeps
  /// mode and owner, follows a link to the real file.
  void ReplaceDatabase(const QString& copy, const QString& path);
  /// Saves every row of a closed file that can still be read, in place: 3024, 3356 as above.
  void RepairDatabase(const QString& path);
};

}  // namespace velmora::db
