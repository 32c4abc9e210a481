// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Command.h"
#include "shell/RecentFiles.h"

#include <QObject>

#include <array>
#include <functional>
#include <map>

class QAction;
class QMenu;
class QMenuBar;

namespace velmora {

struct MenuRow;

/// The menu bar of Main as MenuTable has it, and behind its first menu the recent files.
class MainMenu final : public QObject {
  Q_OBJECT

 public:
  using RunCommand = std::function<void(Command)>;
  using OpenRecent = std::function<void(int place)>;

  MainMenu(QMenuBar* bar, const RunCommand& run, const OpenRecent& openRecent);

  /// The entry of that name; there must be one.
  [[nodiscard]] QAction& Entry(QStringView name) const;
  /// Shows the filled places of the recent list. Never hides one: a place that has gone empty keeps its
  /// caption until the program starts anew.
  void ShowRecent(const RecentList& paths);
  [[nodiscard]] QString RecentPath(int place) const { return m_paths.at(static_cast<std::size_t>(place)); }
  void HideRecent(int place);

 private:
  void AddEntry(QMenu& menu, const MenuRow& entry, const RunCommand& run);
  void AddRecent(QMenu* file, const OpenRecent& openRecent);

  std::map<QString, QAction*> m_entries;
  std::array<QAction*, RecentPlaces> m_recent{};
  RecentList m_paths;
};

}  // namespace velmora
