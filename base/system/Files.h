// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace velmora {

/// 1 when the path names an existing file, 0 otherwise (also for a folder or an empty path).
[[nodiscard]] int ExistFile(const QString& path);
/// Everything up to and including the last separator; "" for a blank path or one without a separator.
[[nodiscard]] QString PathOfFile(const QString& path);
/// The directory of the running program with its trailing separator.
[[nodiscard]] QString ProgramDir();
/// The names of the files in a directory, hidden ones left out, sorted.
[[nodiscard]] QStringList FilesIn(const QString& directory);

}  // namespace velmora
