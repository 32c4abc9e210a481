// SPDX-License-Identifier: MIT
#include "queries/frmSelNum.h"

#include "forms/Buttons.h"
#include "forms/ComboBox.h"
#include "forms/Twips.h"
#include "queries/DigitBox.h"
#include "resources/strings.h"

#include <QGridLayout>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int signWidth = 750;
constexpr int numberWidth = 2400;

QStringList Condition(const ui::ComboBox& sign, const DigitBox& number) {
  if (sign.ListIndex() < 0 || number.Text().trimmed().isEmpty()) return {};
  return {sign.Text() + u' ' + number.Text()};
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
  cmdOK = MakeButton(u"cmdOK"_s, strings::Ok, strings::picker::NumberOkTip);
  cmdCancel = MakeButton(u"cmdCancel"_s, strings::Cancel, strings::picker::ExitTip);
  SetupLayout();
  connect(cmdOK, &ui::SSCommand::Click, this, &frmSelNum::OkClick);
  connect(cmdCancel, &ui::SSCommand::Click, this, [this] { Unload(); });
}

void frmSelNum::SetupGroup(int index, ui::ComboBox*& sign, const QString& signName, DigitBox*& number,
                           const QString& numberName) {
  if (index > 0) {
    lblName.Load(index).SetVisible(true);
    Frame1.Load(index).SetVisible(true);
  }
  ui::GroupFrame* frame = &Frame1[index];
  sign = new ui::ComboBox(frame);
  sign->SetName(signName);
  sign->SetMode(ui::ComboMode::DropDownList);
  for (const QString& item : {u">"_s, u"<"_s, u"="_s}) sign->AddItem(item);
  sign->setToolTip(strings::picker::OperatorTip);
  sign->setAccessibleName(strings::picker::Operator);
  sign->setFixedWidth(ui::Pixels(signWidth));
  number = new DigitBox(frame);
  number->SetName(numberName);
  number->setToolTip(strings::picker::NumberTip);
  number->setAccessibleName(strings::picker::Number);
  number->setMinimumWidth(ui::Pixels(numberWidth));

  auto* grid = new QGridLayout(frame);
  grid->addWidget(&lblName[index], 0, 0, 1, 2);
  grid->addWidget(sign, 1, 0);
  grid->addWidget(number, 1, 1);
  grid->setColumnStretch(1, 1);
}

void frmSelNum::SetupLayout() {
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdOK);
  buttons->addWidget(cmdCancel);
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(&Frame1[0]);
  rows->addWidget(&Frame1[1]);
  rows->addStretch();
  rows->addLayout(buttons);

  const QList<QWidget*> stops{cmbEx, txtValue, cmbEx1, txtValue1, cmdOK, cmdCancel};
  for (qsizetype i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1], stops[i]);
}

void frmSelNum::OkClick() {
  Replace(Condition(*cmbEx, *txtValue) + Condition(*cmbEx1, *txtValue1));
  Unload();
}

}  // namespace velmora
