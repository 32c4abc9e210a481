// SPDX-License-Identifier: MIT
#include "resources/strings.h"
#include "shell/MenuTable.h"

#include <QSet>
#include <QString>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

QList<MenuRow> AllEntries() {
  QList<MenuRow> entries;
  for (const MenuRows& menu : Menus()) {
    for (const MenuRow& entry : menu.Entries) entries += entry;
  }
  return entries;
}

}  // namespace

TEST(MenuTable, Entries_NamesAndShortcuts_AreUnique) {
  QSet<QString> names;
  QSet<QString> shortcuts;
  qsizetype withShortcut = 0;
  for (const MenuRow& entry : AllEntries()) {
    names += entry.Name.toString();
    if (entry.Shortcut.isEmpty()) continue;
    shortcuts += entry.Shortcut.toString();
    ++withShortcut;
  }
  EXPECT_EQ(names.size(), AllEntries().size());
  EXPECT_EQ(shortcuts.size(), withShortcut);
  EXPECT_EQ(withShortcut, 11);
}

TEST(MenuTable, Entries_OfFeaturesThatDoNotExist_RunNothing) {
  for (const MenuRow& entry : AllEntries()) {
    const bool live = entry.Start == EntryStart::Enabled && entry.Name != u"mnuEmailUs" &&
                      entry.Caption.View() != strings::menu::Separator.View();
    EXPECT_EQ(entry.Run != Command::Nothing, live) << entry.Name.toString().toStdString();
  }
}

TEST(MenuTable, Entries_LiveOnes_RunEachItsOwnCommand) {
  QList<Command> commands;
  for (const MenuRow& entry : AllEntries()) {
    if (entry.Run != Command::Nothing) commands += entry.Run;
  }
  using enum Command;
  EXPECT_EQ(commands, QList<Command>({Open, New, RepairFile, DeleteCard, Quit, Undo, Cut, Copy, Paste,
                                      DeleteText, SelectAll, HelpOnImport, Options, HelpContents, VideoHelp,
                                      Samples, WebPage, About}));
}

TEST(MenuTable, Entries_ThatTheFrameAsksFor_AreThere) {
  for (const QStringView name : {RecentSeparator, DeleteCardEntry}) {
    EXPECT_TRUE(std::ranges::any_of(AllEntries(), [name](const MenuRow& row) { return row.Name == name; }));
  }
  EXPECT_EQ(Menus().front().Name, RecentMenu);
  EXPECT_EQ(Menus().front().Entries.back().Name, RecentSeparator);
}
