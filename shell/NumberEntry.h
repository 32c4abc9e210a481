// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace velmora {

/// What the number box of the strip does with its text after a change: empties itself, asks for a card, or
/// neither.
struct NumberEntry {
  bool Clear = false;
  std::optional<std::int32_t> Card;

  friend bool operator==(const NumberEntry&, const NumberEntry&) = default;
};

/// Takes plain digits without a leading zero alone; anything else empties the box, a blank text stays.
[[nodiscard]] NumberEntry ReadNumberEntry(const QString& text);

}  // namespace velmora
