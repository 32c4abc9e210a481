// SPDX-License-Identifier: MIT
#include "search/SearchForm.h"

#include "base/system/Failures.h"
#include "base/text/Numbers.h"
#include "cardfile/FieldCatalogue.h"
#include "forms/Hourglass.h"
#include "forms/Makers.h"
#include "forms/Notice.h"
#include "forms/RecordsetSource.h"
#include "forms/TabChain.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "resources/HelpTopics.h"
#include "resources/strings.h"

#include <QBoxLayout>
#include <QTabBar>

#include <algorithm>
#include <exception>
#include <limits>
#include <memory>
#include <span>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::search;

namespace {

constexpr int innerWidth = 9300;
constexpr int innerHeight = 4350;
constexpr int numberWidth = 680;
constexpr int firstNameWidth = 1900;

ui::SSTab* NewTabs(QWidget* parent, const SearchDesign& design) {
  auto* tabs = ui::NewControl<ui::SSTab>(parent, u"SSTab1"_s);
  tabs->tabBar()->setAccessibleName(texts::Tabs);
  if (design.FirstTab) static_cast<void>(tabs->AddPage(*design.FirstTab));
  static_cast<void>(tabs->AddPage(texts::ContactsTab));
  static_cast<void>(tabs->AddPage(texts::CardsTab));
  return tabs;
}

void SetupOrders(const ui::ControlArray<ui::SSRibbon>& buttons, std::span<const strings::Text> captions,
                 std::span<const strings::Text> tips) {
  QList<ui::SSRibbon*> group;
  buttons.ForEach([&](ui::SSRibbon& button) {
    const auto place = static_cast<std::size_t>(button.Index());
    button.SetCaption(captions[place]);
    button.setToolTip(tips[place]);
    // The caption alone does not tell that it is about an order.
    button.setAccessibleName(QString(texts::SortBy) + u' ' + captions[place]);
    button.SetVisible(true);
    group += &button;
  });
  ui::SSRibbon::Group(group);
}

/// A page: what it has at its head, its grid, and at its foot sort buttons and other buttons, the last of
/// them at the right end.
QList<QWidget*> LayOut(QWidget* page, QLayout* head, ui::FlexGrid* grid,
                       const ui::ControlArray<ui::SSRibbon>& orders, const QList<QWidget*>& buttons) {
  QList<QWidget*> left = orders.Widgets();
  left.prepend(ui::NewLabel(page, u"lblOrder"_s, texts::SortBy));
  auto* rows = new QVBoxLayout(page);
  rows->addLayout(head);
  rows->addWidget(grid, 1);
  rows->addLayout(ui::NewButtonRow(left, buttons));
  return QList<QWidget*>{grid} + orders.Widgets() + buttons;
}

}  // namespace

SearchForm::SearchForm(const SearchDesign& design)
    : Form(design.Name.toString(), design.Title),
      SSTab1(NewTabs(this, design)),
      cmdCard(CardsPage(), u"cmdCard"_s),
      cmdAgent(ContactsPage(), u"cmdAgent"_s),
      m_design(design) {
  SetHelpTopic(topics::Searches);
  SetupCards();
  SetupContacts();
  SetInnerSize(innerWidth, innerHeight);
}

void SearchForm::SetupCards() {
  QWidget* page = CardsPage();
  txtName = ui::NewControl<ui::TextBox>(page, u"txtName"_s, {.Tip = m_design.NameTip});
  cmdSearch = ui::NewControl<ui::SSCommand>(page, u"cmdSearch"_s, {.Tip = m_design.SearchTip});
  cmdSearch->SetCaption(m_design.Search, m_design.SearchKey);
  cmdCard.Load(1);
  SetupOrders(cmdCard, texts::CardOrders, m_design.CardOrderTips);
  flxCard = ui::NewControl<ui::FlexGrid>(page, u"flxCard"_s, {.Spoken = texts::Cards});
  cmdToCard = ui::NewCommand(page, u"cmdToCard"_s, texts::Card, m_design.CardTip);
  cmdPrint = NewInertButton(page, u"cmdPrint"_s, texts::Print, m_design.PrintTip, texts::NoPrinting);
  CmdHelp1 = NewHelpButton(page, u"CmdHelp1"_s, texts::HelpTip);

  connect(txtName, &ui::TextBox::EnterPressed, this, [this] { cmdSearchClick(); });
  connect(cmdSearch, &ui::SSCommand::Click, this, [this] { cmdSearchClick(); });
  cmdCard.ForEach([this](ui::SSRibbon& button) {
    connect(&button, &ui::SSCommand::Click, this, [this, &button] { cmdCardClick(button); });
  });
  connect(flxCard, &ui::FlexGrid::DblClick, this, [this] { HandOver(); });
  connect(cmdToCard, &ui::SSCommand::Click, this, &SearchForm::cmdToCardClick);
}

