// SPDX-License-Identifier: MIT
#pragma once

#include "engine/values/Schema.h"

#include <QStringList>
#include <QStringView>

#include <array>

namespace velmora {

/// The columns that the user may choose for a result: all of the cards' table behind the number and the main
/// field, but neither the comment nor the program's own ones.
[[nodiscard]] QStringList ChoosableColumns(const db::TableDef& cards);
/// The chosen columns with further ones at the end, each column once.
[[nodiscard]] QStringList WithColumns(QStringList chosen, const QStringList& further);
/// "[Index@],[main field],[...]" for the chosen columns in their order.
[[nodiscard]] QString ColumnListText(const QString& mainField, const QStringList& chosen);
/// The statement under which a query is stored. `where` may be empty.
[[nodiscard]] QString SelectText(const QString& columnList, const QString& where);

/// A stored statement without its line ends and its closing semicolon, so that an order can follow on it. The
/// engine ends each stored text with a semicolon and a line end; of a text without any, the last character is
/// lost.
[[nodiscard]] QString StripSqlTail(QStringView sql);

/// A choice in one of the three sort lists: position 0 is no key, 1 the card's number, the columns from 2 on.
struct SortKey {
  QString Text;
  int ListIndex = -1;
};

inline constexpr int SortKeyCount = 3;

/// The lines of a sort list for a result with these headings, the card number's first.
[[nodiscard]] QStringList SortListItems(const QStringList& headings);
/// The ORDER BY that follows on a stripped statement; empty when no key is chosen. The direction is that of
/// the first list; keys of the other lists ascend.
[[nodiscard]] QString OrderByText(const std::array<SortKey, SortKeyCount>& keys, bool ascending);

/// What a grid shows for the cell of a Yes/No column: "No" for zero, "Yes" for anything else.
[[nodiscard]] QString YesNoText(const QString& cell);
/// The format that names the columns of a result with these headings, the card number's left out.
[[nodiscard]] QString ResultFormat(const QStringList& headings);

}  // namespace velmora
