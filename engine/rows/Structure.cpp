// SPDX-License-Identifier: MIT
#include "engine/rows/Structure.h"

#include "engine/dialect/Dialect.h"
#include "engine/dialect/SqlStoredForm.h"
#include "engine/rows/Names.h"
#include "engine/sqlite/Quoting.h"
#include "engine/sqlite/Storage.h"
#include "engine/text/Collation.h"

#include <algorithm>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestText = 255;

/// Runs a change as one transaction; whatever was known of the file is forgotten after it, failed or not.
template <typename Change>
void ChangeStructure(Connection& connection, Change&& change) {
  // Statements that are still open would keep SQLite from changing their table.
  connection.SettleRows(false);
  try {
    Transaction transaction(connection);
    change();
    transaction.Commit();
  } catch (...) {
    connection.ForgetStructure();
    throw;
  }
  connection.ForgetStructure();
}

void RunOnce(Connection& connection, const QString& sql) { Run(connection.Handle(), sql); }

Field Checked(const Field& field) {
  Field checked{CheckedName(field.Name), field.Type, field.Size};
  if (field.Type != FieldType::Text) return checked;
  if (checked.Size <= 0) checked.Size = DefaultTextSize;
  if (checked.Size > LongestText) {
    throw Error(ErrorCode::InvalidArgument,
                u"The column \"%1\" asks for %2 characters; a text column has up to %3."_s.arg(
                    checked.Name, QString::number(checked.Size), QString::number(LongestText)));
  }
  return checked;
}

QString ColumnSql(const Field& field) {
  return QuoteName(ColumnNameInFile(field.Name)) + u' ' + DeclarationOf(field);
}

Error ColumnExists(const QString& name) {
  return {ErrorCode::ColumnExists, u"There is a column \"%1\" already."_s.arg(name)};
}

TableDef Checked(const TableDef& table) {
  TableDef checked{CheckedName(table.Name), {}, {}};
  if (table.Fields.empty()) {
    throw Error(ErrorCode::InvalidArgument, u"The table \"%1\" has no column."_s.arg(checked.Name));
  }
  for (const Field& field : table.Fields) {
    const Field good = Checked(field);
    if (checked.FindField(good.Name) != nullptr) throw ColumnExists(good.Name);
    checked.Fields.push_back(good);
  }
  for (const Index& index : table.Indexes) {
    Index good{CheckedName(index.Name), {}, index.Unique || index.Primary, index.Primary};
    const bool isTaken = std::any_of(checked.Indexes.begin(), checked.Indexes.end(), [&](const Index& other) {
      return FoldName(other.Name) == FoldName(good.Name);
    });
    if (isTaken) throw Error(ErrorCode::ObjectExists, u"There is an index \"%1\" already."_s.arg(good.Name));
    for (const QString& name : index.Fields) {
      const Field* const field = checked.FindField(name);
      if (field == nullptr) {
        throw Error(ErrorCode::ItemNotFound,
                    u"The index \"%1\" names a column \"%2\" that is not there."_s.arg(good.Name, name));
      }
      good.Fields.append(field->Name);
    }
    if (good.Fields.isEmpty()) {
      throw Error(ErrorCode::InvalidArgument, u"The index \"%1\" names no column."_s.arg(good.Name));
    }
    checked.Indexes.push_back(std::move(good));
  }
  return checked;
}

QString IndexSql(const QString& tableInFile, const Index& index) {
  QStringList columns;
  for (const QString& name : index.Fields) columns.append(QuoteName(ColumnNameInFile(name)));
  return (index.Unique ? u"CREATE UNIQUE INDEX "_s : u"CREATE INDEX "_s) +
         QuoteName(IndexNameInFile(tableInFile, index.Name, index.Primary)) + u" ON "_s +
         QuoteName(tableInFile) + u" ("_s + columns.join(u", ") + u')';
}

Error Missing(QStringView what, QStringView name) {
  return {ErrorCode::ItemNotFound, u"There is no %1 \"%2\"."_s.arg(what, name)};
}

