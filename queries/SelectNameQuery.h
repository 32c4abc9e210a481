// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Buttons.h"
#include "forms/Form.h"
#include "forms/ListBox.h"

namespace velmora {

/// The list of stored queries: shows one again, or deletes it.
class SelectNameQuery final : public ui::Form {
  Q_OBJECT

 public:
  SelectNameQuery();

 protected:
  void OnLoad() override;
  void OnActivate() override;

 private:
  void SetupLayout();
  void ViewClick();
  void DeleteClick();

  ui::ListBox* lstQuery = nullptr;
  ui::SSCommand* Command1 = nullptr;
  ui::SSCommand* cmdDel = nullptr;
  ui::SSCommand* Command2 = nullptr;
};

/// Shows the result of the query that was run or opened last, if there is one that can still run.
void ReturnToQuery();

}  // namespace velmora
