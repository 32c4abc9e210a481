// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora::demo {

/// Makes the demonstration card file at the path: the same file at every run. Throws db::Error, above all
/// when the file exists.
void MakeDemoFile(const QString& path);

}  // namespace velmora::demo
