// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"
#include "forms/Buttons.h"
#include "forms/ComboBox.h"
#include "forms/ControlArray.h"
#include "forms/Form.h"
#include "forms/Labels.h"
#include "forms/ScrollSpin.h"
#include "forms/TextBox.h"
#include "forms/ptrArray.h"

#include <QStringList>

namespace velmora {

/// The wizard for a new card file: the user names the main field and, page by page, the fields with their
/// kinds. The design lives in the controls alone until OK makes the file; leaving the screen any other way
/// drops it.
class CreatTable final : public ui::Form {
  Q_OBJECT

 public:
  CreatTable();

  /// The full path of the file to make, and its short name; both are set before the screen is shown.
  void SetNewFileName(const QString& path) { NewFileName = path; }
  void SetNewFileTitle(const QString& title) { NewFileTitle = title; }

 protected:
  void OnLoad() override;
  void OnActivate() override;
  void OnUnload() override;

 private:
  void SetupMainName();
  void SetupPageRow();
  void SetupCount();
  void SetupPageButtons();
  void SetupCommands();
  void SetupTabOrder();
  void DressName(ui::TextBox& box);
  void DressKind(ui::ComboBox& list);
  void DressTitle(ui::TextBox& box);
  void DressPageButton(ui::SSCommand& button);

  void ResLoader();
  void AddRow();
  void PlaceRow(int index, int row);
  void SetPosition(ui::Control& control, int page);
  void ShowRows(int page);
  void ChoosePage(int page);
  void StepPage(int direction);
  void TitleViewPage(int page);
  void ColorPageButtons();
  void ChangeCount();
  void SetCount(int count);
  void FocusFirstField();

  [[nodiscard]] QWidget* CheckMain();
  [[nodiscard]] QWidget* CheckField(ui::TextBox& box);
  [[nodiscard]] QStringList FieldNames(const ui::TextBox* except) const;

  void Confirm();
  [[nodiscard]] bool HasNeededNames();
  void ClearClean();
  [[nodiscard]] CardDesign Design() const;
  void MakeFile();

  QString NewFileName;
  QString NewFileTitle;
  int CurrentPage = 1;
  int NextIndex = 1;
  ptrArray TextArray;
  ptrArray KindArray;

  ui::TextBox* MainName = nullptr;
  ui::ControlArray<ui::TextBox> TextIn;
  ui::ControlArray<ui::ComboBox> lstTypeField;
  ui::ControlArray<ui::TextBox> txtNamePage;
  ui::Label* lblCurPage = nullptr;
  ui::SSCommand* cmdChangeNumF = nullptr;
  ui::TextBox* txtScrol = nullptr;
  ui::ScrollSpin* VScroll1 = nullptr;
  ui::ControlArray<ui::SSCommand> cmdPage;
  ui::SSCommand* CreateData = nullptr;
  ui::SSCommand* CancelData = nullptr;
  ui::SSCommand* CmdHelp = nullptr;
};

}  // namespace velmora
