// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace velmora {

/// The telephone numbers of one contact: those that are not blank, and the one in view.
struct ContactPhones {
  QStringList Numbers;
  QString Shown;
};

/// What the strip shows of a card's contacts: all of them for the list, the active one in view with its
/// numbers.
struct ContactPanel {
  QStringList Entries;
  /// Empty without an active contact. The last one wins when several are active.
  QString Shown;
  ContactPhones Phones;
};

/// The contacts of a card in the order in which they were stored. A contact without a name, last name or
/// position ends the reading: what was read before it is shown.
[[nodiscard]] ContactPanel ReadContacts(std::int32_t card);
/// The numbers of the contact that was picked from the list, found by the first word of the entry: the first
/// of that word wins. Nothing when there is none; the list then stays as it is.
[[nodiscard]] std::optional<ContactPhones> ReadContactPhones(std::int32_t card, const QString& entry);

/// Throws db::Error.
void DeleteContacts(std::int32_t card);

}  // namespace velmora
