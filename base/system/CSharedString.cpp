// SPDX-License-Identifier: MIT
#include "base/system/CSharedString.h"

#include <QtEndian>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {

namespace {

constexpr mode_t OwnerOnly = S_IRUSR | S_IWUSR;

/// The name of the system's object: what it may not hold stands there by its code, so that two names stay
/// two.
QByteArray ObjectName(const QString& name) {
  QByteArray object = "/";
  for (const char byte : name.toUtf8()) {
    if (byte == '/' || byte == '%' || byte == '.' || byte == '\0') {
      object += '%' + QByteArray(1, byte).toHex().toUpper();
    } else {
      object += byte;
    }
  }
  return object;
}

int LockWaiting(int descriptor, int operation) {
  int result = 0;
  do {
    result = ::flock(descriptor, operation);
  } while (result != 0 && errno == EINTR);
  return result;
}

/// Opens or makes the object and marks it as in use. Negative when that fails; errno tells why.
int OpenShared(const QByteArray& object) {
  while (true) {
    const int descriptor = ::shm_open(object.constData(), O_RDWR | O_CREAT, OwnerOnly);
    if (descriptor < 0) return descriptor;
    struct stat status = {};
    bool isGood = LockWaiting(descriptor, LOCK_SH) == 0 && ::fstat(descriptor, &status) == 0;
    // The last user may have taken the name away between the two calls: then this object is nobody's.
    if (isGood && status.st_nlink == 0) {
      ::close(descriptor);
      continue;
    }
    // Whoever comes first gives the block its size; what is added holds zeros, and so no text.
    if (isGood && status.st_size < static_cast<off_t>(CSharedString::BlockSize)) {
      isGood = ::ftruncate(descriptor, static_cast<off_t>(CSharedString::BlockSize)) == 0;
    }
    if (isGood) return descriptor;
    const int failure = errno;
    ::close(descriptor);
    errno = failure;
    return -1;
  }
}

}  // namespace

Flag CSharedString::Create(const QString& name) {
  if (name.isEmpty()) return False;
  Release();
  m_objectName = ObjectName(name);
  m_hMapping = OpenShared(m_objectName);
  if (m_hMapping == NoMapping) {
    m_lastErr = errno;
    return False;
  }
  void* const view = ::mmap(nullptr, BlockSize, PROT_READ | PROT_WRITE, MAP_SHARED, m_hMapping, 0);
  if (view == MAP_FAILED) {
    m_lastErr = errno;
    return False;
  }
  m_pData = static_cast<std::byte*>(view);
  m_lastErr = 0;
  return True;
}

QString CSharedString::Data() {
  if (!HasBlock()) return {};
  // Any program may have written the length.
  const auto length = std::clamp<std::int32_t>(Length(), 0, LongestData);
  return QString::fromLocal8Bit(
      QByteArrayView(reinterpret_cast<const char*>(m_pData + sizeof(std::int32_t)), length));
}

void CSharedString::SetData(const QString& text) {
  if (!HasBlock()) return;
  const QByteArray bytes = text.toLocal8Bit();
  const bool fits = bytes.size() <= static_cast<qsizetype>(LongestData);
  Q_ASSERT_X(fits, "CSharedString::SetData", "the text is longer than the block");
  if (!fits) return;
  SetLength(static_cast<std::int32_t>(bytes.size()));
  std::memcpy(m_pData + sizeof(std::int32_t), bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

Flag CSharedString::IsNull() { return ToFlag(HasBlock() && Length() <= 0); }

void CSharedString::SetNull() {
  if (HasBlock()) SetLength(0);
}

bool CSharedString::HasBlock() {
  if (m_pData == nullptr) m_lastErr = NoBlock;
  return m_pData != nullptr;
}

std::int32_t CSharedString::Length() const { return qFromLittleEndian<std::int32_t>(m_pData); }

void CSharedString::SetLength(std::int32_t length) { qToLittleEndian(length, m_pData); }

void CSharedString::Release() noexcept {
  if (m_pData != nullptr) ::munmap(m_pData, BlockSize);
  if (m_hMapping != NoMapping) {
    // Every instance holds a shared lock: who gets it alone is the last one.
    if (::flock(m_hMapping, LOCK_EX | LOCK_NB) == 0) ::shm_unlink(m_objectName.constData());
    ::close(m_hMapping);
  }
  m_pData = nullptr;
  m_hMapping = NoMapping;
}

}  // namespace velmora
