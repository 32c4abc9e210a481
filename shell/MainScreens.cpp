// SPDX-License-Identifier: MIT
// The screens and programs around the card work that Main opens; each has one place.
#include "cardfile/EnterItem.h"
#include "cardfile/EnterShow.h"
#include "cards/EditTable.h"
#include "cards/ShowTable.h"
#include "forms/Default.h"
#include "frame/Session.h"
#include "queries/QueryN.h"
#include "queries/SelectNameQuery.h"
#include "shell/Main.h"

namespace velmora {

namespace {

/// The text field CurFieldIndex of a card screen; without a box, or even a name, when it has none there.
ValueListField CurrentTextField(const CardForm& screen) {
  const int index = Global().CurFieldIndex;
  return {.Name = screen.NameLab.Has(index) ? screen.NameLab[index].Caption() : QString(),
          .Box = screen.NameText.Has(index) ? &screen.NameText[index] : nullptr};
}

}  // namespace

void Main::ShowWelcome() {
  // The welcome of a user without a card file comes up here.
}

void Main::ShowSamples() {
  // The choice of a sample file comes up here.
}

void Main::ShowCreateHelpScreen() {
  // The advice on a first file comes up here, over the wizard.
}

void Main::ShowQuickSearch() {
  // The quick search opens here, on its cards.
}

void Main::SearchSimilarNames(const QString& /*word*/) {
  // The quick search opens here with its search done, and the card screen that asks closes.
}

void Main::OpenSearch() {
  // The search by name opens here.
}

void Main::OpenQueryBuilder() { ui::Default<QueryN>().Show(); }

void Main::OpenQueryList() { ui::Default<SelectNameQuery>().Show(ui::ShowMode::Modal, ui::OpenedBy::Frame); }

void Main::ReturnToPreviousQuery() { ReturnToQuery(); }

void Main::ShowValueList(CardScreen owner) {
  ui::Form* list = nullptr;
  if (owner == CardScreen::Viewer) {
    list = new EnterShow(CurrentTextField(ui::Default<ShowTable>()));
  } else {
    list = new EnterItem(CurrentTextField(ui::Default<EditTable>()));
  }
  list->Show(ui::ShowMode::Modal);
}

void Main::OpenFieldEditor() {
  // The field editor opens here.
}

void Main::ShowOptions() {
  // The options come up here.
}

void Main::ShowBrowser() {
  // The description of features that this program does not have opens here.
}

void Main::ShowAbout() {
  // The program tells about itself here.
}

void Main::ShowHelpContents() {
  // The help opens here, at its contents.
}

void Main::ShowHelpTopic(int /*number*/) {
  // The help opens here, at the topic of that number.
}

void Main::ShowVideoHelp() {
  // The video help starts here.
}

void Main::OpenWebPage() {
  // The browser opens the product's page here.
}

void Main::RunCalculator() {
  // The calculator starts here.
}

void Main::RunProgram(int /*number*/) {
  // The program of that shortcut button starts here.
}

}  // namespace velmora
