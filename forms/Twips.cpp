// SPDX-License-Identifier: MIT
#include "forms/Twips.h"

#include <QFont>
#include <QFontMetrics>

#include <cmath>

namespace velmora::ui {

namespace {

// A line's box: its frame takes two pixels above and below the text.
constexpr int LineBoxPixels = 285 / TwipsPerPixel;
constexpr int LineBoxFrame = 4;

double& CurrentScale() {
  static double scale = 1.0;
  return scale;
}

}  // namespace

double ScaleForFont(const QFont& font) {
  const int needed = QFontMetrics(font).height() + LineBoxFrame;
  return std::max(1.0, static_cast<double>(needed) / LineBoxPixels);
}

void SetProgramScale(double scale) { CurrentScale() = scale; }

double ProgramScale() { return CurrentScale(); }

int Pixels(int twips) { return static_cast<int>(std::lround(twips * CurrentScale() / TwipsPerPixel)); }

int ScaledPixels(int pixels) { return static_cast<int>(std::lround(pixels * CurrentScale())); }

int TwipsOf(int pixels) { return static_cast<int>(std::lround(pixels * TwipsPerPixel / CurrentScale())); }

}  // namespace velmora::ui
