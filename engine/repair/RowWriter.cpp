// SPDX-License-Identifier: MIT
#include "engine/repair/RowWriter.h"

#include "engine/sqlite/Quoting.h"
#include "engine/sqlite/Storage.h"

#include <QRegularExpression>

#include <algorithm>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

/// Columns of PRAGMA table_xinfo.
enum Info { InfoName = 1, InfoType = 2, InfoNotNull = 3, InfoDefault = 4, InfoKey = 5, InfoHidden = 6 };
constexpr int VirtualColumn = 2;
constexpr int GeneratedColumn = 3;

int BindRaw(sqlite3_stmt* statement, int parameter, const RawValue& value) {
  using Kind = RawValue::Kind;
  const auto length = static_cast<sqlite3_uint64>(value.Bytes.size());
  switch (value.Type) {
    case Kind::Null:
      return sqlite3_bind_null(statement, parameter);
    case Kind::Whole:
      return sqlite3_bind_int64(statement, parameter, value.Whole);
    case Kind::Real:
      return sqlite3_bind_double(statement, parameter, value.Real);
    case Kind::Text:
      return sqlite3_bind_text64(statement, parameter, value.Bytes.constData(), length, SQLITE_STATIC,
                                 SQLITE_UTF8);
    case Kind::Bytes:
      return sqlite3_bind_blob64(statement, parameter, value.Bytes.constData(), length, SQLITE_STATIC);
  }
  Q_UNREACHABLE();
}

/// A statement about something that is named by its one parameter.
StatementHandle PrepareAbout(sqlite3* connection, QStringView sql, const QString& name) {
  StatementHandle statement = Prepare(connection, sql);
  Bind(statement.get(), 1, Value(name));
  return statement;
}

/// SQLite's own rules for what a declared type means, as far as rows can be told apart by them.
Affinity AffinityOf(const QString& type) {
  const auto has = [&](QLatin1StringView word) { return type.contains(word, Qt::CaseInsensitive); };
  if (has("INT"_L1)) return Affinity::Whole;
  if (has("CHAR"_L1) || has("CLOB"_L1) || has("TEXT"_L1)) return Affinity::Text;
  if (has("REAL"_L1) || has("FLOA"_L1) || has("DOUB"_L1)) return Affinity::Real;
  return Affinity::Any;
}

bool TableExists(sqlite3* connection, const QString& name) {
  return Step(
      PrepareAbout(connection, u"SELECT 1 FROM sqlite_schema WHERE name = ?1 COLLATE NOCASE", name).get());
}

}  // namespace

RowWriter::RowWriter(sqlite3* connection, QString table)
    : m_connection(connection), m_table(std::move(table)) {
  ReadColumns();
  for (const QString& name : {u"rowid"_s, u"oid"_s, u"_rowid_"_s}) {
    const bool isTaken = std::ranges::any_of(
        m_columns, [&](const Column& column) { return column.Name.compare(name, Qt::CaseInsensitive) == 0; });
    if (!isTaken) m_rowId = name;
    if (!m_rowId.isEmpty()) break;
  }
}

void RowWriter::ReadColumns() {
  const QString quoted = QuoteName(m_table);
  const bool hasKeyIndex = Step(
      PrepareAbout(m_connection, u"SELECT 1 FROM pragma_index_list(?1) WHERE origin = 'pk'", m_table).get());

  const StatementHandle info = Prepare(m_connection, u"PRAGMA table_xinfo("_s + quoted + u")"_s);
  while (Step(info.get())) {
    const int hidden = sqlite3_column_int(info.get(), InfoHidden);
    if (hidden == VirtualColumn) continue;
    Column column;
    column.Name = ColumnText(info.get(), InfoName);
    column.Type = ColumnText(info.get(), InfoType);
    column.Default = ColumnText(info.get(), InfoDefault);
    column.TakesNull = sqlite3_column_int(info.get(), InfoNotNull) == 0;
    column.IsGenerated = hidden == GeneratedColumn;
    // A primary key without an index is the row id under another name; its place in the stored row is empty.
    column.IsRowId = sqlite3_column_int(info.get(), InfoKey) != 0 && !hasKeyIndex;
    m_columns.push_back(std::move(column));
  }
  const StatementHandle withoutRowId = PrepareAbout(
      m_connection, u"SELECT 1 FROM pragma_table_list WHERE schema = 'main' AND name = ?1 AND wr <> 0",
      m_table);
  if (Step(withoutRowId.get())) {
    throw Error(ErrorCode::NotADatabase, u"A table of this kind cannot be repaired: "_s + m_table);
  }
}

std::vector<Affinity> RowWriter::Affinities() const {
  std::vector<Affinity> affinities;
  for (const Column& column : m_columns) affinities.push_back(AffinityOf(column.Type));
  return affinities;
}

