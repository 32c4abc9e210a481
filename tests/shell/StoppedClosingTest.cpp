// SPDX-License-Identifier: MIT
// What asked for the closing of the screens stops when one of them refuses.
#include "base/settings/Settings.h"
#include "controls/MyToolBarCtrl.h"
#include "forms/Form.h"
#include "forms/TextBox.h"
#include "frame/Session.h"
#include "tests/shell/MainFixture.h"
#include "tests/support/Messages.h"
#include "tests/support/Screens.h"

#include <QFile>
#include <QtTest>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

using test::AskingScreen;

class StoppedClosingTest : public MainFixture {
 protected:
  ~StoppedClosingTest() override {
    for (AskingScreen* screen : m_screens) screen->Refuses = false;
  }
  AskingScreen& Open(const QString& name, bool refuses = true) {
    auto* screen = new AskingScreen(name);
    screen->Refuses = refuses;
    if (refuses) m_screens += screen;
    return *screen;
  }

  [[nodiscard]] QWidget& Child(const QString& screen, const QString& name) const {
    return *Find<QWidget>(screen).findChild<QWidget*>(name);
  }
  void Type(const QString& screen, const QString& box, const QString& text) const {
    QApplication::setActiveWindow(m_main.get());
    Child(screen, box).setFocus();
    QTest::keyClicks(&Child(screen, box), text);
  }
  /// The editor on a new card that has no name yet: it asks for one, and does not close without.
  void StartOnAnUnnamedCard() {
    StartOn(MakeFile(u"a.ddb"_s, {1, 2}));
    m_main->UnloadOtherForms();
    m_main->NewCard();
    Type(u"EditTable"_s, u"NameText(0)"_s, u"Lyon"_s);
  }
  /// The viewer on a card that was changed and whose name was taken away: it is not saved on Yes.
  void StartOnACardThatCannotBeSaved() {
    StartOn(MakeFile(u"a.ddb"_s, {1, 2}));
    Type(u"ShowTable"_s, u"NameText(0)"_s, u"x"_s);
    Find<ui::TextBox>(u"NameRecord"_s).SetText({});
  }
  /// Yes to the question, then the refusal; nothing else is asked, and the card stays as it was typed.
  void ExpectStopped(const std::string& way, const std::function<void()>& ask) {
    SCOPED_TRACE(way);
    const MessageAnswers answers({ui::MsgAnswer::Yes, ui::MsgAnswer::Ok});
    ask();
    EXPECT_EQ(answers.Asked().value(0).Text, u"Do you wish to save changes?"_s);
    EXPECT_EQ(answers.Asked().value(1).Text, u"Enter name of card."_s);
    EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ShowTable"_s}));
    EXPECT_EQ(Find<ui::TextBox>(u"NameText(0)"_s).Text(), u"xŁódź"_s);
    EXPECT_EQ(Global().CardChanged, True);
    EXPECT_EQ(Global().CurCard, 1);
    EXPECT_EQ(m_ends, 0);
  }
  void DropTheChange() {
    const MessageAnswers answers({ui::MsgAnswer::No});
    m_main->UnloadOtherForms();
  }
  void ClickTool(const QString& bar, int index) const {
    QTest::mouseClick(Find<MyToolBarCtrl>(bar).findChild<QWidget*>(u"mPicture(%1)"_s.arg(index)),
                      Qt::LeftButton);
  }
  void CancelTheCard() const { QTest::mouseClick(&Child(u"EditTable"_s, u"CancelData"_s), Qt::LeftButton); }
  void ExpectAskedForTheName(const MessageAnswers& answers) const {
    EXPECT_EQ(answers.Asked().value(0).Text, u"Please enter a name for your main field."_s);
    EXPECT_TRUE(OpenScreens().contains(u"EditTable"_s));
  }

 private:
  QList<AskingScreen*> m_screens;
};

TEST_F(StoppedClosingTest, UnloadOtherForms_ScreenRefuses_IsAskedOnce) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  AskingScreen& refusing = Open(u"refusing"_s);
  Open(u"behind"_s, false);
  AskingScreen& second = Open(u"second"_s);
  EXPECT_FALSE(frame.UnloadOtherForms());
  EXPECT_EQ(refusing.Asked, 1);
  EXPECT_EQ(second.Asked, 1);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"refusing"_s, u"second"_s}));
}

TEST_F(StoppedClosingTest, UnloadOtherForms_AllClose_SaysSo) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  Open(u"one"_s, false);
  Open(u"two"_s, false);
  EXPECT_TRUE(frame.UnloadOtherForms());
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
}

