// SPDX-License-Identifier: MIT
#include "shell/RecentFiles.h"

#include "base/settings/Settings.h"
#include "base/system/Files.h"
#include "frame/Session.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

const QString& Section() {
  static const QString section = u"Init"_s;
  return section;
}

QString KeyOf(std::size_t place) { return u"File"_s + QString::number(place); }

}  // namespace

RecentList WithFirst(const RecentList& list, const QString& path) {
  RecentList result{path};
  std::size_t place = 1;
  for (const QString& entry : list) {
    if (place < RecentPlaces && !entry.isEmpty() && entry != path) result[place++] = entry;
  }
  return result;
}

RecentList RecentFiles() {
  RecentList list;
  for (std::size_t place = 0; place < RecentPlaces; ++place)
    list[place] = GetSetting(Section(), KeyOf(place));
  return list;
}

void RecentSave() {
  const RecentList list = WithFirst(RecentFiles(), Global().FilePath);
  for (std::size_t place = 0; place < RecentPlaces; ++place)
    SaveSetting(Section(), KeyOf(place), list[place]);
}

void ForgetRecent(const QString& path) {
  const RecentList list = RecentFiles();
  const auto found = std::ranges::find(list, path);
  if (found == list.end()) return;
  SaveSetting(Section(), KeyOf(static_cast<std::size_t>(found - list.begin())), QString());
}

QString SplitPath(const QString& path) { return PathOfFile(path); }

}  // namespace velmora
