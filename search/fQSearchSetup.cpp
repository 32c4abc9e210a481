// SPDX-License-Identifier: MIT
#include "forms/Labels.h"
#include "forms/Makers.h"
#include "forms/Notice.h"
#include "resources/strings.h"
#include "search/fQSearch.h"

#include <QBoxLayout>
#include <QGridLayout>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::quicksearch;

namespace {

constexpr SearchDesign design{.Name = u"fQSearch",
                              .Title = texts::Title,
                              .FirstTab = texts::TelephoneTab,
                              .NameTip = texts::NameTip,
                              .Search = texts::Search,
                              .SearchKey = ui::Ampersand::AccessKey,
                              .SearchTip = texts::SearchTip,
                              .CardOrderTips = texts::CardOrderTips,
                              .CardTip = texts::CardTip,
                              .PrintTip = texts::PrintTip,
                              .CardNumber = strings::search::NumberHeading,
                              .CardNameWidth = 3900,
                              .ContactNameTip = texts::FirstNameTip,
                              .FindContact = texts::Find,
                              .FindContactTip = texts::FindFirstTip,
                              .ContactOrderTips = texts::ContactOrderTips,
                              .Contact = texts::Contacts,
                              .ContactTip = texts::ContactTip,
                              .ContactHelpTip = texts::ContactHelpTip,
                              .ContactHeadings = texts::ContactHeadings,
                              .LastNameWidth = 2000};

ui::Label* NewLabel(QWidget* page, const QString& name, const QString& caption, QWidget* buddy,
                    const QString& tip) {
  ui::Label* label = ui::NewLabel(page, name, caption, buddy);
  label->setToolTip(tip);
  return label;
}

}  // namespace

fQSearch::fQSearch() : SearchForm(design) {
  QWidget* contacts = ContactsPage();
  txtSname = ui::NewControl<ui::TextBox>(contacts, u"txtSname"_s, {.Tip = texts::LastNameTip});
  cmdFindSName = ui::NewCommand(contacts, u"cmdFindSName"_s, texts::Find, texts::FindLastTip);
  const auto findLastName = [this] { FindContact(*txtSname, ContactName::Last); };
  connect(txtSname, &ui::TextBox::EnterPressed, this, findLastName);
  connect(cmdFindSName, &ui::SSCommand::Click, this, findLastName);
  SetupTelephone();
  SetupPrinting();
  LayOut();
  connect(SSTab1, &ui::SSTab::Click, this, &fQSearch::TabClick);
}

void fQSearch::SetupTelephone() {
  QWidget* page = SSTab1->widget(0);
  txtTeleph = ui::NewControl<ui::TextBox>(page, u"txtTeleph"_s, {.Tip = texts::TelephoneTip});
  cmdFindNumber = ui::NewCommand(page, u"cmdFindNumber"_s, texts::Find, texts::FindNumberTip);
  connect(txtTeleph, &ui::TextBox::EnterPressed, this, &fQSearch::cmdFindNumberClick);
  connect(cmdFindNumber, &ui::SSCommand::Click, this, &fQSearch::cmdFindNumberClick);
  gridNumber = ui::NewControl<ui::FlexGrid>(page, u"gridNumber"_s, {.Spoken = texts::ContactNumbers});
  gridFTel = ui::NewControl<ui::FlexGrid>(page, u"gridFTel"_s, {.Spoken = texts::CardNumbers});
  for (ui::FlexGrid* grid : {gridNumber, gridFTel}) {
    connect(grid, &ui::FlexGrid::DblClick, this,
            [grid] { ui::Notify(grid, strings::search::NoCardFromHere); });
  }
}

void fQSearch::SetupPrinting() {
  QWidget* page = SSTab1->widget(0);
  cmdCardTeleph = NewInertButton(page, u"cmdCardTeleph"_s, strings::search::Card, texts::TelephoneCardTip,
                                 strings::search::NoCardFromHere);
  cmdPrtAll = NewInertButton(page, u"cmdPrtAll"_s, strings::search::Print, texts::PrintAllTip,
                             strings::search::NoPrinting);
  CmdHelp2 = NewHelpButton(page, u"CmdHelp2"_s, strings::search::HelpTip);
}

void fQSearch::LayOut() {
  const QList<QWidget*> telephone = LayOutTelephone();
  const QList<QWidget*> contacts =
      LayOutContacts(ContactHead(), {txtAgent, cmdFindFirst, txtSname, cmdFindSName});
  auto* head = new QHBoxLayout;
  head->addWidget(ui::NewLabel(CardsPage(), u"lblName"_s, strings::search::NameOrNumber, txtName));
  head->addWidget(txtName, 1);
  head->addWidget(cmdSearch);
  Finish(telephone + contacts + LayOutCards(head, {txtName, cmdSearch}));
}

QLayout* fQSearch::ContactHead() {
  QWidget* page = ContactsPage();
  auto* head = new QGridLayout;
  head->addWidget(NewLabel(page, u"lblAgent"_s, texts::FirstName, txtAgent, texts::FirstNameLabelTip), 0, 0);
  head->addWidget(txtAgent, 0, 1);
  head->addWidget(cmdFindFirst, 0, 2);
  head->addWidget(NewLabel(page, u"lblSname"_s, texts::LastName, txtSname, texts::LastNameLabelTip), 1, 0);
  head->addWidget(txtSname, 1, 1);
  head->addWidget(cmdFindSName, 1, 2);
  return head;
}

QList<QWidget*> fQSearch::LayOutTelephone() {
  QWidget* page = SSTab1->widget(0);
  auto* head = new QHBoxLayout;
  head->addWidget(ui::NewLabel(page, u"lblTeleph"_s, texts::Telephone, txtTeleph));
  head->addWidget(txtTeleph, 1);
  head->addWidget(cmdFindNumber);

  auto* frame1 = ui::NewControl<ui::GroupFrame>(page, u"Frame1"_s);
  // Its caption stands before the choices: above them it would take the room of a row of each grid.
  frame1->setFlat(true);
  frame1->setAccessibleName(texts::ListToPrint);
  auto* choice = new QHBoxLayout(frame1);
  choice->setContentsMargins(0, 0, 0, 0);
  OPTcARD = ui::NewControl<ui::OptionButton>(frame1, u"OPTcARD"_s, {.Tip = texts::CardListTip});
  OPTcARD->SetCaption(texts::CardList);
  OPTaG = ui::NewControl<ui::OptionButton>(frame1, u"OPTaG"_s, {.Tip = texts::ContactListTip});
  OPTaG->SetCaption(texts::ContactList);
  OPTaG->SetValue(true);
  choice->addWidget(ui::NewLabel(frame1, u"lblListToPrint"_s, texts::ListToPrint));
  choice->addWidget(OPTcARD);
  choice->addWidget(OPTaG);

  auto* rows = new QVBoxLayout(page);
  rows->addLayout(head);
  rows->addWidget(ui::NewLabel(page, u"lblNumber"_s, texts::ContactNumbers, gridNumber));
  rows->addWidget(gridNumber, 3);
  rows->addWidget(ui::NewLabel(page, u"lblFTel"_s, texts::CardNumbers, gridFTel));
  rows->addWidget(gridFTel, 2);
  rows->addLayout(ui::NewButtonRow({frame1}, {cmdCardTeleph, cmdPrtAll, CmdHelp2}));
  return {txtTeleph, cmdFindNumber, gridNumber, gridFTel, OPTcARD, OPTaG, cmdCardTeleph, cmdPrtAll, CmdHelp2};
}

}  // namespace velmora
