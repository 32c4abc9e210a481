// SPDX-License-Identifier: MIT
#pragma once

#include "engine/rows/Recordset.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace velmora {

/// The reminders of one card as the file has them. Their table has no index: its row is looked for once, when
/// the first field asks, and serves all fields. Throws db::Error as the functions of Reminders.h do.
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

}  // namespace velmora
