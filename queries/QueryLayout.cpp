// SPDX-License-Identifier: MIT
#include "queries/QueryLayout.h"

namespace velmora {

namespace {

constexpr PagePlace firstButton{.Left = 255, .Top = 1470};
constexpr PagePlace firstList{.Left = 1500, .Top = 1470};
constexpr int listGap = 200;

}  // namespace

std::vector<FieldPlace> FieldPlaces(std::size_t count, int listWidth) {
  const std::vector<PagePlace> buttons = ColumnPlaces(count, firstButton);
  const std::vector<PagePlace> lists = ColumnPlaces(count, firstList);
  const int width = listWidth + PageWidening(count) - listGap;
  std::vector<FieldPlace> places;
  places.reserve(count);
  for (std::size_t i = 0; i < count; ++i)
    places.push_back({.Button = buttons[i], .List = lists[i], .ListWidth = width});
  return places;
}

}  // namespace velmora
