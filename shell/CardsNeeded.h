// SPDX-License-Identifier: MIT
#pragma once

namespace velmora {

class Frame;

/// Whether a file with cards is open, as most commands need; without one a notice in the strip says so.
[[nodiscard]] bool HasCardsOrTells(Frame& frame);

}  // namespace velmora
