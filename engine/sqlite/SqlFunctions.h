// SPDX-License-Identifier: MIT
#pragma once

#include "engine/values/Error.h"

#include <optional>

struct sqlite3;

namespace velmora::db {

/// Gives a connection the comparison NOCASE and the functions that translated statements call (LIKE, joining
/// of texts, dates, whole division...). Included by .cpp files of this folder alone.
void InstallSqlFunctions(sqlite3* connection);

/// The error with which one of these functions ended the connection's last call; nothing when it was not one
/// of them.
[[nodiscard]] std::optional<Error> FunctionError(sqlite3* connection);

}  // namespace velmora::db
