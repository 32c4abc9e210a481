// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora {

/// Fills the strip's lists with the contacts of the current card and the numbers of its active contact.
void ShowContacts();
/// Fills the strip's list of numbers with those of a contact of the current card, given as the list of
/// contacts shows it. A contact that is not found leaves the list as it is.
void ShowContactPhones(const QString& contact);

}  // namespace velmora
