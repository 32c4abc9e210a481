// SPDX-License-Identifier: MIT
#include "engine/file/FileConnection.h"

#include "engine/sqlite/ConnectionSettings.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

void ReadSomething(sqlite3* connection) {
  static_cast<void>(QueryNumber(connection, u"SELECT count(*) FROM sqlite_schema"));
}

void HoldAlone(sqlite3* connection) {
  sqlite3_busy_timeout(connection, ShortPatience);
  // The first read rolls back what a crashed program left unfinished, synced to the disk.
  ReadSomething(connection);
  const bool writable = sqlite3_db_readonly(connection, "main") == 0;
  // Another tool may have left the file in write-ahead mode: its log belongs into the file before that is
  // copied.
  if (writable) Run(connection, u"PRAGMA main.journal_mode=DELETE");
  Run(connection, u"PRAGMA main.locking_mode=EXCLUSIVE");
  if (writable) Run(connection, u"BEGIN EXCLUSIVE; COMMIT");
  ReadSomething(connection);
}

}  // namespace

ConnectionHandle OpenAlone(const QString& realPath) {
  ConnectionHandle connection = OpenConnection(realPath, SQLITE_OPEN_READWRITE);
  ConfigureConnection(connection.get());
  try {
    HoldAlone(connection.get());
  } catch (const Error& error) {
    if (error.Code() == ErrorCode::FileInUse) throw Error(ErrorCode::ExclusivelyHeld, error.Text());
    throw;
  }
  return connection;
}

ConnectionHandle OpenNew(const QString& path) {
  ConnectionHandle connection = OpenConnection(path, SQLITE_OPEN_READWRITE);
  ConfigureConnection(connection.get());
  // The file is of no use until it is whole, so nothing in it needs to be undone after a crash.
  Run(connection.get(), u"PRAGMA journal_mode=MEMORY; PRAGMA synchronous=OFF");
  return connection;
}

}  // namespace velmora::db
