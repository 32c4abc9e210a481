// SPDX-License-Identifier: MIT
#include "cardfile/ValueListDialog.h"

#include "base/system/Failures.h"
#include "cardfile/ValueLists.h"
#include "controls/ItemSelector.h"
#include "forms/Apostrophe.h"
#include "forms/ListBox.h"
#include "forms/Makers.h"
#include "forms/TabChain.h"
#include "forms/TextBox.h"
#include "forms/Twips.h"
#include "frame/Session.h"
#include "resources/strings.h"

#include <QGridLayout>

#include <utility>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int listWidth = 3900;
constexpr int listHeight = 3000;

}  // namespace

ValueListDialog::ValueListDialog(const ValueListDesign& design, ValueListField field)
    : Form(design.Screen.toString(), strings::valuelist::Title), m_field(std::move(field)) {
  SetupControls(design);
  SetupLayout();
  connect(EnterText, &ui::TextBox::EnterPressed, this, &ValueListDialog::AddClick);
  connect(cmdAdd, &ui::SSCommand::Click, this, &ValueListDialog::AddClick);
  connect(m_delete, &ui::SSCommand::Click, this, &ValueListDialog::DeleteClick);
  connect(Command3, &ui::SSCommand::Click, this, &ValueListDialog::UpdateClick);
  connect(CanBut, &ui::SSCommand::Click, this, [this] { Unload(); });
}

void ValueListDialog::SetupControls(const ValueListDesign& design) {
  EnterText = ui::NewControl<ui::TextBox>(this, u"EnterText"_s,
                                          {.Tip = design.EnterTip, .Spoken = strings::valuelist::NewValue});
  EnterText->setPlaceholderText(strings::valuelist::NewValue);
  cmdAdd = ui::NewCommand(this, u"cmdAdd"_s, strings::valuelist::Add, strings::valuelist::AddTip);

  m_finder = new QWidget(this);
  ItemSelector1 = new ItemSelector(m_finder);
  ItemSelector1->SetName(u"ItemSelector1"_s);
  ItemSelector1->EnterText().setPlaceholderText(strings::FindInList);
  m_finder->setFixedHeight(ItemSelector1->height());

  ListItem = ui::NewControl<ui::ListBox>(this, u"ListItem"_s, {.Spoken = m_field.Name});
  ListItem->SetMode(ui::ListChoice::Multiple);
  ListItem->setMinimumSize(ui::Pixels(listWidth), ui::Pixels(listHeight));
  m_delete =
      ui::NewCommand(this, design.DeleteButton.toString(), strings::Delete, strings::valuelist::DeleteTip);
  Command3 = ui::NewCommand(this, u"Command3"_s, strings::valuelist::Update, design.UpdateTip);
  CanBut = ui::NewCommand(this, u"CanBut"_s, strings::Cancel, strings::ClickToExitWithNoChanges);
}

void ValueListDialog::SetupLayout() {
  auto* grid = new QGridLayout(this);
  grid->addWidget(ui::NewLabel(this, u"lblField"_s, m_field.Name), 0, 0, 1, 2);
  grid->addWidget(EnterText, 1, 0);
  grid->addWidget(cmdAdd, 1, 1);
  grid->addWidget(m_finder, 2, 0);
  grid->addWidget(ListItem, 3, 0);
  grid->addWidget(m_delete, 3, 1, Qt::AlignTop);
  grid->addLayout(ui::NewButtonRow({}, {Command3, CanBut}), 4, 0, 1, 2);
  grid->setColumnStretch(0, 1);
  grid->setRowStretch(3, 1);
  ui::ChainTabStops({EnterText, cmdAdd, &ItemSelector1->EnterText(), ListItem, m_delete, Command3, CanBut});
}

void ValueListDialog::resizeEvent(QResizeEvent* event) {
  Form::resizeEvent(event);
  layout()->activate();
  ItemSelector1->SetWidth(ui::TwipsOf(m_finder->width()));
}

void ValueListDialog::OnLoad() {
  Trap([this] {
    ItemSelector1->SetChildCtrl(ListItem);
    ListItem->AddItems(ValueLists(Global().File()).ValuesOf(Field()));
  });
}

void ValueListDialog::AddClick() {
  if (ui::RefusesApostrophe(*EnterText)) return;
  const QString value = EnterText->Text();
  if (value.trimmed().isEmpty()) return;
  Trap([this, &value] {
    const ValueLists lists(Global().File());
    if (IsThere(lists, value)) return;
    lists.Add(Field(), value);
    ListItem->AddItem(value);
    EnterText->SetText({});
  });
}

void ValueListDialog::DeleteClick() {
  const int line = ListItem->ListIndex();
  if (line < 0) return;
  Trap([this, line] {
    ValueLists(Global().File()).Delete(Field(), ListItem->List(line));
    ListItem->RemoveItem(line);
  });
}

void ValueListDialog::UpdateClick() {
  if (ListItem->ListIndex() < 0) {
    Unload();
    return;
  }
  // A card screen without such a box leaves nothing to update.
  if (m_field.Box.isNull()) return;
  m_field.Box->Write(ListItem->SelectedLines().join(u' ').trimmed());
  Unload();
}

}  // namespace velmora
