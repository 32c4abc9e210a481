// SPDX-License-Identifier: MIT
#include "engine/sqlite/ConnectionSettings.h"

#include "engine/sqlite/LongWork.h"
#include "engine/sqlite/SqlFunctions.h"
#include "engine/sqlite/SqliteHandle.h"

#include <array>

namespace velmora::db {

namespace {

/// Triggers and views could only be a stranger's: our files have none, and theirs must not act on our writes.
struct Switch {
  int Option;
  int Value;
};
constexpr std::array Switches{Switch{SQLITE_DBCONFIG_DEFENSIVE, 1},
                              Switch{SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                              Switch{SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                              Switch{SQLITE_DBCONFIG_ENABLE_VIEW, 0},
                              Switch{SQLITE_DBCONFIG_DQS_DDL, 0},
                              Switch{SQLITE_DBCONFIG_DQS_DML, 0},
                              Switch{SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0}};

constexpr auto Settings =
    u"PRAGMA cell_size_check = ON; PRAGMA mmap_size = 0; PRAGMA synchronous = EXTRA; PRAGMA threads = 2;";

}  // namespace

void ConfigureConnection(sqlite3* connection) {
  for (const Switch& entry : Switches) {
    Check(connection, sqlite3_db_config(connection, entry.Option, entry.Value, nullptr));
  }
  Check(connection, sqlite3_busy_timeout(connection, BusyTimeout));
  InstallSqlFunctions(connection);
  WatchLongWork(connection);
  Run(connection, Settings);
}

}  // namespace velmora::db
