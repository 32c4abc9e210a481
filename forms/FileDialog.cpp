// SPDX-License-Identifier: MIT
#include "forms/FileDialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace velmora::ui {

using namespace Qt::StringLiterals;

namespace {

using Responder = std::function<QString(const FileDialog&)>;

Responder& CurrentResponder() {
  static Responder responder;
  return responder;
}

/// A filter such as "Database,*.ddb|*.ddb": names and patterns in turn.
struct FilterEntry {
  QString Name;
  QStringList Patterns;
};

QList<FilterEntry> EntriesOf(const QString& filter) {
  // Programs have no ending here: whoever asks for them sees all files.
  const QStringList parts = QString(filter).replace(u"|*.exe"_s, u"|*"_s).split(u'|');
  QList<FilterEntry> entries;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QStringList patterns = parts.at(i + 1).split(u';', Qt::SkipEmptyParts);
    if (!patterns.isEmpty()) entries.append({parts.at(i), patterns});
  }
  return entries;
}

QStringList NameFilters(const QList<FilterEntry>& entries) {
  QStringList filters;
  for (const FilterEntry& entry : entries)
    filters.append(u"%1 (%2)"_s.arg(entry.Name, entry.Patterns.join(u' ')));
  return filters;
}

/// Where a user's files are looked for as long as no other place is known.
QString HomeOfFiles() {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

/// The ending that a new file takes: that of the first pattern, when it is a plain "*.ending".
QString DefaultEnding(const QList<FilterEntry>& entries) {
  if (entries.isEmpty()) return {};
  const QString& pattern = entries.first().Patterns.first();
  const QString ending = pattern.mid(1);
  const bool plain = pattern.startsWith(u"*."_s) && !ending.contains(u'*') && !ending.contains(u'?');
  return plain ? ending : QString();
}

/// A chosen or typed name as a full path. The name of a new file that has no ending gets the filter's.
QString Completed(const QString& name, const QString& directory, const QString& ending) {
  QString path = QDir::cleanPath(QDir(directory).absoluteFilePath(name));
  const QFileInfo file(path);
  if (!file.exists() && file.suffix().isEmpty() && !path.endsWith(u'.')) path += ending;
  return path;
}

/// The name chosen by the user, and the directory in which the dialog was left; an empty name for no choice.
std::pair<QString, QString> Choose(const FileDialog& request, const QString& directory,
                                   const QList<FilterEntry>& entries) {
  QWidget* modal = QApplication::activeModalWidget();
  QFileDialog dialog(modal != nullptr ? modal : QApplication::activeWindow(), request.DialogTitle, directory);
  dialog.setObjectName(u"DialogData"_s);
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  // The names of the filters tell their patterns already.
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  // Any name, existing or not: the open form with the file mode of the save form.
  dialog.setFileMode(QFileDialog::AnyFile);
  if (!entries.isEmpty()) dialog.setNameFilters(NameFilters(entries));
  if (dialog.exec() != QDialog::Accepted) return {QString(), dialog.directory().absolutePath()};
  return {dialog.selectedFiles().value(0), dialog.directory().absolutePath()};
}

}  // namespace

void FileDialog::ShowOpen() {
  const QList<FilterEntry> entries = EntriesOf(Filter);
  const QString directory = InitDir.isEmpty() ? HomeOfFiles() : InitDir;
  FileName.clear();
  const auto [name, left] = CurrentResponder() ? std::pair(CurrentResponder()(*this), directory)
                                               : Choose(*this, directory, entries);
  if (name.isEmpty()) return;
  FileName = Completed(name, left, DefaultEnding(entries));
  FileTitle = QFileInfo(FileName).fileName();
  InitDir = QFileInfo(FileName).absolutePath();
}

void SetFileDialogResponder(Responder responder) { CurrentResponder() = std::move(responder); }

}  // namespace velmora::ui
