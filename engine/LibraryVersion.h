// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora::db {

/// The version of the database library that this program runs with.
[[nodiscard]] QString LibraryVersion();

}  // namespace velmora::db
