// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora::db {

/// Saves what can be read of a closed file, in place: DBEngine::RepairDatabase, where the contract stands.
void RepairFile(const QString& path);

}  // namespace velmora::db
