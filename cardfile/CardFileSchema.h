// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"
#include "engine/values/Schema.h"
#include "resources/Text.h"

#include <QStringList>

#include <optional>
#include <span>
#include <vector>

namespace velmora {

/// The names that stand in every card file whatever its design.
namespace schema {
inline constexpr strings::Text Catalogue = u"Location";
inline constexpr strings::Text Cards = u"MainData";
inline constexpr strings::Text CardNumber = u"Index@";
inline constexpr strings::Text Remarks = u"Remarks";
inline constexpr strings::Text Reminders = u"TableDatesRemainder";
inline constexpr strings::Text ReminderFields = u"SupportRemainder";
/// How many characters a key or a value of the file's options may have.
inline constexpr int OptionSize = 40;
}  // namespace schema

/// The name of a table or column as statements take it. A name may hold anything but brackets.
[[nodiscard]] QString Bracketed(const QString& name);
/// The table of the values that the user keeps for a text field.
[[nodiscard]] QString ValueListTable(const QString& field);
/// The column that holds the names for a date field's reminder.
[[nodiscard]] QString AgentsColumn(const QString& field);

/// The kind of the field that has a column of that type; nothing where no field has. The number of a card is
/// of the type of a number field that was added to a file with cards.
[[nodiscard]] std::optional<FieldKind> FieldKindOf(db::FieldType column);

/// The tables whose shape follows from the design. Names are taken without the spaces around them.
[[nodiscard]] db::TableDef LocationTable();
[[nodiscard]] db::TableDef MainDataTable(const CardDesign& design);
[[nodiscard]] db::TableDef ValueListTableOf(const QString& field);
/// The columns of a date field in the table of reminders.
[[nodiscard]] std::vector<db::Field> ReminderColumnsOf(const QString& field);
[[nodiscard]] db::TableDef ReminderTableOf(const QStringList& dateFields);
[[nodiscard]] db::TableDef ReminderFieldsTable();

/// The column of a field that is added to a file with cards: a text has the engine's own width, a number is
/// whole.
[[nodiscard]] db::Field AddedColumnOf(const DesignField& field);

/// The tables that are the same in every card file, in the order of their making.
[[nodiscard]] std::span<const db::TableDef> FixedTables();

}  // namespace velmora
