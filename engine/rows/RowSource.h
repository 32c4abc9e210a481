// SPDX-License-Identifier: MIT
#pragma once

#include "engine/rows/Connection.h"
#include "engine/rows/RowKeys.h"
#include "engine/values/Value.h"

namespace velmora::db {

using RowValues = std::vector<Value>;

/// The rows of one SELECT, numbered from 0 and fetched as they are asked for. While some are still to be
/// fetched the SQLite statement stays open; the connection has it finished before anything changes what it
/// reads.
class RowSource : public OpenRows {
 public:
  /// `values` are those that are bound to the statement.
  RowSource(std::shared_ptr<Connection> connection, const QString& sql, const RowValues& values);
  ~RowSource() override;
  RowSource(const RowSource&) = delete;
  RowSource& operator=(const RowSource&) = delete;

  /// Whether there is a row of that number; fetches up to it.
  [[nodiscard]] bool Has(std::int64_t position);
  /// The number of all rows; fetches them.
  [[nodiscard]] std::int64_t Count();
  /// The values of a row that Has() has found. 3167 when the row is gone from the file.
  [[nodiscard]] virtual RowValues Read(std::int64_t position) = 0;

  void Settle() noexcept final;
  void Abandon() noexcept final;

 protected:
  /// Takes the row on which the statement stands.
  virtual void Keep(sqlite3_stmt* statement) = 0;
  [[nodiscard]] virtual std::int64_t Kept() const noexcept = 0;
  /// All rows have come.
  virtual void OnFetched() {}
  [[nodiscard]] bool IsFetched() const noexcept { return !m_pending; }
  [[nodiscard]] Connection& Source() const noexcept { return *m_connection; }

 private:
  bool FetchOne();

  std::shared_ptr<Connection> m_connection;
  std::optional<BorrowedStatement> m_pending;
  /// Why fetching stopped half-way.
  std::optional<Error> m_failure;
};

/// Rows of one table, held by their row ids and read anew each time.
class KeysetRows final : public RowSource {
 public:
  KeysetRows(std::shared_ptr<Connection> connection, const Translation& translation, RowValues values);

  [[nodiscard]] RowValues Read(std::int64_t position) override;
  [[nodiscard]] bool TakesNewRows() const noexcept override { return true; }
  [[nodiscard]] std::int64_t KeyAt(std::int64_t position) const { return m_keys.At(position); }
  /// A row that was added through this recordset: it stands behind all others, whether or not the statement,
  /// when it is still open, comes upon it too.
  void Add(std::int64_t key);
  /// Both need all rows fetched.
  void Replace(std::int64_t position, std::int64_t key) { m_keys.Replace(position, key); }
  void Remove(std::int64_t position) { m_keys.Remove(position); }

 private:
  void Keep(sqlite3_stmt* statement) override;
  [[nodiscard]] std::int64_t Kept() const noexcept override { return m_keys.Size(); }
  void OnFetched() override;

  QString m_rowSql;
  /// Bound each time that a row is read.
  RowValues m_values;
  std::vector<FieldType> m_types;
  RowKeys m_keys;
  std::vector<std::int64_t> m_added;
};

/// Rows that belong to no one table (grouped, joined, distinct): their values are kept as they were.
class SnapshotRows final : public RowSource {
 public:
  SnapshotRows(std::shared_ptr<Connection> connection, const Translation& translation,
               const RowValues& values);

  [[nodiscard]] RowValues Read(std::int64_t position) override {
    return m_rows[static_cast<std::size_t>(position)];
  }
  [[nodiscard]] bool TakesNewRows() const noexcept override { return false; }

 private:
  void Keep(sqlite3_stmt* statement) override;
  [[nodiscard]] std::int64_t Kept() const noexcept override {
    return static_cast<std::int64_t>(m_rows.size());
  }

  std::vector<FieldType> m_types;
  std::vector<RowValues> m_rows;
};

}  // namespace velmora::db
