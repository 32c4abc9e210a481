// SPDX-License-Identifier: MIT
#include "forms/NoticePlace.h"

#include <algorithm>
#include <array>

namespace velmora::ui {

namespace {

constexpr int Gap = 2;

/// The rectangle moved into the room, as far as it fits.
QRect MovedInto(QRect rect, const QRect& room) {
  rect.moveLeft(std::max(room.left(), std::min(rect.left(), room.right() + 1 - rect.width())));
  rect.moveTop(std::max(room.top(), std::min(rect.top(), room.bottom() + 1 - rect.height())));
  return rect;
}

}  // namespace

QRect PlaceBeside(const QRect& control, const QSize& size, const QRect& room) {
  const int below = control.bottom() + 1 + Gap;
  const int above = control.top() - Gap - size.height();
  const int right = control.right() + 1 + Gap;
  const int left = control.left() - Gap - size.width();
  const std::array<QPoint, 4> corners{
      {{control.left(), below}, {control.left(), above}, {right, control.top()}, {left, control.top()}}};
  for (const QPoint& corner : corners) {
    const QRect place = MovedInto({corner, size}, room);
    if (!place.intersects(control)) return place;
  }
  return MovedInto({{control.left(), control.bottom() + 1 - size.height()}, size}, room);
}

}  // namespace velmora::ui
