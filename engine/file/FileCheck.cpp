// SPDX-License-Identifier: MIT
#include "engine/file/FileCheck.h"

#include "engine/file/FileAccess.h"
#include "engine/file/FileLock.h"

#include <bit>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

constexpr std::int64_t HeaderSize = 100;
constexpr QByteArrayView Magic{"SQLite format 3\0", 16};
constexpr qsizetype PageSizeAt = 16;
constexpr qsizetype FractionsAt = 21;
constexpr QByteArrayView Fractions{"\x40\x20\x20", 3};
constexpr unsigned SmallestPage = 512;

bool IsDatabaseHeader(const QByteArray& header) {
  if (header.size() < HeaderSize || !header.startsWith(Magic)) return false;
  if (QByteArrayView(header).sliced(FractionsAt, Fractions.size()) != Fractions) return false;
  const unsigned high = static_cast<unsigned char>(header[PageSizeAt]);
  const unsigned low = static_cast<unsigned char>(header[PageSizeAt + 1]);
  // 65536 does not fit into the two bytes and stands there as 1.
  const unsigned pageSize = high << 8 | low;
  return pageSize == 1 || (pageSize >= SmallestPage && std::has_single_bit(pageSize));
}

}  // namespace

void CheckHeader(const QString& path) {
  const PinnedFile file(path);
  if (IsDatabaseHeader(ReadAt(file.Descriptor(), 0, HeaderSize))) return;
  // SQLite would take an empty file for an empty database; for a card file it is a file that has lost its
  // contents.
  throw Error(ErrorCode::NotADatabase, u"The file is not a database: "_s + path);
}

}  // namespace velmora::db
