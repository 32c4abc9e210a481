// SPDX-License-Identifier: MIT
#include "engine/rows/Catalogue.h"

#include "engine/rows/Names.h"
#include "engine/sqlite/Quoting.h"
#include "engine/sqlite/Storage.h"
#include "engine/text/Collation.h"

#include <algorithm>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

void SortByName(QStringList& names) {
  std::sort(names.begin(), names.end(),
            [](const QString& left, const QString& right) { return CompareText(left, right) < 0; });
}

}  // namespace

bool Catalogue::Refresh() {
  if (!m_version) m_version = Prepare(m_connection, u"PRAGMA data_version");
  const bool hasRow = Step(m_version.get());
  const std::int64_t version = hasRow ? sqlite3_column_int64(m_version.get(), 0) : 0;
  Check(m_connection, sqlite3_reset(m_version.get()));
  if (version == m_seenVersion) return false;
  m_seenVersion = version;
  Forget();
  return true;
}

void Catalogue::Forget() {
  m_hasNames = false;
  m_hasQueries = false;
  m_byFolded.clear();
  m_namesInFile.clear();
  m_tables.clear();
  m_queries.clear();
}

void Catalogue::LoadNames() const {
  if (m_hasNames) return;
  // A table without a root page is virtual: its module may be anything.
  const StatementHandle names = Prepare(
      m_connection, u"SELECT name FROM sqlite_schema WHERE type = 'table' AND rootpage > 0 ORDER BY rowid");
  while (Step(names.get())) {
    const QString inFile = ColumnText(names.get(), 0);
    m_namesInFile.append(inFile);
    if (IsHiddenTable(inFile)) continue;
    const QString folded = FoldName(TableNameOfUser(inFile));
    if (!m_byFolded.contains(folded)) m_byFolded.insert(folded, inFile);
  }
  m_hasNames = true;
}

void Catalogue::LoadQueries() const {
  if (m_hasQueries) return;
  if (HasHidden(QueriesTable)) {
    const StatementHandle rows = Prepare(
        m_connection, u"SELECT rowid, Name, SQL FROM %1 ORDER BY rowid"_s.arg(QuoteName(QueriesTable)));
    while (Step(rows.get())) {
      const StoredQuery query{ColumnText(rows.get(), 1), ColumnText(rows.get(), 2),
                              sqlite3_column_int64(rows.get(), 0)};
      m_queries.insert(FoldName(query.Name), query);
    }
  }
  m_hasQueries = true;
}

bool Catalogue::HasHidden(QStringView tableInFile) const {
  LoadNames();
  return std::any_of(m_namesInFile.begin(), m_namesInFile.end(), [&](const QString& name) {
    return name.compare(tableInFile, Qt::CaseInsensitive) == 0;
  });
}

QString Catalogue::InFile(QStringView name) const {
  LoadNames();
  // A file of another tool may hold two names that differ in the case of letters beyond ASCII: both can be
  // reached.
  QString exact = TableNameInFile(name.toString());
  if (m_namesInFile.contains(exact) && !IsHiddenTable(exact)) return exact;
  return m_byFolded.value(FoldName(name));
}

const StoredTable* Catalogue::Find(QStringView name) const {
  const QString inFile = InFile(name);
  if (inFile.isEmpty()) return nullptr;
  const auto known = m_tables.find(inFile);
  if (known != m_tables.end()) return &known->second;
  return &m_tables.emplace(inFile, ReadTable(m_connection, inFile)).first->second;
}

const StoredQuery* Catalogue::FindStoredQuery(QStringView name) const {
  LoadQueries();
  const auto found = m_queries.constFind(FoldName(name));
  return found == m_queries.constEnd() ? nullptr : &*found;
}

QStringList Catalogue::TableNames() const {
  LoadNames();
  QStringList names;
  for (const QString& inFile : m_namesInFile) {
    if (!IsHiddenTable(inFile)) names.append(TableNameOfUser(inFile));
  }
  SortByName(names);
  return names;
}

QStringList Catalogue::QueryNames() const {
  LoadQueries();
  QStringList names;
  for (const StoredQuery& query : m_queries) names.append(query.Name);
  SortByName(names);
  return names;
}

std::optional<TableDef> Catalogue::FindTable(QStringView name) const {
  const StoredTable* const table = Find(name);
  return table == nullptr ? std::nullopt : std::optional(table->Definition);
}

