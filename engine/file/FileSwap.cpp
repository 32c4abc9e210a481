// SPDX-License-Identifier: MIT
#include "engine/file/FileSwap.h"

#include "engine/file/FileAccess.h"
#include "engine/file/FileLock.h"

#include <QFile>

#include <cerrno>
#include <cstdio>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

bool Rename(const QString& from, const QString& to) {
  if (::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0) return true;
  if (errno == EXDEV) return false;
  throw FileErrorOf(errno, to);
}

}  // namespace

void SwapIn(const QString& copy, const QString& realPath, int oldDescriptor) {
  const struct stat old = StatusOf(oldDescriptor);
  SyncFile(copy);
  TakeOver(copy, old);
  if (!Rename(copy, realPath)) {
    // The real file, behind a link, lies on another disk than the copy.
    NewFile beside = NewFile::Beside(realPath);
    CopyBytes(PinnedFile(copy).Descriptor(), beside.Path());
    TakeOver(beside.Path(), old);
    Rename(beside.Path(), realPath);
    beside.Keep();
    RemoveFile(copy);
  }
  SyncFolder(FolderOf(realPath));
}

}  // namespace velmora::db
