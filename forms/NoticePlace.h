// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QSize>

namespace velmora::ui {

/// Where something of that size stands beside a control without covering it, wholly inside the room: below
/// it, above it, to its right or to its left, whichever has the space first. A control that leaves no space
/// beside it is covered at its foot.
[[nodiscard]] QRect PlaceBeside(const QRect& control, const QSize& size, const QRect& room);

}  // namespace velmora::ui
