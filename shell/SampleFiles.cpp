// SPDX-License-Identifier: MIT
#include "shell/SampleFiles.h"

#include "base/system/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <unistd.h>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

const QString& SamplesFolder() {
  static const QString name = u"Samples"_s;
  return name;
}

const QStringList cardFiles{u"*.ddb"_s};
constexpr QStringView unfinished = u".unfinished";

bool IsThere(const QString& path) { return QFileInfo::exists(path) || QFileInfo(path).isSymLink(); }

/// What a copying that was cut short has left: hidden files that no card file can be taken for.
void ClearUnfinished(const QDir& folder) {
  const QStringList left =
      folder.entryList({u".*%1"_s.arg(unfinished)}, QDir::Files | QDir::Hidden, QDir::NoSort);
  for (const QString& name : left) QFile::remove(folder.filePath(name));
}

/// Writes all that one file holds into another, down to the disk.
bool CopyBytes(QFile& from, QFile& to) {
  constexpr qint64 block = 1 << 20;
  while (!from.atEnd()) {
    const QByteArray bytes = from.read(block);
    if (bytes.isEmpty() || to.write(bytes) != bytes.size()) return false;
  }
  return from.error() == QFileDevice::NoError && to.flush() && fsync(to.handle()) == 0;
}

bool CopySample(const QString& name, const QString& from, const QDir& to) {
  // Of this process alone: another one may be at the same work.
  const QString unfinishedName =
      u".%1.%2%3"_s.arg(name).arg(QCoreApplication::applicationPid()).arg(unfinished);
  QFile source(QDir(from).filePath(name));
  QFile copy(to.filePath(unfinishedName));
  const bool isWhole = source.open(QIODevice::ReadOnly) &&
                       copy.open(QIODevice::WriteOnly | QIODevice::NewOnly) && CopyBytes(source, copy);
  copy.close();
  // It does not replace a file that has come there meanwhile.
  if (isWhole && QFile::rename(copy.fileName(), to.filePath(name))) return true;
  QFile::remove(copy.fileName());
  return IsThere(to.filePath(name));
}

}  // namespace

QString SamplesOfTheProgram() { return ProgramDir() + SamplesFolder(); }

QString SamplesOfTheUser() {
  return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
      .filePath(u"velmora/"_s + SamplesFolder());
}

bool CopyMissingSamples(const QString& from, const QString& to) {
  const QStringList samples = QDir(from).entryList(cardFiles, QDir::Files);
  const QDir folder(to);
  if (!folder.mkpath(u"."_s)) return false;
  ClearUnfinished(folder);
  bool areThere = true;
  for (const QString& name : samples)
    areThere = (IsThere(folder.filePath(name)) || CopySample(name, from, folder)) && areThere;
  return areThere && !folder.entryList(cardFiles, QDir::Files).isEmpty();
}

}  // namespace velmora
