// SPDX-License-Identifier: MIT
#pragma once

namespace velmora::ui {

/// Lets pending events run inside a long routine, but nothing that the user typed or clicked.
void Yield();

/// Lets windows repaint inside work that must not be disturbed: what the user types and clicks waits until
/// the work is done, and no window closes meanwhile. From within itself it does nothing.
void LetRepaint();
/// Whether that is going on.
[[nodiscard]] bool IsRepainting();

/// Waits that many milliseconds, letting events run but for the user's.
void Pause(int milliseconds);

}  // namespace velmora::ui
