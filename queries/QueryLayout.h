// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/PagePlan.h"

#include <cstddef>
#include <vector>

namespace velmora {

/// A field's button and the list of its conditions beside it, on the query screen.
struct FieldPlace {
  PagePlace Button;
  PagePlace List;
  int ListWidth = 0;
  friend bool operator==(const FieldPlace&, const FieldPlace&) = default;
};

/// The places of a page's fields in their order. `listWidth` is the width of a list before the layout.
[[nodiscard]] std::vector<FieldPlace> FieldPlaces(std::size_t count, int listWidth);

}  // namespace velmora
