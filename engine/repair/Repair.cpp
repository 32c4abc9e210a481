// SPDX-License-Identifier: MIT
#include "engine/repair/Repair.h"

#include "engine/file/FileAccess.h"
#include "engine/file/FileCheck.h"
#include "engine/file/FileConnection.h"
#include "engine/file/FileLock.h"
#include "engine/file/FileSwap.h"
#include "engine/repair/DamagedPages.h"
#include "engine/repair/Rebuild.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

bool IsSound(sqlite3* connection) {
  try {
    const StatementHandle check = Prepare(connection, u"PRAGMA integrity_check(1)");
    return Step(check.get()) && ColumnText(check.get(), 0) == "ok"_L1;
  } catch (const Error&) {
    // The check itself asks for the list of tables and for all that the definitions there name.
    return false;
  }
}

/// Whether SQLite still has something to write into the file that it could not.
bool HasUnfinishedWork(const QString& path) {
  const auto begins = [](const QString& side) {
    if (!NameIsTaken(side)) return QByteArray();
    return ReadAt(PinnedFile(side).Descriptor(), 0, 1);
  };
  const QByteArray journal = begins(path + u"-journal"_s);
  return (!journal.isEmpty() && journal[0] != '\0') || !begins(path + u"-wal"_s).isEmpty();
}

/// A connection that keeps others away, where SQLite still takes the file for a database; else none.
ConnectionHandle OpenIfPossible(const QString& path) {
  try {
    return OpenAlone(path);
  } catch (const Error& error) {
    if (error.Code() == ErrorCode::ExclusivelyHeld) throw;
    if (HasUnfinishedWork(path)) throw;
    return nullptr;
  }
}

void RequireSound(const QString& path) {
  if (!IsSound(OpenNew(path).get()))
    throw Error(ErrorCode::Internal, u"The repaired file is not sound: "_s + path);
}

}  // namespace

void RepairFile(const QString& path) {
  const QString realPath = RealPath(path);
  const FileLock lock(realPath, LockKind::Exclusive, ShortPatience);
  // SQLite would make an empty database of it.
  if (StatusOf(lock.Descriptor()).st_size == 0) CheckHeader(realPath);
  const ConnectionHandle old = OpenIfPossible(realPath);
  if (old != nullptr && IsSound(old.get())) return;
  RequireWritable(realPath);
  NewFile whole = NewFile::Beside(realPath);
  const bool savedAll = Rebuild(DamagedPages(lock.Descriptor()), whole.Path());
  RequireSound(whole.Path());
  // What could not be read here, somebody else may still get out of the old file.
  std::optional<NewFile> damaged;
  if (!savedAll) damaged = NewFile::KeptOf(realPath, lock.Descriptor());
  RemoveSideFiles(realPath);
  SwapIn(whole.Path(), realPath, lock.Descriptor());
  whole.Keep();
  if (damaged) damaged->Keep();
}

}  // namespace velmora::db
