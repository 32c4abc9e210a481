// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Buttons.h"
#include "forms/Form.h"
#include "forms/Labels.h"

namespace velmora {

/// What the program is: its version and licence, what it is made with, and the way to the desktop's own
/// information about the system.
class frmAbout final : public ui::Form {
  Q_OBJECT

 public:
  frmAbout();

 protected:
  void OnLoad() override;

 private:
  void SetupLayout();

  ui::Label* lblTitle = nullptr;
  ui::SSCommand* cmdOK = nullptr;
  ui::SSCommand* cmdSysInfo = nullptr;
};

}  // namespace velmora
