// SPDX-License-Identifier: MIT
#include "engine/rows/RecordsetCore.h"

#include "engine/sqlite/Quoting.h"
#include "engine/sqlite/Storage.h"
#include "engine/text/Collation.h"
#include "engine/text/LikePattern.h"

#include <algorithm>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

Error NoCurrentRecord() { return {ErrorCode::NoCurrentRecord, u"There is no current row."_s}; }
Error RowDeleted() { return {ErrorCode::RecordDeleted, u"The row has been deleted."_s}; }

RowValues EmptyRow(const std::vector<Field>& columns) {
  RowValues row(columns.size());
  for (std::size_t column = 0; column < columns.size(); ++column) {
    if (columns[column].Type == FieldType::YesNo) row[column] = Value(false);
  }
  return row;
}

// Rows that are read one by one before the file is asked for all that hold a text: reading one costs some
// microseconds, a scan of a large file a tenth of a second.
constexpr int NearRows = 64;

/// Whether the text of a stored value is, to the character, the one that the value shows.
bool ShowsAsStored(FieldType type) {
  return type == FieldType::Text || type == FieldType::Memo || type == FieldType::Long;
}

}  // namespace

RecordsetCore::RecordsetCore(std::shared_ptr<Connection> connection,
                             std::shared_ptr<const Translation> translation, const std::vector<Value>& values)
    : m_connection(std::move(connection)), m_translation(std::move(translation)) {
  RowValues bound = BoundValues(m_translation->Parameters, values);
  if (m_translation->Table.isEmpty()) {
    m_rows = std::make_unique<SnapshotRows>(m_connection, *m_translation, bound);
    return;
  }
  auto keyset = std::make_unique<KeysetRows>(m_connection, *m_translation, std::move(bound));
  m_keyset = keyset.get();
  m_rows = std::move(keyset);
}

bool RecordsetCore::AtEnd() {
  static_cast<void>(m_connection->Handle());
  if (m_isOnDeleted) return false;
  return m_position == BeforeFirst ? !m_rows->Has(0) : !m_rows->Has(m_position);
}

bool RecordsetCore::AtStart() {
  static_cast<void>(m_connection->Handle());
  if (m_isOnDeleted) return false;
  return m_position == BeforeFirst || !m_rows->Has(0);
}

void RecordsetCore::RequireRows() {
  static_cast<void>(m_connection->Handle());
  if (!m_rows->Has(0)) throw NoCurrentRecord();
}

void RecordsetCore::RequireCurrent() {
  static_cast<void>(m_connection->Handle());
  if (m_isOnDeleted) throw RowDeleted();
  if (m_position == BeforeFirst || !m_rows->Has(m_position)) throw NoCurrentRecord();
}

void RecordsetCore::Leave(std::int64_t position) noexcept {
  CancelUpdate();
  m_isOnDeleted = false;
  m_position = position;
}

void RecordsetCore::MoveFirst() {
  RequireRows();
  Leave(0);
}

void RecordsetCore::MoveLast() {
  RequireRows();
  Leave(m_rows->Count() - 1);
}

void RecordsetCore::MoveNext() {
  static_cast<void>(m_connection->Handle());
  if (m_isOnDeleted) return Leave(m_position);
  if (AtEnd()) throw NoCurrentRecord();
  Leave(m_position + 1);
}

void RecordsetCore::MovePrevious() {
  if (AtStart()) throw NoCurrentRecord();
  Leave(m_position - 1);
}

void RecordsetCore::MoveTo(std::int64_t position) {
  static_cast<void>(m_connection->Handle());
  if (position < 0) throw Error(ErrorCode::InvalidArgument, u"Rows are counted from 0."_s);
  // The end is behind the last row, not further: rows added later must not come under a far position.
  Leave(m_rows->Has(position) ? position : m_rows->Count());
}

std::int64_t RecordsetCore::RecordCount() {
  static_cast<void>(m_connection->Handle());
  return m_rows->Count();
}

