// SPDX-License-Identifier: MIT
#include "shell/MainMenu.h"

#include "resources/strings.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::menu;

namespace {

/// How an entry starts; nothing changes it but the recent list and Delete Card.
enum class Start { Enabled, Disabled, Hidden };

struct MenuEntry {
  QStringView Name;
  strings::Text Caption;
  QStringView Shortcut = {};
  Start State = Start::Enabled;
};

constexpr QStringView recentSeparator = u"hSep";

// Disabled entries belong to features that this program does not have; they keep their place.
constexpr auto fileEntries = std::to_array<MenuEntry>({
    {u"open_new", texts::Open, u"Ctrl+O"},
    {u"file_new", texts::New, u"Ctrl+N"},
    {u"mPrint", texts::Print, {}, Start::Hidden},
    {u"mnuMakeReplica", texts::MakeReplica, u"Ctrl+R", Start::Disabled},
    {u"mnuSynchronize", texts::Synchronize, {}, Start::Disabled},
    {u"mnuResolveConflicts", texts::ResolveConflicts, {}, Start::Disabled},
    {u"mnuImportFile", texts::ImportFile, u"Ctrl+I", Start::Disabled},
    {u"Repair", texts::RepairFile},
    {u"DelCard", texts::DeleteCard, u"Ctrl+D"},
    {u"aa", texts::Separator},
    {u"exit", texts::Quit, u"Ctrl+Q"},
    {recentSeparator, texts::Separator, {}, Start::Hidden},
});

constexpr auto editEntries = std::to_array<MenuEntry>({
    {u"hCancel", texts::Undo},
    {u"qweqew", texts::Separator},
    {u"hCut", texts::Cut, u"Ctrl+X"},
    {u"hCopy", texts::Copy, u"Ctrl+C"},
    {u"hPaste", texts::Paste, u"Ctrl+V"},
    {u"hDel", texts::Delete, u"Del"},
    {u"asdfsdff", texts::Separator},
    {u"hSelAll", texts::SelectAll},
    {u"kljh", texts::Separator},
    {u"hCopyAgent", texts::CopyContact, {}, Start::Disabled},
    {u"hPasteAgent", texts::PasteContact, {}, Start::Disabled},
});

constexpr auto toolsEntries = std::to_array<MenuEntry>({
    {u"ImportExcel", texts::ImportExcel, {}, Start::Disabled},
    {u"ExportNames", texts::ExportNames, {}, Start::Disabled},
    {u"adasdad", texts::Separator},
    {u"hImpProd", texts::ImportProducts, {}, Start::Disabled},
    {u"hImpFields", texts::ExportProductNames, {}, Start::Disabled},
    {u"jhg", texts::Separator},
    {u"hHelpExport", texts::HelpOnImport},
});

constexpr auto optionsEntries = std::to_array<MenuEntry>({
    {u"mnuOptions", texts::Options},
});

constexpr auto helpEntries = std::to_array<MenuEntry>({
    {u"HelpM", texts::HelpTopics, u"F1"},
    {u"hVideoHelp", texts::VideoHelp},
    {u"mnuSamples", texts::Samples},
    {u"mInternet", strings::WebAddress},
    {u"mnuEmailUs", texts::EmailUs},
    {u"gfhgh", texts::Separator},
    {u"About", texts::About},
});

struct Menu {
  QStringView Name;
  strings::Text Caption;
  std::span<const MenuEntry> Entries;
};

constexpr auto menus = std::to_array<Menu>({
    {u"file", texts::File, fileEntries},
    {u"hEdit", texts::Edit, editEntries},
    {u"Tools", texts::Tools, toolsEntries},
    {u"Options", texts::OptionsMenu, optionsEntries},
    {u"About1", texts::HelpMenu, helpEntries},
});

/// A path as a menu caption: an ampersand in it is no mnemonic.
QString CaptionOf(QString path) { return path.replace(u'&', u"&&"_s); }

}  // namespace

MainMenu::MainMenu(QMenuBar* bar, const Commands& commands, const OpenRecent& openRecent) : QObject(bar) {
  for (const Menu& row : menus) {
    QMenu* menu = bar->addMenu(row.Caption);
    menu->setObjectName(row.Name.toString());
    for (const MenuEntry& entry : row.Entries) {
      const QString name = entry.Name.toString();
      const bool parts = entry.Caption.View() == texts::Separator.View();
      QAction* action = parts ? menu->addSeparator() : menu->addAction(entry.Caption);
      action->setObjectName(name);
      action->setShortcut(QKeySequence(entry.Shortcut.toString()));
      action->setEnabled(entry.State != Start::Disabled);
      action->setVisible(entry.State != Start::Hidden);
      m_entries[name] = action;
      if (const auto command = commands.find(name); command != commands.end()) {
        connect(action, &QAction::triggered, this, command->second);
      }
    }
  }
  AddRecent(bar->findChild<QMenu*>(u"file"_s), openRecent);
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

QAction& MainMenu::Entry(const QString& name) const { return *m_entries.at(name); }

void MainMenu::ShowRecent(const RecentList& paths) {
  for (std::size_t place = 0; place < m_recent.size(); ++place) {
    const QString& path = paths.at(place);
    if (path.isEmpty()) continue;
    Entry(recentSeparator.toString()).setVisible(true);
    m_paths.at(place) = path;
    m_recent.at(place)->setText(CaptionOf(path));
    m_recent.at(place)->setVisible(true);
  }
}

void MainMenu::HideRecent(int place) { m_recent.at(static_cast<std::size_t>(place))->setVisible(false); }

}  // namespace velmora
