// SPDX-License-Identifier: MIT
#pragma once

#include "engine/values/Error.h"

#include <sqlite3.h>

#include <memory>

namespace velmora::db {

/// The owners of SQLite's handles. Included within engine/ alone.
struct ConnectionCloser {
  void operator()(sqlite3* connection) const noexcept { sqlite3_close_v2(connection); }
};
struct StatementFinalizer {
  void operator()(sqlite3_stmt* statement) const noexcept { sqlite3_finalize(statement); }
};
using ConnectionHandle = std::unique_ptr<sqlite3, ConnectionCloser>;
using StatementHandle = std::unique_ptr<sqlite3_stmt, StatementFinalizer>;

/// The engine's error for what SQLite says of this connection's last call: disk full 3026, read-only 3027,
/// locked 3045, no database 3343, unique key 3022; anything else 3000 with SQLite's text.
[[nodiscard]] Error ErrorOf(sqlite3* connection, int result);
/// Throws ErrorOf unless the result is SQLITE_OK, SQLITE_ROW or SQLITE_DONE.
void Check(sqlite3* connection, int result);
/// Opens a connection with SQLite's flags, extended result codes on and nothing else set. Throws.
[[nodiscard]] ConnectionHandle OpenConnection(const QString& path, int flags);
/// Prepares one statement. Throws.
[[nodiscard]] StatementHandle Prepare(sqlite3* connection, QStringView sql);
/// True when there is a row; a row that can't be had is no end of them. Throws.
[[nodiscard]] bool Step(sqlite3_stmt* statement);
/// Runs one or more statements that give no rows. Throws.
void Run(sqlite3* connection, QStringView sql);
/// The first column of the first row as a whole number; 0 when there is no row. Throws.
[[nodiscard]] std::int64_t QueryNumber(sqlite3* connection, QStringView sql);
[[nodiscard]] QString ColumnText(sqlite3_stmt* statement, int column);

}  // namespace velmora::db
