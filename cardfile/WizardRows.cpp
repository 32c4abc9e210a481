// SPDX-License-Identifier: MIT
#include "cardfile/WizardRows.h"

#include "cardfile/CardDesign.h"

namespace velmora {

namespace {

constexpr int firstTop = 1485;
constexpr int rowHeight = 335;
constexpr int firstLeft = 45;
constexpr int secondLeft = 3245;
constexpr int thirdLeft = 6445;
// Below these the next column begins, as far up again as one or two columns reach down.
constexpr int firstColumnEnd = 3600;
constexpr int secondColumnEnd = 5900;
constexpr int oneColumn = 2345;
constexpr int twoColumns = 4690;

}  // namespace

RowPlace PlaceOfRow(int row) {
  const int top = (row - 1) * rowHeight + firstTop;
  if (top > secondColumnEnd) return {.Left = thirdLeft, .Top = top - twoColumns};
  if (top > firstColumnEnd) return {.Left = secondLeft, .Top = top - oneColumn};
  return {.Left = firstLeft, .Top = top};
}

int GrantedFields(int wanted, int page, int onPage, int inFile) {
  int granted = wanted;
  const int total = inFile + wanted - onPage;
  if (total > MaxFields - 1) granted -= total - MaxFields;
  return granted == 0 && page == 1 ? 1 : granted;
}

}  // namespace velmora
