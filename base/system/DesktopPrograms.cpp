// SPDX-License-Identifier: MIT
#include "base/system/DesktopPrograms.h"

#include <QDir>
#include <QDirIterator>
#include <QSet>

#include <algorithm>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

const auto defaultGroup = u"Default Applications"_s;
const auto addedGroup = u"Added Associations"_s;
const auto removedGroup = u"Removed Associations"_s;

/// A place of the user's own, which a relative path does not name.
QString OwnPlace(const char* variable, const QString& otherwise) {
  const QString set = qEnvironmentVariable(variable);
  return QDir::isAbsolutePath(set) ? set : QDir::homePath() + otherwise;
}

QStringList SharedPlaces(const char* variable, const QString& otherwise) {
  QString set = qEnvironmentVariable(variable);
  if (set.isEmpty()) set = otherwise;
  QStringList places = set.split(u':', Qt::SkipEmptyParts);
  places.removeIf([](const QString& place) { return !QDir::isAbsolutePath(place); });
  return places;
}

/// The entry files below a folder by their names, in which a hyphen stands for each folder between.
QMap<QString, QString> EntryFiles(const QString& folder) {
  QMap<QString, QString> found;
  QDirIterator files(folder, {u"*.desktop"_s}, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString path = files.next();
    found.insert(QDir(folder).relativeFilePath(path).replace(u'/', u'-'), path);
  }
  return found;
}

}  // namespace

DesktopPlaces DesktopPlaces::FromEnvironment() {
  return {.ConfigDirs = QStringList(OwnPlace("XDG_CONFIG_HOME", u"/.config"_s)) +
                        SharedPlaces("XDG_CONFIG_DIRS", u"/etc/xdg"_s),
          .DataDirs = QStringList(OwnPlace("XDG_DATA_HOME", u"/.local/share"_s)) +
                      SharedPlaces("XDG_DATA_DIRS", u"/usr/local/share:/usr/share"_s),
          .Desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts)};
}

std::vector<DesktopPrograms::InstalledEntry> DesktopPrograms::Installed() const {
  std::vector<InstalledEntry> found;
  QSet<QString> seen;
  for (const QString& place : m_places.DataDirs) {
    const QMap<QString, QString> files = EntryFiles(place + u"/applications"_s);
    for (auto file = files.begin(); file != files.end(); ++file) {
      if (seen.contains(file.key())) continue;
      seen.insert(file.key());
      std::optional<DesktopEntry> entry = DesktopEntry::Read(file.value());
      if (entry && entry->IsOffered()) found.push_back({file.key(), *std::move(entry)});
    }
  }
  return found;
}

QStringList DesktopPrograms::ChoiceLists() const {
  QStringList lists;
  const auto add = [this, &lists](const QString& folder) {
    for (const QString& desktop : m_places.Desktops) {
      lists += u"%1/%2-mimeapps.list"_s.arg(folder, desktop.toLower());
    }
    lists += folder + u"/mimeapps.list"_s;
  };
  for (const QString& place : m_places.ConfigDirs) add(place);
  for (const QString& place : m_places.DataDirs) {
    add(place + u"/applications"_s);
    // The list's name of old.
    lists += place + u"/applications/defaults.list"_s;
  }
  return lists;
}

std::optional<DesktopEntry> DesktopPrograms::ForType(const QString& mimeType) const {
  const std::vector<InstalledEntry> installed = Installed();
  QStringList chosen;
  QStringList added;
  QSet<QString> removed;
  for (const QString& path : ChoiceLists()) {
    const std::optional<KeyFile> list = KeyFile::Read(path);
    if (!list) continue;
    chosen += list->List(defaultGroup, mimeType);
    // What a list that counts more has removed, a lesser one does not bring back.
    for (const QString& name : list->List(addedGroup, mimeType)) {
      if (!removed.contains(name)) added += name;
    }
    for (const QString& name : list->List(removedGroup, mimeType)) removed.insert(name);
  }
  for (const QString& name : chosen + added) {
    const auto found = std::ranges::find(installed, name, &InstalledEntry::Name);
    if (found != installed.end()) return found->Entry;
  }
  const auto opens = std::ranges::find_if(installed, [&](const InstalledEntry& one) {
    return one.Entry.OpensType(mimeType) && !removed.contains(one.Name);
  });
  if (opens == installed.end()) return std::nullopt;
  return opens->Entry;
}

std::optional<DesktopEntry> DesktopPrograms::OfCategory(const QString& category) const {
  for (const InstalledEntry& one : Installed()) {
    if (one.Entry.HasCategory(category) && one.Entry.IsFor(m_places.Desktops)) return one.Entry;
  }
  return std::nullopt;
}

std::optional<DesktopEntry> DesktopPrograms::FirstOf(const QStringList& names) const {
  const std::vector<InstalledEntry> installed = Installed();
  for (const QString& name : names) {
    const auto found = std::ranges::find(installed, name, &InstalledEntry::Name);
    if (found != installed.end()) return found->Entry;
  }
  return std::nullopt;
}

}  // namespace velmora
