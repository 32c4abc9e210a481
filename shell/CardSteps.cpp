// SPDX-License-Identifier: MIT
#include "shell/CardSteps.h"

#include "frame/Frame.h"
#include "frame/Session.h"

#include <utility>

namespace velmora {

void StepCard(std::int32_t step) {
  Frame& frame = Frame::Main();
  // There is no card beyond the largest number.
  const std::int64_t asked = std::int64_t{Global().CurCard} + step;
  if (std::in_range<std::int32_t>(asked)) frame.SetWin(static_cast<std::int32_t>(asked), frame.GetActive());
  frame.EmptySeekBox();
}

}  // namespace velmora
