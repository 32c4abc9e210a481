// SPDX-License-Identifier: MIT
#include "shell/ToolPictures.h"

#include "forms/ToolPicture.h"

#include <memory>
#include <utility>

namespace velmora {

ToolSymbol SymbolOf(const ToolRow& tool) {
  return {.File = tool.Symbol, .Letters = tool.Letters, .Digit = tool.Digit};
}

ToolImages PicturesOf(std::vector<ToolSymbol> symbols) {
  const int count = static_cast<int>(symbols.size());
  const auto sheet = std::make_shared<SymbolSheet>(std::move(symbols));
  ToolImages images;
  for (int i = 0; i < count; ++i) {
    const auto draw = [sheet, i](QPainter& painter, const QRectF& square) {
      sheet->Draw(painter, square, i);
    };
    images.Normal.Add(ui::ToolPicture(draw, ui::PictureState::Normal));
    images.Hover.Add(ui::ToolPicture(draw, ui::PictureState::Hover));
    images.Pressed.Add(ui::ToolPicture(draw, ui::PictureState::Pressed));
  }
  return images;
}

ToolImages ToolPictures(ToolRows tools) {
  std::vector<ToolSymbol> symbols;
  symbols.reserve(tools.size());
  for (const ToolRow& tool : tools) symbols.push_back(SymbolOf(tool));
  return PicturesOf(std::move(symbols));
}

}  // namespace velmora
