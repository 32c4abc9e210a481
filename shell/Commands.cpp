// SPDX-License-Identifier: MIT
#include "shell/Commands.h"

#include "cards/CardNavigation.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "queries/SelectNameQuery.h"
#include "shell/CardFileSession.h"
#include "shell/CardSteps.h"
#include "shell/EditCommand.h"
#include "shell/Programs.h"
#include "shell/ScreenOpeners.h"

namespace velmora {

namespace {

constexpr int importHelpTopic = 152;

}  // namespace

void Commands::Run(Command command) {
  switch (command) {
    case Command::Nothing:
      return;
    case Command::Open:
      return m_session.Open();
    case Command::New:
      return New();
    case Command::RepairFile:
      return m_session.Repair();
    case Command::DeleteCard:
      return DeleteCard();
    case Command::Quit:
      return m_quit();
    case Command::Undo:
      return EditCommand(EditMessage::Undo);
    case Command::Cut:
      return EditCommand(EditMessage::Cut);
    case Command::Copy:
      return EditCommand(EditMessage::Copy);
    case Command::Paste:
      return EditCommand(EditMessage::Paste);
    case Command::DeleteText:
      return EditCommand(EditMessage::Clear);
    case Command::SelectAll:
      return EditCommand(EditMessage::SelectAll);
    case Command::HelpOnImport:
      return OpenHelpTopic(importHelpTopic);
    case Command::Options:
      return OpenOptions();
    case Command::HelpContents:
      return OpenHelpContents();
    case Command::VideoHelp:
      return RunVideoHelp();
    case Command::Samples:
      return OpenSamples();
    case Command::WebPage:
      return OpenWebPage();
    case Command::About:
      return OpenAbout();
    case Command::CustomerCard:
      return m_frame.ShowCard();
    case Command::NewCard:
      return m_frame.NewCard();
    case Command::QuickSearch:
      return QuickSearch();
    case Command::Search:
      return Search();
    case Command::FieldEditor:
      return FieldEditor();
    case Command::QueryBuilder:
      return QueryBuilder();
    case Command::QueryList:
      return QueryList();
    case Command::PreviousQuery:
      return ReturnToQuery();
    case Command::Program1:
      return RunProgram(1);
    case Command::Program2:
      return RunProgram(2);
    case Command::Program3:
      return RunProgram(3);
    case Command::Calculator:
      return RunCalculator();
    case Command::Browser:
      return OpenBrowser();
  }
}

void Commands::Press(ToolRows bar, int index) {
  PressTool(
      bar, index, [this] { return CloseOthers(); }, [this](Command command) { Run(command); });
}

bool Commands::CloseOthers() { return m_frame.UnloadOtherForms() && Global().CardChanged == False; }

void Commands::New() {
  m_session.New();
  if (Global().ShowCreateHelp != False) OpenCreateHelp();
}

void Commands::DeleteCard() {
  DeleteCurrentCard([] { StepCard(1); });
}

void Commands::QuickSearch() {
  m_frame.RepaintMain();
  if (m_frame.OpenWithCards()) m_frame.ShowQuickSearch();
}

void Commands::Search() {
  m_frame.RepaintMain();
  if (m_frame.OpenWithCards()) OpenSearch();
}

void Commands::FieldEditor() {
  // For the blanking of the strip alone: without a file or cards too, the field editor copes by itself.
  m_frame.CardCountZero();
  OpenFieldEditor();
}

void Commands::QueryBuilder() {
  m_frame.RepaintMain();
  if (m_frame.OpenWithCards()) OpenQueryBuilder();
}

void Commands::QueryList() {
  m_frame.RepaintMain();
  if (m_frame.OpenWithCards()) OpenQueryList();
}

}  // namespace velmora
