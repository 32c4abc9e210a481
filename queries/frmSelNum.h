// SPDX-License-Identifier: MIT
#pragma once

#include "forms/ControlArray.h"
#include "forms/Labels.h"
#include "queries/ConditionPicker.h"

namespace velmora {

class DigitBox;

namespace ui {
class ComboBox;
}

/// Picks up to two conditions of a number field, each an operator and a number. A group with only one of the
/// two gives none.
class frmSelNum final : public ConditionPicker {
  Q_OBJECT

 public:
  explicit frmSelNum(ui::ListBox& conditions);

  /// The name of the field, in each of the two groups.
  ui::ControlArray<ui::Label> lblName;

 private:
  void SetupGroup(int index, ui::ComboBox*& comparison, const QString& operatorName, DigitBox*& number,
                  const QString& numberName);
  void OkClick();

  ui::ControlArray<ui::GroupFrame> Frame1;
  ui::ComboBox* cmbEx = nullptr;
  ui::ComboBox* cmbEx1 = nullptr;
  DigitBox* txtValue = nullptr;
  DigitBox* txtValue1 = nullptr;
};

}  // namespace velmora
