// SPDX-License-Identifier: MIT
#include "queries/frmBoolSel.h"

#include "forms/Buttons.h"
#include "forms/Twips.h"
#include "resources/strings.h"

#include <QVBoxLayout>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int checkWidth = 3600;
constexpr int checkHeight = 600;

QString Word(const ui::CheckBox& box) { return box.Value() == 1 ? strings::Yes : strings::No; }

}  // namespace

frmBoolSel::frmBoolSel(ui::ListBox& conditions, const QString& field)
    : ConditionPicker(u"frmBoolSel"_s, strings::picker::YesNoTitle, conditions) {
  cBool1 = new ui::CheckBox(this);
  cBool1->SetName(u"cBool1"_s);
  cBool1->SetCaption(field);
  // The caption tells the choice once there is one.
  cBool1->setAccessibleName(field);
  cmdOK = MakeButton(u"cmdOK"_s, strings::Ok, strings::picker::YesNoOkTip);
  cmdCancel = MakeButton(u"cmdCancel"_s, strings::Cancel, {});
  SetupLayout();
  connect(cBool1, &ui::CheckBox::Click, this, &frmBoolSel::CheckClick);
  connect(cmdOK, &ui::SSCommand::Click, this, &frmBoolSel::OkClick);
  connect(cmdCancel, &ui::SSCommand::Click, this, &frmBoolSel::CancelClick);
}

void frmBoolSel::SetupLayout() {
  cBool1->setMinimumSize(ui::Pixels(checkWidth), ui::Pixels(checkHeight));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdOK);
  buttons->addWidget(cmdCancel);
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(cBool1, 1);
  rows->addLayout(buttons);
}

void frmBoolSel::CheckClick() { cBool1->SetCaption(Word(*cBool1)); }

void frmBoolSel::OkClick() {
  Replace({Word(*cBool1)});
  Unload();
}

void frmBoolSel::CancelClick() {
  Unload();
  Replace({});
}

}  // namespace velmora
