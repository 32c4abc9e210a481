// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace velmora {

/// A truth value that is state or part of an interface: 16 bits, all of them set for true.
using Flag = std::int16_t;
inline constexpr Flag True = -1;
inline constexpr Flag False = 0;
[[nodiscard]] constexpr Flag ToFlag(bool truth) { return truth ? True : False; }

}  // namespace velmora
