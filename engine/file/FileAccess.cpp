// SPDX-License-Identifier: MIT
#include "engine/file/FileAccess.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

constexpr std::int64_t CopyBlock = 1 << 20;
constexpr mode_t PermissionBits = 07777;

/// A descriptor of a file that SQLite does not have open in this process.
class OwnDescriptor final {
 public:
  OwnDescriptor(const QString& path, int flags)
      : m_path(path), m_descriptor(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC)) {
    if (m_descriptor < 0) throw FileErrorOf(errno, path);
  }
  ~OwnDescriptor() { ::close(m_descriptor); }
  OwnDescriptor(const OwnDescriptor&) = delete;
  OwnDescriptor& operator=(const OwnDescriptor&) = delete;

  void Write(const QByteArray& bytes) const {
    qsizetype written = 0;
    while (written < bytes.size()) {
      const ssize_t count = ::write(m_descriptor, bytes.constData() + written,
                                    static_cast<std::size_t>(bytes.size() - written));
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) throw FileErrorOf(errno, m_path);
      written += count;
    }
  }
  void Sync() const {
    if (::fsync(m_descriptor) != 0) throw FileErrorOf(errno, m_path);
  }

 private:
  QString m_path;
  int m_descriptor;
};

void Unlink(const QString& path) noexcept { ::unlink(QFile::encodeName(path).constData()); }

}  // namespace

Error FileErrorOf(int number, const QString& path) {
  const QString detail = path + u": "_s + QString::fromLocal8Bit(std::strerror(number));
  switch (number) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
      return {ErrorCode::FileNotFound, u"The file is not there: "_s + path};
    case EEXIST:
      return {ErrorCode::DatabaseExists, u"The file exists already: "_s + path};
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return {ErrorCode::DiskFull, u"The disk is full: "_s + detail};
    case EROFS:
      return {ErrorCode::ReadOnlyDatabase, u"The file cannot be written: "_s + detail};
    case EIO:
      return {ErrorCode::Internal, u"The disk fails: "_s + detail};
    default:
      return {ErrorCode::CannotOpenFile, u"The file cannot be opened: "_s + detail};
  }
}

QString RealPath(const QString& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(
      ::realpath(QFile::encodeName(path).constData(), nullptr), &std::free);
  if (real == nullptr) throw FileErrorOf(errno, path);
  return QFile::decodeName(real.get());
}

QString FolderOf(const QString& path) {
  const qsizetype slash = path.lastIndexOf(u'/');
  return slash > 0 ? path.left(slash) : u"/"_s;
}

bool NameIsTaken(const QString& path) {
  struct stat status = {};
  return ::lstat(QFile::encodeName(path).constData(), &status) == 0;
}

void TakeOver(const QString& path, const struct stat& like) {
  const QByteArray name = QFile::encodeName(path);
  struct stat own = {};
  if (::stat(name.constData(), &own) != 0) throw FileErrorOf(errno, path);
  const bool sameOwner = own.st_uid == like.st_uid && own.st_gid == like.st_gid;
  if (!sameOwner && ::chown(name.constData(), like.st_uid, like.st_gid) != 0) throw FileErrorOf(errno, path);
  if (::chmod(name.constData(), like.st_mode & PermissionBits) != 0) throw FileErrorOf(errno, path);
}

void SyncFile(const QString& path) { OwnDescriptor(path, O_RDONLY).Sync(); }

void SyncFolder(const QString& folder) { OwnDescriptor(folder, O_RDONLY | O_DIRECTORY).Sync(); }

struct stat StatusOf(int descriptor) {
  struct stat status = {};
  if (::fstat(descriptor, &status) != 0) throw FileErrorOf(errno, {});
  return status;
}

QByteArray ReadAt(int descriptor, std::int64_t offset, std::int64_t length) {
  QByteArray bytes(static_cast<qsizetype>(length), Qt::Uninitialized);
  qsizetype got = 0;
  while (got < bytes.size()) {
    const ssize_t count =
        ::pread(descriptor, bytes.data() + got, static_cast<std::size_t>(bytes.size() - got), offset + got);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) break;
    got += count;
  }
  bytes.truncate(got);
  return bytes;
}

void CopyBytes(int descriptor, const QString& path) {
  const OwnDescriptor target(path, O_WRONLY);
  const std::int64_t size = StatusOf(descriptor).st_size;
  for (std::int64_t offset = 0; offset < size; offset += CopyBlock) {
    const std::int64_t length = std::min(CopyBlock, size - offset);
    QByteArray block = ReadAt(descriptor, offset, length);
    // Where the disk fails, the places of what follows stay what they are.
    block.resize(static_cast<qsizetype>(length), '\0');
    target.Write(block);
  }
  target.Sync();
}

NewFile::NewFile(const QString& path) {
  const int descriptor =
      ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (descriptor < 0) throw FileErrorOf(errno, path);
  ::close(descriptor);
  m_path = path;
}

NewFile NewFile::Beside(const QString& path) {
  QByteArray name = QFile::encodeName(FolderOf(path) + u"/.velmora-XXXXXX"_s);
  const int descriptor = ::mkostemp(name.data(), O_CLOEXEC);
  if (descriptor < 0) throw FileErrorOf(errno, path);
  ::close(descriptor);
  NewFile file;
  file.m_path = QFile::decodeName(name);
  return file;
}

NewFile NewFile::KeptOf(const QString& path, int descriptor) {
  const QString stem = path + u".damaged"_s;
  QString name = stem;
  for (int number = 2; NameIsTaken(name); ++number) name = stem + QString::number(number);
  if (::link(QFile::encodeName(path).constData(), QFile::encodeName(name).constData()) == 0) {
    NewFile file;
    file.m_path = name;
    return file;
  }
  NewFile file(name);
  CopyBytes(descriptor, name);
  TakeOver(name, StatusOf(descriptor));
  return file;
}

NewFile::~NewFile() {
  if (!m_path.isEmpty()) RemoveFile(m_path);
}

void RemoveFile(const QString& path) {
  Unlink(path);
  RemoveSideFiles(path);
}

void RequireWritable(const QString& path) {
  if (::access(QFile::encodeName(path).constData(), W_OK) == 0) return;
  throw Error(ErrorCode::ReadOnlyDatabase, u"The file is write-protected: "_s + path);
}

void RemoveSideFiles(const QString& path) {
  for (const auto& suffix : {u"-journal"_s, u"-wal"_s, u"-shm"_s}) Unlink(path + suffix);
}

}  // namespace velmora::db
