// SPDX-License-Identifier: MIT
#pragma once

#include "controls/DateCtrl.h"
#include "controls/UpDate.h"
#include "forms/Buttons.h"
#include "forms/ControlArray.h"
#include "forms/Form.h"
#include "forms/Labels.h"
#include "forms/ListBox.h"

#include <QPointer>

namespace velmora {

/// The dialog that sets a date and its reminder. It changes the date's control alone; the card's save writes
/// both.
class frmReminder final : public ui::Form {
  Q_OBJECT

 public:
  frmReminder();

  /// Shows what the control holds of its date: nothing when that is empty, which leaves today.
  void ShowDate();

  /// The date that it works on.
  QPointer<DateCtrl> DateCtl;

 private:
  void SetupControls();
  void SetupLayout();
  void ColorOrder();
  void OkClick();
  void DeleteClick();

  UpDate* mDate = nullptr;
  ui::SSRibbon* cmdOrder = nullptr;
  ui::ListBox* ListCollab = nullptr;
  ui::SSCommand* cmdAddAgents = nullptr;
  ui::SSCommand* cmdDelete = nullptr;
  ui::SSCommand* cmdOK = nullptr;
  ui::SSCommand* cmdCancel = nullptr;
  ui::ControlArray<ui::Label> Label2;
};

/// Opens the dialog on a date of a card and returns when it is gone.
void ShowReminder(DateCtrl& date);

}  // namespace velmora
