// SPDX-License-Identifier: MIT
#include "frame/Session.h"
#include "shell/CardCount.h"
#include "tests/support/CardFiles.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

class CardCountTest : public testing::Test {
 protected:
  std::int32_t Count() {
    return CardCountZero([this] { ++m_blanked; });
  }

  int m_blanked = 0;
};

}  // namespace

TEST_F(CardCountTest, CardCountZero_FileWithoutCards_IsOneAndBlanksTheStrip) {
  const CardFile file = ACardFile().With(TextField(u"City"_s)).Make();
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(m_blanked, 1);
}

TEST_F(CardCountTest, CardCountZero_FileWithCards_IsZeroAndLeavesTheStrip) {
  const CardFile file = ACardFile().With(TextField(u"City"_s)).Make();
  file.AddCard(5, u"Ann"_s);
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(m_blanked, 0);
}

TEST_F(CardCountTest, CardCountZero_NoFile_IsZeroAndLeavesTheStrip) {
  Global() = Session();
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(m_blanked, 0);
}

TEST_F(CardCountTest, CardCountZero_TableGone_IsZero) {
  const CardFile file = ACardFile().With(TextField(u"City"_s)).Make();
  file.Database().DeleteTableDef(u"MainData");
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(m_blanked, 0);
}
