// SPDX-License-Identifier: MIT
#pragma once

struct sqlite3;

namespace velmora::db {

/// How long opening and locking wait for another program, in milliseconds.
inline constexpr int BusyTimeout = 5000;

/// The settings of every connection to a card file: what a stranger's file may not do, and how writes reach
/// the disk. Throws.
void ConfigureConnection(sqlite3* connection);

}  // namespace velmora::db
