// SPDX-License-Identifier: MIT
#include "shell/CardCount.h"

#include "base/system/Failures.h"
#include "frame/Session.h"

namespace velmora {

std::int32_t CardCountZero(const std::function<void()>& blankStrip) {
  std::int32_t isEmpty = 0;
  Trap([&] {
    // The end of the rows is known after one of them; their number would take a scan.
    if (!Global().File().OpenRecordset(u"Select * from MainData").AtEnd()) return;
    blankStrip();
    isEmpty = 1;
  });
  return isEmpty;
}

}  // namespace velmora