std::optional<std::int64_t> RecordsetCore::FindText(int column, const QString& text, std::int64_t from,
                                                    FindWay way) {
  const std::int64_t count = RecordCount();
  const std::int64_t step = way == FindWay::Down ? 1 : -1;
  const QString pattern = u'*' + LiteralLike(text) + u'*';
  const LikePattern like(pattern);
  const auto index = static_cast<std::size_t>(column);
  const bool isAskable = m_keyset != nullptr && !m_translation->SourceColumns[column].isEmpty() &&
                         ShowsAsStored(Columns()[index].Type);
  const auto holds = [&](std::int64_t place) {
    try {
      const Value value = m_rows->Read(place)[index];
      return !value.IsNull() && like.Matches(value.Text().toUtf8());
    } catch (const Error& error) {
      if (error.Code() != ErrorCode::RecordDeleted) throw;
      return false;
    }
  };
  std::int64_t place = from;
  for (int read = 0; place >= 0 && place < count; ++read, place += step) {
    if (isAskable && read == NearRows) break;
    if (holds(place)) return place;
  }
  if (place < 0 || place >= count) return std::nullopt;
  const std::vector<std::int64_t> keys = KeysWith(column, pattern);
  if (keys.empty()) return std::nullopt;
  for (; place >= 0 && place < count; place += step) {
    if (std::ranges::binary_search(keys, m_keyset->KeyAt(place))) return place;
  }
  return std::nullopt;
}

std::vector<std::int64_t> RecordsetCore::KeysWith(int column, const QString& pattern) {
  BorrowedStatement rows =
      m_connection->Borrow(u"SELECT "_s + QuotedRowId() + u" FROM "_s + TableName() + u" WHERE "_s +
                           QuoteName(m_translation->SourceColumns[column]) + u" LIKE ?1"_s);
  Bind(rows.get(), 1, Value(pattern));
  std::vector<std::int64_t> keys;
  while (rows.Step()) keys.push_back(sqlite3_column_int64(rows.get(), 0));
  // They come in the order of an index where the planner took one.
  if (!std::ranges::is_sorted(keys)) std::ranges::sort(keys);
  return keys;
}

int RecordsetCore::ColumnOf(QStringView name) const {
  const std::vector<Field>& columns = Columns();
  for (std::size_t column = 0; column < columns.size(); ++column) {
    if (columns[column].Name == name) return static_cast<int>(column);
  }
  const QString folded = FoldName(name);
  for (std::size_t column = 0; column < columns.size(); ++column) {
    if (FoldName(columns[column].Name) == folded) return static_cast<int>(column);
  }
  throw Error(ErrorCode::ItemNotFound, u"There is no column \"%1\"."_s.arg(name.toString()));
}

const RowValues& RecordsetCore::CurrentRow() {
  RequireCurrent();
  const std::int64_t writes = m_connection->WriteCount();
  if (m_rowPosition != m_position || m_rowWriteCount != writes) {
    m_rowPosition = BeforeFirst;
    m_row = m_rows->Read(m_position);
    m_rowPosition = m_position;
    m_rowWriteCount = writes;
  }
  return m_row;
}

Value RecordsetCore::At(int column) {
  static_cast<void>(m_connection->Handle());
  if (column < 0 || static_cast<std::size_t>(column) >= Columns().size()) {
    throw Error(ErrorCode::ItemNotFound, u"There is no column number %1."_s.arg(column));
  }
  const auto index = static_cast<std::size_t>(column);
  return m_mode == Mode::Reading ? CurrentRow()[index] : m_copy[index];
}

KeysetRows& RecordsetCore::Writable() {
  if (m_keyset == nullptr) {
    throw Error(ErrorCode::ReadOnlyDatabase, u"These rows belong to no one table and can't be changed."_s);
  }
  return *m_keyset;
}

void RecordsetCore::AddNew() {
  static_cast<void>(m_connection->Handle());
  static_cast<void>(Writable());
  CancelUpdate();
  m_copy = EmptyRow(Columns());
  m_mode = Mode::Adding;
}

void RecordsetCore::Edit() {
  static_cast<void>(m_connection->Handle());
  CancelUpdate();
  RequireCurrent();
  static_cast<void>(Writable());
  m_copy = CurrentRow();
  m_mode = Mode::Editing;
}

void RecordsetCore::Set(int column, const Value& value) {
  static_cast<void>(m_connection->Handle());
  if (m_mode == Mode::Reading) {
    throw Error(ErrorCode::UpdateWithoutEdit, u"A column can be set only after AddNew or Edit."_s);
  }
  const QString& source = m_translation->SourceColumns[column];
  const auto index = static_cast<std::size_t>(column);
  if (source.isEmpty()) {
    throw Error(ErrorCode::ReadOnlyDatabase,
                u"The column \"%1\" is computed and can't be set."_s.arg(Columns()[index].Name));
  }
  m_copy[index] = Converted(Columns()[index], value);
  m_set[source] = column;
}

