// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"
#include "cardfile/FieldPages.h"
#include "forms/ComboBox.h"
#include "forms/ScrollSpin.h"

#include <QStringList>

namespace velmora {

/// The wizard for a new card file: the user names the main field and, page by page, the fields with their
/// kinds. The design lives in the controls alone until OK makes the file; leaving the screen any other way
/// drops it.
class CreatTable final : public FieldPages {
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
  void ChoosePage(int page) override;
  void StepPage(int direction) override;

 private:
  void SetupMainName();
  void SetupCount();
  void SetupTabOrder();
  void DressName(ui::TextBox& box);
  void DressKind(ui::ComboBox& list);

  void AddRow();
  void PlaceRow(int index, int row);
  void ShowRows(int page);
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
  ptrArray KindArray;

  ui::TextBox* MainName = nullptr;
  ui::ControlArray<ui::TextBox> TextIn;
  ui::ControlArray<ui::ComboBox> lstTypeField;
  ui::SSCommand* cmdChangeNumF = nullptr;
  ui::TextBox* txtScrol = nullptr;
  ui::ScrollSpin* VScroll1 = nullptr;
};

}  // namespace velmora
