// SPDX-License-Identifier: MIT
#include "cardfile/WizardRows.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

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