/// 3265 when it is missing.
qsizetype RequireColumn(const StoredTable& table, QStringView name) {
  const Field* const field = table.Definition.FindField(name);
  if (field == nullptr) throw Missing(u"column", name);
  return field - table.Definition.Fields.data();
}

/// The hidden tables are made when the first entry comes: a file of another tool stays as it is until then.
void RequireHidden(Connection& connection, QStringView table, const QString& columns) {
  if (connection.Current().HasHidden(table)) return;
  RunOnce(connection, u"CREATE TABLE "_s + QuoteName(table) + u" ("_s + columns + u')');
}

void RequireQueries(Connection& connection) {
  RequireHidden(connection, QueriesTable, u"Name TEXT(64) COLLATE NOCASE, SQL LONGTEXT COLLATE NOCASE"_s);
}

void RequireProperties(Connection& connection) {
  RequireHidden(
      connection, PropertiesTable,
      u"Object TEXT(64) COLLATE NOCASE, Name TEXT(64) COLLATE NOCASE, Value LONGTEXT COLLATE NOCASE"_s);
}

struct StoredProperty {
  std::int64_t RowId = 0;
  QString Object;
  QString Name;
  QString Value;
};

/// All properties: there are few, and only our own comparison knows which names are the same.
std::vector<StoredProperty> Properties(Connection& connection) {
  std::vector<StoredProperty> properties;
  if (!connection.Current().HasHidden(PropertiesTable)) return properties;
  BorrowedStatement rows = connection.Borrow(u"SELECT rowid, Object, Name, Value FROM "_s +
                                             QuoteName(PropertiesTable) + u" ORDER BY rowid"_s);
  while (rows.Step()) {
    properties.push_back({sqlite3_column_int64(rows.get(), 0), ColumnText(rows.get(), 1),
                          ColumnText(rows.get(), 2), ColumnText(rows.get(), 3)});
  }
  return properties;
}

void DeleteHiddenRow(Connection& connection, QStringView table, std::int64_t rowId) {
  BorrowedStatement statement =
      connection.Borrow(u"DELETE FROM "_s + QuoteName(table) + u" WHERE rowid = ?1"_s);
  Bind(statement.get(), 1, Value(rowId));
  statement.Step();
}

void DeleteProperties(Connection& connection, const QString& object) {
  for (const StoredProperty& property : Properties(connection)) {
    if (FoldName(property.Object) == FoldName(object))
      DeleteHiddenRow(connection, PropertiesTable, property.RowId);
  }
}

}  // namespace

const StoredTable& RequireTable(Connection& connection, QStringView name) {
  const StoredTable* const table = connection.Current().Find(name);
  if (table == nullptr) throw Missing(u"table", name);
  return *table;
}

void CreateTable(Connection& connection, const TableDef& table) {
  const TableDef checked = Checked(table);
  const Catalogue& catalogue = connection.Current();
  if (catalogue.HasTable(checked.Name)) {
    throw Error(ErrorCode::TableExists, u"There is a table \"%1\" already."_s.arg(checked.Name));
  }
  if (catalogue.FindStoredQuery(checked.Name) != nullptr) {
    throw Error(ErrorCode::ObjectExists, u"There is a query \"%1\" already."_s.arg(checked.Name));
  }
  const QString inFile = TableNameInFile(checked.Name);
  QStringList columns;
  for (const Field& field : checked.Fields) columns.append(ColumnSql(field));
  ChangeStructure(connection, [&] {
    RunOnce(connection, u"CREATE TABLE "_s + QuoteName(inFile) + u" ("_s + columns.join(u", ") + u')');
    for (const Index& index : checked.Indexes) RunOnce(connection, IndexSql(inFile, index));
  });
}

void DropTable(Connection& connection, QStringView name) {
  if (!connection.Current().HasTable(name)) throw Missing(u"table", name);
  const QString inFile = connection.Current().StoredTableName(name);
  ChangeStructure(connection, [&] {
    RunOnce(connection, u"DROP TABLE "_s + QuoteName(inFile));
    DeleteProperties(connection, TableNameOfUser(inFile));
  });
}

