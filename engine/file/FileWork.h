// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora::db {

/// How long opening and locking wait for another program, in milliseconds.
inline constexpr int BusyTimeout = 5000;

/// The work on whole, closed files behind DBEngine. All throw Error; the contracts stand there.
void CompactFile(const QString& source, const QString& destination);
void ReplaceFile(const QString& copy, const QString& path);
void RepairFile(const QString& path);
/// Throws 3024 when the file is missing, 3343 when its header is not a database's.
void CheckHeader(const QString& path);

}  // namespace velmora::db
