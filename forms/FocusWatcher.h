// SPDX-License-Identifier: MIT
#pragma once

namespace velmora::ui {

/// Starts to tell controls when they get and lose the focus (Control::OnGotFocus, OnLostFocus); once for the
/// program. A control has lost the focus when another control of its window has got it: a message box, a
/// menu, a popup or another program takes nothing away.
void WatchFocus();

}  // namespace velmora::ui
