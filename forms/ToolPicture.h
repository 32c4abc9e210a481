// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

#include <functional>

class QPainter;

namespace velmora::ui {

/// Draws a symbol into a square, in the colours of the program's present look.
using SymbolPainter = std::function<void(QPainter&, const QRectF&)>;

/// The three pictures of a toolbar button.
enum class PictureState {
  /// At rest: the symbol alone.
  Normal,
  /// Under the pointer: on a raised, lighter face.
  Hover,
  /// On a sunken, darker face.
  Pressed,
};

/// A button's picture. It is drawn when it is shown, as large and as sharp as it is wanted, and anew when the
/// look of the program changed.
[[nodiscard]] QIcon ToolPicture(SymbolPainter symbol, PictureState state);

}  // namespace velmora::ui