void SearchForm::SetupContacts() {
  QWidget* page = ContactsPage();
  txtAgent = ui::NewControl<ui::TextBox>(page, u"txtAgent"_s, {.Tip = m_design.ContactNameTip});
  cmdFindFirst = ui::NewCommand(page, u"cmdFindFirst"_s, m_design.FindContact, m_design.FindContactTip);
  cmdAgent.Load(1);
  cmdAgent.Load(2);
  SetupOrders(cmdAgent, texts::ContactOrders, m_design.ContactOrderTips);
  flxAgent = ui::NewControl<ui::FlexGrid>(page, u"flxAgent"_s, {.Spoken = texts::Contacts});
  cmdToAgent = ui::NewCommand(page, u"cmdToAgent"_s, m_design.Contact, m_design.ContactTip);
  cmdPrintAgent =
      NewInertButton(page, u"cmdPrintAgent"_s, texts::Print, m_design.PrintTip, texts::NoPrinting);
  CmdHelp = NewHelpButton(page, u"CmdHelp"_s, m_design.ContactHelpTip);

  connect(txtAgent, &ui::TextBox::EnterPressed, this, [this] { cmdFindFirstClick(); });
  connect(cmdFindFirst, &ui::SSCommand::Click, this, [this] { cmdFindFirstClick(); });
  cmdAgent.ForEach([this](ui::SSRibbon& button) {
    connect(&button, &ui::SSCommand::Click, this, [this, &button] { cmdAgentClick(button); });
  });
  connect(flxAgent, &ui::FlexGrid::DblClick, this, [this] { ui::Notify(flxAgent, texts::NoContactCard); });
  connect(cmdToAgent, &ui::SSCommand::Click, this, [this] { cmdToAgentClick(); });
}

QList<QWidget*> SearchForm::LayOutCards(QLayout* head, const QList<QWidget*>& headStops) {
  return headStops + LayOut(CardsPage(), head, flxCard, cmdCard, {cmdToCard, cmdPrint, CmdHelp1});
}

QList<QWidget*> SearchForm::LayOutContacts(QLayout* head, const QList<QWidget*>& headStops) {
  return headStops + LayOut(ContactsPage(), head, flxAgent, cmdAgent, {cmdToAgent, cmdPrintAgent, CmdHelp});
}

void SearchForm::Finish(const QList<QWidget*>& stops) {
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(SSTab1);
  ui::ChainTabStops(QList<QWidget*>{SSTab1->tabBar()} + stops);
}

ui::SSCommand* SearchForm::NewInertButton(QWidget* page, const QString& name, const QString& caption,
                                          const QString& tip, const QString& notice) {
  ui::SSCommand* button = ui::NewCommand(page, name, caption, tip);
  connect(button, &ui::SSCommand::Click, button, [button, notice] { ui::Notify(button, notice); });
  return button;
}

ui::SSCommand* SearchForm::NewHelpButton(QWidget* page, const QString& name, const QString& tip) {
  ui::SSCommand* button = ui::NewCommand(page, name, strings::Help, tip);
  connect(button, &ui::SSCommand::Click, this, [this] { Frame::Main().ShowHelpTopic(HelpTopic()); });
  return button;
}

void SearchForm::OnLoad() {
  setWindowIcon(Frame::Main().ScreenIcon());
  Trap([this] { initFlxCard(); });
}

void SearchForm::initFlxCard() {
  flxCard->SetFormatString(QString(m_design.CardNumber) + u'|' + MainFieldName());
  flxCard->SetColWidth(0, numberWidth);
  flxCard->SetColWidth(1, m_design.CardNameWidth);
  flxCard->SetColAlignment(0, ui::ColAlign::Left);
}

void SearchForm::initFlxAgent() {
  flxAgent->SetFormatString(m_design.ContactHeadings);
  flxAgent->SetColWidth(0, numberWidth);
  flxAgent->SetColWidth(1, firstNameWidth);
  flxAgent->SetColWidth(2, m_design.LastNameWidth);
  flxAgent->SetColAlignment(0, ui::ColAlign::Left);
}

void SearchForm::ShowCards(db::Recordset rows) {
  flxCard->SetDataSource(std::make_unique<RecordsetSource>(std::move(rows)));
  initFlxCard();
}

void SearchForm::ShowContacts(db::Recordset rows) {
  flxAgent->SetDataSource(std::make_unique<RecordsetSource>(std::move(rows)));
  initFlxAgent();
}

bool SearchForm::Run(QWidget* control, const std::function<void()>& step) {
  const ui::Hourglass hourglass;
  return Trap(step, [control](const std::exception& failure) {
    ui::Notify(control, texts::Failed + QString::fromUtf8(failure.what()));
  });
}

void SearchForm::RefuseSort(ui::SSRibbon& button, const QString& notice) {
  if (button.Value()) ui::Notify(&button, notice);
  button.SetValue(false);
}

void SearchForm::Release(const ui::ControlArray<ui::SSRibbon>& buttons) {
  buttons.ForEach([](ui::SSRibbon& button) { button.SetValue(false); });
}

bool SearchForm::HandOver() {
  if (flxCard->Row() < 1) return false;
  Frame& frame = Frame::Main();
  // Another tool may have written a number that no card of this program has.
  const double number =
      std::clamp<double>(RoundHalfEven(LeadingNumber(flxCard->TextMatrix(flxCard->Row(), 0))),
                         std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max());
  const auto card = static_cast<std::int32_t>(number);
  // First of all: a changed card is still saved under its own number, and one that stays open stops the jump.
  if (!frame.CloseCardScreens()) return false;
  Global().CurCard = card;
  // Closes this screen.
  frame.ShowCard();
  return true;
}

void SearchForm::cmdToCardClick() {
  Frame& frame = Frame::Main();
  if (flxCard->Row() < 1) {
    frame.EmptySeekBox();
    ui::Notify(flxCard, texts::NoCardChosen);
  } else if (HandOver()) {
    frame.EmptySeekBox();
  }
}

void SearchForm::cmdToAgentClick() { ui::Notify(cmdToAgent, texts::NoContactCard); }

}  // namespace velmora
