// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <functional>

namespace velmora {

/// The welcome of a user without a card file: leads to a first file or to the samples.
class frmTut final : public ui::Form {
  Q_OBJECT

 public:
  frmTut();

  // What its two choices run, when it has closed; set before it is shown.
  std::function<void()> NewFile;
  std::function<void()> Samples;

 protected:
  void OnLoad() override;

 private:
  void NewFileClick();
  void SamplesClick();
  void CancelClick();
};

}  // namespace velmora
