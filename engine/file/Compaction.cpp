// SPDX-License-Identifier: MIT
#include "engine/file/Compaction.h"

#include "engine/file/FileAccess.h"
#include "engine/file/FileCheck.h"
#include "engine/file/FileConnection.h"
#include "engine/file/FileLock.h"
#include "engine/file/FileSwap.h"
#include "engine/sqlite/Quoting.h"

#include <QFileInfo>

#include <map>
#include <mutex>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

using FileId = std::pair<dev_t, ino_t>;
using TableCounts = std::map<QString, std::int64_t>;

constexpr std::int64_t ChangeCounterAt = 24;
constexpr std::int64_t ChangeCounterSize = 4;

/// The state of a file: SQLite counts its changes in the header.
struct State {
  FileId File;
  QByteArray ChangeCounter;
  friend bool operator==(const State&, const State&) = default;
};

FileId IdOf(const struct stat& status) { return {status.st_dev, status.st_ino}; }

State StateOf(int descriptor) {
  return {IdOf(StatusOf(descriptor)), ReadAt(descriptor, ChangeCounterAt, ChangeCounterSize)};
}

/// Which state of which file the copies show that this program has made and not yet put into place. Between
/// the two steps nobody holds the file, so another program may write to it; its work must not be replaced by
/// an older copy.
class Copies final {
 public:
  static Copies& Instance() {
    static Copies instance;
    return instance;
  }
  void Remember(const FileId& copy, const State& origin) {
    const std::scoped_lock guard(m_mutex);
    m_origins[copy] = origin;
  }
  [[nodiscard]] std::optional<State> Take(const FileId& copy) {
    const std::scoped_lock guard(m_mutex);
    const auto node = m_origins.extract(copy);
    return node.empty() ? std::nullopt : std::optional(node.mapped());
  }

 private:
  std::mutex m_mutex;
  std::map<FileId, State> m_origins;
};

/// The number of rows of each table, counted in the table itself and not in one of its indexes.
TableCounts CountRows(sqlite3* connection) {
  TableCounts counts;
  const StatementHandle tables =
      Prepare(connection, u"SELECT name FROM sqlite_schema WHERE type = 'table' AND rootpage > 0");
  while (Step(tables.get())) {
    const QString name = ColumnText(tables.get(), 0);
    counts[name] =
        QueryNumber(connection, u"SELECT count(*) FROM main."_s + QuoteName(name) + u" NOT INDEXED"_s);
  }
  return counts;
}

void WriteCopy(sqlite3* connection, const QString& path) {
  // The copy is synced as a whole, once; SQLite's own syncs on the way would only cost time.
  Run(connection, u"PRAGMA synchronous=OFF");
  const StatementHandle vacuum = Prepare(connection, u"VACUUM main INTO ?1");
  const QByteArray name = path.toUtf8();
  Check(connection, sqlite3_bind_text(vacuum.get(), 1, name.constData(), -1, SQLITE_STATIC));
  Check(connection, sqlite3_step(vacuum.get()));
}

void CheckCopy(const QString& path, const TableCounts& expected) {
  const ConnectionHandle connection = OpenAlone(path);
  const StatementHandle check = Prepare(connection.get(), u"PRAGMA quick_check(1)");
  Check(connection.get(), sqlite3_step(check.get()));
  const QString verdict = ColumnText(check.get(), 0);
  if (verdict != u"ok") throw Error(ErrorCode::NotADatabase, u"The compacted copy is damaged: "_s + verdict);
  if (CountRows(connection.get()) != expected) {
    throw Error(ErrorCode::NotADatabase, u"The compacted copy does not hold all rows."_s);
  }
}

void RequireUnchanged(const std::optional<State>& origin, const FileLock& lock) {
  if (!origin || *origin == StateOf(lock.Descriptor())) return;
  throw Error(ErrorCode::ExclusivelyHeld,
              u"Another program has written to the file since it was compacted."_s);
}

void ReplaceHeldFile(const QString& copy, const QString& path, const FileLock& lock,
                     const std::optional<State>& origin) {
  CheckHeader(path);
  RequireWritable(path);
  const ConnectionHandle old = OpenAlone(path);
  RequireUnchanged(origin, lock);
  // Whatever lies beside the old file has been rolled back by now; beside the new one it would be taken for
  // its own.
  RemoveSideFiles(path);
  SwapIn(copy, path, lock.Descriptor());
}

/// Whether a replacement was refused for a reason that leaves the old file good and in use. Then a copy of
/// our own making is of no use, and would only stand in the way of the next compaction.
bool IsRefusal(ErrorCode code) {
  return code == ErrorCode::ExclusivelyHeld || code == ErrorCode::ReadOnlyDatabase ||
         code == ErrorCode::CannotOpenFile;
}

}  // namespace

void CompactFile(const QString& source, const QString& destination) {
  if (NameIsTaken(destination)) {
    throw Error(ErrorCode::DatabaseExists, u"The file exists already: "_s + destination);
  }
  const QString path = RealPath(source);
  const FileLock lock(path, LockKind::Exclusive, ShortPatience);
  CheckHeader(path);
  NewFile copy(QFileInfo(destination).absoluteFilePath());
  const ConnectionHandle connection = OpenAlone(path);
  WriteCopy(connection.get(), copy.Path());
  CheckCopy(copy.Path(), CountRows(connection.get()));
  TakeOver(copy.Path(), StatusOf(lock.Descriptor()));
  SyncFile(copy.Path());
  SyncFolder(FolderOf(copy.Path()));
  Copies::Instance().Remember(IdOf(StatusOf(PinnedFile(copy.Path()).Descriptor())),
                              StateOf(lock.Descriptor()));
  copy.Keep();
}

void ReplaceFile(const QString& copy, const QString& path) {
  const QString realCopy = RealPath(copy);
  const QString realPath = RealPath(path);
  const FileId copyId = IdOf(StatusOf(PinnedFile(realCopy).Descriptor()));
  const std::optional<State> origin = Copies::Instance().Take(copyId);
  try {
    const FileLock lock(realPath, LockKind::Exclusive, ShortPatience);
    if (copyId == IdOf(StatusOf(lock.Descriptor()))) {
      throw Error(ErrorCode::InvalidArgument, u"A file cannot take its own place: "_s + path);
    }
    CheckHeader(realCopy);
    // Rolls back what may be unfinished in a copy of somebody else's making.
    OpenAlone(realCopy).reset();
    ReplaceHeldFile(realCopy, realPath, lock, origin);
  } catch (const Error& error) {
    if (origin && IsRefusal(error.Code())) RemoveFile(realCopy);
    throw;
  }
}

}  // namespace velmora::db
