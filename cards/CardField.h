// SPDX-License-Identifier: MIT
#pragma once

#include "engine/rows/Recordset.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace velmora {

class CardReminders;
class DateCtrl;

namespace ui {
class CheckBox;
class Control;
class MaskEdBox;
class TextBox;
}  // namespace ui

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

  [[nodiscard]] ui::Control& Control() const { return m_control; }
  /// The page of the card that the field is on, from 1 on.
  [[nodiscard]] int Page() const { return m_page; }

  /// Shows the field of the card in the current row, a date with its reminder. The control is emptied first,
  /// and stays so when the column is missing, which throws db::Error.
  virtual void Show(const db::Recordset& row, const QString& column, CardReminders& reminders) = 0;
  /// Sets the column of the row being added or edited.
  virtual void Store(db::Recordset& row, const QString& column) = 0;
  /// Writes a date's reminder, which has a table of its own, at once.
  virtual void StoreReminder(const QString& /*column*/, std::int32_t /*card*/, ReminderSave /*reminders*/) {}

 protected:
  CardField(ui::Control& control, int page) : m_control(control), m_page(page) {}

 private:
  ui::Control& m_control;
  int m_page;
};

/// The fields of a card in the order of its pages.
using CardFields = std::vector<std::unique_ptr<CardField>>;

/// The field behind a value control, which must outlive it: a text, a number, a yes/no field or a date.
[[nodiscard]] std::unique_ptr<CardField> MakeCardField(ui::TextBox& box, int page);
[[nodiscard]] std::unique_ptr<CardField> MakeCardField(ui::MaskEdBox& box, int page);
[[nodiscard]] std::unique_ptr<CardField> MakeCardField(ui::CheckBox& box, int page);
[[nodiscard]] std::unique_ptr<CardField> MakeCardField(DateCtrl& box, int page);

}  // namespace velmora
