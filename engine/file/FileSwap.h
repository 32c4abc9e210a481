// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora::db {

/// Puts `copy` under the name of the real file at `realPath`, which `oldDescriptor` stands for: with its mode
/// and owner, by one atomic rename, lasting. The caller holds the file alone. When it throws, the old file
/// still stands.
void SwapIn(const QString& copy, const QString& realPath, int oldDescriptor);

}  // namespace velmora::db
