// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"
#include "forms/Labels.h"

namespace velmora {

/// Advice on the design of a first file, over the wizard.
class frmHelpCreate final : public ui::Form {
  Q_OBJECT

 public:
  frmHelpCreate();

 protected:
  void OnLoad() override;

 private:
  ui::Label* lblMessage = nullptr;
};

}  // namespace velmora
