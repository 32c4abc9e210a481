// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include <optional>

class QApplication;
class QWidget;

namespace velmora::ui {

/// The colours that screens name. `Default` leaves a control as its kind looks by itself. Every text colour
/// can be read on ButtonFace and on White, in the light look and in the dark one.
enum class Role {
  Default,
  /// The face of windows and buttons.
  ButtonFace,
  /// The ground of a box that is being typed in.
  White,
  /// Plain text.
  Ink,
  Red,
  Blue,
  DarkRed,
};

/// Whether the program looks dark: as SetDarkLook says, else as VELMORA_LOOK ("light" or "dark") in the
/// environment says, else as the desktop does.
[[nodiscard]] bool IsDarkLook();
/// Forces a look and applies it at once; nothing forced: the environment and the desktop decide.
void SetDarkLook(std::optional<bool> dark);
/// The colour of a role in the present look; of Default an invalid one.
[[nodiscard]] QColor RoleColor(Role role);

/// A widget with colours of its own.
class Colored {
 public:
  /// Puts the colours on it anew after the look of the program changed.
  virtual void RefreshColors() = 0;

 protected:
  ~Colored() = default;
};

/// Takes note of the desktop's look, and from then on of its changes.
void FollowDesktop(QApplication& application);
/// Puts the present look on the program and on what has colours of its own.
void RepaintLook();

/// Colours one widget by roles.
void Dress(QWidget& widget, Role fore, Role back);

}  // namespace velmora::ui
