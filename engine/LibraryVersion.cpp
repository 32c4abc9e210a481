// SPDX-License-Identifier: MIT
#include "engine/LibraryVersion.h"

#include <sqlite3.h>

namespace velmora::db {

QString LibraryVersion() { return QString::fromUtf8(sqlite3_libversion()); }

}  // namespace velmora::db
