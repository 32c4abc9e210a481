// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"
#include "forms/Buttons.h"
#include "forms/ComboBox.h"
#include "forms/ControlArray.h"
#include "forms/FlexGrid.h"
#include "forms/Form.h"
#include "forms/Labels.h"
#include "forms/Screen.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace velmora {

/// The rows of a stored query: runs it each time the screen becomes active, sorts its rows on demand, and
/// takes the user from a row to that card.
class ResultQuery final : public ui::Form {
  Q_OBJECT

 public:
  ResultQuery();

  /// The stored name of the query to run.
  void SetQueryKey(const QString& storedName) { QueryKey = storedName; }
  /// The query's name as the user typed it.
  void SetQueryName(const QString& name) { lblNameQuery->SetCaption(name); }

 protected:
  void OnLoad() override;
  void OnActivate() override;

 private:
  void SetupControls();
  void SetupButtons();
  void SetupLayout();
  /// Gives a statement's or a query's rows to the grid.
  void ShowRows(const QString& source);
  void FormatGrid();
  void FillOrderLists();
  void MakeOrderClick();
  void ToCardClick();
  [[nodiscard]] QStringList Headings() const;

  QString QueryKey;
  /// The kinds of the columns, as the rows themselves tell them; nothing where no field is of that kind.
  std::vector<std::optional<FieldKind>> m_kinds;
  ui::FlexGrid* MyFlex = nullptr;
  ui::Label* lblNameQuery = nullptr;
  ui::Label* lblNumber = nullptr;
  ui::ControlArray<ui::ComboBox> lstOrder;
  ui::OptionButton* optA = nullptr;
  ui::OptionButton* optZ = nullptr;
  ui::SSCommand* cmdMakeOrder = nullptr;
  ui::SSCommand* cmdToCard = nullptr;
  ui::SSCommand* cmdPrint = nullptr;
  ui::SSCommand* cmdCancel = nullptr;
};

/// Shows the result of a stored query in place of the screen that asks for it, if any, and of an earlier
/// result.
void ShowQueryResult(const QString& displayName, const QString& storedName, ui::Screen* asking);

}  // namespace velmora
