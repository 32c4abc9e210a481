// SPDX-License-Identifier: MIT
// The editor in the real frame, and what New leaves of the card before.
#include "base/settings/Settings.h"
#include "forms/Twips.h"
#include "tests/shell/RealFrame.h"
#include "tests/support/Messages.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QtTest>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

const QString editor = u"EditTable"_s;
const QString numbersOfAll = u"Select [Index@],[Company] from MainData"_s;

class RealFrameEditorTest : public RealFrame {
 protected:
  /// Cards 1 and 12, the first with an active contact.
  QString MakeTwoCards() {
    return MakeFile(u"two.ddb"_s, test::ACardFile().Named(u"Company"_s).With(test::TextField(u"City"_s)),
                    [](const test::CardFile& file) {
                      file.AddCard(1, u"Card 1"_s);
                      file.AddCard(12, u"Card 12"_s);
                      file.AddContact(1, u"Ann"_s, {{u"Activ"_s, -1}, {u"7"_s, u"555-1"_s}});
                    });
  }
  /// Everything in the strip that tells of a card.
  [[nodiscard]] QString StripTexts() const {
    QStringList texts;
    for (const QString& control :
         {u"ClientLab"_s, u"NumberLab"_s, u"txtSeek"_s, u"AgentLab"_s, u"TelephonList"_s})
      texts += Strip(control);
    for (const QString& list : {u"AgentLab"_s, u"TelephonList"_s})
      texts += QString::number(Find<QComboBox>(list).count());
    return texts.join(u'|');
  }
  /// The user goes to the new-file wizard, leaves it and is back at the screen that was in front.
  void ToTheWizardAndBack() {
    ChooseFiles({PathOf(u"new.ddb"_s)});
    Trigger(u"file_new"_s);
    ASSERT_EQ(ui::ActiveChild()->ScreenName(), u"CreatTable"_s);
    Press(u"CreatTable"_s, u"CancelData"_s);
    QApplication::processEvents();
  }
};

TEST_F(RealFrameEditorTest, NewCard_CardInTheStrip_BlanksAllOfTheStrip) {
  Main& frame = RunOn(MakeTwoCards(), 1);
  QTest::keyClicks(&Find<QWidget>(u"txtSeek"_s), u"1"_s);
  frame.UpdateClock();
  ASSERT_EQ(StripTexts(), u"Card 1|1|1|Ann      |555-1|1|1"_s);
  ASSERT_NE(Strip(u"TimeLab"_s), QString());
  OpenEditor();
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, editor}));
  EXPECT_EQ(StripTexts(), u"|||||0|0"_s);
  EXPECT_EQ(Strip(u"TimeLab"_s), QString());
}

TEST_F(RealFrameEditorTest, NewCard_NoFile_OpensNoEditor) {
  Start();
  QTest::keyClicks(&Find<QWidget>(u"txtSeek"_s), u"1"_s);
  OpenEditor();
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
  EXPECT_EQ(Strip(u"txtSeek"_s), u"1"_s);
}

TEST_F(RealFrameEditorTest, New_CardInTheStrip_BlanksItsNameNumberAndContacts) {
  RunOn(MakeTwoCards(), 1);
  ASSERT_EQ(StripTexts(), u"Card 1|1||Ann      |555-1|1|1"_s);
  ChooseFiles({PathOf(u"new.ddb"_s)});
  Trigger(u"file_new"_s);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ShowTable"_s, u"CreatTable"_s}));
  EXPECT_EQ(StripTexts(), u"|||||0|0"_s);
}

TEST_F(RealFrameEditorTest, New_DialogLeftWithoutAChoice_KeepsTheStrip) {
  RunOn(MakeTwoCards(), 1);
  ChooseFiles({u""_s});
  Trigger(u"file_new"_s);
  EXPECT_EQ(StripTexts(), u"Card 1|1||Ann      |555-1|1|1"_s);
}

