// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/Statement.h"

namespace velmora::db {

/// The statement in the engine's own form, as stored queries give their text back.
[[nodiscard]] QString WriteStored(const Statement& statement);
}  // namespace velmora::db
