// SPDX-License-Identifier: MIT
#include "cardfile/RowPlaces.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(RowPlaces, PlaceOfRow_SevenRows_FillOneColumn) {
  EXPECT_EQ(PlaceOfRow(1, WizardGrid), (RowPlace{.Left = 45, .Top = 1485}));
  EXPECT_EQ(PlaceOfRow(2, WizardGrid), (RowPlace{.Left = 45, .Top = 1820}));
  EXPECT_EQ(PlaceOfRow(7, WizardGrid), (RowPlace{.Left = 45, .Top = 3495}));
  EXPECT_EQ(PlaceOfRow(1, EditorGrid), (RowPlace{.Left = 135, .Top = 1400}));
  EXPECT_EQ(PlaceOfRow(7, EditorGrid), (RowPlace{.Left = 135, .Top = 3410}));
}

TEST(RowPlaces, PlaceOfRow_EighthRow_BeginsTheSecondColumn) {
  EXPECT_EQ(PlaceOfRow(8, WizardGrid), (RowPlace{.Left = 3245, .Top = 1485}));
  EXPECT_EQ(PlaceOfRow(14, WizardGrid), (RowPlace{.Left = 3245, .Top = 3495}));
  EXPECT_EQ(PlaceOfRow(8, EditorGrid), (RowPlace{.Left = 3335, .Top = 1400}));
  EXPECT_EQ(PlaceOfRow(14, EditorGrid), (RowPlace{.Left = 3335, .Top = 3410}));
}

TEST(RowPlaces, PlaceOfRow_FifteenthRow_BeginsTheThirdColumn) {
  EXPECT_EQ(PlaceOfRow(15, WizardGrid), (RowPlace{.Left = 6445, .Top = 1485}));
  EXPECT_EQ(PlaceOfRow(21, WizardGrid), (RowPlace{.Left = 6445, .Top = 3495}));
  EXPECT_EQ(PlaceOfRow(15, EditorGrid), (RowPlace{.Left = 6535, .Top = 1400}));
  EXPECT_EQ(PlaceOfRow(21, EditorGrid), (RowPlace{.Left = 6535, .Top = 3410}));
}

}  // namespace
}  // namespace velmora
