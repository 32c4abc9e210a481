// SPDX-License-Identifier: MIT
#include "engine/CompactedMark.h"

#include "base/system/Failures.h"
#include "engine/file/FileAccess.h"
#include "engine/rows/Connection.h"
#include "engine/rows/Structure.h"

#include <QtEndian>

namespace velmora::db {

namespace {

constexpr QStringView MarkProperty = u"Compacted";

// SQLite counts the changes of a file in its header, one for each transaction.
constexpr std::int64_t ChangeCounterAt = 24;
constexpr std::int64_t ChangeCounterSize = 4;

std::optional<std::uint32_t> ChangesOf(const QString& path) {
  const QByteArray counter = ReadAt(PinnedFile(path).Descriptor(), ChangeCounterAt, ChangeCounterSize);
  if (counter.size() != ChangeCounterSize) return std::nullopt;
  return qFromBigEndian<std::uint32_t>(counter.constData());
}

}  // namespace

void MarkCompacted(const QString& path) {
  IgnoringErrors([&path] {
    const std::optional<std::uint32_t> changes = ChangesOf(path);
    Connection connection(path, LockKind::Exclusive);
    if (!changes || !connection.Current().HasHidden(PropertiesTable)) return;
    // The mark is itself one change.
    WriteProperty(connection, {}, MarkProperty, QString::number(*changes + 1));
  });
}

bool IsCompacted(const QString& path) {
  bool isCompacted = false;
  IgnoringErrors([&] {
    const std::optional<std::uint32_t> changes = ChangesOf(path);
    Connection connection(path, LockKind::Shared);
    isCompacted = changes && ReadProperty(connection, {}, MarkProperty) == QString::number(*changes);
  });
  return isCompacted;
}

}  // namespace velmora::db
