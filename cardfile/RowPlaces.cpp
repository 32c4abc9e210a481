// SPDX-License-Identifier: MIT
#include "cardfile/RowPlaces.h"

namespace velmora {

namespace {

constexpr int rowHeight = 335;
// Below these the next column begins, as far up again as one or two columns reach down.
constexpr int firstColumnEnd = 3600;
constexpr int secondColumnEnd = 5900;
constexpr int oneColumn = 2345;
constexpr int twoColumns = 4690;

}  // namespace

RowPlace PlaceOfRow(int row, const RowGrid& grid) {
  const int top = (row - 1) * rowHeight + grid.Top;
  if (top > secondColumnEnd) return {.Left = grid.Lefts[2], .Top = top - twoColumns};
  if (top > firstColumnEnd) return {.Left = grid.Lefts[1], .Top = top - oneColumn};
  return {.Left = grid.Lefts[0], .Top = top};
}

}  // namespace velmora
