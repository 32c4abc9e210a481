// SPDX-License-Identifier: MIT
#include "queries/SelectQ.h"

#include "base/system/Failures.h"
#include "controls/ItemSelector.h"
#include "forms/Apostrophe.h"
#include "forms/AsksForValues.h"
#include "forms/ListBox.h"
#include "forms/Makers.h"
#include "forms/TabChain.h"
#include "forms/Twips.h"
#include "frame/Session.h"
#include "queries/EnterQuery.h"
#include "queries/KnownValues.h"
#include "resources/strings.h"

#include <QList>
#include <QVBoxLayout>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int boxCount = 5;
constexpr int boxWidth = 3600;
constexpr int listWidth = 4605;
constexpr int listHeight = 2400;

}  // namespace

SelectQ::SelectQ(ui::ListBox& conditions, const QString& field)
    : ConditionPicker(u"SelectQ"_s, strings::picker::TextTitle, conditions),
      m_fieldName(field),
      lblName(this, u"lblName"_s),
      txtSelect(this, u"txtSelect"_s) {
  SetupBoxes();
  SetupList();
  SetupLayout();
}

void SelectQ::SetupBoxes() {
  lblName[0].SetCaption(strings::picker::Fields);
  lblName[0].setToolTip(strings::picker::FieldsTip);
  for (int index = 0; index < boxCount; ++index) {
    ui::TextBox& box = txtSelect.LoadOnce(index);
    box.SetVisible(true);
    box.setToolTip(strings::picker::BoxTip);
    box.setAccessibleName(strings::picker::TextToFind);
    box.setMinimumWidth(ui::Pixels(boxWidth));
    ui::WhenAskedForValues(box, [this, index] { OpenValues(index); });
  }
}

void SelectQ::SetupList() {
  ui::Label& label = lblName.Load(1);
  label.SetCaption(strings::picker::QueryFields);
  label.SetVisible(true);
  itmsel = new ItemSelector(this);
  itmsel->SetName(u"itmsel"_s);
  itmsel->EnterText().setPlaceholderText(strings::FindInList);
  List1 =
      ui::NewControl<ui::ListBox>(this, u"List1"_s, {.Tip = strings::picker::ListTip, .Spoken = m_fieldName});
  List1->SetMode(ui::ListChoice::Multiple);
}

QLayout* SelectQ::BoxColumn() {
  auto* boxes = new QVBoxLayout;
  boxes->addWidget(&lblName[0]);
  for (QWidget* box : txtSelect.Widgets()) boxes->addWidget(box);
  boxes->addStretch();
  return boxes;
}

QLayout* SelectQ::ListColumn() {
  itmsel->setFixedSize(ui::Pixels(listWidth), itmsel->height());
  List1->setFixedWidth(ui::Pixels(listWidth));
  List1->setMinimumHeight(ui::Pixels(listHeight));
  auto* list = new QVBoxLayout;
  list->addWidget(&lblName[1]);
  list->addWidget(itmsel);
  list->addWidget(List1, 1);
  return list;
}

void SelectQ::SetupLayout() {
  auto* frame = ui::NewControl<ui::GroupFrame>(this, u"Frame2"_s);
  frame->SetCaption(strings::picker::TextFrame);
  auto* columns = new QHBoxLayout(frame);
  columns->addLayout(BoxColumn(), 1);
  columns->addLayout(ListColumn());
  auto* ok = ui::NewCommand(this, u"Command1"_s, strings::Ok, strings::picker::TextOkTip);
  auto* cancel = ui::NewCommand(this, u"Command2"_s, strings::Cancel, strings::ClickToExit);

  auto* rows = new QVBoxLayout(this);
  rows->addWidget(ui::NewLabel(this, u"lblField"_s, m_fieldName));
  rows->addWidget(frame, 1);
  rows->addLayout(ui::NewButtonRow({}, {ok, cancel}));
  ui::ChainTabStops(txtSelect.Widgets() + QList<QWidget*>{&itmsel->EnterText(), List1, ok, cancel});
  connect(ok, &ui::SSCommand::Click, this, &SelectQ::OkClick);
  connect(cancel, &ui::SSCommand::Click, this, [this] { Unload(); });
}

void SelectQ::OnLoad() {
  itmsel->SetChildCtrl(List1);
  itmsel->SetWidth(listWidth);
  Trap([this] { List1->AddItems(PickableValues(m_fieldName)); });
}

void SelectQ::OpenValues(int index) {
  Global().CurFieldIndex = index;
  auto* values = new EnterQuery(m_fieldName, txtSelect[index]);
  values->Show(ui::ShowMode::Modal);
}

void SelectQ::OkClick() {
  QStringList conditions;
  for (int index = 0; index < boxCount; ++index) {
    ui::TextBox& box = txtSelect[index];
    if (ui::RefusesApostrophe(box)) return;
    if (!box.Text().trimmed().isEmpty()) conditions += box.Text();
  }
  Replace(conditions + List1->SelectedLines());
  Unload();
}

}  // namespace velmora
