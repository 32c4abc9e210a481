// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>

namespace velmora {

/// The contrast of two colours as the guidelines for accessible content count it: 1 to 21.
[[nodiscard]] double Contrast(const QColor& one, const QColor& other);
/// What plain text needs to be read.
inline constexpr double ReadableContrast = 4.5;

/// How much of a colour must lie over a picture, 0 to 1, for text to be read everywhere on it.
[[nodiscard]] float VeilFor(const QImage& picture, const QColor& veil, const QColor& text);

}  // namespace velmora