TEST_F(StoppedClosingTest, UnloadOtherForms_CardStillUnsaved_StopsTheCommand) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  frame.UnloadOtherForms();
  Global().CardChanged = True;
  EXPECT_FALSE(frame.UnloadOtherForms());
  Global().CardChanged = False;
}

TEST_F(StoppedClosingTest, Open_ScreenRefuses_KeepsTheOpenFileAndItsPath) {
  const QString first = MakeFile(u"a.ddb"_s, {1});
  const QString second = MakeFile(u"b.ddb"_s, {1, 2});
  Main& frame = StartOn(first);
  const AskingScreen& refusing = Open(u"refusing"_s);
  ChooseFiles({second});
  Trigger(u"open_new"_s);
  EXPECT_EQ(refusing.Asked, 1);
  EXPECT_EQ(Global().FilePath, first);
  EXPECT_EQ(Global().CardDb->Name(), first);
  EXPECT_EQ(frame.windowTitle(), first);
  EXPECT_FALSE(StoredRecent().contains(second));
}

TEST_F(StoppedClosingTest, RecentEntry_ScreenRefuses_KeepsTheOpenFileAndItsPath) {
  const QString first = MakeFile(u"a.ddb"_s, {1});
  const QString second = MakeFile(u"b.ddb"_s, {1, 2});
  StartOn(second);
  Trigger(u"exit"_s);
  Main& frame = StartOn(first);
  const AskingScreen& refusing = Open(u"refusing"_s);
  Trigger(u"hShortName(0)"_s);
  EXPECT_EQ(refusing.Asked, 1);
  EXPECT_EQ(Global().FilePath, first);
  EXPECT_EQ(frame.windowTitle(), first);
}

TEST_F(StoppedClosingTest, ShowCardAndTheFieldEditor_ScreenRefuses_AskOnceAndOpenNothing) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  AskingScreen& refusing = Open(u"refusing"_s);
  frame.ShowCard();
  EXPECT_EQ(refusing.Asked, 1);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"refusing"_s}));
  frame.WhatWasCmdEditFieldsClick();
  EXPECT_EQ(refusing.Asked, 2);
}

TEST_F(StoppedClosingTest, EveryWayOut_CardThatCannotBeSaved_StopsAndKeepsIt) {
  const QString other = MakeFile(u"b.ddb"_s, {7});
  SaveSetting(u"Init"_s, u"File0"_s, other);
  StartOnACardThatCannotBeSaved();
  const QString open = Global().FilePath;
  ExpectStopped("Open", [&] {
    ChooseFiles({other});
    Trigger(u"open_new"_s);
  });
  EXPECT_EQ(Global().FilePath, open);
  ExpectStopped("recent entry", [this] { Trigger(u"hShortName(0)"_s); });
  EXPECT_EQ(Global().FilePath, open);
  EXPECT_EQ(Global().File().Name(), open);
  ExpectStopped("Quit", [this] { Trigger(u"exit"_s); });
  ExpectStopped("close box", [this] { m_main->close(); });
  ExpectStopped("Exit", [this] { ClickTool(u"ltTool"_s, 23); });
  ExpectStopped("arrow", [this] { QTest::mouseClick(&Find<QWidget>(u"cmdUp"_s), Qt::LeftButton); });
  ExpectStopped("number", [this] { QTest::keyClick(&Find<QWidget>(u"txtSeek"_s), Qt::Key_2); });
  DropTheChange();
}

TEST_F(StoppedClosingTest, GuardedTools_CardThatCannotBeSaved_RunNothing) {
  StartOnACardThatCannotBeSaved();
  for (const int index : {0, 1, 2, 3, 4, 5, 6, 7, 8, 11, 12})
    ExpectStopped("tool " + std::to_string(index), [=, this] { ClickTool(u"tool"_s, index); });
  for (const int index : {0, 1, 3, 5, 9, 16, 19})
    ExpectStopped("ltTool " + std::to_string(index), [=, this] { ClickTool(u"ltTool"_s, index); });
  DropTheChange();
}

TEST_F(StoppedClosingTest, Quit_CardWithoutAName_EndsByNoWay) {
  StartOnAnUnnamedCard();
  const QList<std::function<void()>> ways{[this] { Trigger(u"exit"_s); }, [this] { m_main->close(); },
                                          [this] { ClickTool(u"ltTool"_s, 23); }};
  for (const auto& quit : ways) {
    const MessageAnswers answers({ui::MsgAnswer::Ok});
    quit();
    ExpectAskedForTheName(answers);
    EXPECT_EQ(m_ends, 0);
    EXPECT_TRUE(m_main->isVisible());
  }
  CancelTheCard();
}

