// SPDX-License-Identifier: MIT
#include "cardfile/PagePlan.h"

#include <gtest/gtest.h>

#include <initializer_list>

using namespace velmora;

namespace {

std::array<bool, MaxPages> Pages(std::initializer_list<int> pages) {
  std::array<bool, MaxPages> used{};
  for (const int page : pages) used.at(static_cast<std::size_t>(page - 1)) = true;
  return used;
}

}  // namespace

TEST(PagePlan, FirstPageButtonLeft_StandsRightOfTheSeekBox) {
  EXPECT_EQ(FirstPageButtonLeft(675, 855), 675 + 855 + 2450);
}

TEST(PagePlan, PageButtons_NoFieldsAtAll_PageOneHasItsButton) {
  const std::vector<PageButtonPlace> expected{{0, {4000, 0}}};
  EXPECT_EQ(PageButtons({}, 4000), expected);
}

TEST(PagePlan, PageButtons_PagesWithoutFields_CloseUpAndKeepTheirNumbers) {
  const std::vector<PageButtonPlace> expected{{0, {4000, 0}}, {2, {5000, 0}}, {9, {6000, 0}}};
  EXPECT_EQ(PageButtons(Pages({3, 10}), 4000), expected);
}

TEST(PagePlan, PageButtons_AllPages_StandInTwoRowsOfFive) {
  const std::vector<PageButtonPlace> expected{
      {0, {4000, 0}},   {1, {5000, 0}},   {2, {6000, 0}},   {3, {7000, 0}},   {4, {8000, 0}},
      {5, {4000, 255}}, {6, {5000, 255}}, {7, {6000, 255}}, {8, {7000, 255}}, {9, {8000, 255}}};
  EXPECT_EQ(PageButtons(Pages({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}), 4000), expected);
}

TEST(PagePlan, PageWidening_FewFields_IsWiderWithTwoStepsDown) {
  EXPECT_EQ(PageWidening(0), 6120);
  EXPECT_EQ(PageWidening(7), 6120);
  EXPECT_EQ(PageWidening(8), 1500);
  EXPECT_EQ(PageWidening(14), 1500);
  EXPECT_EQ(PageWidening(15), 0);
}

TEST(PagePlan, ColumnPlaces_SevenFields_FillOneColumn) {
  const std::vector<PagePlace> places = ColumnPlaces(7, {.Left = 100, .Top = 50});
  ASSERT_EQ(places.size(), 7U);
  for (int i = 0; i < 7; ++i) {
    const PagePlace expected{.Left = 100, .Top = 50 + 300 * i};
    EXPECT_EQ(places.at(static_cast<std::size_t>(i)), expected) << i;
  }
}

TEST(PagePlan, ColumnPlaces_MoreFields_BeginColumnsThatAreTheWiderTheFewerThereAre) {
  const PagePlace second{.Left = 100 + 3120 + 1500, .Top = 50};
  EXPECT_EQ(ColumnPlaces(8, {.Left = 100, .Top = 50}).at(7), second);
  const PagePlace fourth{.Left = 100 + 3 * 3120, .Top = 50};
  EXPECT_EQ(ColumnPlaces(22, {.Left = 100, .Top = 50}).at(21), fourth);
}
