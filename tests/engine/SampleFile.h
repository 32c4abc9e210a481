// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/Dialect.h"
#include "engine/sqlite/SqliteHandle.h"

#include <map>
#include <optional>

namespace velmora::db {

/// A small card file for tests of the dialect: a real SQLite database in memory and the catalogue that goes
/// with it.
class SampleFile final : public NameSource {
 public:
  SampleFile();

  [[nodiscard]] sqlite3* Handle() const { return m_connection.get(); }
  void StoreQuery(const QString& name, const QString& sql);
  void Add(const TableDef& table);

  [[nodiscard]] std::optional<TableDef> FindTable(QStringView name) const override;
  [[nodiscard]] std::optional<QString> FindQuery(QStringView name) const override;
  [[nodiscard]] QString RowIdName(QStringView table) const override;
  [[nodiscard]] QString StoredTableName(QStringView table) const override;
  [[nodiscard]] QString StoredColumnName(QStringView table, QStringView column) const override;

  /// Translates the statement and runs it; the rows' values in the engine's text forms, columns joined by a
  /// comma, rows by a bar. Null is "-".
  [[nodiscard]] QString Rows(QStringView sql, const std::vector<Value>& values = {});
  /// What SQLite plans for a statement of its own.
  [[nodiscard]] QString PlanOf(const QString& sqliteText);

 private:
  ConnectionHandle m_connection;
  std::map<QString, TableDef> m_tables;
  std::map<QString, QString> m_queries;
};

/// The rows of a statement of SQLite's own, in the same form, with the values that a translation's parameters
/// take and, for one row, its row id.
[[nodiscard]] QString RowsOf(sqlite3* connection, const QString& sqliteText,
                             const std::vector<Value>& bound = {}, std::optional<qlonglong> rowId = {});

}  // namespace velmora::db
