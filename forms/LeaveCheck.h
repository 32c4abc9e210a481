// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QWidget;

namespace velmora::ui {

/// A check that runs when the user leaves a box: null lets the user go; a widget gets the focus instead (the
/// box itself where the entry is refused), and the click, key or shortcut that would have left the box is
/// swallowed.
using LeaveCheck = std::function<QWidget*()>;

/// Gives a box its check, in place of an earlier one. It runs when the focus goes to another control of the
/// window, before that control's click; when a button that takes no focus is clicked (see MarkAsCommand); and
/// before a shortcut's command. It does not run when another window, a popup or the menu bar takes the focus,
/// when the box is hidden or disabled, nor on a screen that is closing.
void CheckOnLeave(QWidget* box, LeaveCheck check);

/// Tells that a click on this widget is a command although it takes no focus, such as a toolbar.
void MarkAsCommand(QWidget* widget);

}  // namespace velmora::ui
