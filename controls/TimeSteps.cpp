// SPDX-License-Identifier: MIT
#include "controls/TimeSteps.h"

namespace velmora {

namespace {

constexpr int Quarter = 15;
constexpr int Hour = 60;

}  // namespace

int QuarterAbove(int minute) { return (minute / Quarter + 1) * Quarter % Hour; }

int QuarterBelow(int minute) {
  if (minute == 0) return Hour - Quarter;
  if (minute > Quarter && minute % Quarter == 1) return minute;
  return (minute - 1) / Quarter * Quarter;
}

}  // namespace velmora
