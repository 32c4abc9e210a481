// SPDX-License-Identifier: MIT
#pragma once

namespace velmora {

/// The commands of the Edit menu, with the numbers by which they are known.
enum class EditMessage : int { SelectAll = 177, Undo = 199, Cut = 768, Copy = 769, Paste = 770, Clear = 771 };

/// Runs an edit command on the edit control that has the focus, on any screen; on anything else nothing
/// happens.
void EditCommand(EditMessage message);

}  // namespace velmora
