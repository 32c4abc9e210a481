// SPDX-License-Identifier: MIT
#include "queries/frmBoolSel.h"

#include "forms/Makers.h"
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
  // The caption tells the choice once there is one.
  cBool1 = ui::NewControl<ui::CheckBox>(this, u"cBool1"_s, {.Spoken = field});
  cBool1->SetCaption(field);
  cBool1->setMinimumSize(ui::Pixels(checkWidth), ui::Pixels(checkHeight));
  auto* ok = ui::NewCommand(this, u"cmdOK"_s, strings::Ok, strings::picker::YesNoOkTip);
  auto* cancel = ui::NewCommand(this, u"cmdCancel"_s, strings::Cancel);

  auto* rows = new QVBoxLayout(this);
  rows->addWidget(cBool1, 1);
  rows->addLayout(ui::NewButtonRow({}, {ok, cancel}));
  connect(cBool1, &ui::CheckBox::Click, this, &frmBoolSel::CheckClick);
  connect(ok, &ui::SSCommand::Click, this, &frmBoolSel::OkClick);
  connect(cancel, &ui::SSCommand::Click, this, &frmBoolSel::CancelClick);
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
