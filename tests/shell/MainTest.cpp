// SPDX-License-Identifier: MIT
#include "base/settings/Settings.h"
#include "base/system/Clock.h"
#include "forms/ComboBox.h"
#include "forms/Labels.h"
#include "forms/TextBox.h"
#include "forms/Twips.h"
#include "frame/Session.h"
#include "tests/shell/MainFixture.h"
#include "tests/support/Messages.h"

#include <QAction>
#include <QFile>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScreen>
#include <QtTest>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class MainTest : public MainFixture {
 protected:
  /// The user goes to another program and comes back.
  static void AnotherProgramAndBack() {
    for (const Qt::ApplicationState state : {Qt::ApplicationInactive, Qt::ApplicationActive}) {
      Q_EMIT qApp->applicationStateChanged(state);
    }
  }
  [[nodiscard]] QSize FullSize() const { return {ui::Pixels(9600), ui::Pixels(7350)}; }
};

TEST_F(MainTest, Load_NoLastFile_ShowsAnEmptyFrame) {
  const Main& frame = Start();
  EXPECT_TRUE(frame.isVisible());
  EXPECT_EQ(frame.windowTitle(), u"Velmora"_s);
  EXPECT_EQ(Global().NoFile, True);
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
}

TEST_F(MainTest, Load_LastFileWithCards_ShowsTheLastCard) {
  const QString path = MakeFile(u"a.ddb"_s, {1, 2, 5});
  Main& frame = StartOn(path, 5);
  EXPECT_EQ(frame.windowTitle(), path);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ShowTable"_s}));
  EXPECT_EQ(frame.GetActive(), ActiveShowTable);
  EXPECT_EQ(Global().CurCard, 5);
  EXPECT_EQ(Find<ui::Label>(u"ClientLab"_s).Caption(), u"Card 5"_s);
  EXPECT_EQ(Find<ui::Label>(u"NumberLab"_s).Caption(), u"5"_s);
}

TEST_F(MainTest, Load_LastFileWithoutCards_StartsInTheEditorEachTimeItIsActivated) {
  const QString path = MakeFile(u"a.ddb"_s, {});
  Main& frame = StartOn(path, 0);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"EditTable"_s}));
  frame.UnloadOtherForms();
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
  AnotherProgramAndBack();
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"EditTable"_s}));
}

TEST_F(MainTest, Load_LastFileMissing_StartsEmptyAndKeepsTheSetting) {
  const QString path = PathOf(u"gone.ddb"_s);
  StartOn(path);
  EXPECT_EQ(Global().NoFile, True);
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
  EXPECT_EQ(Stored(u"Load"_s, u"Path"_s), path);
}

TEST_F(MainTest, Load_LastFileNoDatabase_StartsInSilence) {
  QFile text(PathOf(u"text.ddb"_s));
  ASSERT_TRUE(text.open(QIODevice::WriteOnly));
  text.write("This is a shopping list and no database.\n");
  text.close();
  const Main& frame = StartOn(text.fileName());
  EXPECT_TRUE(frame.isVisible());
  EXPECT_EQ(Global().CardDb, nullptr);
}

TEST_F(MainTest, Activate_FrameResized_ReturnsToItsSize) {
  Main& frame = Start();
  EXPECT_EQ(frame.size(), FullSize());
  frame.resize(900, 700);
  AnotherProgramAndBack();
  EXPECT_EQ(frame.size(), FullSize());
}

TEST_F(MainTest, Activate_SizeBeyondTheScreen_TakesTheRoomThatIsThere) {
  const auto restore = qScopeGuard([] { ui::SetProgramScale(1.0); });
  ui::SetProgramScale(1.5);
  Main& frame = Start();
  const QSize room = frame.screen()->availableSize();
  EXPECT_LT(room.width(), FullSize().width());
  EXPECT_EQ(frame.frameSize().width(), room.width());
  EXPECT_EQ(frame.height(), FullSize().height());
  frame.resize(FullSize());
  AnotherProgramAndBack();
  EXPECT_EQ(frame.frameSize().width(), room.width());
}

TEST_F(MainTest, Activate_ProgramWasNotLeft_DoesNotRun) {
  Main& frame = Start();
  frame.resize(900, 700);
  Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
  EXPECT_EQ(frame.size(), QSize(900, 700));
}

TEST_F(MainTest, Activate_FrameMaximised_KeepsItsSize) {
  Main& frame = Start();
  frame.showMaximized();
  const QSize size = frame.size();
  frame.Activate();
  EXPECT_EQ(frame.size(), size);
}

