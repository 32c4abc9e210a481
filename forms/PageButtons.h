// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Buttons.h"
#include "forms/ControlArray.h"
#include "forms/Palette.h"

#include <functional>
#include <optional>

class QWidget;

namespace velmora::ui {

/// Runs `step` with 1 at Ctrl+PageDown and with -1 at Ctrl+PageUp, wherever on the screen the focus is.
void AddPageKeys(QWidget* screen, const std::function<void(int direction)>& step);

/// The element number of the next visible page button after (direction 1) or before (-1) the present one, in
/// the order of the numbers; nothing where there is none.
[[nodiscard]] std::optional<int> NextPageButton(const ControlArray<SSCommand>& buttons, int present,
                                                int direction);

/// Colours the button of the page in view red, and the others as they are at rest.
void MarkPageButton(const ControlArray<SSCommand>& buttons, int present, Role atRest);

}  // namespace velmora::ui
