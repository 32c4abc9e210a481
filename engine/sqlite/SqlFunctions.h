// SPDX-License-Identifier: MIT
#pragma once

struct sqlite3;

namespace velmora::db {

/// Gives a connection the comparison NOCASE and the functions that translated statements call (LIKE, joining
/// of texts, dates, whole division...). Included within engine/ alone.
void InstallSqlFunctions(sqlite3* connection);

}  // namespace velmora::db
