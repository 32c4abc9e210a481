// SPDX-License-Identifier: MIT
#pragma once

#include "engine/values/Schema.h"

#include <optional>

namespace velmora::db {

/// What the translator asks about the file: its tables and stored queries, all names without regard to case.
class NameSource {
 public:
  virtual ~NameSource() = default;
  [[nodiscard]] virtual std::optional<TableDef> FindTable(QStringView name) const = 0;
  /// The text of a stored query.
  [[nodiscard]] virtual std::optional<QString> FindQuery(QStringView name) const = 0;
  /// The name of the stored table's rowid for SQLite ("rowid", or another alias when a column has that name).
  [[nodiscard]] virtual QString RowIdName(QStringView table) const = 0;
  /// The name under which SQLite knows a table or one of its columns, not quoted: as the user's, but for the
  /// few names that SQLite would trip over.
  [[nodiscard]] virtual QString StoredTableName(QStringView table) const = 0;
  [[nodiscard]] virtual QString StoredColumnName(QStringView table, QStringView column) const = 0;
};

}  // namespace velmora::db
