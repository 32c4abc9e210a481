// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace velmora {

/// Shows the card so many numbers on, or the nearest in that direction, and empties the box for a number.
void StepCard(std::int32_t step);

}  // namespace velmora
