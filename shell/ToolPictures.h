// SPDX-License-Identifier: MIT
#pragma once

#include "controls/SymbolSheet.h"
#include "forms/ImageList.h"
#include "shell/ToolTable.h"

#include <vector>

namespace velmora {

/// The pictures of a toolbar in their three states; picture i + 1 belongs to button i. The symbols are those
/// of the installed icon theme, in the program's light or dark look. Where that is missing, each button shows
/// letters.
struct ToolImages {
  ui::ImageList Normal;
  ui::ImageList Hover;
  ui::ImageList Pressed;
};

[[nodiscard]] ToolImages PicturesOf(std::vector<ToolSymbol> symbols);
/// What the button of a row shows.
[[nodiscard]] ToolSymbol SymbolOf(const ToolRow& tool);
/// Those of the buttons of a table.
[[nodiscard]] ToolImages ToolPictures(ToolRows tools);

}  // namespace velmora
