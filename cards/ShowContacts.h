// SPDX-License-Identifier: MIT
#pragma once

namespace velmora {

namespace ui {
class ComboBox;
}

/// Fills the strip's lists with the contacts of the current card and the numbers of its active contact.
void ShowContacts();
/// Fills the list of numbers with those of the contact in view. A contact that is not found leaves the list
/// as it is.
void ShowContactPhones(ui::ComboBox& contactList, ui::ComboBox& phoneList);

}  // namespace velmora
