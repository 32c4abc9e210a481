// SPDX-License-Identifier: MIT
#include "queries/frmSelNum.h"

#include "forms/ComboBox.h"
#include "forms/Makers.h"
#include "forms/TabChain.h"
#include "forms/Twips.h"
#include "queries/DigitBox.h"
#include "resources/strings.h"

#include <QGridLayout>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int operatorWidth = 750;
constexpr int numberWidth = 2400;

QStringList Condition(const ui::ComboBox& comparison, const DigitBox& number) {
  if (comparison.ListIndex() < 0 || number.Text().trimmed().isEmpty()) return {};
  return {comparison.Text() + u' ' + number.Text()};
}

}  // namespace

frmSelNum::frmSelNum(ui::ListBox& conditions)
    : ConditionPicker(u"frmSelNum"_s, strings::picker::NumberTitle, conditions),
      lblName(this, u"lblName"_s, [](ui::Label& label) { label.SetCaption(strings::picker::NameOfField); }),
      Frame1(this, u"Frame1"_s, [](ui::GroupFrame& frame) {
        frame.SetCaption(strings::picker::NumberLimits);
        frame.setToolTip(strings::picker::NumberLimitsTip);
      }) {
  SetupGroup(0, cmbEx, u"cmbEx"_s, txtValue, u"txtValue"_s);
  SetupGroup(1, cmbEx1, u"cmbEx1"_s, txtValue1, u"txtValue1"_s);
  auto* ok = ui::NewCommand(this, u"cmdOK"_s, strings::Ok, strings::picker::NumberOkTip);
  auto* cancel = ui::NewCommand(this, u"cmdCancel"_s, strings::Cancel, strings::picker::ExitTip);
  connect(ok, &ui::SSCommand::Click, this, &frmSelNum::OkClick);
  connect(cancel, &ui::SSCommand::Click, this, [this] { Unload(); });

  auto* rows = new QVBoxLayout(this);
  for (QWidget* group : Frame1.Widgets()) rows->addWidget(group);
  rows->addStretch();
  rows->addLayout(ui::NewButtonRow({}, {ok, cancel}));
  ui::ChainTabStops({cmbEx, txtValue, cmbEx1, txtValue1, ok, cancel});
}

void frmSelNum::SetupGroup(int index, ui::ComboBox*& comparison, const QString& operatorName,
                           DigitBox*& number, const QString& numberName) {
  ui::Label& name = lblName.LoadOnce(index);
  ui::GroupFrame& frame = Frame1.LoadOnce(index);
  name.SetVisible(true);
  frame.SetVisible(true);
  comparison = ui::NewControl<ui::ComboBox>(
      &frame, operatorName, {.Tip = strings::picker::OperatorTip, .Spoken = strings::picker::Operator});
  comparison->SetMode(ui::ComboMode::DropDownList);
  for (const QString& item : {u">"_s, u"<"_s, u"="_s}) comparison->AddItem(item);
  comparison->setFixedWidth(ui::Pixels(operatorWidth));
  number = ui::NewControl<DigitBox>(&frame, numberName,
                                    {.Tip = strings::picker::NumberTip, .Spoken = strings::picker::Number});
  number->setMinimumWidth(ui::Pixels(numberWidth));

  auto* grid = new QGridLayout(&frame);
  grid->addWidget(&name, 0, 0, 1, 2);
  grid->addWidget(comparison, 1, 0);
  grid->addWidget(number, 1, 1);
  grid->setColumnStretch(1, 1);
}

void frmSelNum::OkClick() {
  Replace(Condition(*cmbEx, *txtValue) + Condition(*cmbEx1, *txtValue1));
  Unload();
}

}  // namespace velmora
