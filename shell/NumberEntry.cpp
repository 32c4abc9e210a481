// SPDX-License-Identifier: MIT
#include "shell/NumberEntry.h"

#include "base/text/Numbers.h"

namespace velmora {

NumberEntry ReadNumberEntry(const QString& text) {
  if (text.trimmed().isEmpty()) return {};
  const std::int32_t number = LeadingWhole(text.trimmed());
  // A text longer than its number holds a space, a sign, a letter or a leading zero.
  // One beyond 32 bits is no card's.
  if (number == 0 || text != QString::number(number)) return {.Clear = true, .Card = {}};
  return {.Clear = false, .Card = number};
}

}  // namespace velmora
