// SPDX-License-Identifier: MIT
#include "queries/SelectQ.h"

#include "base/system/Failures.h"
#include "controls/ItemSelector.h"
#include "forms/Buttons.h"
#include "forms/ListBox.h"
#include "forms/MsgBox.h"
#include "forms/Twips.h"
#include "frame/Session.h"
#include "queries/EnterQuery.h"
#include "queries/KnownValues.h"
#include "resources/strings.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int boxCount = 5;
constexpr int boxWidth = 3600;
constexpr int listWidth = 4605;
constexpr int listHeight = 2400;

/// The keys that drop a list down, on any platform.
bool AsksForValues(const QKeyEvent& event) {
  const bool altDown = event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier);
  return altDown || (event.key() == Qt::Key_F4 && event.modifiers() == Qt::NoModifier);
}

}  // namespace

SelectQ::SelectQ(ui::ListBox& conditions, const QString& field)
    : ConditionPicker(u"SelectQ"_s, strings::picker::TextTitle, conditions),
      m_fieldName(field),
      lblName(this, u"lblName"_s),
      txtSelect(this, u"txtSelect"_s) {
  SetupBoxes();
  SetupList();
  Command1 = MakeButton(u"Command1"_s, strings::Ok, strings::picker::TextOkTip);
  Command2 = MakeButton(u"Command2"_s, strings::Cancel, strings::ClickToExit);
  SetupLayout();
  connect(Command1, &ui::SSCommand::Click, this, &SelectQ::OkClick);
  connect(Command2, &ui::SSCommand::Click, this, [this] { Unload(); });
}

void SelectQ::SetupBoxes() {
  lblName[0].SetCaption(strings::picker::Fields);
  lblName[0].setToolTip(strings::picker::FieldsTip);
  for (int index = 0; index < boxCount; ++index) {
    ui::TextBox& box = index == 0 ? txtSelect[0] : txtSelect.Load(index);
    box.SetVisible(true);
    box.setToolTip(strings::picker::BoxTip);
    box.setAccessibleName(strings::picker::TextToFind);
    box.setMinimumWidth(ui::Pixels(boxWidth));
    box.installEventFilter(this);
    connect(&box, &ui::TextBox::DblClick, this, [this, index] { OpenValues(index); });
  }
}

void SelectQ::SetupList() {
  ui::Label& label = lblName.Load(1);
  label.SetCaption(strings::picker::QueryFields);
  label.SetVisible(true);
  itmsel = new ItemSelector(this);
  itmsel->SetName(u"itmsel"_s);
  itmsel->EnterText().setPlaceholderText(strings::FindInList);
  List1 = new ui::ListBox(this);
  List1->SetName(u"List1"_s);
  List1->SetMode(ui::ListChoice::Multiple);
  List1->setToolTip(strings::picker::ListTip);
  List1->setAccessibleName(m_fieldName);
}

QLayout* SelectQ::BoxColumn() {
  auto* boxes = new QVBoxLayout;
  boxes->addWidget(&lblName[0]);
  txtSelect.ForEach([boxes](ui::TextBox& box) { boxes->addWidget(&box); });
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
  Frame2 = new ui::GroupFrame(this);
  Frame2->SetName(u"Frame2"_s);
  Frame2->SetCaption(strings::picker::TextFrame);
  auto* columns = new QHBoxLayout(Frame2);
  columns->addLayout(BoxColumn(), 1);
  columns->addLayout(ListColumn());

  auto* field = new ui::Label(this);
  field->SetName(u"lblField"_s);
  field->SetCaption(m_fieldName);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(Command1);
  buttons->addWidget(Command2);
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(field);
  rows->addWidget(Frame2, 1);
  rows->addLayout(buttons);

  QList<QWidget*> stops;
  txtSelect.ForEach([&stops](ui::TextBox& box) { stops += &box; });
  stops << &itmsel->EnterText() << List1 << Command1 << Command2;
  for (qsizetype i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1], stops[i]);
}

void SelectQ::OnLoad() {
  itmsel->SetChildCtrl(List1);
  itmsel->SetWidth(listWidth);
  Trap([this] { List1->AddItems(PickableValues(m_fieldName)); });
}

bool SelectQ::eventFilter(QObject* target, QEvent* event) {
  if (event->type() == QEvent::KeyPress && AsksForValues(*static_cast<QKeyEvent*>(event))) {
    if (const auto* box = qobject_cast<ui::TextBox*>(target)) {
      OpenValues(box->Index());
      return true;
    }
  }
  return ConditionPicker::eventFilter(target, event);
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
    if (box.Text().contains(u'\'')) {
      ui::MsgBox(strings::NoApostrophe);
      box.SetFocus();
      box.SelectAll();
      return;
    }
    if (!box.Text().trimmed().isEmpty()) conditions += box.Text();
  }
  for (int line = 0; line < List1->ListCount(); ++line) {
    if (List1->Selected(line)) conditions += List1->List(line);
  }
  Replace(conditions);
  Unload();
}

}  // namespace velmora
