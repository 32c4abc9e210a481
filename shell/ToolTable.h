// SPDX-License-Identifier: MIT
#pragma once

#include "resources/Text.h"
#include "shell/Command.h"

#include <QStringView>

#include <functional>
#include <span>

namespace velmora {

/// What a button does before its command: a guarded one closes the other screens, and stops when one of them
/// stays open.
enum class Guard { Unguarded, Guarded };

/// A toolbar button, all of it.
struct ToolRow {
  /// The symbol's file in the icon theme, without its ending; empty for the calculator, which we draw.
  QStringView Symbol;
  /// In its place where the theme is missing.
  QStringView Letters;
  strings::Text Tip;
  Guard Guarding;
  Command Run;
  /// A digit over the symbol's lower right corner.
  QStringView Digit = {};
};

/// The buttons of a toolbar in their order. The last one of each has no tip, and stands for every index
/// beyond it.
using ToolRows = std::span<const ToolRow>;
/// Those of ltTool and of tool.
[[nodiscard]] ToolRows LongTools();
[[nodiscard]] ToolRows ShortTools();

/// Runs the command of a button, `closeOthers` before it when it is guarded.
void PressTool(ToolRows bar, int index, const std::function<bool()>& closeOthers,
               const std::function<void(Command)>& run);

}  // namespace velmora
