// SPDX-License-Identifier: MIT
#include "shell/ScreenOpeners.h"

#include "cardfile/EnterItem.h"
#include "cardfile/EnterShow.h"
#include "cardfile/fEditLab.h"
#include "cards/EditTable.h"
#include "cards/ShowTable.h"
#include "forms/Default.h"
#include "forms/Form.h"
#include "forms/Screen.h"
#include "frame/Session.h"
#include "queries/QueryN.h"
#include "queries/SelectNameQuery.h"
#include "search/Search.h"
#include "search/fQSearch.h"
#include "shell/CardFileSession.h"
#include "shell/FHelpSamples.h"
#include "shell/frmAbout.h"
#include "shell/frmBrowser.h"
#include "shell/frmHelpCreate.h"
#include "shell/frmOptions.h"
#include "shell/frmTut.h"

namespace velmora {

namespace {

/// The text field CurFieldIndex of a card screen; without a box, or even a name, when it has none there.
ValueListField CurrentTextField(const CardForm& screen) {
  const int index = Global().CurFieldIndex;
  return {.Name = screen.NameLab.Has(index) ? screen.NameLab[index].Caption() : QString(),
          .Box = screen.NameText.Has(index) ? &screen.NameText[index] : nullptr};
}

}  // namespace

void OpenWelcome(CardFileSession& session, const std::function<void()>& newFile) {
  auto& welcome = ui::Default<frmTut>();
  welcome.NewFile = newFile;
  welcome.Samples = [&session] { OpenSamples(session); };
  welcome.Show(ui::ShowMode::Modal, ui::OpenedBy::Frame);
}

void OpenSamples(CardFileSession& session) {
  auto& samples = ui::Default<FHelpSamples>();
  samples.OpenSampleList = [&session] { session.OpenSampleList(); };
  // A changed card under them stays as it is, as under the options.
  samples.Show(ui::ShowMode::Modal);
}

void OpenCreateHelp() { ui::Default<frmHelpCreate>().Show(ui::ShowMode::Modal, ui::OpenedBy::Frame); }

void OpenQuickSearch() {
  auto& search = ui::Default<fQSearch>();
  search.ShowCardsTab();
  search.Show();
}

void OpenSimilarNames(const QString& word) {
  const bool wasOpen = ui::FindScreen(u"fQSearch") != nullptr;
  auto& search = ui::Default<fQSearch>();
  search.SearchCards(word);
  if (Frame::Main().CloseCardScreens()) {
    search.Show();
  } else if (!wasOpen) {
    search.Unload();
  }
}

void OpenSearch() { ui::Default<Search>().Show(); }

void OpenQueryBuilder() { ui::Default<QueryN>().Show(); }

void OpenQueryList() { ui::Default<SelectNameQuery>().Show(ui::ShowMode::Modal, ui::OpenedBy::Frame); }

void OpenValueList(CardScreen owner) {
  ui::Form* list = nullptr;
  if (owner == CardScreen::Viewer) {
    list = new EnterShow(CurrentTextField(ui::Default<ShowTable>()));
  } else {
    list = new EnterItem(CurrentTextField(ui::Default<EditTable>()));
  }
  list->Show(ui::ShowMode::Modal);
}

void OpenFieldEditor() {
  auto& editor = ui::Default<fEditLab>();
  // Its load closes the viewer. One that stays has a card that could not be stored, and needs its columns.
  if (ui::FindScreen(u"ShowTable") == nullptr) {
    editor.Show();
  } else {
    editor.Unload();
  }
}

void OpenOptions() {
  // A changed card under it stays as it is: it is no screen that the user comes back to.
  ui::Default<frmOptions>().Show(ui::ShowMode::Modal);
}

void OpenBrowser() { ui::Default<frmBrowser>().Show(); }

void OpenAbout() { ui::Default<frmAbout>().Show(); }

}  // namespace velmora
