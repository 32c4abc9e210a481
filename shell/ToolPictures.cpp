// SPDX-License-Identifier: MIT
#include "shell/ToolPictures.h"

#include "controls/SymbolSheet.h"
#include "forms/ToolPicture.h"

#include <memory>
#include <utility>
#include <vector>

namespace velmora {

ToolImages ToolPictures(ToolRows tools) {
  std::vector<ToolSymbol> symbols;
  symbols.reserve(tools.size());
  for (const ToolRow& tool : tools)
    symbols.push_back({.File = tool.Symbol, .Letters = tool.Letters, .Digit = tool.Digit});
  const auto sheet = std::make_shared<SymbolSheet>(std::move(symbols));
  ToolImages images;
  for (int i = 0; i < static_cast<int>(tools.size()); ++i) {
    const auto draw = [sheet, i](QPainter& painter, const QRectF& square) {
      sheet->Draw(painter, square, i);
    };
    images.Normal.Add(ui::ToolPicture(draw, ui::PictureState::Normal));
    images.Hover.Add(ui::ToolPicture(draw, ui::PictureState::Hover));
    images.Pressed.Add(ui::ToolPicture(draw, ui::PictureState::Pressed));
  }
  return images;
}

}  // namespace velmora
