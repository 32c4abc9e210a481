// SPDX-License-Identifier: MIT
// The screens and programs around the card work that Main opens; each has one place.
#include "shell/Main.h"

namespace velmora {

void Main::ShowWelcome() {
  // The welcome of a user without a card file comes up here.
}

void Main::ShowSamples() {
  // The choice of a sample file comes up here.
}

void Main::ShowQuickSearch(const QString& /*name*/) {
  // The quick search opens here, on its cards, in place of the screen that asks.
}

void Main::OpenSearch() {
  // The search by name opens here.
}

void Main::OpenQueryBuilder() {
  // The query screen opens here.
}

void Main::OpenQueryList() {
  // The list of stored queries opens here.
}

void Main::ReturnToPreviousQuery() {
  // The result of the last query is shown again here.
}

void Main::ShowValueList(CardScreen /*owner*/) {
  // The value list of the text field CurFieldIndex opens here.
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
