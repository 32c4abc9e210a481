// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QKeyEvent;

namespace velmora::ui {

class TextBox;

/// Whether a key asks for the values that a box can take: F4 or Alt+Down, the keys that drop a list down.
[[nodiscard]] bool AsksForValues(const QKeyEvent& event);

/// Runs `open` when the user asks for the values that a box can take, by these keys or by a double click.
void WhenAskedForValues(TextBox& box, std::function<void()> open);

}  // namespace velmora::ui
