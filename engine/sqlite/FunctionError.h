// SPDX-License-Identifier: MIT
#pragma once

#include "engine/values/Error.h"

#include <optional>

struct sqlite3;
struct sqlite3_context;

namespace velmora::db {

/// Ends a call of one of our functions with an error.
void SetError(sqlite3_context* context, const Error& error);
/// The error with which one of them ended the connection's last call; nothing when it was not one of them.
[[nodiscard]] std::optional<Error> FunctionError(sqlite3* connection);

}  // namespace velmora::db
