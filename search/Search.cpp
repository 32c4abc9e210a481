// SPDX-License-Identifier: MIT
#include "search/Search.h"

#include "cardfile/FieldCatalogue.h"
#include "forms/Makers.h"
#include "forms/MsgBox.h"
#include "forms/Notice.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "search/GridFind.h"
#include "search/SearchRows.h"

#include <QBoxLayout>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::namesearch;

namespace {

constexpr SearchDesign design{.Name = u"Search",
                              .Title = texts::Title,
                              .FirstTab = {},
                              .NameTip = texts::NameTip,
                              .Search = texts::FindNext,
                              .SearchKey = ui::Ampersand::Plain,
                              .SearchTip = texts::SearchTip,
                              .CardOrderTips = texts::CardOrderTips,
                              .CardTip = texts::CardTip,
                              .PrintTip = strings::search::PrintTip,
                              .CardNumber = texts::NumberHeading,
                              .CardNameWidth = 3800,
                              .ContactNameTip = texts::ContactNameTip,
                              .FindContact = texts::FindNext,
                              .FindContactTip = texts::FindContactTip,
                              .ContactOrderTips = texts::ContactOrderTips,
                              .Contact = texts::Contact,
                              .ContactTip = texts::ContactTip,
                              .ContactHelpTip = strings::search::HelpTip,
                              .ContactHeadings = texts::ContactHeadings,
                              .LastNameWidth = 1900};

SearchRows Rows() { return SearchRows(Global().File()); }

/// Whether rows were fetched into the grid.
bool HasData(const ui::FlexGrid& grid) { return grid.Rows() >= 2; }

QLayout* NewHead(QWidget* page, ui::SSCommand* data, ui::TextBox* box, const QList<QWidget*>& buttons) {
  auto* head = new QHBoxLayout;
  head->addWidget(data);
  head->addWidget(ui::NewLabel(page, u"lblFind"_s, strings::search::NameOrNumber, box));
  head->addWidget(box, 1);
  for (QWidget* button : buttons) head->addWidget(button);
  return head;
}

}  // namespace

Search::Search() : SearchForm(design) {
  cmdGetDataCard = ui::NewCommand(CardsPage(), u"cmdGetDataCard"_s, texts::Data, texts::CardDataTip);
  cmdFindPrev = ui::NewCommand(CardsPage(), u"cmdFindPrev"_s, texts::FindPrevious, texts::PreviousTip);
  cmdGetDataAgent = ui::NewCommand(ContactsPage(), u"cmdGetDataAgent"_s, texts::Data, texts::ContactDataTip);
  cmdPrev = ui::NewCommand(ContactsPage(), u"cmdPrev"_s, texts::FindPrevious, texts::PreviousTip);
  for (ui::SSCommand* button : {cmdSearch, cmdFindPrev, cmdFindFirst, cmdPrev}) button->setEnabled(false);
  connect(cmdGetDataCard, &ui::SSCommand::Click, this, &Search::cmdGetDataCardClick);
  connect(cmdFindPrev, &ui::SSCommand::Click, this, &Search::cmdFindPrevClick);
  connect(txtName, &ui::TextBox::Change, this, [this] { m_cards.StartOver(); });
  connect(cmdGetDataAgent, &ui::SSCommand::Click, this, &Search::cmdGetDataAgentClick);
  connect(cmdPrev, &ui::SSCommand::Click, this, &Search::cmdPrevClick);
  connect(txtAgent, &ui::TextBox::Change, this, [this] { m_contacts.StartOver(); });
  LayOut();
  connect(SSTab1, &ui::SSTab::Click, this, &Search::TabClick);
}

void Search::LayOut() {
  const auto contacts =
      LayOutContacts(NewHead(ContactsPage(), cmdGetDataAgent, txtAgent, {cmdFindFirst, cmdPrev}),
                     {cmdGetDataAgent, txtAgent, cmdFindFirst, cmdPrev});
  const auto cards = LayOutCards(NewHead(CardsPage(), cmdGetDataCard, txtName, {cmdSearch, cmdFindPrev}),
                                 {cmdGetDataCard, txtName, cmdSearch, cmdFindPrev});
  Finish(contacts + cards);
}

