// SPDX-License-Identifier: MIT
#pragma once

#include "shell/RecentFiles.h"

#include <QObject>

#include <array>
#include <functional>
#include <map>

class QAction;
class QMenu;
class QMenuBar;

namespace velmora {

/// The menu bar of Main, built from one table: names, captions, shortcuts and starting states. Main gives
/// each entry its command.
class MainMenu final : public QObject {
  Q_OBJECT

 public:
  /// What the entries run, by entry name; hShortName gets the entry's path.
  using Commands = std::map<QString, std::function<void()>>;
  using OpenRecent = std::function<void(int place)>;

  MainMenu(QMenuBar* bar, const Commands& commands, const OpenRecent& openRecent);

  /// The entry of that name; there must be one.
  [[nodiscard]] QAction& Entry(const QString& name) const;
  /// Shows the filled places of the recent list. Never hides one: a place that has gone empty keeps its
  /// caption until the program starts anew.
  void ShowRecent(const RecentList& paths);
  [[nodiscard]] QString RecentPath(int place) const { return m_paths.at(static_cast<std::size_t>(place)); }
  void HideRecent(int place);

 private:
  void AddRecent(QMenu* file, const OpenRecent& openRecent);

  std::map<QString, QAction*> m_entries;
  std::array<QAction*, RecentPlaces> m_recent{};
  RecentList m_paths;
};

}  // namespace velmora
