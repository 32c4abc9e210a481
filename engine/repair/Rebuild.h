// SPDX-License-Identifier: MIT
#pragma once

#include "engine/repair/DamagedPages.h"

namespace velmora::db {

/// Builds a whole file at `path`, an empty one, from what can be read of a damaged file: every table with its
/// rows under their old row ids, then indexes, views and triggers. A row that a unique index or another rule
/// of its table refuses (the first one of two stays) goes to a table "NAME doubles" of the same columns,
/// without rules.
///
/// True when nothing was lost or displaced. Throws 3343 when the list of tables cannot be read, or names a
/// table in a form that cannot be followed; then nothing should be replaced.
[[nodiscard]] bool Rebuild(const DamagedPages& pages, const QString& path);

}  // namespace velmora::db