TEST_F(MainTest, ClearpMainPic_StripFilled_BlanksTheClockToo) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  frame.UpdateClock();
  auto& clock = Find<ui::SSPanel>(u"TimeLab"_s);
  ASSERT_NE(clock.Caption(), QString());
  frame.ClearpMainPic();
  EXPECT_EQ(clock.Caption(), QString());
  EXPECT_EQ(Find<ui::Label>(u"ClientLab"_s).Caption(), QString());
  EXPECT_EQ(Find<ui::Label>(u"NumberLab"_s).Caption(), QString());
}

TEST_F(MainTest, GetActive_EditorInFront_GivesNoCode) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  frame.NewCard();
  EXPECT_EQ(frame.GetActive(), ActiveNone);
}

TEST_F(MainTest, ResLoaderMain_Settings_ChooseTheBackground) {
  Main& frame = Start();
  const auto hasPicture = [&] { return Find<QWidget>(u"pMainPic"_s).property("hasPicture").toBool(); };
  EXPECT_FALSE(hasPicture());
  SaveSetting(u"Init"_s, u"WallPap"_s, u"(default)"_s);
  frame.ResLoaderMain();
  EXPECT_TRUE(hasPicture());
  SaveSetting(u"Init"_s, u"UseBackground"_s, u"0"_s);
  frame.ResLoaderMain();
  EXPECT_FALSE(hasPicture());
  SaveSetting(u"Init"_s, u"UseBackground"_s, u"1"_s);
  SaveSetting(u"Init"_s, u"WallPap"_s, u"(none)"_s);
  frame.ResLoaderMain();
  EXPECT_FALSE(hasPicture());
}

// The strip.

TEST_F(MainTest, CmdUp_GapsBetweenCards_StepsToTheNextCard) {
  StartOn(MakeFile(u"a.ddb"_s, {1, 2, 5}), 2);
  QTest::mouseClick(&Find<QPushButton>(u"cmdUp"_s), Qt::LeftButton);
  EXPECT_EQ(Global().CurCard, 5);
  QTest::mouseClick(&Find<QPushButton>(u"cmdUp"_s), Qt::LeftButton);
  EXPECT_EQ(Global().CurCard, 5);
}

TEST_F(MainTest, CmdDown_DownToTheFirstCard_StaysThere) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1, 2, 5}), 5);
  auto& down = Find<QPushButton>(u"cmdDown"_s);
  for (const int card : {2, 1, 1}) {
    QTest::mouseClick(&down, Qt::LeftButton);
    EXPECT_EQ(Global().CurCard, card);
  }
  frame.SetWin(5, ActiveShowTable);
  frame.UnloadOtherForms();
  for (const int card : {2, 1, 1}) {
    QTest::mouseClick(&down, Qt::LeftButton);
    EXPECT_EQ(Global().CurCard, card);
  }
}

TEST_F(MainTest, CmdUp_OnTheLargestNumber_StaysThere) {
  StartOn(MakeFile(u"a.ddb"_s, {1, 2147483647}), 2147483647);
  QTest::mouseClick(&Find<QPushButton>(u"cmdUp"_s), Qt::LeftButton);
  EXPECT_EQ(Global().CurCard, 2147483647);
}

TEST_F(MainTest, TimeLab_Clicked_StartsAndStopsTheStopwatch) {
  Main& frame = Start();
  QDateTime now(QDate(2026, 11, 20), QTime(9, 30));
  Clock::Set([&now] { return now; });
  auto& clock = Find<ui::SSPanel>(u"TimeLab"_s);
  QTest::mouseClick(&clock, Qt::LeftButton);
  now = now.addSecs(75);
  frame.UpdateClock();
  EXPECT_EQ(clock.Caption(), u"00:01:15"_s);
  QTest::mouseClick(&clock, Qt::LeftButton);
  frame.UpdateClock();
  EXPECT_EQ(clock.Caption(), u"9:31 AM"_s);
  Clock::Set({});
}

TEST_F(MainTest, ClientLab_DoubleClicked_ClosesTheScreens) {
  StartOn(MakeFile(u"a.ddb"_s, {1}));
  QTest::mouseDClick(&Find<ui::Label>(u"ClientLab"_s), Qt::LeftButton);
  EXPECT_EQ(OpenScreens().value(0), u"Main"_s);
  EXPECT_FALSE(OpenScreens().contains(u"ShowTable"_s));
}

TEST_F(MainTest, AgentLab_EntryPicked_ShowsItsTelephones) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  for (const QString& name : {u"Ann"_s, u"Bo"_s}) {
    db::Recordset rows = Global().File().OpenRecordset(u"Agent");
    rows.AddNew();
    rows.Set(u"Index", 1);
    rows.Set(u"Name", name);
    for (const QString& column : {u"1"_s, u"6"_s, u"8"_s, u"9"_s}) rows.Set(column, u""_s);
    rows.Set(u"7", name == u"Bo"_s ? u"555-2"_s : u"555-1"_s);
    rows.Update();
  }
  frame.SetWin(1, ActiveShowTable);
  auto& contacts = Find<ui::ComboBox>(u"AgentLab"_s);
  contacts.setFocus();
  QTest::keyClick(&contacts, Qt::Key_Down);
  QTest::keyClick(&contacts, Qt::Key_Down);
  EXPECT_EQ(Find<ui::ComboBox>(u"TelephonList"_s).Text(), u"555-2"_s);
}

