// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Buttons.h"
#include "forms/Form.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "queries/SavedQueries.h"

namespace velmora {

/// The second step of a query: takes the conditions, lets the user choose columns and a name, stores the
/// query in the card file and shows its result. Every query that is run is stored.
class SelectFields final : public ui::Form {
  Q_OBJECT

 public:
  SelectFields();

  /// The conditions as the query screen built them; empty for all cards.
  void SetWhereText(const QString& where) { WhereText = where; }
  /// The stored query that the new one narrows; empty for none.
  void SetBaseQuery(const QString& name) { BaseQuery = name; }
  /// Whether the cards' columns could be read.
  [[nodiscard]] bool IsFilled() const { return m_isFilled; }

 protected:
  void OnLoad() override;

 private:
  void SetupLists();
  void SetupButtons();
  void SetupLayout();
  void AddChosen();
  void RemoveChosen();
  void OkClick();
  /// Whether the name may be used; asks when a query has it.
  [[nodiscard]] bool MayUseName(NewQueryName found);

  QString WhereText;
  QString BaseQuery;
  bool m_isFilled = false;
  ui::ListBox* List1 = nullptr;
  ui::ListBox* List2 = nullptr;
  ui::SSCommand* addItem = nullptr;
  ui::SSCommand* MinusItem = nullptr;
  ui::SSCommand* AddAll = nullptr;
  ui::SSCommand* RemoveAll = nullptr;
  ui::TextBox* NameQuery = nullptr;
  ui::SSCommand* Ok = nullptr;
  ui::SSCommand* Cancel = nullptr;
  ui::SSCommand* CmdHelp = nullptr;
};

}  // namespace velmora