/// A row may be shorter than its table: columns that were added since are not in it and have their defaults.
sqlite3_stmt* RowWriter::StatementFor(std::size_t columns) {
  StatementHandle& statement = m_statements[columns];
  if (statement != nullptr) return statement.get();
  QStringList names;
  QStringList values;
  if (!m_rowId.isEmpty()) {
    names.append(m_rowId);
    values.append(u"?1"_s);
  }
  for (std::size_t at = 0; at < columns; ++at) {
    const Column& column = m_columns[at];
    if (column.IsGenerated || column.IsRowId) continue;
    names.append(QuoteName(column.Name));
    const QString parameter = u"?%1"_s.arg(at + 2);
    // Damage may have left a Null where none can be.
    const bool mends = !column.TakesNull && !column.Default.isEmpty();
    values.append(mends ? u"coalesce(%1, %2)"_s.arg(parameter, column.Default) : parameter);
  }
  statement = Prepare(m_connection, u"INSERT INTO main."_s + QuoteName(m_table) + u'(' + names.join(u", "_s) +
                                        u") VALUES("_s + values.join(u", "_s) + u')');
  return statement.get();
}

int RowWriter::Insert(const RawRow& row, std::optional<std::int64_t> rowId) {
  sqlite3_stmt* const statement = StatementFor(row.Values.size());
  sqlite3_clear_bindings(statement);
  if (rowId && !m_rowId.isEmpty()) Check(m_connection, sqlite3_bind_int64(statement, 1, *rowId));
  for (std::size_t at = 0; at < row.Values.size(); ++at) {
    if (m_columns[at].IsGenerated || m_columns[at].IsRowId) continue;
    Check(m_connection, BindRaw(statement, static_cast<int>(at) + 2, row.Values[at]));
  }
  sqlite3_step(statement);
  const int result = sqlite3_reset(statement);
  if (result != SQLITE_OK && (result & 0xff) != SQLITE_CONSTRAINT) throw ErrorOf(m_connection, result);
  return result;
}

void RowWriter::Put(const SavedRow& saved) {
  if (!saved.RowId) {
    m_late.push_back(saved.Row);
    return;
  }
  const int result = Insert(saved.Row, saved.RowId);
  if (result == SQLITE_OK) return;
  // Two rows under one id: one of the ids is damaged, and the row is as good as one without.
  if (result == SQLITE_CONSTRAINT_ROWID)
    m_late.push_back(saved.Row);
  else
    PutAside(saved.Row);
}

bool RowWriter::Finish() {
  if (!m_late.empty()) m_isComplete = false;
  for (const RawRow& row : m_late) {
    if (Insert(row, std::nullopt) != SQLITE_OK) PutAside(row);
  }
  m_statements.clear();
  m_asideStatements.clear();
  return m_isComplete;
}

QString RowWriter::FreeName() const {
  constexpr qsizetype longestStem = 50;
  const QString stem = m_table.left(longestStem) + u" doubles"_s;
  QString name = stem;
  for (int number = 2; TableExists(m_connection, name); ++number)
    name = stem + u' ' + QString::number(number);
  return name;
}

QString RowWriter::AsideColumns() const {
  // A type from a stranger's file is taken over only when it is one, and no way to say more.
  static const QRegularExpression plainType(u"^[A-Za-z ]*(\\([0-9, ]*\\))?$"_s);
  QStringList columns;
  for (const Column& column : m_columns) {
    QString declaration = QuoteName(column.Name);
    if (plainType.match(column.Type).hasMatch()) declaration += u' ' + column.Type;
    if (AffinityOf(column.Type) == Affinity::Text) declaration += u" COLLATE NOCASE"_s;
    if (!column.Default.isEmpty()) declaration += u" DEFAULT ("_s + column.Default + u')';
    columns.append(declaration);
  }
  return columns.join(u", "_s);
}

sqlite3_stmt* RowWriter::AsideStatementFor(std::size_t columns) {
  if (m_aside.isEmpty()) {
    m_aside = u"main."_s + QuoteName(FreeName());
    Run(m_connection, u"CREATE TABLE "_s + m_aside + u'(' + AsideColumns() + u')');
  }
  StatementHandle& statement = m_asideStatements[columns];
  if (statement == nullptr) {
    QStringList names;
    QStringList parameters;
    for (std::size_t at = 0; at < columns; ++at) {
      names.append(QuoteName(m_columns[at].Name));
      parameters.append(u"?%1"_s.arg(at + 1));
    }
    statement = Prepare(m_connection, u"INSERT INTO "_s + m_aside + u'(' + names.join(u", "_s) +
                                          u") VALUES("_s + parameters.join(u", "_s) + u')');
  }
  return statement.get();
}

void RowWriter::PutAside(const RawRow& row) {
  m_isComplete = false;
  sqlite3_stmt* const statement = AsideStatementFor(row.Values.size());
  sqlite3_clear_bindings(statement);
  for (std::size_t at = 0; at < row.Values.size(); ++at) {
    const int parameter = static_cast<int>(at) + 1;
    Check(m_connection, m_columns[at].IsRowId ? sqlite3_bind_int64(statement, parameter, row.RowId)
                                              : BindRaw(statement, parameter, row.Values[at]));
  }
  sqlite3_step(statement);
  Check(m_connection, sqlite3_reset(statement));
}

}  // namespace velmora::db
