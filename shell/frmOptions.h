// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Buttons.h"
#include "forms/ComboBox.h"
#include "forms/ControlArray.h"
#include "forms/FileDialog.h"
#include "forms/Form.h"
#include "forms/ListBox.h"
#include "forms/SSTab.h"
#include "forms/TextBox.h"
#include "shell/OptionValues.h"
#include "shell/PicturePreview.h"

#include <array>
#include <optional>

class QFormLayout;

namespace velmora {

/// The options of the program and of the open card file. What stands on the tabs "Background" and "Buttons"
/// is stored as it is set and cannot be taken back; the rest waits for OK or Apply. One that the open file
/// cannot store does not keep the others from being stored.
class frmOptions final : public ui::Form {
  Q_OBJECT

 public:
  frmOptions();

  /// Gives the card viewer, when it is in front, the strip's background as its icon.
  static void UpdateBackground();

 protected:
  void OnLoad() override;
  void OnActivate() override;

 private:
  /// Where the user is told of what Apply could not do: at its control, or in the strip when the dialog goes.
  enum class Tell { Here, InStrip };

  void SetupGeneral();
  void SetupModem(QFormLayout& rows);
  void SetupButtons();
  void SetupDialing();
  void SetupInternet();
  void SetupBackground();
  void SetupWordProcessor();
  void SetupCommands();
  void SetupTabOrder();
  void DressShortcut(ui::SSRibbon& button);
  ui::TextBox* AddBox(QFormLayout& rows, const QString& name, const QString& caption,
                      const QString& tip = {});

  void LoadFields();
  void LoadTexts();
  void LoadBackground();

  void Apply(Tell where);
  [[nodiscard]] OptionValues Values() const;
  [[nodiscard]] std::int32_t ChosenPort() const;
  void TellUnlessStored(QWidget* about, bool stored);

  void CheckTax();
  void TellOnLeaving(QWidget* about, const QString& notice);
  void CheckBrowser();
  [[nodiscard]] std::optional<QString> ChooseProgram(QWidget* asked);
  void SaveShortcut();
  void UseBackgroundClick();
  void BackgroundTyped();
  void ChooseBackground();
  void ShowPicture(const QString& name);

  /// The dialog's own file dialog.
  ui::FileDialog dOpenFile;
  /// The background's name was typed and not yet looked at.
  bool m_backgroundTyped = false;
  /// What leaving a box has told: the dialog takes that notice with it.
  QString m_toldOnLeaving;

  ui::SSTab* tabOptions = nullptr;
  ui::ComboBox* cmdListFields = nullptr;
  ui::ComboBox* cmbListFax = nullptr;
  ui::TextBox* txtMaam = nullptr;
  std::array<ui::OptionButton*, 4> opt{};
  ui::CheckBox* chUSA = nullptr;
  ui::ControlArray<ui::SSRibbon> rButton;
  ui::TextBox* txtNameFile = nullptr;
  ui::SSCommand* cmdSearchFile = nullptr;
  ui::ListBox* lstIcon = nullptr;
  ui::SSCommand* cmdSavePath = nullptr;
  ui::TextBox* txtPrefix = nullptr;
  ui::TextBox* txtArea = nullptr;
  ui::TextBox* txtEmail = nullptr;
  ui::TextBox* txtMailServer = nullptr;
  ui::TextBox* txtBrowser = nullptr;
  ui::SSCommand* cmdAddFile = nullptr;
  ui::CheckBox* chkUseBackground = nullptr;
  ui::TextBox* txtBackGround = nullptr;
  ui::SSCommand* cmdBackGround = nullptr;
  PicturePreview* picBackGround = nullptr;
  ui::ComboBox* cmbTextEditor = nullptr;
  ui::SSCommand* EditData = nullptr;
  ui::SSCommand* CancelData = nullptr;
  ui::SSCommand* cmdApply = nullptr;
};

}  // namespace velmora
