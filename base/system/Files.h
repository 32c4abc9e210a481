// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace velmora {

/// 1 when the path names an existing file, 0 otherwise (also for a folder or an empty path).
[[nodiscard]] int ExistFile(const QString& path);
/// Everything up to and including the last separator; "" for a blank path or one without a separator.
[[nodiscard]] QString PathOfFile(const QString& path);
/// Where the program's data lies, with a separator at the end: beside the running program as it was built, in
/// share/velmora/ where it is installed.
[[nodiscard]] QString ProgramDir();
/// The same for the program of that path.
[[nodiscard]] QString ProgramDirOf(const QString& program);
/// Puts the program's data elsewhere, for tests; an empty path brings the real place back.
void SetProgramDir(const QString& directory);
/// The names of the files in a directory, hidden ones left out, sorted.
[[nodiscard]] QStringList FilesIn(const QString& directory);

}  // namespace velmora
