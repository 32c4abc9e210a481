// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/ProgramStart.h"

namespace velmora {

/// A process that this program started and keeps in view; no longer than it runs: another process that is
/// given its number later is not taken for it.
class StartedProcess final {
 public:
  StartedProcess() = default;
  ~StartedProcess() { Release(); }
  StartedProcess(const StartedProcess&) = delete;
  StartedProcess& operator=(const StartedProcess&) = delete;

  /// Keeps that process in view from now on, in place of the one before.
  void Watch(ProcessNumber number);
  [[nodiscard]] bool IsRunning() const;
  [[nodiscard]] ProcessNumber Number() const { return m_number; }

 private:
  void Release();

  static constexpr int None = -1;
  int m_handle = None;
  ProcessNumber m_number = 0;
};

}  // namespace velmora
