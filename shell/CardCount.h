// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

namespace velmora {

/// 1 when the open file has no card, after `blankStrip` has blanked what the frame shows of a card; 0 when it
/// has one, and 0 after any failure, such as no open file. Costs one step however many cards there are.
[[nodiscard]] std::int32_t CardCountZero(const std::function<void()>& blankStrip);

}  // namespace velmora
