// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <functional>

namespace velmora {

/// Tells about the sample files and leads to them.
class FHelpSamples final : public ui::Form {
  Q_OBJECT

 public:
  FHelpSamples();

  /// What OK runs, with this screen still open; set before it is shown.
  std::function<void()> OpenSampleList;

 protected:
  void OnLoad() override;

 private:
  void CancelClick();
};

}  // namespace velmora
