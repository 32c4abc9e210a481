// SPDX-License-Identifier: MIT
#include "base/system/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

QString& Replacement() {
  static QString directory;
  return directory;
}

}  // namespace

int ExistFile(const QString& path) { return !path.isEmpty() && QFileInfo(path).isFile() ? 1 : 0; }

QString PathOfFile(const QString& path) { return path.left(path.lastIndexOf(QDir::separator()) + 1); }

QString ProgramDir() {
  return Replacement().isEmpty() ? ProgramDirOf(QCoreApplication::applicationFilePath()) : Replacement();
}

QString ProgramDirOf(const QString& program) {
  const QString beside = PathOfFile(program);
  const QString installed = QDir::cleanPath(beside + u"../share/velmora"_s);
  return QDir(installed).exists() ? installed + QDir::separator() : beside;
}

void SetProgramDir(const QString& directory) { Replacement() = directory; }

QStringList FilesIn(const QString& directory) { return QDir(directory).entryList(QDir::Files, QDir::Name); }

}  // namespace velmora