std::optional<QString> Catalogue::FindQuery(QStringView name) const {
  const StoredQuery* const query = FindStoredQuery(name);
  return query == nullptr ? std::nullopt : std::optional(query->Sql);
}

QString Catalogue::RowIdName(QStringView table) const {
  const StoredTable* const found = Find(table);
  return found == nullptr ? u"rowid"_s : found->RowId;
}

QString Catalogue::StoredTableName(QStringView table) const {
  const QString inFile = InFile(table);
  return inFile.isEmpty() ? TableNameInFile(table.toString()) : inFile;
}

QString Catalogue::StoredColumnName(QStringView table, QStringView column) const {
  if (const StoredTable* const found = Find(table)) {
    if (const Field* const field = found->Definition.FindField(column)) {
      return found->ColumnsInFile[field - found->Definition.Fields.data()];
    }
  }
  return ColumnNameInFile(column.toString());
}

namespace {

/// Columns of table_xinfo.
enum ColumnInfo { ColumnName = 1, ColumnType = 2, ColumnKey = 5 };

void ReadColumns(sqlite3* connection, StoredTable& table) {
  const StatementHandle rows =
      Prepare(connection, u"SELECT * FROM pragma_table_xinfo(%1)"_s.arg(QuoteText(table.NameInFile)));
  int keyColumns = 0;
  while (Step(rows.get())) {
    const QString inFile = ColumnText(rows.get(), ColumnName);
    const QString type = ColumnText(rows.get(), ColumnType);
    if (sqlite3_column_int(rows.get(), ColumnKey) > 0) {
      ++keyColumns;
      if (type.compare("INTEGER"_L1, Qt::CaseInsensitive) == 0) {
        table.RowIdColumn = static_cast<int>(table.ColumnsInFile.size());
      }
    }
    table.ColumnsInFile.append(inFile);
    table.Definition.Fields.push_back(FieldOfDeclaration(ColumnNameOfUser(inFile), type));
  }
  if (keyColumns != 1) table.RowIdColumn = -1;
}

QStringList ReadIndexColumns(sqlite3* connection, const QString& indexInFile) {
  QStringList columns;
  const StatementHandle rows = Prepare(
      connection, u"SELECT name FROM pragma_index_info(%1) ORDER BY seqno"_s.arg(QuoteText(indexInFile)));
  while (Step(rows.get())) {
    // An index of another tool may hold an expression in the place of a column.
    if (sqlite3_column_type(rows.get(), 0) != SQLITE_NULL)
      columns.append(ColumnNameOfUser(ColumnText(rows.get(), 0)));
  }
  return columns;
}

void ReadIndexes(sqlite3* connection, StoredTable& table) {
  // The pragma gives the newest first.
  const StatementHandle rows = Prepare(
      connection, u"SELECT name, \"unique\", origin FROM pragma_index_list(%1) ORDER BY seq DESC"_s.arg(
                      QuoteText(table.NameInFile)));
  while (Step(rows.get())) {
    const QString inFile = ColumnText(rows.get(), 0);
    table.Definition.Indexes.push_back(
        {.Name = IndexNameOfUser(table.NameInFile, inFile),
         .Fields = ReadIndexColumns(connection, inFile),
         .Unique = sqlite3_column_int(rows.get(), 1) != 0,
         .Primary = IsPrimaryIndexName(inFile) || ColumnText(rows.get(), 2) == "pk"_L1});
  }
}

QString FreeRowIdName(sqlite3* connection, const StoredTable& table) {
  for (const QString& name : {u"rowid"_s, u"oid"_s, u"_rowid_"_s}) {
    if (table.ColumnsInFile.contains(name, Qt::CaseInsensitive)) continue;
    const int result =
        sqlite3_table_column_metadata(connection, "main", table.NameInFile.toUtf8().constData(),
                                      name.toUtf8().constData(), nullptr, nullptr, nullptr, nullptr, nullptr);
    if (result == SQLITE_OK) return name;
  }
  throw Error(
      ErrorCode::Internal,
      u"The table \"%1\" was made by another tool without row numbers, so its rows can't be read one by one."_s
          .arg(table.NameInFile));
}

}  // namespace

StoredTable ReadTable(sqlite3* connection, const QString& nameInFile) {
  StoredTable table;
  table.NameInFile = nameInFile;
  table.Definition.Name = TableNameOfUser(nameInFile);
  ReadColumns(connection, table);
  ReadIndexes(connection, table);
  table.RowId = FreeRowIdName(connection, table);
  return table;
}

}  // namespace velmora::db
