// SPDX-License-Identifier: MIT
#pragma once

namespace velmora::ui {

/// What is told of the focus.
class FocusTaker {
 public:
  /// Run when it got the focus from another control of its window, and when another one took it.
  virtual void OnGotFocus() {}
  virtual void OnLostFocus() {}

 protected:
  ~FocusTaker() = default;
};

/// Starts to tell the controls when they get and lose the focus; once for the program. A control has lost the
/// focus when another control of its window has got it: a message box, a menu, a popup or another program
/// takes nothing away.
void WatchFocus();

}  // namespace velmora::ui
