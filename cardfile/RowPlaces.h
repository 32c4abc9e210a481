// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace velmora {

/// Where a row of a page of fields stands, in twips.
struct RowPlace {
  int Left = 0;
  int Top = 0;
  friend bool operator==(const RowPlace&, const RowPlace&) = default;
};

/// The first row's top and the left edges of the three columns of seven rows.
struct RowGrid {
  int Top = 0;
  std::array<int, 3> Lefts{};
};

inline constexpr RowGrid WizardGrid{.Top = 1485, .Lefts = {45, 3245, 6445}};
inline constexpr RowGrid EditorGrid{.Top = 1400, .Lefts = {135, 3335, 6535}};

/// The place of the row-th row of a page, counted from 1.
[[nodiscard]] RowPlace PlaceOfRow(int row, const RowGrid& grid);

}  // namespace velmora
