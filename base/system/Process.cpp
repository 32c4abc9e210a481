// SPDX-License-Identifier: MIT
#include "base/system/Process.h"

#include <cstdlib>

namespace velmora {

namespace {

std::function<void()>& Ender() {
  static std::function<void()> ender;
  return ender;
}

}  // namespace

void EndProcess() {
  if (Ender()) {
    Ender()();
    return;
  }
  std::_Exit(EXIT_SUCCESS);
}

void SetProcessEnder(std::function<void()> ender) { Ender() = std::move(ender); }

}  // namespace velmora
