// SPDX-License-Identifier: MIT
#pragma once

#include "cards/CardField.h"

namespace velmora {

class CardForm;
class ptrArray;

/// Builds the fields and page buttons of a card screen from the field catalogue of the open file, all pages
/// at once and out of sight, and enters labels and value controls by page. Gives the fields behind the value
/// controls. A failure ends it in silence with what is built by then; a page row without fields is one, and
/// leaves every field where it was made.
[[nodiscard]] CardFields LayoutCard(CardForm& screen, ptrArray& FieldLabels, ptrArray& FieldValues);

}  // namespace velmora
