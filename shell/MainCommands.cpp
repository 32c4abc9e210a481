// SPDX-License-Identifier: MIT
// The command surface of Main: what each menu entry and toolbar button runs, and its guard.
#include "forms/Hourglass.h"
#include "forms/TextBox.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "shell/EditCommand.h"
#include "shell/Main.h"
#include "shell/MainMenu.h"
#include "shell/MainStrip.h"

#include <QAction>
#include <QMenuBar>
#include <QShortcut>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int importHelpTopic = 152;

}  // namespace

/// A toolbar button: a guarded one first closes the other screens, and stops when a card stays open unsaved.
struct Main::ToolCommand {
  bool Guarded = false;
  void (Main::*Run)() = nullptr;
};

void Main::SetupMenu() {
  const MainMenu::Commands commands{
      {u"open_new"_s, [this] { m_session->Open(); }},
      {u"file_new"_s, [this] { file_new_Click(); }},
      {u"Repair"_s, [this] { m_session->Repair(); }},
      {u"DelCard"_s, [this] { DelCard(); }},
      {u"exit"_s, [this] { exit_Click(); }},
      {u"hCancel"_s, [] { EditCommand(EditMessage::Undo); }},
      {u"hCut"_s, [] { EditCommand(EditMessage::Cut); }},
      {u"hCopy"_s, [] { EditCommand(EditMessage::Copy); }},
      {u"hPaste"_s, [] { EditCommand(EditMessage::Paste); }},
      {u"hDel"_s, [] { EditCommand(EditMessage::Clear); }},
      {u"hSelAll"_s, [] { EditCommand(EditMessage::SelectAll); }},
      {u"hHelpExport"_s, [this] { ShowHelpTopic(importHelpTopic); }},
      {u"mnuOptions"_s, [this] { ShowOptions(); }},
      {u"HelpM"_s, [this] { ShowHelpContents(); }},
      {u"hVideoHelp"_s, [this] { ShowVideoHelp(); }},
      {u"mnuSamples"_s, [this] { ShowSamples(); }},
      {u"mInternet"_s, [this] { OpenWebPage(); }},
      {u"About"_s, [this] { ShowAbout(); }},
  };
  m_menu = new MainMenu(menuBar(), commands, [this](int place) { m_session->OpenRecent(place); });
}

void Main::SetupToolbars() {
  connect(&pMainPic->ShortBar(), &MyToolBarCtrl::Click, this, &Main::OnShortTool);
  connect(&pMainPic->LongBar(), &MyToolBarCtrl::Click, this, &Main::OnLongTool);
}

void Main::SetupKeys() {
  connect(new QShortcut(QKeySequence(Qt::Key_F6), this), &QShortcut::activated, this,
          [this] { MoveAround(1); });
  connect(new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F6), this), &QShortcut::activated, this,
          [this] { MoveAround(-1); });
}

void Main::file_new_Click() {
  m_session->New();
  if (Global().ShowCreateHelp != False) ShowCreateHelpScreen();
}

void Main::RunTool(const ToolCommand& command) {
  if (command.Guarded) {
    UnloadOtherForms();
    if (Global().CardChanged != False) return;
  }
  (this->*command.Run)();
}

void Main::OnLongTool(int index) {
  // The three programs are numbered against the order of their buttons.
  static constexpr auto commands = std::to_array<ToolCommand>({
      {true, &Main::ShowQuickSearchOnCards}, {true, &Main::NewCard},
      {false, &Main::ShowBrowser},           {true, &Main::ShowBrowser},
      {false, &Main::ShowBrowser},           {true, &Main::ShowFieldEditor},
      {false, &Main::ShowBrowser},           {false, &Main::ShowBrowser},
      {false, &Main::ShowBrowser},           {true, &Main::ShowBrowser},
      {false, &Main::RunProgramNumber<3>},   {false, &Main::RunProgramNumber<2>},
      {false, &Main::RunProgramNumber<1>},   {false, &Main::RunCalculator},
      {false, &Main::ShowBrowser},           {false, &Main::ShowBrowser},
      {true, &Main::ShowQueryList},          {false, &Main::ReturnToPreviousQuery},
      {false, &Main::ShowBrowser},           {true, &Main::ShowSearch},
      {false, &Main::ShowBrowser},           {false, &Main::ShowBrowser},
      {false, &Main::ShowBrowser},           {true, &Main::QuitByToolbar},
  });
  static_assert(commands.size() == strings::tools::LongTips.size());
  const auto place = static_cast<std::size_t>(index);
  RunTool(place < commands.size() ? commands.at(place) : ToolCommand{false, &Main::ShowBrowser});
}

void Main::OnShortTool(int index) {
  static constexpr auto commands = std::to_array<ToolCommand>({
      {true, &Main::ShowCard},
      {true, &Main::ShowBrowser},
      {true, &Main::ShowBrowser},
      {true, &Main::ShowBrowser},
      {true, &Main::ShowBrowser},
      {true, &Main::ShowBrowser},
      {true, &Main::ShowBrowser},
      {true, &Main::ShowBrowser},
      {true, &Main::ShowQueryBuilder},
      {false, &Main::ShowBrowser},
      {false, &Main::ShowBrowser},
      {true, &Main::ShowBrowser},
  });
  static_assert(commands.size() == strings::tools::ShortTips.size());
  const auto place = static_cast<std::size_t>(index);
  RunTool(place < commands.size() ? commands.at(place) : ToolCommand{true, &Main::ShowBrowser});
}

void Main::MoveAround(int step) {
  // Screen, strip, short bar, long bar, and round again.
  constexpr int places = 4;
  int place = 0;
  const QWidget* focused = focusWidget();
  if (pMainPic->ShortBar().isAncestorOf(focused)) {
    place = 2;
  } else if (pMainPic->LongBar().isAncestorOf(focused)) {
    place = 3;
  } else if (pMainPic->isAncestorOf(focused)) {
    place = 1;
  }
  place = (place + step + places) % places;
  if (place == 0 && ui::ActiveChild() == nullptr) place = (place + step + places) % places;
  switch (place) {
    case 0:
      return ui::ActiveChild()->TakeFocus();
    case 1:
      return txtSeek().SetFocus();
    case 2:
      return pMainPic->ShortBar().SetFocus();
    default:
      return pMainPic->LongBar().SetFocus();
  }
}

void Main::ShowQuickSearchOnCards() {
  RepaintMain();
  if (OpenWithCards()) ShowQuickSearch();
}

void Main::WhatWasCmdEditFieldsClick() {
  const ui::Hourglass hourglass;
  RepaintMain();
  UnloadOtherForms();
  if (OpenWithCards()) OpenFieldEditor();
}

void Main::ShowFieldEditor() {
  // Without a file or cards too: the field editor copes by itself.
  CardCountZero();
  OpenFieldEditor();
}

void Main::ShowQueryBuilder() {
  RepaintMain();
  if (OpenWithCards()) OpenQueryBuilder();
}

void Main::ShowQueryList() {
  RepaintMain();
  if (OpenWithCards()) OpenQueryList();
}

void Main::ShowSearch() {
  RepaintMain();
  if (OpenWithCards()) OpenSearch();
}

}  // namespace velmora
