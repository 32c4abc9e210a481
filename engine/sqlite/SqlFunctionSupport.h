// SPDX-License-Identifier: MIT
#pragma once

#include "engine/values/Error.h"
#include "engine/values/Value.h"

#include <QDateTime>
#include <QString>

#include <sqlite3.h>

#include <optional>
#include <span>

namespace velmora::db {

/// What the functions for SQLite are made of. Included by the .cpp files that hold them alone.

using Arguments = std::span<sqlite3_value*>;

/// One function: its name, the number of its arguments (-1 for any), how it is computed. Null in any argument
/// gives Null unless TakesNull. What it throws becomes the statement's error.
struct SqlFunction {
  const char* Name;
  int Count;
  Value (*Run)(Arguments);
  bool TakesNull = false;
  bool IsConstant = true;
};

[[nodiscard]] std::span<const SqlFunction> TextFunctions();
[[nodiscard]] std::span<const SqlFunction> NumberFunctions();
[[nodiscard]] std::span<const SqlFunction> DateFunctions();

[[nodiscard]] bool IsNull(sqlite3_value* value);
[[nodiscard]] QByteArrayView BytesOf(sqlite3_value* value);
/// As text: numbers in the one number form.
[[nodiscard]] QString TextOf(sqlite3_value* value);
[[nodiscard]] double NumberOf(sqlite3_value* value);
/// Halves to even; 3349 beyond 64 bits.
[[nodiscard]] std::int64_t WholeNumberOf(sqlite3_value* value);
/// A date from its stored form or another text; 3464 when it is none.
[[nodiscard]] QDateTime MomentOf(sqlite3_value* value);

void SetResult(sqlite3_context* context, const Value& value);

}  // namespace velmora::db
