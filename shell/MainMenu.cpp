// SPDX-License-Identifier: MIT
#include "shell/MainMenu.h"

#include "resources/strings.h"
#include "shell/MenuTable.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

/// A path as a menu caption: an ampersand in it is no mnemonic.
QString CaptionOf(QString path) { return path.replace(u'&', u"&&"_s); }

}  // namespace

MainMenu::MainMenu(QMenuBar* bar, const RunCommand& run, const OpenRecent& openRecent) : QObject(bar) {
  for (const MenuRows& row : Menus()) {
    QMenu* menu = bar->addMenu(row.Caption);
    menu->setObjectName(row.Name.toString());
    for (const MenuRow& entry : row.Entries) AddEntry(*menu, entry, run);
  }
  AddRecent(bar->findChild<QMenu*>(RecentMenu.toString()), openRecent);
}

void MainMenu::AddEntry(QMenu& menu, const MenuRow& entry, const RunCommand& run) {
  const bool parts = entry.Caption.View() == strings::menu::Separator.View();
  QAction* action = parts ? menu.addSeparator() : menu.addAction(entry.Caption);
  action->setObjectName(entry.Name.toString());
  action->setShortcut(QKeySequence(entry.Shortcut.toString()));
  action->setEnabled(entry.Start != EntryStart::Disabled);
  action->setVisible(entry.Start != EntryStart::Hidden);
  connect(action, &QAction::triggered, this, [run, command = entry.Run] { run(command); });
  m_entries[action->objectName()] = action;
}

void MainMenu::AddRecent(QMenu* file, const OpenRecent& openRecent) {
  for (std::size_t place = 0; place < m_recent.size(); ++place) {
    QAction* action = file->addAction(QString());
    action->setObjectName(u"hShortName(%1)"_s.arg(place));
    action->setVisible(false);
    connect(action, &QAction::triggered, this, [openRecent, place] { openRecent(static_cast<int>(place)); });
    m_recent.at(place) = action;
  }
}

QAction& MainMenu::Entry(QStringView name) const { return *m_entries.at(name.toString()); }

void MainMenu::ShowRecent(const RecentList& paths) {
  for (std::size_t place = 0; place < m_recent.size(); ++place) {
    const QString& path = paths.at(place);
    if (path.isEmpty()) continue;
    Entry(RecentSeparator).setVisible(true);
    m_paths.at(place) = path;
    m_recent.at(place)->setText(CaptionOf(path));
    m_recent.at(place)->setVisible(true);
  }
}

void MainMenu::HideRecent(int place) { m_recent.at(static_cast<std::size_t>(place))->setVisible(false); }

}  // namespace velmora
