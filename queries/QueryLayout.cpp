// SPDX-License-Identifier: MIT
#include "queries/QueryLayout.h"

namespace velmora {

namespace {

constexpr int seekToFirstButton = 2450;
constexpr int pageButtonStep = 1000;
constexpr int pageRowStep = 255;
/// Page 1's button and these fill the first row.
constexpr int furtherInFirstRow = 4;

constexpr int firstTop = 1470;
constexpr int lastTop = 3410;
constexpr int rowStep = 300;
constexpr int buttonLeft = 255;
constexpr int listLeft = 1500;
constexpr int columnStep = 3120;
constexpr int listGap = 200;

/// What a column is wider by when it need not share the screen with two others.
int ExtraWidth(int count) {
  if (count < 8) return 6120;
  if (count < 15) return 1500;
  return 0;
}

}  // namespace

int FirstPageButtonLeft(int seekLeft, int seekWidth) { return seekLeft + seekWidth + seekToFirstButton; }

std::vector<PageButtonPlace> PageButtons(const std::array<bool, MaxPages>& pageHasFields, int firstLeft) {
  std::vector<PageButtonPlace> buttons{{.Element = 0, .Place = {.Left = firstLeft, .Top = 0}}};
  QueryPlace next{.Left = firstLeft + pageButtonStep, .Top = 0};
  for (int element = 1; element < MaxPages; ++element) {
    if (!pageHasFields[static_cast<std::size_t>(element)]) continue;
    buttons.push_back({.Element = element, .Place = next});
    next.Left += pageButtonStep;
    if (buttons.size() == 1 + furtherInFirstRow) next = {.Left = firstLeft, .Top = next.Top + pageRowStep};
  }
  return buttons;
}

std::vector<FieldPlace> FieldPlaces(int count, int listWidth) {
  const int extra = ExtraWidth(count);
  std::vector<FieldPlace> places;
  FieldPlace next{.Button = {.Left = buttonLeft, .Top = firstTop},
                  .List = {.Left = listLeft, .Top = firstTop},
                  .ListWidth = listWidth + extra - listGap};
  for (int i = 0; i < count; ++i) {
    places.push_back(next);
    int top = next.Button.Top + rowStep;
    if (top > lastTop) {
      top = firstTop;
      next.Button.Left += columnStep + extra;
      next.List.Left += columnStep + extra;
    }
    next.Button.Top = top;
    next.List.Top = top;
  }
  return places;
}

}  // namespace velmora
