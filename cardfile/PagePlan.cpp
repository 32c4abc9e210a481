// SPDX-License-Identifier: MIT
#include "cardfile/PagePlan.h"

namespace velmora {

namespace {

constexpr int FromSeekBoxToButtons = 2450;
/// Page 1's button and these fill the first row. There is no third row.
constexpr std::size_t FurtherInFirstRow = 4;

constexpr int RowDistance = 300;
constexpr int ColumnDistance = 3120;

struct Widening {
  std::size_t Below;
  int Width;
};
constexpr std::array<Widening, 2> Widenings{{{8, 6120}, {15, 1500}}};

}  // namespace

int FirstPageButtonLeft(int seekLeft, int seekWidth) { return seekLeft + seekWidth + FromSeekBoxToButtons; }

std::vector<PageButtonPlace> PageButtons(const std::array<bool, MaxPages>& pageHasFields, int firstLeft) {
  std::vector<PageButtonPlace> buttons{{.Element = 0, .Place = {.Left = firstLeft, .Top = 0}}};
  PagePlace next{.Left = firstLeft + plan::PageButtonWidth, .Top = 0};
  for (std::size_t element = 1; element < pageHasFields.size(); ++element) {
    if (!pageHasFields[element]) continue;
    buttons.push_back({.Element = static_cast<int>(element), .Place = next});
    next.Left += plan::PageButtonWidth;
    if (buttons.size() == 1 + FurtherInFirstRow)
      next = {.Left = firstLeft, .Top = next.Top + plan::PageButtonHeight};
  }
  return buttons;
}

int PageWidening(std::size_t fieldsOnPage) {
  for (const Widening& entry : Widenings) {
    if (fieldsOnPage < entry.Below) return entry.Width;
  }
  return 0;
}

std::vector<PagePlace> ColumnPlaces(std::size_t fieldsOnPage, PagePlace first) {
  const int columnStep = ColumnDistance + PageWidening(fieldsOnPage);
  std::vector<PagePlace> places;
  places.reserve(fieldsOnPage);
  for (std::size_t i = 0; i < fieldsOnPage; ++i) {
    const auto column = static_cast<int>(i / plan::FieldsInColumn);
    const auto row = static_cast<int>(i % plan::FieldsInColumn);
    places.push_back({.Left = first.Left + column * columnStep, .Top = first.Top + row * RowDistance});
  }
  return places;
}

}  // namespace velmora
