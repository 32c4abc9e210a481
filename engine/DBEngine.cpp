// SPDX-License-Identifier: MIT
#include "engine/DBEngine.h"

#include "engine/CompactedMark.h"
#include "engine/file/Compaction.h"
#include "engine/file/FileAccess.h"
#include "engine/repair/Repair.h"
#include "engine/rows/Connection.h"
#include "engine/rows/Structure.h"
#include "engine/sqlite/ConnectionSettings.h"

#include <QFile>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView LocaleProperty = u"Locale";
/// The size of a page decides how fast long scans are; it is settled when the first table is written.
constexpr auto FirstSettings = u"PRAGMA page_size = 8192";

/// A header and nothing else: SQLite takes an empty file for a database, but nobody else can tell what it is.
void WriteEmptyDatabase(const QString& path) {
  const ConnectionHandle connection = OpenConnection(path, SQLITE_OPEN_READWRITE);
  Run(connection.get(), FirstSettings);
  ConfigureConnection(connection.get());
  // Any change of the header makes SQLite write the first page.
  Run(connection.get(), u"PRAGMA user_version = 1");
}

/// Takes the name for ourselves: whoever comes at the same moment with the same name is refused.
void MakeFile(const QString& path) {
  QFile file(path);
  if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return;
  if (NameIsTaken(path)) throw Error(ErrorCode::DatabaseExists, u"There is a file already: "_s + path);
  throw Error(ErrorCode::CannotOpenFile, u"The file can't be made: "_s + path + u": "_s + file.errorString());
}

}  // namespace

std::shared_ptr<Database> DBEngine::CreateDatabase(const QString& path, const QString& locale) {
  MakeFile(path);
  try {
    WriteEmptyDatabase(path);
    auto connection = std::make_shared<Connection>(path, LockKind::Shared);
    WriteProperty(*connection, {}, LocaleProperty, locale);
    return std::make_shared<Database>(std::move(connection));
  } catch (...) {
    RemoveFile(path);
    throw;
  }
}

std::shared_ptr<Database> DBEngine::OpenDatabase(const QString& path, bool exclusive) {
  return std::make_shared<Database>(
      std::make_shared<Connection>(path, exclusive ? LockKind::Exclusive : LockKind::Shared));
}

void DBEngine::CompactDatabase(const QString& source, const QString& destination) {
  CompactFile(source, destination);
  MarkCompacted(destination);
}

void DBEngine::ReplaceDatabase(const QString& copy, const QString& path) { ReplaceFile(copy, path); }

void DBEngine::RepairDatabase(const QString& path) { RepairFile(path); }

}  // namespace velmora::db