TEST_F(RealFrameEditorTest, New_NameOfTheOpenFileThatIsGoneFromTheDisk_AsksAgain) {
  const QString path = MakeTwoCards();
  RunOn(path, 1);
  ASSERT_TRUE(QFile::rename(path, PathOf(u"away.ddb"_s)));
  ChooseFiles({path, u""_s});
  Trigger(u"file_new"_s);
  EXPECT_EQ(m_titles, QStringList({u"New"_s, u"New"_s}));
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ShowTable"_s}));
}

TEST_F(RealFrameEditorTest, New_NoFileOpen_TakesTheFirstName) {
  Start();
  ChooseFiles({PathOf(u"new.ddb"_s)});
  Trigger(u"file_new"_s);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"CreatTable"_s}));
}

TEST_F(RealFrameEditorTest, Place_FrameWithRoom_IsAsFarDownAsItWasGiven) {
  Main& frame = RunOn(MakeTwoCards(), 1);
  frame.resize(ui::Pixels(15000), ui::Pixels(12000));
  QApplication::processEvents();
  OpenEditor();
  const QWidget* carrier = Screen(editor).parentWidget();
  ASSERT_NE(qobject_cast<const QMdiSubWindow*>(carrier), nullptr);
  EXPECT_EQ(carrier->mapTo(&frame, QPoint()), QPoint(0, ui::Pixels(2450)));
}

TEST_F(RealFrameEditorTest, Place_FrameAsItStarts_LeavesTheStripAndItsButtonsInReach) {
  Main& frame = RunOn(MakeTwoCards(), 1);
  OpenEditor();
  const QWidget* carrier = Screen(editor).parentWidget();
  const auto& strip = Find<QWidget>(u"pMainPic"_s);
  EXPECT_GE(carrier->mapTo(&frame, QPoint()).y(), strip.mapTo(&frame, QPoint(0, strip.height())).y());
  const auto& ok = In<QWidget>(editor, u"EditData"_s);
  EXPECT_LE(ok.mapTo(&frame, QPoint(0, ok.height())).y(), frame.height());
}

TEST_F(RealFrameEditorTest, Activation_AfterAnotherScreenWasInFront_TakesTheMarksOff) {
  RunOn(MakeTwoCards(), 1);
  OpenEditor();
  ChangeCity(editor, u"Lyon"_s);
  ToTheWizardAndBack();
  ASSERT_EQ(ui::ActiveChild()->ScreenName(), editor);
  ASSERT_EQ(TextOf(editor, u"NameText(0)"_s), u"Lyon"_s);
  // Nothing asks, and the guarded command runs.
  ClickTool(u"tool"_s, 8);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"QueryN"_s}));
}

TEST_F(RealFrameEditorTest, GuardedCommand_NewCardDroppedByNo_Runs) {
  const QString path = MakeTwoCards();
  RunOn(path, 1);
  OpenEditor();
  Type(editor, u"NameRecord"_s, u"Fresh"_s);
  ChangeCity(editor, u"Lyon"_s);
  const MessageAnswers answers({ui::MsgAnswer::No});
  ClickTool(u"tool"_s, 8);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"QueryN"_s}));
  EXPECT_EQ(RowsOf(path, numbersOfAll).size(), 2);
}

TEST_F(RealFrameEditorTest, Save_NumberWithALetterWhoseNumberIsTaken_TakesTheLowestFree) {
  const QString path = MakeTwoCards();
  RunOn(path, 1);
  OpenEditor();
  Type(editor, u"NameRecord"_s, u"Fresh"_s);
  Type(editor, u"IndexText"_s, u"12a"_s);
  Press(editor, u"EditData"_s);
  // The box is left without a word, and the button gets its click by the next press at the latest.
  if (ui::FindScreen(editor) != nullptr) Press(editor, u"EditData"_s);
  EXPECT_EQ(RowsOf(path, numbersOfAll), QStringList({u"1|Card 1"_s, u"12|Card 12"_s, u"2|Fresh"_s}));
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ShowTable"_s}));
  EXPECT_EQ(Strip(u"NumberLab"_s), u"2"_s);
}

}  // namespace
}  // namespace velmora
