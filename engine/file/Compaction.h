// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora::db {

/// The work on whole, closed files behind DBEngine's operations of these names; the contracts stand there.
void CompactFile(const QString& source, const QString& destination);
void ReplaceFile(const QString& copy, const QString& path);

}  // namespace velmora::db
