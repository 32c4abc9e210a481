// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"
#include "engine/rows/Recordset.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace velmora {

class CardReminders;

namespace ui {
class Control;
}

/// Whether a save takes back the reminder of a date that has none any more.
enum class ReminderSave {
  SetAndClear,
  /// A new card has nothing to take back.
  SetOnly,
};

/// The number of places of a number box.
inline constexpr QStringView NumberMask = u"999999999999";

/// One field of a card on its screen: puts the field's column into its value control, and what the user made
/// of it back. What Show puts in is no change of the user's.
class CardField {
 public:
  virtual ~CardField() = default;
  CardField(const CardField&) = delete;
  CardField& operator=(const CardField&) = delete;

  /// Shows the field of the card in the current row, a date with its reminder. The control is emptied first,
  /// and stays so when the column is missing, which throws db::Error.
  virtual void Show(const db::Recordset& row, const QString& column, CardReminders& reminders) = 0;
  /// Sets the column of the row being added or edited; a date's reminder goes to its own table at once.
  virtual void Store(db::Recordset& row, const QString& column, std::int32_t card,
                     ReminderSave reminders) = 0;

 protected:
  CardField() = default;
};

/// The kind of field that a control of that name holds; nothing for a control that holds none.
[[nodiscard]] std::optional<FieldKind> KindOfControl(const QString& name);
/// The field behind a value control, which must outlive it; null when the control holds none.
[[nodiscard]] std::unique_ptr<CardField> MakeCardField(ui::Control& control);

}  // namespace velmora
