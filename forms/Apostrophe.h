// SPDX-License-Identifier: MIT
#pragma once

namespace velmora::ui {

class TextBox;

/// Tells the user when a box holds an apostrophe, which these texts must not have, and leaves the text
/// selected in the box; true when it does.
[[nodiscard]] bool RefusesApostrophe(TextBox& box);

}  // namespace velmora::ui
