// SPDX-License-Identifier: MIT
#include "forms/RecordsetSource.h"

#include "base/system/Failures.h"
#include "forms/Waiting.h"

#include <algorithm>
#include <utility>

namespace velmora {

RecordsetSource::RecordsetSource(db::Recordset rows)
    : m_rows(std::move(rows)),
      m_rowCount(static_cast<int>(m_rows.RecordCount())),
      m_columnCount(m_rows.FieldCount()) {}

QString RecordsetSource::Heading(int column) const {
  QString heading;
  Trap([&] { heading = m_rows.FieldAt(column).Name; });
  return heading;
}

std::optional<QString> RecordsetSource::Cell(int row, int column) {
  if (row < 0 || row >= m_rowCount || column < 0 || column >= m_columnCount) return QString();
  const Row* values = RowAt(row);
  if (values == nullptr) return std::nullopt;
  return values->empty() ? QString() : (*values)[static_cast<std::size_t>(column)].TextOr(QString());
}

std::optional<int> RecordsetSource::FindText(int row, int column, const QString& text,
                                             db::FindWay way) const {
  const auto found = m_rows.FindText(column, text, row, way);
  return found ? std::optional(static_cast<int>(*found)) : std::nullopt;
}

const RecordsetSource::Row* RecordsetSource::RowAt(int row) {
  const int first = row - row % blockRows;
  const auto kept = std::ranges::find(m_blocks, first, &Block::First);
  Block& block = kept != m_blocks.end() ? *kept : OldestBlock();
  if (block.First != first) {
    if (ui::IsRepainting()) return nullptr;
    Fill(block, first);
  }
  block.LastUse = ++m_uses;
  return &block.Rows[static_cast<std::size_t>(row - first)];
}

RecordsetSource::Block& RecordsetSource::OldestBlock() {
  return *std::ranges::min_element(m_blocks, {}, &Block::LastUse);
}

void RecordsetSource::Fill(Block& block, int first) {
  std::vector<Row> rows(static_cast<std::size_t>(std::min(blockRows, m_rowCount - first)));
  int position = first;
  for (Row& row : rows) {
    // A row that fails leaves the others readable.
    Trap([&] {
      m_rows.MoveTo(position);
      row = ReadCurrent();
    });
    ++position;
  }
  // Reading may take long, and what is painted meanwhile asks here again: the block is there only now.
  block.First = first;
  block.Rows = std::move(rows);
}

RecordsetSource::Row RecordsetSource::ReadCurrent() const {
  Row values;
  values.reserve(static_cast<std::size_t>(m_columnCount));
  for (int column = 0; column < m_columnCount; ++column) values.push_back(m_rows.At(column));
  return values;
}

}  // namespace velmora
