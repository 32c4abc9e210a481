// SPDX-License-Identifier: MIT
#include "shell/RecentFiles.h"

#include "base/system/Files.h"
#include "frame/Session.h"

#include <algorithm>

namespace velmora {

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
    list[place] = Read(settings::RecentFiles.at(place));
  return list;
}

void RecentSave() {
  const RecentList list = WithFirst(RecentFiles(), Global().FilePath);
  for (std::size_t place = 0; place < RecentPlaces; ++place)
    Write(settings::RecentFiles.at(place), list[place]);
}

void ForgetRecent(const QString& path) {
  const RecentList list = RecentFiles();
  const auto found = std::ranges::find(list, path);
  if (found == list.end()) return;
  Write(settings::RecentFiles.at(static_cast<std::size_t>(found - list.begin())), QString());
}

QString SplitPath(const QString& path) { return PathOfFile(path); }

}  // namespace velmora
