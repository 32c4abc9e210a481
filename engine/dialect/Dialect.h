// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/NameSource.h"
#include "engine/dialect/Statement.h"
#include "engine/dialect/Translation.h"

#include <memory>

namespace velmora::db {

/// The dialect in and SQLite's SQL out.

/// Parses one statement of the dialect; a trailing ";" and line ends anywhere are taken. Throws the engine's
/// syntax errors (3075, 3131, 3141, 3145...), and 3360 for one that nests too deep.
[[nodiscard]] std::shared_ptr<const Statement> ParseStatement(QStringView sql,
                                                              ParameterUse use = ParameterUse::Refused);
/// Writes the statement for SQLite. Throws 3061 for an unknown column, 3078 for a missing table, 3102 for
/// stored queries that name each other, 3464 for a condition that compares what cannot be compared, 3163,
/// 3349 or 3421 for a literal that the column it is put into can't take. `kinds` are those of the values that
/// are given with it, one for each "?": 3061 for too few, 3001 for too many.
[[nodiscard]] Translation Translate(const Statement& statement, const NameSource& names,
                                    const ParameterKinds& kinds = {});

}  // namespace velmora::db
