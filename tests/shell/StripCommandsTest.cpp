// SPDX-License-Identifier: MIT
#include "forms/Labels.h"
#include "shell/MainStrip.h"
#include "shell/StripCommands.h"
#include "tests/support/CardFiles.h"
#include "tests/support/FakeFrame.h"
#include "tests/support/Screens.h"

#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::test {

using namespace Qt::StringLiterals;

/// The strip's commands over a file with a card; they ask the frame for what they bring up.
class StripCommandsTest : public testing::Test {
 protected:
  StripCommandsTest() { file.AddCard(1, u"Ann"_s); }

  void DoubleClickTheName() {
    QTest::mouseDClick(strip.findChild<ui::Label*>(u"ClientLab"_s), Qt::LeftButton);
  }

  CardFile file = ACardFile().With(TextField(u"City"_s)).Make();
  FakeFrame frame;
  MainStrip strip{&frame};
  StripCommands commands{frame, strip};
};

TEST_F(StripCommandsTest, ShowQuickSearch_AllScreensClose_OpensIt) {
  DoubleClickTheName();
  EXPECT_EQ(frame.Calls, QStringList({u"UnloadOtherForms"_s, u"ShowQuickSearch"_s}));
}

TEST_F(StripCommandsTest, ShowQuickSearch_ScreenRefuses_DoesNotOpen) {
  auto* refusing = new AskingScreen(u"refusing"_s);
  DoubleClickTheName();
  EXPECT_EQ(frame.Calls, QStringList{u"UnloadOtherForms"_s});
  refusing->Refuses = false;
}

TEST_F(StripCommandsTest, ShowQuickSearch_FileWithoutCards_DoesNotOpen) {
  file.Database().Execute(u"Delete * from MainData");
  DoubleClickTheName();
  EXPECT_EQ(frame.Calls, QStringList{u"UnloadOtherForms"_s});
}

}  // namespace velmora::test
