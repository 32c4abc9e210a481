// SPDX-License-Identifier: MIT
#include "cardfile/WizardRows.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(WizardRows, PlaceOfRow_SevenRows_FillOneColumn) {
  EXPECT_EQ(PlaceOfRow(1), (RowPlace{.Left = 45, .Top = 1485}));
  EXPECT_EQ(PlaceOfRow(2), (RowPlace{.Left = 45, .Top = 1820}));
  EXPECT_EQ(PlaceOfRow(7), (RowPlace{.Left = 45, .Top = 3495}));
}

TEST(WizardRows, PlaceOfRow_EighthRow_BeginsTheSecondColumn) {
  EXPECT_EQ(PlaceOfRow(8), (RowPlace{.Left = 3245, .Top = 1485}));
  EXPECT_EQ(PlaceOfRow(14), (RowPlace{.Left = 3245, .Top = 3495}));
}

TEST(WizardRows, PlaceOfRow_FifteenthRow_BeginsTheThirdColumn) {
  EXPECT_EQ(PlaceOfRow(15), (RowPlace{.Left = 6445, .Top = 1485}));
  EXPECT_EQ(PlaceOfRow(21), (RowPlace{.Left = 6445, .Top = 3495}));
}

TEST(WizardRows, GrantedFields_RoomInTheFile_GrantsAll) {
  EXPECT_EQ(GrantedFields(21, 1, 1, 1), 21);
  EXPECT_EQ(GrantedFields(16, 5, 0, 84), 16);
}

TEST(WizardRows, GrantedFields_BeyondAHundred_LowersToTheHundredth) {
  EXPECT_EQ(GrantedFields(17, 5, 0, 84), 16);
  EXPECT_EQ(GrantedFields(21, 5, 16, 100), 16);
  EXPECT_EQ(GrantedFields(3, 6, 0, 100), 0);
}

TEST(WizardRows, GrantedFields_NoneOnPage1_KeepsOne) {
  EXPECT_EQ(GrantedFields(0, 1, 5, 5), 1);
  EXPECT_EQ(GrantedFields(0, 2, 5, 6), 0);
}

}  // namespace
}  // namespace velmora
