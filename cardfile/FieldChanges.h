// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"
#include "cardfile/NameRules.h"

#include <QString>
#include <QStringList>

namespace velmora {

// These change the design of the open file while it holds cards, and throw db::Error. Adding a field is a row
// of steps, each of which stays when a later one fails; deleting one is a single transaction.

/// The columns of the cards, in their order.
[[nodiscard]] QStringList CardColumns();
/// What the open file has given of names.
[[nodiscard]] TakenNames NamesInFile();

/// The first step of adding a field: its column, empty for every card.
void MakeFieldColumn(const DesignField& field);
/// The second one: its row in the catalogue, as the last of all. A page that gets its first field has no row
/// of its own by that.
void EnterField(const DesignField& field, int page);
/// The last one: the columns of a date field's reminders, or the list of a text field's values.
void MakeFieldTables(const DesignField& field);

/// How many stored queries go with any field that is deleted: all of them.
[[nodiscard]] int QueriesLostWithAField();
/// Deletes a field with its data and its value list, every stored query, and the title of each page that has
/// no field any more. What the reminders hold of a date field stays.
void DeleteField(const QString& name);

/// Gives a page its title; false when it has no field, and then has no title either.
[[nodiscard]] bool SetPageTitle(int page, const QString& title);

/// Make the tables of reminders in files that are older than they are.
void EnsureReminderTable();
void EnsureSupportTable();

}  // namespace velmora
