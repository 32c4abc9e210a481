// SPDX-License-Identifier: MIT
#include "search/GridFind.h"

#include "forms/RecordsetSource.h"

namespace velmora {

namespace {

/// Rows without data have no text. Of a source of rows the file is asked, not each cell.
std::optional<int> Find(int row, int column, const QString& text, db::FindWay way, ui::FlexGrid& grid) {
  const auto* source = dynamic_cast<const RecordsetSource*>(grid.DataSource());
  if (source == nullptr) return std::nullopt;
  const auto found = source->FindText(row - 1, column, text, way);
  if (!found) return std::nullopt;
  const int hit = *found + 1;
  grid.SetCol(column);
  grid.SetColSel(column);
  grid.SetRow(hit);
  grid.SetRowSel(hit);
  grid.SetTopRow(hit);
  return hit;
}

}  // namespace

std::optional<int> GridFindNext(int column, const QString& text, int startRow, ui::FlexGrid& grid) {
  return Find(startRow, column, text, db::FindWay::Down, grid);
}

std::optional<int> GridFindPrev(int column, const QString& text, int startRow, ui::FlexGrid& grid) {
  return Find(startRow - 1, column, text, db::FindWay::Up, grid);
}

}  // namespace velmora
