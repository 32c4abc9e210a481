// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <functional>

namespace velmora {

/// The one clock of the program. Tests set it.
class Clock final {
 public:
  [[nodiscard]] static QDateTime Now();
  [[nodiscard]] static QDate Today() { return Now().date(); }
  /// Replaces the clock; an empty function brings the system's back.
  static void Set(std::function<QDateTime()> now);
};

}  // namespace velmora
