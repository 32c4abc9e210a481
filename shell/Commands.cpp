// SPDX-License-Identifier: MIT
#include "shell/Commands.h"

#include "cards/CardNavigation.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "queries/SelectNameQuery.h"
#include "resources/HelpTopics.h"
#include "shell/CardFileSession.h"
#include "shell/CardSteps.h"
#include "shell/CardsNeeded.h"
#include "shell/EditCommand.h"
#include "shell/Programs.h"
#include "shell/ScreenOpeners.h"

#include <algorithm>
#include <array>

namespace velmora {

std::span<const Commands::Entry> Commands::Entries() {
  static constexpr auto entries = std::to_array<Entry>(
      {{Command::Nothing, [](Commands&) {}},
       {Command::Open, [](Commands& commands) { commands.m_session.Open(); }},
       {Command::New, [](Commands& commands) { commands.New(); }},
       {Command::RepairFile, [](Commands& commands) { commands.m_session.Repair(); }},
       {Command::DeleteCard, [](Commands& commands) { commands.DeleteCard(); }},
       {Command::Quit, [](Commands& commands) { commands.m_window.Quit(); }},
       {Command::Undo, [](Commands&) { EditCommand(EditMessage::Undo); }},
       {Command::Cut, [](Commands&) { EditCommand(EditMessage::Cut); }},
       {Command::Copy, [](Commands&) { EditCommand(EditMessage::Copy); }},
       {Command::Paste, [](Commands&) { EditCommand(EditMessage::Paste); }},
       {Command::DeleteText, [](Commands&) { EditCommand(EditMessage::Clear); }},
       {Command::SelectAll, [](Commands&) { EditCommand(EditMessage::SelectAll); }},
       {Command::HelpOnImport, [](Commands&) { OpenHelpTopic(topics::ImportAndExport); }},
       {Command::Options, [](Commands&) { OpenOptions(); }},
       {Command::HelpContents, [](Commands&) { OpenHelpContents(); }},
       // The tutorial was a film on a disc that no longer comes with the program.
       {Command::VideoHelp, [](Commands&) {}},
       {Command::Samples, [](Commands& commands) { OpenSamples(commands.m_session); }},
       {Command::WebPage, [](Commands&) { OpenWebPage(); }},
       {Command::About, [](Commands&) { OpenAbout(); }},
       {Command::CustomerCard, [](Commands& commands) { commands.m_frame.ShowCard(); }},
       {Command::NewCard, [](Commands& commands) { commands.m_frame.NewCard(); }},
       {Command::QuickSearch,
        [](Commands& commands) {
          commands.OpenOverCards([&commands] { commands.m_frame.ShowQuickSearch(); });
        }},
       {Command::Search, [](Commands& commands) { commands.OpenOverCards(OpenSearch); }},
       {Command::FieldEditor, [](Commands& commands) { commands.FieldEditor(); }},
       {Command::QueryBuilder, [](Commands& commands) { commands.OpenOverCards(OpenQueryBuilder); }},
       {Command::QueryList, [](Commands& commands) { commands.OpenOverCards(OpenQueryList); }},
       {Command::PreviousQuery, [](Commands&) { ReturnToQuery(); }},
       {Command::Program1, [](Commands& commands) { commands.StartProgram(1); }},
       {Command::Program2, [](Commands& commands) { commands.StartProgram(2); }},
       {Command::Program3, [](Commands& commands) { commands.StartProgram(3); }},
       {Command::Calculator,
        [](Commands& commands) {
          commands.m_frame.RepaintMain();
          RunCalculator();
        }},
       {Command::Browser, [](Commands&) { OpenBrowser(); }}});
  static_assert(entries.size() == static_cast<std::size_t>(Command::Browser) + 1);
  return entries;
}

void Commands::Run(Command command) {
  const auto entry = std::ranges::find(Entries(), command, &Entry::Which);
  Q_ASSERT(entry != Entries().end());
  entry->Do(*this);
}

void Commands::Press(ToolRows bar, int index) {
  PressTool(
      bar, index, [this] { return m_frame.UnloadOtherForms(); }, [this](Command command) { Run(command); });
}

void Commands::New() {
  m_session.New();
  if (Global().ShowCreateHelp != False) OpenCreateHelp();
}

void Commands::DeleteCard() {
  DeleteCurrentCard([] { StepCard(1); });
}

void Commands::OpenOverCards(const std::function<void()>& open) {
  m_frame.RepaintMain();
  if (HasCardsOrTells(m_frame)) open();
}

void Commands::StartProgram(int number) {
  if (RunProgram(number)) m_window.Minimise();
}

void Commands::FieldEditor() {
  // For the blanking of the strip alone: without a file or cards too, the field editor copes by itself.
  m_frame.CardCountZero();
  OpenFieldEditor();
}

}  // namespace velmora
