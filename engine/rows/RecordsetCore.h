// SPDX-License-Identifier: MIT
#pragma once

#include "engine/rows/FindWay.h"
#include "engine/rows/RowSource.h"

#include <map>

namespace velmora::db {

/// What stands behind a Recordset: its rows, where it stands in them, and the row being added or edited. The
/// rules that callers count on are told in Recordset.h.
class RecordsetCore final {
 public:
  /// `values` are those given with the statement.
  RecordsetCore(std::shared_ptr<Connection> connection, std::shared_ptr<const Translation> translation,
                const std::vector<Value>& values);

  [[nodiscard]] bool AtEnd();
  [[nodiscard]] bool AtStart();
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  void MovePrevious();
  void MoveTo(std::int64_t position);
  [[nodiscard]] std::int64_t RecordCount();

  [[nodiscard]] std::optional<std::int64_t> FindText(int column, const QString& text, std::int64_t from,
                                                     FindWay way);

  [[nodiscard]] const std::vector<Field>& Columns() const noexcept { return m_translation->Columns; }
  /// 3265 when there is no such column.
  [[nodiscard]] int ColumnOf(QStringView name) const;
  [[nodiscard]] Value At(int column);

  void AddNew();
  void Edit();
  void Set(int column, const Value& value);
  void Update();
  void CancelUpdate() noexcept;
  void Delete();

 private:
  enum class Mode { Reading, Adding, Editing };
  static constexpr std::int64_t BeforeFirst = -1;

  [[nodiscard]] const RowValues& CurrentRow();
  void RequireCurrent();
  void RequireRows();
  /// The row ids, ascending, of all rows in whose column the text stands: what the file is asked for.
  [[nodiscard]] std::vector<std::int64_t> KeysWith(int column, const QString& pattern);
  /// Goes to a place and drops what was being added or edited.
  void Leave(std::int64_t position) noexcept;
  /// The rows as a keyset; 3027 when they belong to no one table.
  [[nodiscard]] KeysetRows& Writable();
  [[nodiscard]] QString TableName() const;
  void Insert();
  void Change();
  /// Runs one statement that writes one row, with the columns set so far as its first parameters.
  void Write(const QString& sql, std::optional<std::int64_t> key);
  [[nodiscard]] QString QuotedRowId();
  [[nodiscard]] std::optional<std::int64_t> KeyFromColumns();

  std::shared_ptr<Connection> m_connection;
  std::shared_ptr<const Translation> m_translation;
  std::unique_ptr<RowSource> m_rows;
  KeysetRows* m_keyset = nullptr;

  std::int64_t m_position = 0;
  /// The current row was deleted here: m_position is the place of the row behind it.
  bool m_isOnDeleted = false;

  /// The current row as it was read, good as long as nothing was written since.
  RowValues m_row;
  std::int64_t m_rowPosition = BeforeFirst;
  std::int64_t m_rowWriteCount = 0;

  Mode m_mode = Mode::Reading;
  RowValues m_copy;
  /// What was set since AddNew or Edit: the table's column in the file, and the output column that holds the
  /// value.
  std::map<QString, int> m_set;
};

}  // namespace velmora::db
