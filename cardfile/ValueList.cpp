// SPDX-License-Identifier: MIT
#include "cardfile/ValueList.h"

#include "base/system/Failures.h"
#include "cardfile/CardFileSchema.h"
#include "controls/ItemSelector.h"
#include "forms/Buttons.h"
#include "forms/Labels.h"
#include "forms/ListBox.h"
#include "forms/Makers.h"
#include "forms/MsgBox.h"
#include "forms/TextBox.h"
#include "forms/Twips.h"
#include "frame/Session.h"
#include "resources/strings.h"

#include <QGridLayout>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int listWidth = 3900;
constexpr int listHeight = 3000;

}  // namespace

ValueList::ValueList(const ValueListDesign& design, ValueListField field)
    : Form(design.Screen.toString(), strings::valuelist::Title), m_field(std::move(field)) {
  SetupControls(design);
  SetupLayout();
  connect(EnterText, &ui::TextBox::EnterPressed, this, &ValueList::AddClick);
  connect(cmdAdd, &ui::SSCommand::Click, this, &ValueList::AddClick);
  connect(m_delete, &ui::SSCommand::Click, this, &ValueList::DeleteClick);
  connect(Command3, &ui::SSCommand::Click, this, &ValueList::UpdateClick);
  connect(CanBut, &ui::SSCommand::Click, this, [this] { Unload(); });
}

ui::SSCommand* ValueList::MakeButton(const QString& name, const QString& caption, const QString& tip) {
  return ui::NewCommand(this, name, caption, tip);
}

void ValueList::SetupControls(const ValueListDesign& design) {
  EnterText = new ui::TextBox(this);
  EnterText->SetName(u"EnterText"_s);
  EnterText->setToolTip(design.EnterTip);
  EnterText->setPlaceholderText(strings::valuelist::NewValue);
  EnterText->setAccessibleName(strings::valuelist::NewValue);
  cmdAdd = MakeButton(u"cmdAdd"_s, strings::valuelist::Add, strings::valuelist::AddTip);

  m_finder = new QWidget(this);
  ItemSelector1 = new ItemSelector(m_finder);
  ItemSelector1->SetName(u"ItemSelector1"_s);
  ItemSelector1->EnterText().setPlaceholderText(strings::FindInList);
  m_finder->setFixedHeight(ItemSelector1->height());

  ListItem = new ui::ListBox(this);
  ListItem->SetName(u"ListItem"_s);
  ListItem->SetMode(ui::ListChoice::Multiple);
  ListItem->setAccessibleName(m_field.Name);
  m_delete = MakeButton(design.DeleteButton.toString(), strings::Delete, strings::valuelist::DeleteTip);
  Command3 = MakeButton(u"Command3"_s, strings::valuelist::Update, design.UpdateTip);
  CanBut = MakeButton(u"CanBut"_s, strings::Cancel, strings::ClickToExitWithNoChanges);
}

void ValueList::SetupLayout() {
  auto* field = new ui::Label(this);
  field->SetName(u"lblField"_s);
  field->SetCaption(m_field.Name);
  ListItem->setMinimumSize(ui::Pixels(listWidth), ui::Pixels(listHeight));

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(Command3);
  buttons->addWidget(CanBut);

  auto* grid = new QGridLayout(this);
  grid->addWidget(field, 0, 0, 1, 2);
  grid->addWidget(EnterText, 1, 0);
  grid->addWidget(cmdAdd, 1, 1);
  grid->addWidget(m_finder, 2, 0);
  grid->addWidget(ListItem, 3, 0);
  grid->addWidget(m_delete, 3, 1, Qt::AlignTop);
  grid->addLayout(buttons, 4, 0, 1, 2);
  grid->setColumnStretch(0, 1);
  grid->setRowStretch(3, 1);

  const QList<QWidget*> stops{EnterText, cmdAdd, &ItemSelector1->EnterText(), ListItem, m_delete,
                              Command3,  CanBut};
  for (qsizetype i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1], stops[i]);
}

void ValueList::resizeEvent(QResizeEvent* event) {
  Form::resizeEvent(event);
  layout()->activate();
  ItemSelector1->SetWidth(ui::TwipsOf(m_finder->width()));
}

QString ValueList::Table() const { return ValueListTable(m_field.Name); }

void ValueList::OnLoad() {
  Trap([this] { LoadValues(); });
}

void ValueList::LoadValues() {
  ItemSelector1->SetChildCtrl(ListItem);
  db::Recordset rows = Global().File().OpenRecordset(Table());
  QStringList values;
  for (; !rows.AtEnd(); rows.MoveNext()) {
    const db::Value value = rows[Column()];
    if (!value.IsNull()) values += value.Text();
  }
  ListItem->AddItems(values);
  Keep(std::move(rows));
}

void ValueList::Keep(db::Recordset rows) { rows.Close(); }

void ValueList::AddClick() {
  const QString value = EnterText->Text();
  if (value.contains(u'\'')) {
    ui::MsgBox(strings::NoApostrophe);
    EnterText->SetFocus();
    EnterText->SelectAll();
    return;
  }
  if (value.trimmed().isEmpty()) return;
  Trap([this, &value] {
    if (!Store(value)) return;
    ListItem->AddItem(value);
    EnterText->SetText({});
  });
}

void ValueList::DeleteClick() {
  const int line = ListItem->ListIndex();
  if (line < 0) return;
  Trap([this, line] {
    Global().File().Execute(u"Delete * from ["_s + Table() + u"] WHERE ["_s + Column() + u"] = '"_s +
                            ListItem->List(line) + u'\'');
    ListItem->RemoveItem(line);
  });
}

void ValueList::UpdateClick() {
  if (ListItem->ListIndex() < 0) {
    Unload();
    return;
  }
  // A card screen without such a box leaves nothing to update.
  if (m_field.Box.isNull()) return;
  QString chosen;
  for (int line = 0; line < ListItem->ListCount(); ++line) {
    if (ListItem->Selected(line)) chosen += ListItem->List(line) + u' ';
  }
  m_field.Box->Write(chosen.trimmed());
  Unload();
}

}  // namespace velmora
