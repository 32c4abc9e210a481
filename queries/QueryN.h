// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Buttons.h"
#include "forms/ComboBox.h"
#include "forms/ControlArray.h"
#include "forms/Form.h"
#include "forms/ptrArray.h"
#include "queries/ConditionList.h"
#include "queries/QueryFields.h"
#include "queries/WhereGenerator.h"

#include <array>
#include <optional>
#include <vector>

namespace velmora {

/// The query screen: each field of the card as a button with the list of its conditions, page by page. What
/// stands in the lists is the query; nothing else keeps it. OK hands it to the choice of columns.
class QueryN final : public ui::Form {
  Q_OBJECT

 public:
  QueryN();

  // Element 0 of each array exists from the start. A field's button and its list have the same element
  // number; the button of page p is Tabl(p - 1).
  ui::ControlArray<ui::SSCommand> Tabl;
  ui::ControlArray<ui::SSCommand> butField;
  ui::ControlArray<ConditionList> lstElement;
  ui::ControlArray<ui::OptionButton> optAnd;
  ui::ComboBox* cmdQuery = nullptr;

 protected:
  void OnLoad() override;
  void OnActivate() override;
  void OnUnload() override;

 private:
  // In twips; a list's width is that before the layout.
  static constexpr int InnerHeight = 4500;
  static constexpr int ListWidth = 2000;

  void SetupKind();
  void SetupBase();
  void SetupCommands();
  void SetupTabOrder();
  void DressPageButton(ui::SSCommand& button);
  void DressFieldButton(ui::SSCommand& button);
  void DressList(ConditionList& list);

  void ResLoader();
  void LoadQueryFields();
  void PlacePageButtons(const std::array<bool, MaxPages>& inUse,
                        const std::array<QString, MaxPages>& captions);
  void PlaceFields();
  void LoadQueries();
  void ShowPage(int page);
  void SetColorB(int index);

  [[nodiscard]] std::optional<QString> BaseQuery() const;
  /// The query as it stands in the lists.
  [[nodiscard]] QueryModel Model() const;

  void TablClick(int index);
  void StepPage(int direction);
  void butFieldClick(int index);
  void EditDataClick();
  void CancelDataClick();

  /// By element number, as they were read at the load.
  std::vector<QueryFields::Entry> m_fields;
  ptrArray FieldButtons;
  ptrArray FieldLists;
  int m_page = 1;
  ui::SSCommand* EditData = nullptr;
  ui::SSCommand* CancelData = nullptr;
  ui::SSCommand* CmdHelp = nullptr;
};

}  // namespace velmora