void Search::OnLoad() {
  SearchForm::OnLoad();
  SSTab1->SetTab(CardsTab());
}

void Search::OnActivate() {
  // Its page may be out of sight when the user comes back.
  if (SSTab1->Tab() == CardsTab()) cmdGetDataCard->SetFocus();
}

void Search::TabClick() { (SSTab1->Tab() == CardsTab() ? cmdGetDataCard : cmdGetDataAgent)->SetFocus(); }

void Search::cmdGetDataCardClick() {
  Run(cmdGetDataCard, [this] {
    cmdSearch->setEnabled(true);
    // The rows begin anew, as with a click on it.
    cmdCard[0].SetValue(true);
    m_cards.StartOver();
    ShowCards(Rows().AllCards(MainFieldName()));
  });
}

void Search::cmdGetDataAgentClick() {
  Run(cmdGetDataAgent, [this] {
    cmdAgent[0].SetValue(true);
    m_contacts.StartOver();
    cmdFindFirst->setEnabled(true);
    ShowContacts(Rows().AllContacts());
  });
}

void Search::cmdSearchClick() { FindNext(CardSteps(), ColumnOfCards(txtName->Text())); }

void Search::cmdFindPrevClick() { FindPrevious(CardSteps()); }

void Search::cmdFindFirstClick() {
  FindNext(ContactSteps(), ColumnOfContacts(txtAgent->Text(), cmdAgent[1].Value(), cmdAgent[2].Value()));
}

void Search::cmdPrevClick() { FindPrevious(ContactSteps()); }

void Search::FindNext(const Steps& steps, int column) {
  // Enter in the box comes here too.
  if (!steps.Next.isEnabled()) return ui::Notify(&steps.Box, texts::NoData);
  Found found = Found::NoText;
  const auto step = [&] {
    GridCells cells(steps.Grid);
    found = steps.Search.Next(cells, steps.Box.Text(), column);
  };
  if (!Run(&steps.Box, step)) return;
  if (found == Found::NoText) ui::Notify(&steps.Box, texts::NoTextTyped);
  if (found == Found::Another) steps.Previous.setEnabled(true);
  if (found == Found::AtEnd) ui::MsgBox(texts::End);
  if (found == Found::Nowhere) ui::MsgBox(texts::DoesNotExist);
}

void Search::FindPrevious(const Steps& steps) {
  Found found = Found::AtBeginning;
  const auto step = [&] {
    GridCells cells(steps.Grid);
    found = steps.Search.Previous(cells);
  };
  if (!Run(&steps.Box, step) || found != Found::AtBeginning) return;
  ui::MsgBox(texts::Beginning);
  // The way on from here is down, and a button that is disabled cannot keep the focus.
  steps.Next.SetFocus();
  steps.Previous.setEnabled(false);
}

void Search::cmdCardClick(ui::SSRibbon& button) {
  if (!HasData(*flxCard)) return RefuseSort(button, texts::NothingToSort);
  // Also when the button was released: the rows keep their order then, but the search begins anew.
  m_cards.StartOver();
  if (!button.Value()) return;
  Run(flxCard, [this, &button] {
    ShowCards(Rows().AllCards(MainFieldName(), static_cast<CardOrder>(button.Index())));
  });
}

void Search::cmdAgentClick(ui::SSRibbon& button) {
  if (!HasData(*flxAgent)) return RefuseSort(button, texts::NothingToSort);
  // Also when the button was released: the rows keep their order then, but the search begins anew.
  m_contacts.StartOver();
  if (!button.Value()) return;
  Run(flxAgent,
      [this, &button] { ShowContacts(Rows().AllContacts(static_cast<ContactOrder>(button.Index()))); });
}

void Search::cmdToAgentClick() {
  Frame::Main().EmptySeekBox();
  SearchForm::cmdToAgentClick();
}

}  // namespace velmora
