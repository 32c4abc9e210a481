// SPDX-License-Identifier: MIT
#include "forms/NoticePlace.h"

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

constexpr QRect Room{0, 0, 600, 400};
constexpr QSize Size{300, 40};

/// Sees that it stands in the room and covers nothing of the control.
QRect Placed(const QRect& control, const QSize& size = Size) {
  const QRect place = PlaceBeside(control, size, Room);
  EXPECT_TRUE(Room.contains(place));
  EXPECT_FALSE(place.intersects(control));
  EXPECT_EQ(place.size(), size);
  return place;
}

TEST(NoticePlaceTest, PlaceBeside_SpaceBelow_StandsBelowFromTheSameEdge) {
  const QRect control(50, 100, 200, 24);
  const QRect place = Placed(control);
  EXPECT_GT(place.top(), control.bottom());
  EXPECT_EQ(place.left(), control.left());
}

TEST(NoticePlaceTest, PlaceBeside_AtTheRightEdge_IsMovedInto) {
  EXPECT_EQ(Placed({500, 100, 90, 24}).right(), Room.right());
}

TEST(NoticePlaceTest, PlaceBeside_AtTheFoot_StandsAbove) {
  const QRect control(50, 360, 200, 24);
  EXPECT_LT(Placed(control).bottom(), control.top());
}

TEST(NoticePlaceTest, PlaceBeside_FromTopToFoot_StandsAtItsSide) {
  EXPECT_GT(Placed({0, 0, 250, 400}).left(), 250);
  EXPECT_LT(Placed({350, 0, 250, 400}).right(), 350);
}

TEST(NoticePlaceTest, PlaceBeside_ControlFillsTheRoom_CoversItsFoot) {
  const QRect place = PlaceBeside(Room, Size, Room);
  EXPECT_TRUE(Room.contains(place));
  EXPECT_EQ(place.bottom(), Room.bottom());
}

}  // namespace
}  // namespace velmora::ui
