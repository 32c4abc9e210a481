// SPDX-License-Identifier: MIT
#pragma once

#include "forms/ControlArray.h"
#include "forms/Labels.h"
#include "forms/TextBox.h"
#include "queries/ConditionPicker.h"

namespace velmora {

class ItemSelector;

/// Picks the conditions of a text field: up to five texts typed freely, and any of the values that the user
/// keeps for the field.
class SelectQ final : public ConditionPicker {
  Q_OBJECT

 public:
  SelectQ(ui::ListBox& conditions, const QString& field);

  [[nodiscard]] const QString& FieldName() const { return m_fieldName; }

 protected:
  void OnLoad() override;

 private:
  void SetupBoxes();
  void SetupList();
  [[nodiscard]] QLayout* BoxColumn();
  [[nodiscard]] QLayout* ListColumn();
  void SetupLayout();
  void OpenValues(int index);
  void OkClick();

  QString m_fieldName;
  ui::ControlArray<ui::Label> lblName;
  ui::ControlArray<ui::TextBox> txtSelect;
  ItemSelector* itmsel = nullptr;
  ui::ListBox* List1 = nullptr;
};

}  // namespace velmora
