// SPDX-License-Identifier: MIT
#pragma once

namespace velmora::ui {

/// While it lives, screens that come to the front because others close are not activated; the one in front at
/// its end is, when it was not active before.
class ActivationPause final {
 public:
  ActivationPause();
  ~ActivationPause();
  ActivationPause(const ActivationPause&) = delete;
  ActivationPause& operator=(const ActivationPause&) = delete;
};

}  // namespace velmora::ui
