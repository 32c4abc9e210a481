// SPDX-License-Identifier: MIT
#include "engine/file/FileLock.h"

#include "engine/file/FileAccess.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <map>
#include <mutex>
#include <sys/file.h>
#include <unistd.h>
#include <vector>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned long PollInterval = 10;

struct FileId {
  dev_t Device = 0;
  ino_t Node = 0;
  friend auto operator<=>(const FileId&, const FileId&) = default;  // NOLINT(modernize-use-nullptr)
};

FileId IdOf(const struct stat& status) { return {status.st_dev, status.st_ino}; }

struct stat StatusOfPath(const QString& path) {
  struct stat status = {};
  if (::stat(QFile::encodeName(path).constData(), &status) != 0) throw FileErrorOf(errno, path);
  return status;
}

void RequireRegular(const struct stat& status, const QString& path) {
  if (!S_ISREG(status.st_mode)) throw Error(ErrorCode::CannotOpenFile, u"This is not a file: "_s + path);
}

}  // namespace

/// The descriptors of all pinned files of this process. A descriptor that is given back waits for the next
/// taker of the same file, or for the file's last pin to go.
class FileRegistry final {
 public:
  static std::shared_ptr<FileRegistry> Instance() {
    static const auto instance = std::make_shared<FileRegistry>();
    return instance;
  }

  int Take(const QString& path) {
    const std::scoped_lock guard(m_mutex);
    const struct stat known = StatusOfPath(path);
    // Opening a device or a pipe may have effects of its own or wait for ever.
    RequireRegular(known, path);
    const auto file = m_files.find(IdOf(known));
    if (file != m_files.end() && !file->second.Free.empty()) {
      const int descriptor = file->second.Free.back();
      file->second.Free.pop_back();
      ++file->second.Pins;
      return descriptor;
    }
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0) throw FileErrorOf(errno, path);
    const FileId id = IdOf(StatusOf(descriptor));
    ++m_files[id].Pins;
    m_ids[descriptor] = id;
    return descriptor;
  }

  void Give(int descriptor) noexcept {
    const std::scoped_lock guard(m_mutex);
    // Said aloud: the descriptor may stay open, and a program that is being started holds a copy for a
    // moment.
    ::flock(descriptor, LOCK_UN);
    const auto file = m_files.find(m_ids.at(descriptor));
    file->second.Free.push_back(descriptor);
    if (--file->second.Pins > 0) return;
    for (const int idle : file->second.Free) {
      m_ids.erase(idle);
      ::close(idle);
    }
    m_files.erase(file);
  }

 private:
  struct File {
    std::vector<int> Free;
    int Pins = 0;
  };
  std::mutex m_mutex;
  std::map<FileId, File> m_files;
  std::map<int, FileId> m_ids;
};

PinnedFile::PinnedFile(const QString& path)
    : m_registry(FileRegistry::Instance()), m_descriptor(m_registry->Take(path)) {}

PinnedFile::~PinnedFile() { m_registry->Give(m_descriptor); }

namespace {

/// Whether any other descriptor of the file is open, of whatever program. The system grants a write lease
/// only to the one who has a file open alone; it is given back at once, and who came in between is told by a
/// signal that programs ignore. Where leases are not to be had (network drives, another user's file) nobody
/// is seen.
bool IsOpenElsewhere(int descriptor) {
  if (::fcntl(descriptor, F_SETSIG, SIGURG) != 0) return false;
  if (::fcntl(descriptor, F_SETLEASE, F_WRLCK) != 0) return errno == EAGAIN;
  ::fcntl(descriptor, F_SETLEASE, F_UNLCK);
  return false;
}

bool TryLock(int descriptor, LockKind kind) {
  const int operation = kind == LockKind::Exclusive ? LOCK_EX : LOCK_SH;
  int result = 0;
  do {
    result = ::flock(descriptor, operation | LOCK_NB);
  } while (result != 0 && errno == EINTR);
  // Without flock a file can be used, but never be known to be free.
  if (result != 0) return errno != EWOULDBLOCK && kind == LockKind::Shared;
  if (kind == LockKind::Shared || !IsOpenElsewhere(descriptor)) return true;
  ::flock(descriptor, LOCK_UN);
  return false;
}

}  // namespace

FileLock::FileLock(const QString& path, LockKind kind, int patience) {
  QElapsedTimer waited;
  waited.start();
  while (true) {
    m_file = std::make_unique<PinnedFile>(path);
    if (TryLock(Descriptor(), kind)) {
      if (IdOf(StatusOf(Descriptor())) == IdOf(StatusOfPath(path))) return;
    }
    m_file.reset();
    if (waited.hasExpired(patience)) break;
    QThread::msleep(PollInterval);
  }
  throw Error(ErrorCode::ExclusivelyHeld, u"The file is in use: "_s + path);
}

FileLock::~FileLock() = default;

}  // namespace velmora::db
