// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora::db {

/// Throws 3024 when the file is missing, 3343 when its header is not a database's.
void CheckHeader(const QString& path);

}  // namespace velmora::db
