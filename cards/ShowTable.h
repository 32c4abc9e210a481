// SPDX-License-Identifier: MIT
#pragma once

#include "cards/CardForm.h"

#include <array>

namespace velmora {

/// The card viewer: shows a card of the open file, where every field can be changed, and OK writes it back.
class ShowTable final : public CardForm {
  Q_OBJECT

 public:
  ShowTable();

  /// The viewer when it is open, else null.
  [[nodiscard]] static ShowTable* Opened();

  /// Shows the card of that number or its nearest neighbour in the direction of travel, and makes it the
  /// current one. Asks first when the card in view was changed, and stays on it when that is not stored then.
  void ShowIndex(std::int32_t number);
  /// Marks the button of the page in view.
  void SetColorB(int index) { Tab[index].SetForeColor(ui::Role::Red); }

 protected:
  void OnLoad() override;
  void OnQueryUnload(bool& cancel) override;
  void OnUnload() override;
  [[nodiscard]] bool SaveCard() override;
  void EditDataClick() override { Save(); }
  void CancelDataClick() override;
  [[nodiscard]] QWidget* CheckName() override;
  void AfterPageShown() override;
  void AfterCommentOpened() override { HideFirst(); }
  void AfterCommentClosed() override;

 private:
  void ShowCard(std::int32_t number);
  void ShowFields(const db::Recordset& row, std::int32_t card);
  void ColorByFocus(ui::TextBox& box);
  void HideFirst();
  [[nodiscard]] std::array<ui::Control*, 3> FirstElements() const;

  ui::SSPanel* IndexText = nullptr;
  /// The first elements that stand hidden while the comment box covers them: text, check, number.
  std::array<bool, 3> HiddenFirst{};
  /// The name was changed since the screen was loaded.
  bool NameEdited = false;
};

}  // namespace velmora
