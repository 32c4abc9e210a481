// SPDX-License-Identifier: MIT
#include "queries/SelectFields.h"

#include "base/system/Failures.h"
#include "cardfile/CardFileSchema.h"
#include "forms/Hourglass.h"
#include "forms/Labels.h"
#include "forms/Makers.h"
#include "forms/MsgBox.h"
#include "forms/Twips.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "queries/QueryFields.h"
#include "queries/QueryText.h"
#include "queries/ResultQuery.h"
#include "queries/SavedQueries.h"
#include "resources/strings.h"

#include <QGridLayout>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::chooser;

namespace {

constexpr int listWidth = 2700;
constexpr int listHeight = 3300;
constexpr int helpTopic = 122;

ui::Label* MakeLabel(QWidget* parent, const QString& name, const QString& caption, QWidget* buddy) {
  auto* label = new ui::Label(parent);
  label->SetName(name);
  label->SetCaption(caption);
  label->setBuddy(buddy);
  return label;
}

QStringList Lines(const ui::ListBox& list) {
  QStringList lines;
  for (int i = 0; i < list.ListCount(); ++i) lines += list.List(i);
  return lines;
}

}  // namespace

SelectFields::SelectFields() : Form(u"SelectFields"_s, texts::Title) {
  SetupLists();
  SetupButtons();
  SetupLayout();
}

void SelectFields::SetupLists() {
  const auto list = [this](const QString& name, const QString& spoken, const QString& tip) {
    auto* made = new ui::ListBox(this);
    made->SetName(name);
    made->SetMode(ui::ListChoice::Multiple);
    made->setAccessibleName(spoken);
    made->setToolTip(tip);
    made->setMinimumSize(ui::Pixels(listWidth), ui::Pixels(listHeight));
    return made;
  };
  List1 = list(u"List1"_s, texts::GeneralList, texts::GeneralListTip);
  List2 = list(u"List2"_s, texts::QueryList, texts::QueryListTip);
  NameQuery = new ui::TextBox(this);
  NameQuery->SetName(u"NameQuery"_s);
  NameQuery->setAccessibleName(texts::QueryName);
  NameQuery->setToolTip(texts::QueryNameTip);
  connect(NameQuery, &ui::TextBox::EnterPressed, this, &SelectFields::OkClick);
}

void SelectFields::SetupButtons() {
  const auto button = [this](const QString& name, const QString& caption, const QString& tip) {
    return ui::NewCommand(this, name, caption, tip);
  };
  addItem = button(u"addItem"_s, u"→"_s, texts::AddTip);
  addItem->setAccessibleName(texts::Add);
  MinusItem = button(u"MinusItem"_s, u"←"_s, texts::RemoveTip);
  MinusItem->setAccessibleName(texts::Remove);
  AddAll = button(u"AddAll"_s, texts::AddAll, texts::AddAllTip);
  RemoveAll = button(u"RemoveAll"_s, u"⇇"_s, texts::RemoveAllTip);
  RemoveAll->setAccessibleName(texts::RemoveAll);
  Ok = button(u"Ok"_s, strings::Ok, texts::OkTip);
  Cancel = button(u"Cancel"_s, strings::Cancel, texts::CancelTip);
  CmdHelp = button(u"CmdHelp"_s, strings::Help, texts::HelpTip);

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
  connect(CmdHelp, &ui::SSCommand::Click, this, [] { Frame::Main().ShowHelpTopic(helpTopic); });
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
  name->addWidget(MakeLabel(this, u"lblNameQuery"_s, texts::QueryName, NameQuery));
  name->addWidget(NameQuery, 1);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(CmdHelp);
  buttons->addStretch();
  buttons->addWidget(Ok);
  buttons->addWidget(Cancel);

  auto* grid = new QGridLayout(this);
  grid->addWidget(MakeLabel(this, u"lblList1"_s, texts::GeneralList, List1), 0, 0);
  grid->addWidget(MakeLabel(this, u"lblList2"_s, texts::QueryList, List2), 0, 2);
  grid->addWidget(List1, 1, 0);
  grid->addLayout(arrows, 1, 1);
  grid->addWidget(List2, 1, 2);
  grid->addLayout(name, 2, 0, 1, 3);
  grid->addLayout(buttons, 3, 0, 1, 3);

  const QList<QWidget*> stops{List1, addItem,   MinusItem, AddAll, RemoveAll,
                              List2, NameQuery, Ok,        Cancel, CmdHelp};
  for (qsizetype i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1], stops[i]);
}

void SelectFields::OnLoad() {
  Trap([this] { List1->AddItems(ChoosableColumns(Global().File().TableDefOf(schema::Cards.View()))); });
}

void SelectFields::AddChosen() {
  QStringList chosen;
  for (int i = 0; i < List1->ListCount(); ++i) {
    if (!List1->Selected(i)) continue;
    chosen += List1->List(i);
    List1->SetSelected(i, false);
  }
  const QStringList all = WithColumns(Lines(*List2), chosen);
  List2->AddItems(all.mid(List2->ListCount()));
}

void SelectFields::RemoveChosen() {
  for (int i = List2->ListCount() - 1; i >= 0; --i) {
    if (List2->Selected(i)) List2->RemoveItem(i);
  }
}

bool SelectFields::MayUseName() {
  db::Database& file = Global().File();
  const QString& user = Global().UserName;
  switch (CheckNewQueryName(file, NameQuery->Text(), BaseQuery, user)) {
    case NewQueryName::Free:
      return true;
    case NewQueryName::SameAsBase:
      ui::MsgBox(strings::SelectADifferentName);
      NameQuery->SetText({});
      NameQuery->SetFocus();
      return false;
    case NewQueryName::Taken:
      break;
  }
  const ui::MsgAnswer answer = ui::MsgBox(
      {.Text = strings::query::OverwriteQuestion, .Buttons = ui::MsgButtons::OkCancel, .Destroys = true});
  if (answer != ui::MsgAnswer::Ok) return false;
  // The name as it was typed: with blanks around it the query that was found may stay.
  DeleteQuery(file, StoredQueryName(NameQuery->Text(), user));
  return true;
}

void SelectFields::OkClick() {
  Trap([this] {
    const ui::Hourglass hourglass;
    db::Database& file = Global().File();
    const QString columns = ColumnListText(MainColumn(), Lines(*List2));
    NameQuery->SetText(QueryNameOrDefault(NameQuery->Text()));
    if (!MayUseName()) return;
    const QString name = NameQuery->Text();
    const QString stored = StoredQueryName(name, Global().UserName);
    Frame::Main().SetLastQuery(stored);
    file.CreateQueryDef(stored, SelectText(columns, WhereText));
    ShowQueryResult(name, stored, this);
  });
}

}  // namespace velmora
