// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringView>

namespace velmora::ui {

/// An open screen: the frame or a Form.
class Screen {
 public:
  Screen() = default;
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  virtual ~Screen() = default;
  /// The screen's name ("ShowTable").
  [[nodiscard]] virtual QString ScreenName() const = 0;
  /// Closes the screen; false when it refused.
  virtual bool Unload() = 0;
};

/// The open screens in the order in which they were loaded; the frame is always the first.
[[nodiscard]] const QList<Screen*>& Forms();

/// The open screen of that name; null when there is none.
[[nodiscard]] Screen* FindScreen(QStringView name);

/// Enter a screen into Forms(), the frame before all others, and take it out; the screens themselves see to
/// that.
void EnterScreen(Screen* screen);
void EnterFrame(Screen* frame);
void LeaveScreen(Screen* screen);

}  // namespace velmora::ui