TEST_F(MainTest, Load_Settings_SetModemTaxAndCountry) {
  SaveSetting(u"Init"_s, u"Modem"_s, u"3"_s);
  SaveSetting(u"Init"_s, u"MAAM"_s, u"21.5"_s);
  SaveSetting(u"Init"_s, u"USA"_s, u"TRUE"_s);
  Start();
  EXPECT_EQ(Global().ModemPort, 3);
  EXPECT_EQ(Global().TaxPercent, 21);
  EXPECT_EQ(Global().IsUsa, True);
  SaveSetting(u"Init"_s, u"Modem"_s, u""_s);
  SaveSetting(u"Init"_s, u"MAAM"_s, u""_s);
  SaveSetting(u"Init"_s, u"USA"_s, u"  "_s);
  Start();
  EXPECT_EQ(Global().ModemPort, 2);
  EXPECT_EQ(Global().TaxPercent, 17);
  EXPECT_EQ(Global().IsUsa, False);
}

TEST_F(MainTest, TxtSeek_DigitsTyped_MovesWithEachOfThem) {
  std::vector<int> cards{1, 12, 123};
  StartOn(MakeFile(u"a.ddb"_s, cards), 123);
  auto& seek = Find<ui::TextBox>(u"txtSeek"_s);
  seek.setFocus();
  for (const int card : cards) {
    QTest::keyClick(&seek, static_cast<char>('0' + card % 10));
    EXPECT_EQ(Global().CurCard, card);
  }
  EXPECT_EQ(seek.Text(), u"123"_s);
}

TEST_F(MainTest, TxtSeek_NoPlainNumber_IsWiped) {
  StartOn(MakeFile(u"a.ddb"_s, {1, 2}), 2);
  auto& seek = Find<ui::TextBox>(u"txtSeek"_s);
  seek.setFocus();
  for (const QString& typed : {u"0"_s, u"x"_s}) {
    QTest::keyClicks(&seek, typed);
    EXPECT_EQ(seek.Text(), QString());
  }
  QTest::keyClicks(&seek, u"1a"_s);
  EXPECT_EQ(seek.Text(), QString());
  EXPECT_EQ(Global().CurCard, 1);
}

TEST_F(MainTest, CmdUp_NumberInTheBox_EmptiesIt) {
  StartOn(MakeFile(u"a.ddb"_s, {1, 2}), 1);
  auto& seek = Find<ui::TextBox>(u"txtSeek"_s);
  seek.SetText(u"1"_s);
  QTest::mouseClick(&Find<QPushButton>(u"cmdUp"_s), Qt::LeftButton);
  EXPECT_EQ(seek.Text(), QString());
}

TEST_F(MainTest, CmdUp_NoFile_DoesNothing) {
  Start();
  QTest::mouseClick(&Find<QPushButton>(u"cmdUp"_s), Qt::LeftButton);
  EXPECT_EQ(Global().CurCard, 0);
}

TEST_F(MainTest, SetWin_NoViewerInFront_MovesTheStripAlone) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1, 2, 5}), 1);
  frame.UnloadOtherForms();
  QTest::mouseClick(&Find<QPushButton>(u"cmdUp"_s), Qt::LeftButton);
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
  EXPECT_EQ(Find<ui::Label>(u"ClientLab"_s).Caption(), u"Card 2"_s);
}

TEST_F(MainTest, UnloadOtherForms_ScreenRefuses_StaysOpenAlone) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  frame.NewCard();
  auto* editor = m_main->findChild<QWidget*>(u"EditTable"_s);
  ASSERT_NE(editor, nullptr);
  auto* city = editor->findChild<ui::TextBox*>(u"NameText(0)"_s);
  ASSERT_NE(city, nullptr);
  city->setFocus();
  QTest::keyClicks(city, u"Paris"_s);
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  EXPECT_FALSE(frame.UnloadOtherForms());
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"EditTable"_s}));
  EXPECT_EQ(Global().CardChanged, True);
  EXPECT_EQ(answers.Asked().value(0).Text, u"Please enter a name for your main field."_s);
  QTest::mouseClick(editor->findChild<QWidget*>(u"CancelData"_s), Qt::LeftButton);
}

}  // namespace
}  // namespace velmora
