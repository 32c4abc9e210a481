// SPDX-License-Identifier: MIT
#include "shell/Veil.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace velmora {

namespace {

// Letters cover many pixels: a picture of this width tells enough of what is behind them.
constexpr int sampledWidth = 640;
constexpr int steps = 20;

using Levels = std::array<double, 256>;

/// The light of each level of a colour's part.
const Levels& Light() {
  static const Levels light = [] {
    Levels made{};
    for (std::size_t level = 0; level < made.size(); ++level) {
      const double part = static_cast<double>(level) / 255;
      made[level] = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    }
    return made;
  }();
  return light;
}

double LightOf(int level) { return Light().at(static_cast<std::size_t>(level)); }

double Luminance(int red, int green, int blue) {
  return 0.2126 * LightOf(red) + 0.7152 * LightOf(green) + 0.0722 * LightOf(blue);
}

double ContrastOf(double one, double other) {
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

double Luminance(const QColor& color) { return Luminance(color.red(), color.green(), color.blue()); }

/// Whether the text can be read everywhere on the picture under that much of the veil.
bool CanBeRead(const QImage& picture, const QColor& veil, float part, double text) {
  const auto mixed = [part](int under, int over) {
    return static_cast<int>(
        std::lround(static_cast<float>(under) * (1 - part) + static_cast<float>(over) * part));
  };
  for (int y = 0; y < picture.height(); ++y) {
    const std::span line(reinterpret_cast<const QRgb*>(picture.constScanLine(y)),
                         static_cast<std::size_t>(picture.width()));
    const bool readable = std::ranges::all_of(line, [&](QRgb pixel) {
      const double ground = Luminance(mixed(qRed(pixel), veil.red()), mixed(qGreen(pixel), veil.green()),
                                      mixed(qBlue(pixel), veil.blue()));
      return ContrastOf(ground, text) >= ReadableContrast;
    });
    if (!readable) return false;
  }
  return true;
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
  return ContrastOf(Luminance(one), Luminance(other));
}

float VeilFor(const QImage& picture, const QColor& veil, const QColor& text) {
  if (picture.isNull()) return 0;
  const QImage sample = picture.convertToFormat(QImage::Format_RGB32)
                            .scaledToWidth(std::min(picture.width(), sampledWidth), Qt::SmoothTransformation)
                            .convertToFormat(QImage::Format_RGB32);
  for (int count = 0; count < steps; ++count) {
    const float part = static_cast<float>(count) / steps;
    if (CanBeRead(sample, veil, part, Luminance(text))) return part;
  }
  return 1;
}

}  // namespace velmora
