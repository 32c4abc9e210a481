// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/NameSource.h"
#include "engine/sqlite/SqliteHandle.h"

#include <QHash>

#include <cstdint>
#include <map>

namespace velmora::db {

/// A table as it stands in the file. ColumnsInFile goes with Definition.Fields.
struct StoredTable {
  TableDef Definition;
  QString NameInFile;
  QStringList ColumnsInFile;
  /// The name by which SQL reaches the row id; empty when the table has none that can be reached.
  QString RowId;
  /// The column that is the row id itself (tables of other tools alone), or -1.
  int RowIdColumn = -1;
};

struct StoredQuery {
  QString Name;
  QString Sql;
  std::int64_t RowId = 0;
};

/// The hidden tables.
inline constexpr QStringView QueriesTable = u".Queries";
inline constexpr QStringView PropertiesTable = u".Properties";

/// What the file holds, read when it is first asked for and kept until the file changes. Belongs to its
/// Connection; the SQLite connection must outlive it.
class Catalogue final : public NameSource {
 public:
  explicit Catalogue(sqlite3* connection) : m_connection(connection) {}

  /// Forgets what another program has changed meanwhile. True when something may have changed.
  bool Refresh();
  /// Forgets everything, after a change of the structure or of the stored queries.
  void Forget();

  /// Null when there is no such table of the user's. Throws when the table cannot be read by rows.
  [[nodiscard]] const StoredTable* Find(QStringView name) const;
  /// Whether there is such a table, readable or not.
  [[nodiscard]] bool HasTable(QStringView name) const { return !InFile(name).isEmpty(); }
  [[nodiscard]] const StoredQuery* FindStoredQuery(QStringView name) const;
  [[nodiscard]] QStringList TableNames() const;
  [[nodiscard]] QStringList QueryNames() const;
  /// Whether the file has the hidden table.
  [[nodiscard]] bool HasHidden(QStringView tableInFile) const;

  [[nodiscard]] std::optional<TableDef> FindTable(QStringView name) const override;
  [[nodiscard]] std::optional<QString> FindQuery(QStringView name) const override;
  [[nodiscard]] QString RowIdName(QStringView table) const override;
  [[nodiscard]] QString StoredTableName(QStringView table) const override;
  [[nodiscard]] QString StoredColumnName(QStringView table, QStringView column) const override;

 private:
  void LoadNames() const;
  void LoadQueries() const;
  [[nodiscard]] QString InFile(QStringView name) const;

  sqlite3* m_connection;
  StatementHandle m_version;
  std::int64_t m_seenVersion = -1;

  mutable bool m_hasNames = false;
  mutable bool m_hasQueries = false;
  /// Names in the file by folded user's name, and the tables read so far by their names in the file.
  mutable QHash<QString, QString> m_byFolded;
  mutable QStringList m_namesInFile;
  mutable std::map<QString, StoredTable> m_tables;
  mutable QHash<QString, StoredQuery> m_queries;
};

/// Reads one table of the file. Throws when it has no row ids.
[[nodiscard]] StoredTable ReadTable(sqlite3* connection, const QString& nameInFile);

}  // namespace velmora::db
