// SPDX-License-Identifier: MIT
#pragma once

#include "forms/FlexGrid.h"
#include "search/GridSearch.h"

#include <optional>

namespace velmora {

/// Searches a grid downwards from a row for one with that text in the column, whatever its case. The row that
/// has it becomes the current one and the first in view, and is given; without one the grid stays as it is.
[[nodiscard]] std::optional<int> GridFindNext(int column, const QString& text, int startRow,
                                              ui::FlexGrid& grid);
/// The same upwards, from the row before `startRow` to the first one.
[[nodiscard]] std::optional<int> GridFindPrev(int column, const QString& text, int startRow,
                                              ui::FlexGrid& grid);

/// The cells of a grid for a search that steps through them, each hit shown in the grid.
class GridCells final : public SearchedCells {
 public:
  explicit GridCells(ui::FlexGrid& grid) : m_grid(grid) {}
  [[nodiscard]] std::optional<int> RowFrom(int row, int column, const QString& text) override {
    return GridFindNext(column, text, row, m_grid);
  }
  [[nodiscard]] std::optional<int> RowBefore(int row, int column, const QString& text) override {
    return GridFindPrev(column, text, row, m_grid);
  }

 private:
  ui::FlexGrid& m_grid;
};

}  // namespace velmora
