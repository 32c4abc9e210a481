// SPDX-License-Identifier: MIT
#pragma once

#include "queries/ConditionPicker.h"

namespace velmora {

namespace ui {
class CheckBox;
}

/// Picks the condition of a yes/no field. Its Cancel takes the field out of the query; the close box leaves
/// the condition as it was.
class frmBoolSel final : public ConditionPicker {
  Q_OBJECT

 public:
  frmBoolSel(ui::ListBox& conditions, const QString& field);

 private:
  void CheckClick();
  void OkClick();
  void CancelClick();

  ui::CheckBox* cBool1 = nullptr;
};

}  // namespace velmora
