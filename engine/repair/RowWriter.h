// SPDX-License-Identifier: MIT
#pragma once

#include "engine/repair/Salvage.h"
#include "engine/sqlite/SqliteHandle.h"

#include <QStringList>

#include <map>

namespace velmora::db {

/// Puts rows from a damaged file into a table of the new one. Rows that the table refuses go to a table
/// beside it, which is made when the first one comes. Lives within one transaction of its connection, which
/// must outlive it.
class RowWriter final {
 public:
  /// Throws 3343 for a table without row ids, which no file of ours holds.
  RowWriter(sqlite3* connection, QString table);

  /// What the columns of a stored row usually hold, in the order of storage.
  [[nodiscard]] std::vector<Affinity> Affinities() const;
  void Put(const SavedRow& row);
  /// Puts the rows whose ids are lost behind all others. True when every row has found its old place.
  [[nodiscard]] bool Finish();

 private:
  struct Column {
    QString Name;
    QString Type;
    QString Default;
    bool TakesNull = true;
    bool IsGenerated = false;
    bool IsRowId = false;
  };
  void ReadColumns();
  [[nodiscard]] sqlite3_stmt* StatementFor(std::size_t columns);
  /// SQLite's result: SQLITE_DONE, or why the row was refused. Throws when it is not the row's fault.
  int Insert(const RawRow& row, std::optional<std::int64_t> rowId);
  void PutAside(const RawRow& row);
  [[nodiscard]] sqlite3_stmt* AsideStatementFor(std::size_t columns);
  [[nodiscard]] QString FreeName() const;
  [[nodiscard]] QString AsideColumns() const;

  sqlite3* m_connection;
  QString m_table;
  QString m_rowId;
  std::vector<Column> m_columns;
  std::map<std::size_t, StatementHandle> m_statements;
  std::vector<RawRow> m_late;
  QString m_aside;
  std::map<std::size_t, StatementHandle> m_asideStatements;
  bool m_isComplete = true;
};

}  // namespace velmora::db
