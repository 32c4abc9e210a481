// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora::db {

/// The names of tables, columns, queries and indexes, as users give them and as they stand in the file.
/// Nearly all stand there as they are. No user's name can hold a full stop; with it the layer marks what is
/// its own: hidden tables ".Queries", the few names that SQLite keeps for itself ".sqlite_x", and indexes
/// "Table.Index", because SQLite has one name space for all of them ("Table.Index.Primary" is a primary one).

/// The name without spaces at its end. 3125 when it is empty, too long, begins with a space, or holds one of
/// . ! ` [ ] or a control character.
[[nodiscard]] QString CheckedName(QStringView name);

[[nodiscard]] QString TableNameInFile(const QString& name);
[[nodiscard]] QString TableNameOfUser(const QString& inFile);
/// Whether a table of the file is none of the user's.
[[nodiscard]] bool IsHiddenTable(QStringView inFile);
[[nodiscard]] QString ColumnNameInFile(const QString& name);
[[nodiscard]] QString ColumnNameOfUser(const QString& inFile);
[[nodiscard]] QString IndexNameInFile(const QString& tableInFile, const QString& index, bool primary);
[[nodiscard]] QString IndexNameOfUser(const QString& tableInFile, const QString& inFile);
[[nodiscard]] bool IsPrimaryIndexName(QStringView inFile);

}  // namespace velmora::db
