// SPDX-License-Identifier: MIT
// What the buttons of the two toolbars do while a card is open.
#include "tests/shell/RealFrame.h"
#include "tests/support/Messages.h"

#include <QRegularExpression>
#include <QTimer>
#include <QtTest>

#include <vector>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

struct Button {
  const char* Bar;
  int Index;
  bool Guarded;
  /// Whether it brings up the description of what the program lacks, over the card that stays open.
  bool Describes = false;
};

void PrintTo(const Button& button, std::ostream* out) { *out << button.Bar << "_" << button.Index; }

/// Every button of both bars: those that close the open screens first, and those that leave them.
std::vector<Button> AllButtons() {
  constexpr int shortCount = 13;
  constexpr int longCount = 25;
  const QList<int> unguardedOfTheShortBar{9, 10};
  const QList<int> guardedOfTheLongBar{0, 1, 3, 5, 9, 16, 19, 23};
  const QList<int> unguardedWithAnotherUse{10, 11, 12, 13, 17};
  std::vector<Button> buttons;
  for (int i = 0; i < shortCount; ++i)
    buttons.push_back({"tool", i, !unguardedOfTheShortBar.contains(i), unguardedOfTheShortBar.contains(i)});
  for (int i = 0; i < longCount; ++i) {
    const bool guarded = guardedOfTheLongBar.contains(i);
    buttons.push_back({"ltTool", i, guarded, !guarded && !unguardedWithAnotherUse.contains(i)});
  }
  return buttons;
}

class RealFrameToolbarTest : public RealFrame {};

class ToolButtonTest : public RealFrameToolbarTest, public testing::WithParamInterface<Button> {};

TEST_P(ToolButtonTest, OverACardThatRefusesToClose_AsksOnlyIfItIsGuarded) {
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  OpenEditor();
  ChangeCity(u"EditTable"_s, u"Lyon"_s);
  QStringList asked;
  ui::SetMsgBoxResponder([&asked](const ui::Message& message) {
    asked += message.Text;
    return ui::MsgAnswer::Ok;
  });
  // A dialog that comes up where none should must not wait for ever.
  QTimer closing;
  QObject::connect(&closing, &QTimer::timeout, &closing, [] {
    if (auto* dialog = dynamic_cast<ui::Form*>(QApplication::activeModalWidget()); dialog != nullptr) {
      ADD_FAILURE() << dialog->objectName().toStdString() << " came up";
      dialog->Unload();
    }
  });
  closing.start();
  ClickTool(QString::fromLatin1(GetParam().Bar), GetParam().Index);
  FailOnUnexpectedMessages();
  EXPECT_EQ(asked.contains(u"Please enter a name for your main field."_s), GetParam().Guarded);
  EXPECT_EQ(asked.isEmpty(), !GetParam().Guarded);
  EXPECT_EQ(TextOf(u"EditTable"_s, u"NameText(0)"_s), u"Lyon"_s);
  QStringList open{u"Main"_s, u"EditTable"_s};
  if (GetParam().Describes) open += u"frmBrowser"_s;
  EXPECT_EQ(OpenScreens(), open);
  EXPECT_EQ(m_ends, 0);
  EXPECT_TRUE(m_main->isVisible());
  Press(u"EditTable"_s, u"CancelData"_s);
}

std::string ButtonName(const testing::TestParamInfo<Button>& info) {
  return testing::PrintToString(info.param);
}

INSTANTIATE_TEST_SUITE_P(RealFrame, ToolButtonTest, testing::ValuesIn(AllButtons()), ButtonName);

TEST_F(RealFrameToolbarTest, Bars_AtStart_HaveNoOtherButtons) {
  Start();
  for (const auto& [bar, count] : {std::pair{u"tool"_s, 13}, std::pair{u"ltTool"_s, 25}}) {
    const QRegularExpression button(u"^mPicture\\(\\d+\\)$"_s);
    EXPECT_EQ(Find<QWidget>(bar).findChildren<QWidget*>(button).size(), count) << bar.toStdString();
  }
}

TEST_F(RealFrameToolbarTest, Exit_OverAChangedCard_AsksAndStoresItOnYes) {
  const QString path = MakeFile(u"a.ddb"_s, {1});
  RunOn(path);
  ChangeCity(u"ShowTable"_s, u"Lyon"_s);
  {
    const MessageAnswers answers({ui::MsgAnswer::Yes});
    ClickTool(u"ltTool"_s, 23);
    EXPECT_EQ(answers.Asked().value(0).Text, u"Do you wish to save changes?"_s);
  }
  EXPECT_EQ(m_ends, 1);
  EXPECT_EQ(RowsOf(path, u"Select [City] from MainData"_s), QStringList{u"Lyon"_s});
}

TEST_F(RealFrameToolbarTest, Exit_OverAChangedCard_DropsItOnNo) {
  const QString path = MakeFile(u"a.ddb"_s, {1});
  RunOn(path);
  ChangeCity(u"ShowTable"_s, u"Lyon"_s);
  {
    const MessageAnswers answers({ui::MsgAnswer::No});
    ClickTool(u"ltTool"_s, 23);
  }
  EXPECT_EQ(m_ends, 1);
  EXPECT_EQ(RowsOf(path, u"Select [City] from MainData"_s), QStringList{u"Łódź"_s});
}

TEST_F(RealFrameToolbarTest, CustomerCard_NumberInTheSeekBox_EmptiesIt) {
  RunOn(MakeFile(u"a.ddb"_s, {1, 2}));
  QTest::keyClicks(&Find<QWidget>(u"txtSeek"_s), u"2"_s);
  ASSERT_EQ(Strip(u"txtSeek"_s), u"2"_s);
  ClickTool(u"tool"_s, 0);
  EXPECT_EQ(Strip(u"txtSeek"_s), QString());
  EXPECT_EQ(TextOf(u"ShowTable"_s, u"NameRecord"_s), u"Card 2"_s);
}

TEST_F(RealFrameToolbarTest, CustomerCard_NoFile_EmptiesTheSeekBoxAllTheSame) {
  Start();
  QTest::keyClicks(&Find<QWidget>(u"txtSeek"_s), u"2"_s);
  ClickTool(u"tool"_s, 0);
  EXPECT_EQ(Strip(u"txtSeek"_s), QString());
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
}

}  // namespace
}  // namespace velmora
