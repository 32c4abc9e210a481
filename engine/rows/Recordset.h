// SPDX-License-Identifier: MIT
#pragma once

#include "engine/rows/FindWay.h"
#include "engine/values/Schema.h"
#include "engine/values/Value.h"

#include <memory>
#include <optional>

namespace velmora::db {

class RecordsetCore;

/// The rows of a table, query or SELECT, with one current row.
///
/// It opens on its first row, or at the end when there is none. Rows are fetched as they are asked for, so
/// AtEnd costs one step. Without a row every move, reading and Edit fail with 3021; at the end and before the
/// first row so do reading, Edit, and the move that leads further away. A pending AddNew or Edit is dropped
/// by any move, by another one, by Close and by destruction; nothing reaches the file before Update.
///
/// The rows of one table are held by their row ids: which rows there are is settled when they are fetched,
/// their values are those of the file. A row that was deleted meanwhile keeps its place and fails with 3167
/// when it is read. Grouped, joined and distinct rows are a snapshot; changing them fails with 3027. Movable,
/// not copyable; closed when destroyed.
class Recordset final {
 public:
  explicit Recordset(std::unique_ptr<RecordsetCore> core);
  Recordset(Recordset&&) noexcept;
  Recordset& operator=(Recordset&&) noexcept;
  ~Recordset();

  /// True behind the last row (the field's EOF).
  [[nodiscard]] bool AtEnd() const;
  /// True before the first row, and when there is no row at all (the field's BOF).
  [[nodiscard]] bool AtStart() const;
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  void MovePrevious();
  /// Makes the row at that place, counted from 0, the current one; beyond the last row the recordset is
  /// AtEnd.
  void MoveTo(std::int64_t position);
  /// The number of all rows; counts them when they are not all fetched yet.
  [[nodiscard]] std::int64_t RecordCount() const;

  /// The place, counted from 0, of the nearest row from `from` on, that one included, in whose column the
  /// text stands as LIKE compares texts, each character for itself. It is the row that walking the rows would
  /// find, but where the nearest ones don't hold the text the file is asked once for all that do, so the
  /// farthest row costs little more than a scan of the column. Null and deleted rows hold no text. The
  /// current row stays.
  [[nodiscard]] std::optional<std::int64_t> FindText(int column, const QString& text, std::int64_t from,
                                                     FindWay way) const;

  [[nodiscard]] int FieldCount() const;
  [[nodiscard]] const Field& FieldAt(int position) const;
  /// The value of a column of the current row, or of the copy being edited. 3265 when there is no such
  /// column.
  [[nodiscard]] Value operator[](QStringView column) const;
  [[nodiscard]] Value At(int position) const;

  void AddNew();
  void Edit();
  /// Sets a column of the row being added or edited: 3020 without AddNew or Edit, 3421 and 3349 for a value
  /// that the column cannot take, 3163 for a text that is too long, 3027 for a computed column.
  void Set(QStringView column, const Value& value);
  /// Writes the row as one transaction: 3020 without AddNew or Edit, 3022 when a unique index has the key
  /// already (the row can be mended and updated again). After AddNew the former row is current again; the new
  /// one is the last of the recordset, whatever its order.
  void Update();
  void CancelUpdate();
  /// Deletes the current row as one transaction; until the next move leaves its place, reading it fails with
  /// 3167.
  void Delete();
  void Close();

 private:
  std::unique_ptr<RecordsetCore> m_core;
};

}  // namespace velmora::db
