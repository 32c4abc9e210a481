// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QImage>
#include <QStringView>

#include <utility>
#include <vector>

class QPainter;

namespace velmora {

/// What a button of a toolbar shows.
struct ToolSymbol {
  /// The symbol's file in the icon theme, without its ending; empty for the calculator, which we draw.
  QStringView File;
  /// In its place where the theme is missing.
  QStringView Letters;
  /// A digit over its lower right corner.
  QStringView Digit = {};
};

/// The symbols of one toolbar, in the program's present look. Reading the theme's drawings takes longer than
/// the rest of the program's start, so each size of a look is drawn once, all symbols in a row, and kept as a
/// picture in the user's cache folder. Where that cannot be written, they are drawn at each start.
class SymbolSheet final {
 public:
  explicit SymbolSheet(std::vector<ToolSymbol> symbols) : m_symbols(std::move(symbols)) {}

  void Draw(QPainter& painter, const QRectF& square, int index);

 private:
  [[nodiscard]] const QImage& StripOf(int side);
  [[nodiscard]] QImage DrawStrip(int side) const;
  /// Where the strip of that size is kept: another name for another theme, look, size or table.
  [[nodiscard]] QString CacheFile(int side) const;

  std::vector<ToolSymbol> m_symbols;
  /// By their size and look.
  QHash<std::pair<int, bool>, QImage> m_strips;
};

}  // namespace velmora