void AddColumn(Connection& connection, QStringView table, const Field& field) {
  const StoredTable& stored = RequireTable(connection, table);
  const Field checked = Checked(field);
  if (stored.Definition.FindField(checked.Name) != nullptr) throw ColumnExists(checked.Name);
  const QString sql =
      u"ALTER TABLE "_s + QuoteName(stored.NameInFile) + u" ADD COLUMN "_s + ColumnSql(checked);
  ChangeStructure(connection, [&] { RunOnce(connection, sql); });
}

void DropColumn(Connection& connection, QStringView table, QStringView field) {
  const StoredTable& stored = RequireTable(connection, table);
  const qsizetype column = RequireColumn(stored, field);
  const QString folded = FoldName(stored.Definition.Fields[static_cast<std::size_t>(column)].Name);
  for (const Index& index : stored.Definition.Indexes) {
    const bool isNamed = std::any_of(index.Fields.begin(), index.Fields.end(),
                                     [&](const QString& name) { return FoldName(name) == folded; });
    if (isNamed) {
      throw Error(ErrorCode::ColumnInIndex,
                  u"The column \"%1\" is part of the index \"%2\"."_s.arg(field, index.Name));
    }
  }
  const QString sql = u"ALTER TABLE "_s + QuoteName(stored.NameInFile) + u" DROP COLUMN "_s +
                      QuoteName(stored.ColumnsInFile[column]);
  ChangeStructure(connection, [&] { RunOnce(connection, sql); });
}

void StoreQuery(Connection& connection, QStringView name, QStringView sql, QueryNameTaken taken) {
  const QString checked = CheckedName(name);
  const Catalogue& catalogue = connection.Current();
  const StoredQuery* const old = catalogue.FindStoredQuery(checked);
  if (catalogue.HasTable(checked) || (old != nullptr && taken == QueryNameTaken::Fails)) {
    throw Error(ErrorCode::ObjectExists, u"There is a table or query \"%1\" already."_s.arg(checked));
  }
  const bool replaces = old != nullptr;
  const std::int64_t oldRow = replaces ? old->RowId : 0;
  const QString text = WriteStored(*ParseStatement(sql));
  ChangeStructure(connection, [&] {
    RequireQueries(connection);
    if (replaces) DeleteHiddenRow(connection, QueriesTable, oldRow);
    BorrowedStatement insert =
        connection.Borrow(u"INSERT INTO "_s + QuoteName(QueriesTable) + u" (Name, SQL) VALUES (?1, ?2)"_s);
    Bind(insert.get(), 1, Value(checked));
    Bind(insert.get(), 2, Value(text));
    insert.Step();
  });
}

void RemoveQuery(Connection& connection, QStringView name) {
  const StoredQuery* const query = connection.Current().FindStoredQuery(name);
  if (query == nullptr) throw Missing(u"query", name);
  const std::int64_t rowId = query->RowId;
  ChangeStructure(connection, [&] { DeleteHiddenRow(connection, QueriesTable, rowId); });
}

void WriteProperty(Connection& connection, const QString& object, QStringView property,
                   const QString& value) {
  std::optional<std::int64_t> old;
  for (const StoredProperty& stored : Properties(connection)) {
    if (FoldName(stored.Object) == FoldName(object) && FoldName(stored.Name) == FoldName(property))
      old = stored.RowId;
  }
  ChangeStructure(connection, [&] {
    RequireProperties(connection);
    if (old) DeleteHiddenRow(connection, PropertiesTable, *old);
    BorrowedStatement insert = connection.Borrow(u"INSERT INTO "_s + QuoteName(PropertiesTable) +
                                                 u" (Object, Name, Value) VALUES (?1, ?2, ?3)"_s);
    Bind(insert.get(), 1, Value(object));
    Bind(insert.get(), 2, Value(property));
    Bind(insert.get(), 3, Value(value));
    insert.Step();
  });
}

QString ReadProperty(Connection& connection, const QString& object, QStringView property) {
  for (const StoredProperty& stored : Properties(connection)) {
    if (FoldName(stored.Object) == FoldName(object) && FoldName(stored.Name) == FoldName(property))
      return stored.Value;
  }
  return {};
}

}  // namespace velmora::db
