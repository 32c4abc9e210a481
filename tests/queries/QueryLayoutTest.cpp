// SPDX-License-Identifier: MIT
#include "queries/QueryLayout.h"

#include <gtest/gtest.h>

using namespace velmora;

namespace {

constexpr int listWidth = 2000;

}  // namespace

TEST(QueryLayout, FieldPlaces_UpToSeven_AreOneWideColumn) {
  const std::vector<FieldPlace> places = FieldPlaces(7, listWidth);
  ASSERT_EQ(places.size(), 7U);
  for (int i = 0; i < 7; ++i) {
    const int top = 1470 + 300 * i;
    const FieldPlace expected{{255, top}, {1500, top}, 2000 + 6120 - 200};
    EXPECT_EQ(places[static_cast<std::size_t>(i)], expected) << i;
  }
}

TEST(QueryLayout, FieldPlaces_EightToFourteen_AreTwoColumns) {
  const std::vector<FieldPlace> places = FieldPlaces(14, listWidth);
  const FieldPlace lastOfFirst{{255, 3270}, {1500, 3270}, 3300};
  const FieldPlace firstOfSecond{{255 + 4620, 1470}, {1500 + 4620, 1470}, 3300};
  EXPECT_EQ(places.at(6), lastOfFirst);
  EXPECT_EQ(places.at(7), firstOfSecond);
  EXPECT_EQ(places.at(13).Button.Top, 3270);
  EXPECT_EQ(FieldPlaces(8, listWidth).at(0).ListWidth, 3300);
}

TEST(QueryLayout, FieldPlaces_FifteenAndMore_AreThreeNarrowColumns) {
  const std::vector<FieldPlace> places = FieldPlaces(21, listWidth);
  const FieldPlace firstOfThird{{255 + 2 * 3120, 1470}, {1500 + 2 * 3120, 1470}, 1800};
  EXPECT_EQ(places.at(14), firstOfThird);
  EXPECT_EQ(places.at(20).List.Top, 3270);
  EXPECT_EQ(FieldPlaces(15, listWidth).at(0).ListWidth, 1800);
}

TEST(QueryLayout, FieldPlaces_NoFields_AreNone) { EXPECT_TRUE(FieldPlaces(0, listWidth).empty()); }
