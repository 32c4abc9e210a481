// SPDX-License-Identifier: MIT
#pragma once

#include "engine/sqlite/SqliteHandle.h"

namespace velmora::db {

/// How long the work that needs a file alone waits for it, in milliseconds: long enough for a program that is
/// just closing it, too short for a person to notice.
inline constexpr int ShortPatience = 250;

/// Opens a card file for work that needs it alone: unfinished transactions of a crashed program are rolled
/// back first, then no other connection gets at the file until this one closes. 3356 when another one is at
/// it. Untrusted contents: functions of the program can't be reached from the file's schema, nor triggers
/// run.
[[nodiscard]] ConnectionHandle OpenAlone(const QString& realPath);
/// Opens a file being made; durability is the caller's, by SyncFile.
[[nodiscard]] ConnectionHandle OpenNew(const QString& path);

}  // namespace velmora::db
