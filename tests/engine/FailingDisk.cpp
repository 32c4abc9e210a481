// SPDX-License-Identifier: MIT
#include "tests/engine/FailingDisk.h"

#include <limits>

namespace velmora::test {

namespace {

constexpr int Never = std::numeric_limits<int>::max();
int s_writesLeft = Never;
bool s_wasFull = false;
bool s_keepsFiles = false;
sqlite3_vfs* s_real = nullptr;
sqlite3_vfs s_failing;

/// SQLite sets aside room for this and, behind it, for the real disk's own file.
struct File {
  sqlite3_file Base;
  sqlite3_file* Real;
};

sqlite3_file* Real(sqlite3_file* file) { return reinterpret_cast<File*>(file)->Real; }

bool IsFull() {
  if (s_writesLeft == Never) return false;
  if (s_writesLeft > 0) {
    --s_writesLeft;
    return false;
  }
  s_wasFull = true;
  return true;
}

const sqlite3_io_methods Methods{
    .iVersion = 1,
    .xClose = [](sqlite3_file* file) { return Real(file)->pMethods->xClose(Real(file)); },
    .xRead = [](sqlite3_file* file, void* to, int length,
                sqlite3_int64 at) { return Real(file)->pMethods->xRead(Real(file), to, length, at); },
    .xWrite =
        [](sqlite3_file* file, const void* from, int length, sqlite3_int64 at) {
          return IsFull() ? SQLITE_FULL : Real(file)->pMethods->xWrite(Real(file), from, length, at);
        },
    .xTruncate = [](sqlite3_file* file,
                    sqlite3_int64 size) { return Real(file)->pMethods->xTruncate(Real(file), size); },
    .xSync = [](sqlite3_file* file, int flags) { return Real(file)->pMethods->xSync(Real(file), flags); },
    .xFileSize = [](sqlite3_file* file,
                    sqlite3_int64* size) { return Real(file)->pMethods->xFileSize(Real(file), size); },
    .xLock = [](sqlite3_file* file, int kind) { return Real(file)->pMethods->xLock(Real(file), kind); },
    .xUnlock = [](sqlite3_file* file, int kind) { return Real(file)->pMethods->xUnlock(Real(file), kind); },
    .xCheckReservedLock =
        [](sqlite3_file* file, int* held) {
          return Real(file)->pMethods->xCheckReservedLock(Real(file), held);
        },
    .xFileControl =
        [](sqlite3_file* file, int what, void* argument) {
          return Real(file)->pMethods->xFileControl(Real(file), what, argument);
        },
    .xSectorSize = [](sqlite3_file* file) { return Real(file)->pMethods->xSectorSize(Real(file)); },
    .xDeviceCharacteristics =
        [](sqlite3_file* file) { return Real(file)->pMethods->xDeviceCharacteristics(Real(file)); },
    .xShmMap = nullptr,
    .xShmLock = nullptr,
    .xShmBarrier = nullptr,
    .xShmUnmap = nullptr,
    .xFetch = nullptr,
    .xUnfetch = nullptr,
};

int Open(sqlite3_vfs*, const char* name, sqlite3_file* base, int flags, int* outFlags) {
  File* const file = reinterpret_cast<File*>(base);
  file->Real = reinterpret_cast<sqlite3_file*>(file + 1);
  const int result = s_real->xOpen(s_real, name, file->Real, flags, outFlags);
  file->Base.pMethods = file->Real->pMethods != nullptr ? &Methods : nullptr;
  return result;
}

int Delete(sqlite3_vfs*, const char* name, int syncsFolder) {
  return s_keepsFiles ? SQLITE_IOERR_DELETE : s_real->xDelete(s_real, name, syncsFolder);
}

}  // namespace

FailingDisk::FailingDisk() {
  Free();
  s_real = sqlite3_vfs_find(nullptr);
  s_failing = *s_real;
  s_failing.zName = "failing";
  s_failing.szOsFile = static_cast<int>(sizeof(File)) + s_real->szOsFile;
  s_failing.pNext = nullptr;
  s_failing.xOpen = Open;
  s_failing.xDelete = Delete;
  sqlite3_vfs_register(&s_failing, 1);
}

FailingDisk::~FailingDisk() {
  Free();
  sqlite3_vfs_unregister(&s_failing);
  sqlite3_vfs_register(s_real, 1);
}

void FailingDisk::FillAfter(int writes) {
  s_writesLeft = writes;
  s_wasFull = false;
}

void FailingDisk::KeepFiles() { s_keepsFiles = true; }

void FailingDisk::Free() {
  s_writesLeft = Never;
  s_keepsFiles = false;
}

bool FailingDisk::WasFull() { return s_wasFull; }

}  // namespace velmora::test
