// SPDX-License-Identifier: MIT
#pragma once

#include "forms/ImageList.h"
#include "shell/ToolTable.h"

namespace velmora {

/// The pictures of a toolbar in their three states; picture i + 1 belongs to button i. The symbols are those
/// of the installed icon theme, in the program's light or dark look. Where that is missing, each button shows
/// letters.
struct ToolImages {
  ui::ImageList Normal;
  ui::ImageList Hover;
  ui::ImageList Pressed;
};

/// Those of the buttons of a table.
[[nodiscard]] ToolImages ToolPictures(ToolRows tools);

}  // namespace velmora
