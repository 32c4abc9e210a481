// SPDX-License-Identifier: MIT
#pragma once

#include "engine/sqlite/SqliteHandle.h"
#include "engine/values/Schema.h"
#include "engine/values/Value.h"

namespace velmora::db {

/// How columns and values stand in the file. Included within engine/ alone.

/// The declaration of a column behind its name: "TEXT(50) COLLATE NOCASE".
[[nodiscard]] QString DeclarationOf(const Field& field);
/// The kind that a declared type means. Types of other tools are taken for the kind nearest to them; what is
/// none of ours is Memo, which can show anything.
[[nodiscard]] Field FieldOfDeclaration(const QString& name, QStringView declaredType);

/// The value as the column takes it: 3163 for a text that is too long, 3421 for one that does not convert,
/// 3349 for a number beyond the range. Null becomes No in a Yes/No column.
[[nodiscard]] Value Converted(const Field& field, const Value& value);
/// Binds a converted value in its stored form.
void Bind(sqlite3_stmt* statement, int parameter, const Value& value);
/// The value of a result column. What does not fit the kind (another tool may have written anything) comes as
/// it is.
[[nodiscard]] Value ReadValue(sqlite3_stmt* statement, int column, FieldType type);

}  // namespace velmora::db
