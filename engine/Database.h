// SPDX-License-Identifier: MIT
#pragma once

#include "engine/rows/Recordset.h"
#include "engine/values/Error.h"
#include "engine/values/Schema.h"

#include <functional>
#include <memory>

namespace velmora::db {

class Connection;

/// A stored query: its name as it was given, and its text as the engine gives it back.
struct QueryDef {
  QString Name;
  QString SQL;
};

/// An open database file. Shared by those who use it; closed by Close or with its last owner. Recordsets that
/// are still open then fail with 3420. All failures throw Error. Names compare without case, spaces at their
/// end do not count; a name that cannot be given (empty, longer than 64 characters, with one of . ! ` [ ])
/// fails with 3125. What other programs or connections have changed is seen by the next call.
class Database final {
 public:
  explicit Database(std::shared_ptr<Connection> connection);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  /// The path with which it was opened.
  [[nodiscard]] QString Name() const;
  void Close();

  /// Opens a table or stored query by its name, or a SELECT statement. 3219 for an action statement, 3078 for
  /// a missing table, 3061 for an unknown column. A statement takes its values, one for each "?" in it, as if
  /// each stood there as a literal of its kind; one text is translated and prepared once, whatever values of
  /// the same kinds come with it. 3061 for too few values, 3001 for too many.
  [[nodiscard]] Recordset OpenRecordset(QStringView source, const std::vector<Value>& values = {});
  /// Runs an action statement as one transaction and gives the number of rows changed. 3065 for a SELECT.
  /// Values as above.
  std::int64_t Execute(QStringView sql, const std::vector<Value>& values = {});

  /// Runs changes as one transaction: all of them reach the file, or none when one throws. What is opened
  /// within is closed within. It may stand within another.
  void AsOneTransaction(const std::function<void()>& changes);

  /// The names of the tables, alphabetically without case.
  [[nodiscard]] QStringList TableDefs() const;
  /// Whether there is a table of that name, without regard to case.
  [[nodiscard]] bool HasTable(QStringView name) const;
  /// The stored definition; 3265 when there is no such table.
  [[nodiscard]] TableDef TableDefOf(QStringView name) const;
  /// Writes a new table: 3010 when the name is taken, 3191 when two columns share a name.
  void AppendTableDef(const TableDef& table);
  void DeleteTableDef(QStringView name);
  /// Adds a column to a stored table, also one that holds rows: 3191 when the name is taken.
  void AppendField(QStringView table, const Field& field);
  /// Drops a column with its data: 3265 when it is missing, 3280 when an index names it.
  void DeleteField(QStringView table, QStringView field);
  /// A property of a stored table, a text kept in the file; empty when it was never set.
  void SetTableProperty(QStringView table, QStringView property, const QString& value);
  [[nodiscard]] QString TableProperty(QStringView table, QStringView property) const;

  /// The stored queries, alphabetically without case.
  [[nodiscard]] QStringList QueryDefs() const;
  /// A stored query; 3265 when there is none of that name.
  [[nodiscard]] QueryDef QueryDefOf(QStringView name) const;
  /// Stores a query. 3012 when a table or query has the name; the parser's error when the text does not
  /// parse.
  void CreateQueryDef(QStringView name, QStringView sql);
  /// The same, but a query that has the name gives way, in the same transaction: when the new one cannot be
  /// stored, the old one stays.
  void ReplaceQueryDef(QStringView name, QStringView sql);
  void DeleteQueryDef(QStringView name);

 private:
  std::shared_ptr<Connection> m_connection;
};

}  // namespace velmora::db
