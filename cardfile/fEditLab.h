// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/FieldPages.h"

namespace velmora {

namespace ui {
class ComboBox;
class ListBox;
}  // namespace ui

/// The field editor: adds fields to the pages of the open file, deletes them, and gives the pages their
/// titles. Each action reaches the file at once; OK and Cancel both only leave. After a deletion the screen
/// closes and opens again, so that its rows are the catalogue's. With no file open it is empty.
class fEditLab final : public FieldPages {
  Q_OBJECT

 public:
  fEditLab();

 protected:
  void OnLoad() override;
  void OnActivate() override;
  void ChoosePage(int page) override;

 private:
  void SetupNewField();
  void SetupList();
  void SetupPageTitle();
  void SetupCommands();
  void SetupTabOrder();
  void DressName(ui::TextBox& box);

  void LoadEditFields();
  void AddRow(const QString& name, int page);
  /// The field that is about to be added, as the controls have it.
  [[nodiscard]] DesignField Wanted() const;

  [[nodiscard]] QWidget* CheckNewField();
  /// Tells why the name in the box cannot be a field's, before anything is tried.
  void TellFault();
  [[nodiscard]] bool CheckNewName(const QString& name);

  void AddClick();
  /// The steps of adding, each of which stays when a later one fails.
  void AddField();
  void DeleteClick();
  [[nodiscard]] static bool ConfirmsDeletion();
  /// Closes the screen and opens it again on that page.
  static void Reopen(int page);
  void ApplyClick();
  void Leave();

  ui::ControlArray<ui::TextBox> TextIn;
  ui::TextBox* NewField = nullptr;
  ui::ComboBox* lstType = nullptr;
  ui::SSCommand* cmdAdd = nullptr;
  ui::ListBox* lstDelName = nullptr;
  ui::SSCommand* cmdDel = nullptr;
  ui::SSCommand* cmdNamePage = nullptr;
  /// What a failure of adding leaves behind, as the notice says it.
  QString m_outcome;
};

}  // namespace velmora
