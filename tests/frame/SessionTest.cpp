// SPDX-License-Identifier: MIT
#include "frame/Session.h"
#include "tests/support/TestDatabase.h"

#include <gtest/gtest.h>

using namespace velmora;
using namespace velmora::test;

TEST(SessionTest, Global_AtTheStart_HasNoFile) {
  const Session session;
  EXPECT_EQ(session.NoFile, -1);
  EXPECT_EQ(session.CardDb, nullptr);
  EXPECT_EQ(session.CurCard, 0);
  EXPECT_EQ(session.CardChanged, 0);
  EXPECT_EQ(session.ModemPort, 2);
  EXPECT_EQ(session.TaxPercent, 17);
}

TEST(SessionTest, File_NoneOpen_FailsLikeAClosedOne) {
  const Session session;
  EXPECT_EQ(ErrorNumberOf([&] { std::ignore = session.File(); }), 3420);
}

TEST(SessionTest, DBEngine_SecondUse_IsTheSame) {
  Session session;
  EXPECT_EQ(&session.DBEngine(), &session.DBEngine());
}

TEST(SessionTest, Global_IsOne) { EXPECT_EQ(&Global(), &Global()); }
