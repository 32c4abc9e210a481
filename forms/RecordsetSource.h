// SPDX-License-Identifier: MIT
#pragma once

#include "engine/rows/Recordset.h"
#include "forms/GridSource.h"

#include <array>
#include <optional>
#include <vector>

namespace velmora {

/// The rows of a recordset for a grid, which it keeps open as long as it lives. Rows are read in blocks when
/// they come into view; the last few blocks are kept. Numbers and dates show in the program's own forms, a
/// truth value as "-1" or "0", Null as nothing. A row that was deleted since, or cannot be read, is empty.
/// While windows repaint within long work the file is not read: what was not read before has to wait.
class RecordsetSource final : public ui::GridSource {
 public:
  /// Counts the rows. Throws db::Error as the recordset does.
  explicit RecordsetSource(db::Recordset rows);

  [[nodiscard]] int RowCount() const override { return m_rowCount; }
  [[nodiscard]] int ColumnCount() const override { return m_columnCount; }
  [[nodiscard]] QString Heading(int column) const override;
  [[nodiscard]] std::optional<QString> Cell(int row, int column) override;

  /// The nearest row from `row` on, that one included, in whose column the text stands, as the recordset
  /// finds it. Throws db::Error.
  [[nodiscard]] std::optional<int> FindText(int row, int column, const QString& text, db::FindWay way) const;

 private:
  static constexpr int blockRows = 64;
  static constexpr std::size_t keptBlocks = 4;

  using Row = std::vector<db::Value>;
  struct Block {
    int First = -1;
    std::int64_t LastUse = 0;
    std::vector<Row> Rows;
  };

  /// The row, read now where it is not kept; null when that has to wait.
  [[nodiscard]] const Row* RowAt(int row);
  [[nodiscard]] Block& OldestBlock();
  void Fill(Block& block, int first);
  [[nodiscard]] Row ReadCurrent() const;

  db::Recordset m_rows;
  int m_rowCount = 0;
  int m_columnCount = 0;
  std::array<Block, keptBlocks> m_blocks;
  std::int64_t m_uses = 0;
};

}  // namespace velmora