void RecordsetCore::CancelUpdate() noexcept {
  m_mode = Mode::Reading;
  m_copy.clear();
  m_set.clear();
}

QString RecordsetCore::TableName() const { return QuoteName(m_translation->Table); }

QString RecordsetCore::QuotedRowId() {
  return QuoteName(m_connection->Current().RowIdName(m_translation->Table));
}

void RecordsetCore::Write(const QString& sql, std::optional<std::int64_t> key) {
  BorrowedStatement statement = m_connection->Borrow(sql);
  int parameter = 0;
  for (const auto& entry : m_set)
    Bind(statement.get(), ++parameter, m_copy[static_cast<std::size_t>(entry.second)]);
  if (key) Check(sqlite3_db_handle(statement.get()), sqlite3_bind_int64(statement.get(), ++parameter, *key));
  statement.Step();
}

void RecordsetCore::Update() {
  static_cast<void>(m_connection->Handle());
  switch (m_mode) {
    case Mode::Reading:
      throw Error(ErrorCode::UpdateWithoutEdit, u"Update needs AddNew or Edit before it."_s);
    case Mode::Adding:
      Insert();
      break;
    case Mode::Editing:
      Change();
      break;
  }
  CancelUpdate();
}

void RecordsetCore::Insert() {
  KeysetRows& keys = Writable();
  // Whoever stands behind the last row stays there.
  const bool wasAtEnd = !m_isOnDeleted && m_position != BeforeFirst && !m_rows->Has(m_position);
  QStringList columns;
  QStringList parameters;
  for (const auto& entry : m_set) {
    columns.append(QuoteName(entry.first));
    parameters.append(u"?%1"_s.arg(columns.size()));
  }
  const QString values =
      columns.isEmpty() ? u" DEFAULT VALUES"_s
                        : u" ("_s + columns.join(u", ") + u") VALUES ("_s + parameters.join(u", ") + u')';
  m_connection->SettleRows(true);
  Transaction transaction(*m_connection);
  Write(u"INSERT INTO "_s + TableName() + values, std::nullopt);
  const std::int64_t key = sqlite3_last_insert_rowid(m_connection->Handle());
  transaction.Commit();
  keys.Add(key);
  if (wasAtEnd) ++m_position;
}

std::optional<std::int64_t> RecordsetCore::KeyFromColumns() {
  const StoredTable* const table = m_connection->Current().Find(m_translation->Table);
  if (table == nullptr || table->RowIdColumn < 0) return std::nullopt;
  const auto entry = m_set.find(table->ColumnsInFile[table->RowIdColumn]);
  if (entry == m_set.end()) return std::nullopt;
  const Value& value = m_copy[static_cast<std::size_t>(entry->second)];
  return value.IsWhole() ? std::optional(value.Whole()) : std::nullopt;
}

void RecordsetCore::Change() {
  KeysetRows& keys = Writable();
  if (m_set.empty()) return;
  m_connection->SettleRows(false);
  QStringList settings;
  for (const auto& entry : m_set) {
    settings.append(QuoteName(entry.first) + u" = ?"_s + QString::number(settings.size() + 1));
  }
  const QString sql = u"UPDATE "_s + TableName() + u" SET "_s + settings.join(u", ") + u" WHERE "_s +
                      QuotedRowId() + u" = ?"_s + QString::number(settings.size() + 1);
  const std::optional<std::int64_t> newKey = KeyFromColumns();
  Transaction transaction(*m_connection);
  Write(sql, keys.KeyAt(m_position));
  if (sqlite3_changes64(m_connection->Handle()) == 0) throw RowDeleted();
  transaction.Commit();
  if (newKey) keys.Replace(m_position, *newKey);
}

void RecordsetCore::Delete() {
  static_cast<void>(m_connection->Handle());
  CancelUpdate();
  RequireCurrent();
  KeysetRows& keys = Writable();
  m_connection->SettleRows(false);
  const QString sql = u"DELETE FROM "_s + TableName() + u" WHERE "_s + QuotedRowId() + u" = ?1"_s;
  Transaction transaction(*m_connection);
  Write(sql, keys.KeyAt(m_position));
  if (sqlite3_changes64(m_connection->Handle()) == 0) throw RowDeleted();
  transaction.Commit();
  keys.Remove(m_position);
  m_isOnDeleted = true;
}

}  // namespace velmora::db
