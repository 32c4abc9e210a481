// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/NameRules.h"
#include "cardfile/RowPlaces.h"
#include "forms/Buttons.h"
#include "forms/ControlArray.h"
#include "forms/Form.h"
#include "forms/Labels.h"
#include "forms/TextBox.h"
#include "forms/ptrArray.h"
#include "resources/Text.h"

#include <QList>

#include <array>

namespace velmora {

/// In what the screens of field pages differ to the eye.
struct FieldPagesDesign {
  QStringView Screen;
  strings::Text Title;
  strings::Text OkTip;
  strings::Text PageNameTip;
  std::array<strings::Text, MaxPages> PageTips;
  RowGrid Grid;
  /// Where the box for a page's title stands.
  ui::Place TitleBox;
};

/// What the wizard for a new file and the field editor share: ten pages with rows for the names of fields, a
/// title and a button for each page, and OK, Cancel and Help. The names and what goes with them are the
/// screen's own.
class FieldPages : public ui::Form {
  Q_OBJECT

 protected:
  explicit FieldPages(const FieldPagesDesign& design);

  void OnUnload() override;

  /// Shows a page in full, as its button does.
  virtual void ChoosePage(int page) = 0;
  /// What Ctrl with a page key does; -1 goes back.
  virtual void StepPage(int direction);

  void ResLoader();
  /// Makes the titles and buttons of the pages behind the first.
  void LoadPages();
  void TitleViewPage(int page);
  void ColorPageButtons();
  void SetPosition(ui::Control& control, int page);
  [[nodiscard]] RowPlace PlaceOfRow(int row) const { return velmora::PlaceOfRow(row, m_design.Grid); }
  /// The title of the page in view.
  [[nodiscard]] ui::TextBox& PageTitleBox() const { return txtNamePage[CurrentPage - 1]; }
  /// The commands that stand last on the screen, as the Tab key walks them.
  [[nodiscard]] QList<QWidget*> LastStops() const;
  /// The look of a box with the name of a field.
  void DressNameBox(ui::TextBox& box) const;
  /// Tells what a check of a name found and does to the box what goes with it; the widget that gets the focus
  /// back, or null.
  [[nodiscard]] static QWidget* Outcome(NameCheck found, ui::TextBox& box);

  int CurrentPage = 1;
  int NextIndex = 1;
  ptrArray TextArray;

  ui::ControlArray<ui::TextBox> txtNamePage;
  ui::ControlArray<ui::SSCommand> cmdPage;
  ui::Label* lblCurPage = nullptr;
  ui::SSCommand* CreateData = nullptr;
  ui::SSCommand* CancelData = nullptr;
  ui::SSCommand* CmdHelp = nullptr;

 private:
  void SetupLabels();
  void SetupCommands();
  void DressTitle(ui::TextBox& box);
  void DressPageButton(ui::SSCommand& button);

  const FieldPagesDesign m_design;
};

}  // namespace velmora
