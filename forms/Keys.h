// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;

namespace velmora::ui {

/// Whether a key is Enter, the one of the letters or the one of the digits.
[[nodiscard]] bool IsEnter(const QKeyEvent& event);

}  // namespace velmora::ui
