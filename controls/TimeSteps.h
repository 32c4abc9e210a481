// SPDX-License-Identifier: MIT
#pragma once

namespace velmora {

/// The minute that a step of a quarter of an hour leads to, within the same hour at both ends: from 45 up
/// back to 0, from 0 down forward to 45.
[[nodiscard]] int QuarterAbove(int minute);
/// The minutes 16, 31 and 46 lead nowhere: people who know the control count on them to stay.
[[nodiscard]] int QuarterBelow(int minute);

}  // namespace velmora
