// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"

#include <array>
#include <cstddef>
#include <vector>

namespace velmora {

/// The arithmetic of the pages that the card screens and the query screen share, in twips.
namespace plan {
inline constexpr int PageButtonWidth = 1000;
inline constexpr int PageButtonHeight = 255;
/// How many fields stand one below the other before the next column begins.
inline constexpr std::size_t FieldsInColumn = 7;
}  // namespace plan

struct PagePlace {
  int Left = 0;
  int Top = 0;

  friend bool operator==(const PagePlace&, const PagePlace&) = default;
};

/// The button that shows a page; its element number is the page's number less one.
struct PageButtonPlace {
  int Element = 0;
  PagePlace Place;

  friend bool operator==(const PageButtonPlace&, const PageButtonPlace&) = default;
};

/// Where the first page's button stands: right of the box in which the strip seeks a card.
[[nodiscard]] int FirstPageButtonLeft(int seekLeft, int seekWidth);

/// The buttons in the order in which they are made: page 1 always, and each later page that has fields. Five
/// stand in the first row, the others in the second.
[[nodiscard]] std::vector<PageButtonPlace> PageButtons(const std::array<bool, MaxPages>& pageHasFields,
                                                       int firstLeft);

/// How much wider the texts of a page become, and its columns with them, when it leaves columns empty.
[[nodiscard]] int PageWidening(std::size_t fieldsOnPage);

/// The places of a page's fields in their order, column after column, from the place of the first one on.
[[nodiscard]] std::vector<PagePlace> ColumnPlaces(std::size_t fieldsOnPage, PagePlace first);

}  // namespace velmora
