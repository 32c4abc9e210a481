// SPDX-License-Identifier: MIT
#include "base/system/Shell.h"

#include "base/system/DesktopEntry.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

using Starter = std::function<ProcessNumber(const ProgramStart&)>;

Starter& Replacement() {
  static Starter starter;
  return starter;
}

bool IsEntry(const QString& path) { return path.endsWith(u".desktop"_s); }

std::optional<ProgramStart> StartOfEntry(const QString& path, const QStringList& arguments) {
  const std::optional<DesktopEntry> entry = DesktopEntry::Read(path);
  return entry && entry->HasWindow() ? entry->StartWith(arguments) : std::nullopt;
}

/// How the program of a path is started; what is not a desktop entry is a program.
ProgramStart StartOf(const QString& path, const QStringList& arguments) {
  if (!IsEntry(path)) {
    return {.Program = path.contains(u'/') ? QFileInfo(path).absoluteFilePath() : path,
            .Arguments = arguments,
            .Directory = {}};
  }
  const std::optional<ProgramStart> start = StartOfEntry(path, arguments);
  if (!start) throw StartFailure(u"\"%1\" does not say how its program is started"_s.arg(path));
  return *start;
}

ProcessNumber StartDetached(const ProgramStart& start) {
  QProcess process;
  process.setProgram(start.Program);
  process.setArguments(start.Arguments);
  process.setWorkingDirectory(start.Directory.isEmpty() ? QDir::homePath() : start.Directory);
  // What it prints is not said by this program.
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  qint64 number = 0;
  if (start.Program.isEmpty() || !process.startDetached(&number)) {
    throw StartFailure(u"\"%1\" can't be started: %2"_s.arg(start.Program, process.errorString()));
  }
  return number;
}

}  // namespace

ProcessNumber Shell(const ProgramStart& start) {
  return Replacement() ? Replacement()(start) : StartDetached(start);
}

ProcessNumber Shell(const QString& path, const QStringList& arguments) {
  return Shell(StartOf(path, arguments));
}

bool CanStart(const QString& path) {
  if (IsEntry(path)) return StartOfEntry(path, {}).has_value();
  const QFileInfo file(path);
  return file.isFile() && file.isExecutable();
}

void SetStarter(std::function<ProcessNumber(const ProgramStart&)> starter) {
  Replacement() = std::move(starter);
}

}  // namespace velmora
