// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

namespace velmora::db {

/// Order of two texts as the engine sorts and compares them: case does not count (beyond ASCII too), accented
/// Latin letters stand beside their base letter and differ from it, spaces at the end do not count, ß is ss,
/// æ ae, œ oe, þ th. Negative, 0 or positive. UTF-8; shares nothing between calls, so it may run on several
/// threads.
[[nodiscard]] int CompareText(QByteArrayView left, QByteArrayView right);
[[nodiscard]] int CompareText(QStringView left, QStringView right);
/// The form in which two names of tables, columns or queries are the same: folded, spaces at the end dropped.
[[nodiscard]] QString FoldName(QStringView name);

}  // namespace velmora::db
