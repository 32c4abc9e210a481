// SPDX-License-Identifier: MIT
#pragma once

class QMenuBar;

namespace velmora {

/// The commands of the Edit menu, with the numbers by which they are known.
enum class EditMessage : int { SelectAll = 177, Undo = 199, Cut = 768, Copy = 769, Paste = 770, Clear = 771 };

/// Runs an edit command on the edit control that has the focus, on any screen; on anything else nothing
/// happens.
void EditCommand(EditMessage message);

/// From here on a text that is selected stays so while this menu bar has the focus, as an Edit menu that is
/// opened by keys works on it.
void KeepSelectionUnder(QMenuBar& bar);

}  // namespace velmora
