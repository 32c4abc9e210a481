// SPDX-License-Identifier: MIT
#include "queries/SelectFields.h"

#include "base/system/Failures.h"
#include "cardfile/CardFileSchema.h"
#include "forms/Hourglass.h"
#include "forms/Makers.h"
#include "forms/MsgBox.h"
#include "forms/TabChain.h"
#include "forms/Twips.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "queries/QueryFields.h"
#include "queries/QueryText.h"
#include "queries/ResultQuery.h"
#include "queries/SavedQueries.h"
#include "resources/HelpTopics.h"
#include "resources/strings.h"

#include <QGridLayout>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::chooser;

namespace {

constexpr int listWidth = 2700;
constexpr int listHeight = 3300;

}  // namespace

SelectFields::SelectFields() : Form(u"SelectFields"_s, texts::Title) {
  SetHelpTopic(topics::Queries);
  SetupLists();
  SetupButtons();
  SetupLayout();
}

void SelectFields::SetupLists() {
  const auto list = [this](const QString& name, const ui::Words& words) {
    auto* made = ui::NewControl<ui::ListBox>(this, name, words);
    made->SetMode(ui::ListChoice::Multiple);
    made->setMinimumSize(ui::Pixels(listWidth), ui::Pixels(listHeight));
    return made;
  };
  List1 = list(u"List1"_s, {.Tip = texts::GeneralListTip, .Spoken = texts::GeneralList});
  List2 = list(u"List2"_s, {.Tip = texts::QueryListTip, .Spoken = texts::QueryList});
  NameQuery = ui::NewControl<ui::TextBox>(this, u"NameQuery"_s,
                                          {.Tip = texts::QueryNameTip, .Spoken = texts::QueryName});
  connect(NameQuery, &ui::TextBox::EnterPressed, this, &SelectFields::OkClick);
}

void SelectFields::SetupButtons() {
  addItem = ui::NewCommand(this, u"addItem"_s, u"→"_s, texts::AddTip);
  addItem->setAccessibleName(texts::Add);
  MinusItem = ui::NewCommand(this, u"MinusItem"_s, u"←"_s, texts::RemoveTip);
  MinusItem->setAccessibleName(texts::Remove);
  AddAll = ui::NewCommand(this, u"AddAll"_s, texts::AddAll, texts::AddAllTip);
  RemoveAll = ui::NewCommand(this, u"RemoveAll"_s, u"⇇"_s, texts::RemoveAllTip);
  RemoveAll->setAccessibleName(texts::RemoveAll);
  Ok = ui::NewCommand(this, u"Ok"_s, strings::Ok, texts::OkTip);
  Cancel = ui::NewCommand(this, u"Cancel"_s, strings::Cancel, texts::CancelTip);
  CmdHelp = ui::NewCommand(this, u"CmdHelp"_s, strings::Help, texts::HelpTip);

  connect(addItem, &ui::SSCommand::Click, this, &SelectFields::AddChosen);
  connect(MinusItem, &ui::SSCommand::Click, this, &SelectFields::RemoveChosen);
  connect(AddAll, &ui::SSCommand::Click, this, [this] {
    for (int i = 0; i < List1->ListCount(); ++i) List1->SetSelected(i, true);
    AddChosen();
  });
  connect(RemoveAll, &ui::SSCommand::Click, this, [this] { List2->Clear(); });
  connect(Ok, &ui::SSCommand::Click, this, &SelectFields::OkClick);
  connect(Cancel, &ui::SSCommand::Click, this, [this] {
    Unload();
    Frame::Main().ShowCard();
  });
  connect(CmdHelp, &ui::SSCommand::Click, this, [this] { Frame::Main().ShowHelpTopic(HelpTopic()); });
}

void SelectFields::SetupLayout() {
  auto* arrows = new QVBoxLayout;
  arrows->addStretch();
  arrows->addWidget(addItem);
  arrows->addWidget(MinusItem);
  arrows->addSpacing(ui::Pixels(300));
  arrows->addWidget(AddAll);
  arrows->addWidget(RemoveAll);
  arrows->addStretch();

  auto* name = new QHBoxLayout;
  name->addWidget(ui::NewLabel(this, u"lblNameQuery"_s, texts::QueryName, NameQuery));
  name->addWidget(NameQuery, 1);

  auto* grid = new QGridLayout(this);
  grid->addWidget(ui::NewLabel(this, u"lblList1"_s, texts::GeneralList, List1), 0, 0);
  grid->addWidget(ui::NewLabel(this, u"lblList2"_s, texts::QueryList, List2), 0, 2);
  grid->addWidget(List1, 1, 0);
  grid->addLayout(arrows, 1, 1);
  grid->addWidget(List2, 1, 2);
  grid->addLayout(name, 2, 0, 1, 3);
  grid->addLayout(ui::NewButtonRow({CmdHelp}, {Ok, Cancel}), 3, 0, 1, 3);

  ui::ChainTabStops({List1, addItem, MinusItem, AddAll, RemoveAll, List2, NameQuery, Ok, Cancel, CmdHelp});
}

void SelectFields::OnLoad() {
  m_isFilled =
      Trap([this] { List1->AddItems(ChoosableColumns(Global().File().TableDefOf(schema::Cards.View()))); });
}

void SelectFields::AddChosen() {
  const QStringList all = WithColumns(List2->Lines(), List1->SelectedLines());
  List2->AddItems(all.mid(List2->ListCount()));
  for (int line = 0; line < List1->ListCount(); ++line) List1->SetSelected(line, false);
}

void SelectFields::RemoveChosen() {
  for (int i = List2->ListCount() - 1; i >= 0; --i) {
    if (List2->Selected(i)) List2->RemoveItem(i);
  }
}

bool SelectFields::MayUseName(NewQueryName found) {
  switch (found) {
    case NewQueryName::Free:
      return true;
    case NewQueryName::SameAsBase:
      ui::MsgBox(strings::SelectADifferentName);
      NameQuery->SetText({});
      NameQuery->SetFocus();
      return false;
    case NewQueryName::Taken:
      return ui::MsgBox({.Text = strings::query::OverwriteQuestion,
                         .Buttons = ui::MsgButtons::OkCancel,
                         .Destroys = true}) == ui::MsgAnswer::Ok;
  }
  return false;
}

void SelectFields::OkClick() {
  Trap([this] {
    const ui::Hourglass hourglass;
    db::Database& file = Global().File();
    const QString& user = Global().UserName;
    const QString columns = ColumnListText(MainColumn(), List2->Lines());
    NameQuery->SetText(QueryNameOrDefault(NameQuery->Text()));
    const QString name = NameQuery->Text();
    const NewQueryName found = CheckNewQueryName(file, name, BaseQuery, user);
    if (!MayUseName(found)) return;
    const QString stored = StoredQueryName(name, user);
    Frame::Main().SetLastQuery(stored);
    StoreNewQuery(file, stored, SelectText(columns, WhereText), found);
    ShowQueryResult(name, stored, this);
  });
}

}  // namespace velmora
