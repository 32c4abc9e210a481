// SPDX-License-Identifier: MIT
#pragma once

namespace velmora::ui {

/// The hourglass as long as it lives.
class Hourglass final {
 public:
  Hourglass();
  ~Hourglass();
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
};

}  // namespace velmora::ui