TEST_F(StoppedClosingTest, Steps_CardWithoutAName_MoveNowhere) {
  StartOnAnUnnamedCard();
  for (const QString& arrow : {u"cmdUp"_s, u"cmdDown"_s}) {
    const MessageAnswers answers({ui::MsgAnswer::Ok});
    QTest::mouseClick(&Find<QWidget>(arrow), Qt::LeftButton);
    ExpectAskedForTheName(answers);
    EXPECT_EQ(Global().CurCard, 1);
  }
  {
    const MessageAnswers answers({ui::MsgAnswer::Ok});
    Find<ui::TextBox>(u"txtSeek"_s).setFocus();
    QTest::keyClicks(&Find<ui::TextBox>(u"txtSeek"_s), u"2"_s);
    ExpectAskedForTheName(answers);
    EXPECT_EQ(Global().CurCard, 1);
  }
  CancelTheCard();
}

TEST_F(StoppedClosingTest, DoubleClickOnTheName_CardWithoutAName_AsksOnceAndKeepsIt) {
  StartOnAnUnnamedCard();
  {
    const MessageAnswers answers({ui::MsgAnswer::Ok});
    QTest::mouseDClick(&Find<QWidget>(u"ClientLab"_s), Qt::LeftButton);
    ExpectAskedForTheName(answers);
  }
  CancelTheCard();
}

TEST_F(StoppedClosingTest, New_CardWithoutAName_MakesNoFile) {
  StartOnAnUnnamedCard();
  const QString open = Global().FilePath;
  ChooseFiles({PathOf(u"new.ddb"_s)});
  Trigger(u"file_new"_s);
  Type(u"CreatTable"_s, u"MainName"_s, u"Company"_s);
  Type(u"CreatTable"_s, u"TextIn(0)"_s, u"City"_s);
  {
    const MessageAnswers answers({ui::MsgAnswer::Ok});
    QTest::mouseClick(&Child(u"CreatTable"_s, u"CreateData"_s), Qt::LeftButton);
    ExpectAskedForTheName(answers);
  }
  EXPECT_TRUE(Find<QWidget>(u"CreatTable"_s).isVisible());
  EXPECT_FALSE(QFile::exists(PathOf(u"new.ddb"_s)));
  EXPECT_EQ(Global().FilePath, open);
  EXPECT_EQ(Global().File().Name(), open);
  CancelTheCard();
}

TEST_F(StoppedClosingTest, New_CardChanged_IsSavedInTheFileThatItIsOf) {
  const QString old = MakeFile(u"a.ddb"_s, {1});
  StartOn(old);
  Type(u"ShowTable"_s, u"NameText(0)"_s, u"x"_s);
  ChooseFiles({PathOf(u"new.ddb"_s)});
  Trigger(u"file_new"_s);
  Type(u"CreatTable"_s, u"MainName"_s, u"Company"_s);
  Type(u"CreatTable"_s, u"TextIn(0)"_s, u"City"_s);
  const MessageAnswers answers({ui::MsgAnswer::Yes});
  QTest::mouseClick(&Child(u"CreatTable"_s, u"CreateData"_s), Qt::LeftButton);
  EXPECT_EQ(Global().FilePath, PathOf(u"new.ddb"_s));
  EXPECT_TRUE(Global().File().OpenRecordset(u"MainData").AtEnd());
  const auto stored = db::DBEngine().OpenDatabase(old);
  EXPECT_EQ(stored->OpenRecordset(u"MainData")[u"City"].Text(), u"xŁódź"_s);
}

TEST_F(StoppedClosingTest, DelCard_CardChanged_AsksNothingAboutTheChange) {
  StartOn(MakeFile(u"a.ddb"_s, {1, 2}));
  Type(u"ShowTable"_s, u"NameText(0)"_s, u"x"_s);
  ASSERT_EQ(Global().CardChanged, True);
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  Trigger(u"DelCard"_s);
  EXPECT_TRUE(answers.Asked().value(0).Text.endsWith(u"Card 1"_s));
  EXPECT_EQ(Global().CardChanged, False);
  EXPECT_EQ(Global().CurCard, 2);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ShowTable"_s}));
}

TEST_F(StoppedClosingTest, DelCard_LastCardChanged_ClosesItWithoutAQuestion) {
  StartOn(MakeFile(u"a.ddb"_s, {1}));
  Type(u"ShowTable"_s, u"NameText(0)"_s, u"x"_s);
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  Trigger(u"DelCard"_s);
  EXPECT_EQ(answers.Asked().size(), 1);
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
}

}  // namespace
}  // namespace velmora
