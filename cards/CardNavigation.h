// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

namespace velmora {

/// Makes a card the current one of the strip when no viewer is in front: that card, or the nearest beyond it,
/// or the nearest on the other side. Closes the open screens first, but for those of the search; does nothing
/// more when one with unsaved changes stays open.
void GoToCard(std::int32_t number);

/// Asks, and deletes the current card with what belongs to it. A file that has no card then is left with no
/// screen; else the viewer is shown and `stepUp` moves it one card on.
void DeleteCurrentCard(const std::function<void()>& stepUp);

}  // namespace velmora
