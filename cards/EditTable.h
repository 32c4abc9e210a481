// SPDX-License-Identifier: MIT
#pragma once

#include "cards/CardForm.h"

#include <array>

namespace velmora {

/// The card editor: makes one new card of the open file. It never changes a stored one.
class EditTable final : public CardForm {
  Q_OBJECT

 public:
  EditTable();

  /// Writes the current card's name, number and contacts into the frame's strip.
  static void ShowMainString();

 protected:
  void OnLoad() override;
  void OnActivate() override;
  void OnQueryUnload(bool& cancel) override;
  void OnUnload() override;
  [[nodiscard]] bool SaveCard() override;
  [[nodiscard]] bool SaveWhenAsked() override;
  void EditDataClick() override { Save(); }
  void CancelDataClick() override;
  [[nodiscard]] QWidget* CheckName() override;
  [[nodiscard]] QList<QWidget*> FirstTabStops() const override;

 private:
  void StoreCard(db::Recordset& rows, std::int32_t card);
  [[nodiscard]] QWidget* CheckNumber();
  void LabelDoubleClicked(int index);

  ui::SSCommand* cmdGetEmpty = nullptr;
  ui::TextBox* IndexText = nullptr;
  std::array<bool, ptrArray::PageCount> PageUsed{};
  bool CardSaved = false;
  /// The save was started by closing the screen: no viewer follows.
  bool KeepClosed = false;
};

}  // namespace velmora
