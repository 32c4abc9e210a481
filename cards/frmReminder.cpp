// SPDX-License-Identifier: MIT
#include "cards/frmReminder.h"

#include "base/dates/Dates.h"
#include "base/system/Clock.h"
#include "cards/Reminders.h"
#include "forms/Default.h"
#include "forms/Makers.h"
#include "forms/MsgBox.h"
#include "forms/TabChain.h"
#include "forms/Twips.h"
#include "resources/strings.h"

#include <QGridLayout>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int AgentLabel = 0;
constexpr int ReminderLabel = 1;
constexpr int OrderSide = 375;

void FillList(ui::ListBox& list, const QString& text) {
  if (text.trimmed().isEmpty()) return;
  list.AddItems(SplitAgents(text));
  list.SetListIndex(0);
}

}  // namespace

frmReminder::frmReminder()
    : Form(u"frmReminder"_s, strings::reminder::Title),
      Label2(this, u"Label2"_s, [](ui::Label& label) { label.setToolTip(strings::reminder::LabelTip); }) {
  SetupControls();
  SetupLayout();
  connect(cmdOrder, &ui::SSRibbon::Click, this, &frmReminder::ColorOrder);
  connect(cmdOK, &ui::SSCommand::Click, this, &frmReminder::OkClick);
  connect(cmdDelete, &ui::SSCommand::Click, this, &frmReminder::DeleteClick);
  connect(cmdCancel, &ui::SSCommand::Click, this, [this] { Unload(); });
}

void frmReminder::SetupControls() {
  Label2[AgentLabel].SetCaption(strings::reminder::Agent);
  ui::Label& reminder = Label2.Load(ReminderLabel);
  reminder.SetCaption(strings::reminder::Reminder);
  reminder.SetVisible(true);

  mDate = ui::NewControl<UpDate>(this, u"mDate"_s);
  cmdOrder = ui::NewControl<ui::SSRibbon>(
      this, u"cmdOrder"_s, {.Tip = strings::reminder::OrderTip, .Spoken = strings::reminder::Reminder});
  reminder.setBuddy(cmdOrder);
  ListCollab = ui::NewControl<ui::ListBox>(
      this, u"ListCollab"_s, {.Tip = strings::reminder::ListTip, .Spoken = strings::reminder::Agent});
  Label2[AgentLabel].setBuddy(ListCollab);

  cmdAddAgents = ui::NewCommand(this, u"cmdAddAgents"_s, strings::reminder::Edit, strings::reminder::EditTip);
  cmdDelete = ui::NewCommand(this, u"cmdDelete"_s, strings::Delete);
  cmdOK = ui::NewCommand(this, u"cmdOK"_s, strings::Ok);
  cmdCancel = ui::NewCommand(this, u"cmdCancel"_s, strings::Cancel, strings::ClickToExitWithNoChanges);
}

void frmReminder::SetupLayout() {
  mDate->setFixedSize(mDate->sizeHint());
  cmdOrder->setFixedSize(ui::Pixels(OrderSide), ui::Pixels(OrderSide));

  auto* order = new QHBoxLayout;
  order->addWidget(cmdOrder);
  order->addWidget(&Label2[ReminderLabel], 1);
  auto* left = new QVBoxLayout;
  left->addWidget(mDate);
  left->addLayout(order);
  left->addStretch();

  auto* agents = new QVBoxLayout;
  agents->addWidget(&Label2[AgentLabel]);
  ListCollab->setMinimumSize(mDate->sizeHint());
  agents->addWidget(ListCollab, 1);
  agents->addLayout(ui::NewButtonRow({}, {cmdAddAgents}));

  auto* grid = new QGridLayout(this);
  grid->addLayout(left, 0, 0);
  grid->addLayout(agents, 0, 1);
  grid->addLayout(ui::NewButtonRow({cmdDelete}, {cmdOK, cmdCancel}), 1, 0, 1, 2);

  ui::ChainTabStops({mDate, cmdOrder, ListCollab, cmdAddAgents, cmdDelete, cmdOK, cmdCancel});
  mDate->SetFocus();
}

void frmReminder::ShowDate() {
  if (!DateCtl || DateCtl->Text().trimmed().isEmpty()) return;
  if (DateCtl->IsActive()) cmdOrder->SetValue(true);
  ColorOrder();
  // The box takes any text; on one that is not a date the face stays on today.
  mDate->SetValue(DateCtl->Text());
  FillList(*ListCollab, DateCtl->strAgents);
}

void frmReminder::ColorOrder() {
  cmdOrder->SetBackColor(cmdOrder->Value() ? ui::Role::Red : ui::Role::ButtonFace);
}

void frmReminder::OkClick() {
  const QDateTime date = mDate->Value();
  if (cmdOrder->Value() && date.date() <= Clock::Today()) {
    ui::MsgBox(strings::reminder::SelectADifferentDate);
    return;
  }
  if (DateCtl) {
    DateCtl->SetText(ShortDate(date));
    DateCtl->strAgents = JoinAgents(ListCollab->Lines());
    DateCtl->SetIsActive(cmdOrder->Value());
  }
  Unload();
}

void frmReminder::DeleteClick() {
  if (DateCtl) {
    DateCtl->strAgents.clear();
    DateCtl->SetText({});
    DateCtl->SetIsActive(false);
  }
  Unload();
}

void ShowReminder(DateCtrl& date) {
  auto& dialog = ui::Default<frmReminder>();
  dialog.DateCtl = &date;
  dialog.ShowDate();
  dialog.Show(ui::ShowMode::Modal);
}

}  // namespace velmora
