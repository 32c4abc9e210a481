// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace velmora {

class MainStrip;

/// Takes the focus round the frame, so that every command has a way by keys: the screen in front, the box for
/// a card number, the short and the long toolbar. `step` is 1 or -1; `focused` is the frame's control with
/// the focus, or null.
void MoveFocusRound(MainStrip& strip, const QWidget* focused, int step);

}  // namespace velmora
