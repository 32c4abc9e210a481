// SPDX-License-Identifier: MIT
#pragma once

class QFont;

namespace velmora::ui {

/// Lengths on screens are given in twips: 15 of them are one pixel at scale 1. The whole program has one
/// scale, chosen at its start from the user's font so that a box of 285 twips holds a line of text; Qt adds
/// the scale of the screen.
inline constexpr int TwipsPerPixel = 15;

/// The scale at which a 285-twip box holds a line of that font; 1 at least.
[[nodiscard]] double ScaleForFont(const QFont& font);
void SetProgramScale(double scale);
[[nodiscard]] double ProgramScale();
/// A length in twips as whole pixels of the program's scale.
[[nodiscard]] int Pixels(int twips);
/// A length in pixels at scale 1, grown with the program.
[[nodiscard]] int ScaledPixels(int pixels);
/// The nearest length in twips of that many pixels.
[[nodiscard]] int TwipsOf(int pixels);

}  // namespace velmora::ui
