// SPDX-License-Identifier: MIT
#include "shell/CardCount.h"

#include "base/system/Failures.h"
#include "cardfile/Cards.h"
#include "frame/Session.h"

namespace velmora {

std::int32_t CardCountZero(const std::function<void()>& blankStrip) {
  std::int32_t isEmpty = 0;
  Trap([&] {
    if (!Cards(Global().File()).IsEmpty()) return;
    blankStrip();
    isEmpty = 1;
  });
  return isEmpty;
}

}  // namespace velmora
