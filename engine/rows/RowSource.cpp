// SPDX-License-Identifier: MIT
#include "engine/rows/RowSource.h"

#include "engine/sqlite/Storage.h"

#include <algorithm>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

std::vector<FieldType> TypesOf(const std::vector<Field>& columns) {
  std::vector<FieldType> types;
  types.reserve(columns.size());
  for (const Field& column : columns) types.push_back(column.Type);
  return types;
}

RowValues ValuesOf(sqlite3_stmt* statement, const std::vector<FieldType>& types) {
  RowValues values;
  values.reserve(types.size());
  for (std::size_t column = 0; column < types.size(); ++column) {
    values.push_back(ReadValue(statement, static_cast<int>(column), types[column]));
  }
  return values;
}

}  // namespace

RowSource::RowSource(std::shared_ptr<Connection> connection, const QString& sql, const RowValues& values)
    : m_connection(std::move(connection)), m_pending(m_connection->Borrow(sql)) {
  BindParameters(m_pending->get(), values);
  m_connection->Register(*this);
}

RowSource::~RowSource() { m_connection->Unregister(*this); }

bool RowSource::FetchOne() {
  if (m_failure) throw Error(*m_failure);
  if (!m_pending) return false;
  try {
    if (m_pending->Step()) {
      Keep(m_pending->get());
      return true;
    }
  } catch (const Error& error) {
    // Stepping on would begin again at the first row.
    m_failure = error;
    m_pending.reset();
    throw;
  } catch (const std::exception& problem) {
    m_failure.emplace(ErrorCode::Internal, QString::fromUtf8(problem.what()));
    m_pending.reset();
    throw;
  }
  m_pending.reset();
  OnFetched();
  return false;
}

bool RowSource::Has(std::int64_t position) {
  while (position >= Kept()) {
    if (!FetchOne()) return position < Kept();
  }
  return true;
}

std::int64_t RowSource::Count() {
  while (FetchOne()) {
  }
  return Kept();
}

void RowSource::Settle() noexcept {
  try {
    static_cast<void>(Count());
  } catch (const std::exception&) {
    // Kept in m_failure for the one to whom these rows belong.
    m_pending.reset();
  }
}

void RowSource::Abandon() noexcept { m_pending.reset(); }

KeysetRows::KeysetRows(std::shared_ptr<Connection> connection, const Translation& translation,
                       RowValues values)
    : RowSource(std::move(connection), translation.KeySql, values),
      m_rowSql(translation.RowSql),
      m_values(std::move(values)),
      m_types(TypesOf(translation.Columns)) {}

RowValues KeysetRows::Read(std::int64_t position) {
  BorrowedStatement row = Source().Borrow(m_rowSql);
  Check(sqlite3_db_handle(row.get()), sqlite3_bind_int64(row.get(), RowIdParameter, m_keys.At(position)));
  BindParameters(row.get(), m_values);
  if (!row.Step()) throw Error(ErrorCode::RecordDeleted, u"The row has been deleted."_s);
  return ValuesOf(row.get(), m_types);
}

void KeysetRows::Add(std::int64_t key) {
  if (IsFetched()) {
    m_keys.Append(key);
  } else {
    m_added.push_back(key);
  }
}

void KeysetRows::Keep(sqlite3_stmt* statement) {
  const std::int64_t key = sqlite3_column_int64(statement, 0);
  if (!m_added.empty() && std::find(m_added.begin(), m_added.end(), key) != m_added.end()) return;
  m_keys.Append(key);
}

void KeysetRows::OnFetched() {
  for (const std::int64_t key : m_added) m_keys.Append(key);
  m_added = {};
}

SnapshotRows::SnapshotRows(std::shared_ptr<Connection> connection, const Translation& translation,
                           const RowValues& values)
    : RowSource(std::move(connection), translation.Sql, values), m_types(TypesOf(translation.Columns)) {}

void SnapshotRows::Keep(sqlite3_stmt* statement) { m_rows.push_back(ValuesOf(statement, m_types)); }

}  // namespace velmora::db
