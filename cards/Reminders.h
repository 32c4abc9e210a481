// SPDX-License-Identifier: MIT
#pragma once

#include "engine/rows/Recordset.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace velmora {

/// The reminders of one card as the file has them. Their table has no index: its row is looked for once, when
/// the first field asks, and serves all fields. Throws db::Error, as when a field has no columns there.
class CardReminders final {
 public:
  explicit CardReminders(std::int32_t card) : m_card(card) {}

  [[nodiscard]] bool Has(const QString& field);
  /// The names for the reminder, joined by commas; "" without one.
  [[nodiscard]] QString Agents(const QString& field);

 private:
  /// The card's row, or the table at its end, when it has the columns of the field.
  [[nodiscard]] const db::Recordset& RowWith(const QString& field);

  std::int32_t m_card;
  std::optional<db::Recordset> m_row;
};

// A card has at most one row of reminders, with a date and a list of names for each date field. These work on
// the open file and throw db::Error, as when a date field has no columns there.

[[nodiscard]] bool HasReminder(const QString& field, std::int32_t card);
/// The names for the reminder, joined by commas; "" without one.
[[nodiscard]] QString ReminderAgents(const QString& field, std::int32_t card);
/// `date` is a text that the engine can read as a date.
void SaveReminder(const QString& field, std::int32_t card, const QString& date, const QString& agents);
/// Takes the reminder of one field back; the card's row stays.
void ClearReminder(const QString& field, std::int32_t card);

/// The names of a list joined by commas; none of a blank text.
[[nodiscard]] QStringList SplitAgents(const QString& text);
/// The names from last to first: each pass through the reminder dialog turns the list round.
[[nodiscard]] QString JoinAgents(const QStringList& names);

}  // namespace velmora
