// SPDX-License-Identifier: MIT
#pragma once

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
  void ViewClick();
  void DeleteClick();

  ui::ListBox* lstQuery = nullptr;
};

/// Shows the result of the query that was run or opened last, if there is one that can still run.
void ReturnToQuery();

}  // namespace velmora
