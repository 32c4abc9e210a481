// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"

#include <array>
#include <vector>

namespace velmora {

/// A place on the query screen, in twips.
struct QueryPlace {
  int Left = 0;
  int Top = 0;
  friend bool operator==(const QueryPlace&, const QueryPlace&) = default;
};

/// The button of a page that shows its fields; its element number is the page's number less one.
struct PageButtonPlace {
  int Element = 0;
  QueryPlace Place;
  friend bool operator==(const PageButtonPlace&, const PageButtonPlace&) = default;
};

/// Where the first page's button stands: right of the box in which the strip seeks a card.
[[nodiscard]] int FirstPageButtonLeft(int seekLeft, int seekWidth);

/// The buttons in the order in which they are made: page 1 always, and each later page that has fields. Five
/// stand in the first row, the others in the second.
[[nodiscard]] std::vector<PageButtonPlace> PageButtons(const std::array<bool, MaxPages>& pageHasFields,
                                                       int firstLeft);

/// A field's button and the list of its conditions beside it.
struct FieldPlace {
  QueryPlace Button;
  QueryPlace List;
  int ListWidth = 0;
  friend bool operator==(const FieldPlace&, const FieldPlace&) = default;
};

/// The places of a page's fields in their order: columns of seven, the wider the fewer there are. `listWidth`
/// is the width of a list before the layout.
[[nodiscard]] std::vector<FieldPlace> FieldPlaces(int count, int listWidth);

}  // namespace velmora
