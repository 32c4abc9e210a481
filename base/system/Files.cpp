// SPDX-License-Identifier: MIT
#include "base/system/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace velmora {

int ExistFile(const QString& path) { return !path.isEmpty() && QFileInfo(path).isFile() ? 1 : 0; }

QString PathOfFile(const QString& path) { return path.left(path.lastIndexOf(QDir::separator()) + 1); }

QString ProgramDir() { return PathOfFile(QCoreApplication::applicationFilePath()); }

QStringList FilesIn(const QString& directory) { return QDir(directory).entryList(QDir::Files, QDir::Name); }

}  // namespace velmora
