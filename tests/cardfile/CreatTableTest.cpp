// SPDX-License-Identifier: MIT
#include "tests/cardfile/CreatTableScreen.h"
#include "tests/support/Screens.h"

#include <QMdiSubWindow>

namespace velmora::test {
namespace {

using strings::Text;

/// A text as a message box shows it.
QString Shown(const Text& text) { return QString(text).replace(u"\r\n"_s, u"\n"_s); }

TEST_F(CreatTableTest, Load_FirstShown_HasOneRowOnPage1) {
  EXPECT_EQ(wizard->windowTitle(), u"Create Card Fields"_s);
  EXPECT_EQ(RowsInView(), QList<int>({0}));
  EXPECT_EQ(Spin().Value(), 20);
  EXPECT_EQ(Box(u"txtScrol"_s).Text(), u"1"_s);
  EXPECT_EQ(wizard->findChild<ui::Label*>(u"lblCurPage"_s)->Caption(), u"1"_s);
  EXPECT_TRUE(Box(u"MainName"_s).hasFocus());
  EXPECT_TRUE(Title(1).isVisible());
  EXPECT_FALSE(Title(2).isVisible());
}

TEST_F(CreatTableTest, Load_KindList_OffersTheFourKindsWithTheFirstChosen) {
  QStringList kinds;
  for (int i = 0; i < Kind(0).ListCount(); ++i) kinds.append(Kind(0).List(i));
  EXPECT_EQ(kinds, QStringList({u"Text"_s, u"Number"_s, u"Yes/No"_s, u"Date"_s}));
  EXPECT_EQ(Kind(0).ListIndex(), 0);
}

TEST_F(CreatTableTest, Load_EveryControl_HasItsTip) {
  const QList<std::pair<QString, Text>> tips{
      {u"MainName"_s, u"Enter Main Field Name -- This Will Appear on Each Page"},
      {u"TextIn(0)"_s, u"Enter Field Name"},
      {u"lstTypeField(0)"_s, u"Choose Field Type -- This Will Influence the Nature of Your Query"},
      {u"txtNamePage(9)"_s, u"Enter Page Name"},
      {u"txtScrol"_s, u"Enter Number of Fields per Page"},
      {u"cmdChangeNumF"_s, u"Determine the Number of Fields per Page and Click to View"},
      {u"cmdPage(0)"_s, u"Click to Create Card Fields for Sheet 1"},
      {u"cmdPage(2)"_s, u"Click to Create Card Fields for Card 3"},
      {u"cmdPage(9)"_s, u"Click to Create Card Fields for Sheet 10"},
      {u"CreateData"_s, u"Click OK After Determining All Fields for Your Cards"},
      {u"CancelData"_s, u"Click to Exit"},
  };
  for (const auto& [name, tip] : tips) {
    EXPECT_EQ(wizard->findChild<QWidget*>(name)->toolTip(), QString(tip)) << name.toStdString();
  }
}

TEST_F(CreatTableTest, Load_ControlsWithoutTextOfTheirOwn_AreNamedForAssistiveTechnology) {
  for (const QWidget* widget : wizard->findChildren<QWidget*>()) {
    const auto* control = dynamic_cast<const ui::Control*>(widget);
    if (control == nullptr || widget->focusPolicy() == Qt::NoFocus) continue;
    if (qobject_cast<const QPushButton*>(widget) != nullptr) continue;
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
  }
}

TEST_F(CreatTableTest, Tab_ThroughTheScreen_FollowsTheWorkFromMainFieldToHelp) {
  AskForFields(2);
  Click(Box(u"MainName"_s));
  QStringList order;
  QWidget* first = QApplication::focusWidget();
  do {
    order.append(QApplication::focusWidget()->objectName());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  } while (QApplication::focusWidget() != first && order.size() < 40);
  QStringList expected{u"MainName"_s,        u"TextIn(0)"_s,      u"lstTypeField(0)"_s, u"TextIn(1)"_s,
                       u"lstTypeField(1)"_s, u"txtNamePage(0)"_s, u"VScroll1"_s,        u"cmdChangeNumF"_s};
  for (int index = 0; index < 10; ++index) expected.append(u"cmdPage(%1)"_s.arg(index));
  expected << u"CreateData"_s << u"CancelData"_s << u"CmdHelp"_s;
  EXPECT_EQ(order, expected);
}

TEST_F(CreatTableTest, BackTab_FromTheScrollBar_PassesTheCountBox) {
  Click(Box(u"txtScrol"_s));
  QTest::keyClick(&Spin(), Qt::Key_Backtab);
  EXPECT_TRUE(Title(1).hasFocus());
}

TEST_F(CreatTableTest, Enter_InMainName_GoesToTheFirstField) {
  Type(Box(u"MainName"_s), u"Company"_s);
  QTest::keyClick(&Box(u"MainName"_s), Qt::Key_Return);
  EXPECT_TRUE(Field(0).hasFocus());
}

TEST_F(CreatTableTest, Enter_InAField_GoesRoundThePage) {
  AskForFields(3);
  Type(Field(0), u"Street"_s);
  QTest::keyClick(&Field(0), Qt::Key_Return);
  EXPECT_TRUE(Field(1).hasFocus());
  QTest::keyClick(&Field(1), Qt::Key_Enter);
  EXPECT_TRUE(Field(2).hasFocus());
  QTest::keyClick(&Field(2), Qt::Key_Return);
  EXPECT_TRUE(Field(0).hasFocus());
}

TEST_F(CreatTableTest, Enter_InAFieldThatIsRefused_StaysThere) {
  AskForFields(2);
  Type(Field(0), u"a.b"_s);
  QTest::keyClick(&Field(0), Qt::Key_Return);
  EXPECT_EQ(TakeMessage().Text, Shown(strings::ForbiddenCharacters));
  EXPECT_TRUE(Field(0).hasFocus());
  EXPECT_EQ(Field(0).selectedText(), u"a.b"_s);
  QTest::keyClicks(&Field(0), u"ab"_s);
  QTest::keyClick(&Field(0), Qt::Key_Return);
  EXPECT_TRUE(Field(1).hasFocus());
}

TEST_F(CreatTableTest, ChangeCount_MoreRows_StandInThreeColumnsWithTheirKindsBeside) {
  AskForFields(21);
  ASSERT_EQ(RowsInView().size(), 21);
  const QList<std::tuple<int, int, int>> places{
      {0, 45, 1485}, {1, 45, 1820}, {7, 3245, 1485}, {20, 6445, 3495}};
  for (const auto& [index, left, top] : places) {
    EXPECT_EQ(Field(index).Left(), left);
    EXPECT_EQ(Field(index).Top(), top);
    EXPECT_EQ(Kind(index).Left(), left + 1400);
    EXPECT_EQ(Kind(index).Top(), top);
  }
}

TEST_F(CreatTableTest, ChangeCount_21OnEachOfFivePages_StopsAtAHundred) {
  AskForFields(21);
  for (int page = 2; page <= 5; ++page) {
    GoToPage(page);
    AskForFields(21);
  }
  EXPECT_EQ(Box(u"txtScrol"_s).Text(), u"16"_s);
  EXPECT_EQ(Spin().Value(), 5);
  EXPECT_EQ(RowsInView().size(), 16);
  GoToPage(6);
  AskForFields(1);
  EXPECT_EQ(Box(u"txtScrol"_s).Text(), u"0"_s);
  EXPECT_TRUE(RowsInView().isEmpty());
}

TEST_F(CreatTableTest, ChangeCount_Lowered_RemovesTheLastRowsWithoutAQuestion) {
  AskForFields(3);
  Type(Field(1), u"City"_s);
  Type(Field(2), u"Street"_s);
  AskForFields(2);
  EXPECT_EQ(RowsInView(), QList<int>({0, 1}));
  EXPECT_EQ(Field(1).Text(), u"City"_s);
}

TEST_F(CreatTableTest, ChangeCount_AfterRowsWereRemoved_NumbersGoOn) {
  AskForFields(3);
  AskForFields(1);
  AskForFields(2);
  EXPECT_EQ(RowsInView(), QList<int>({0, 3}));
  EXPECT_EQ(Field(3).Top(), 1820);
  EXPECT_TRUE(Field(3).Text().isEmpty());
  EXPECT_EQ(Kind(3).ListIndex(), 0);
}

TEST_F(CreatTableTest, ChangeCount_NoneOnPage1_KeepsOne) {
  AskForFields(3);
  AskForFields(0);
  EXPECT_EQ(RowsInView(), QList<int>({0}));
  EXPECT_EQ(Box(u"txtScrol"_s).Text(), u"1"_s);
  EXPECT_EQ(Spin().Value(), 20);
}

TEST_F(CreatTableTest, ChangeCount_NoneOnAnotherPage_EmptiesIt) {
  GoToPage(2);
  AskForFields(2);
  AskForFields(0);
  EXPECT_TRUE(RowsInView().isEmpty());
  EXPECT_EQ(Box(u"txtScrol"_s).Text(), u"0"_s);
}

TEST_F(CreatTableTest, VScroll1_Moved_ChangesTheNumberAlone) {
  SetSpin(5);
  EXPECT_EQ(Box(u"txtScrol"_s).Text(), u"5"_s);
  EXPECT_EQ(RowsInView().size(), 1);
}

TEST_F(CreatTableTest, txtScrol_Clicked_HandsTheFocusToTheScrollBar) {
  Click(Box(u"txtScrol"_s));
  EXPECT_TRUE(Spin().hasFocus());
  QTest::keyClicks(&Box(u"txtScrol"_s), u"7"_s);
  EXPECT_EQ(Box(u"txtScrol"_s).Text(), u"1"_s);
}

TEST_F(CreatTableTest, cmdPage_Clicked_ShowsThatPageWithItsTitleAndCount) {
  AskForFields(4);
  GoToPage(3);
  EXPECT_TRUE(RowsInView().isEmpty());
  EXPECT_EQ(Box(u"txtScrol"_s).Text(), u"0"_s);
  EXPECT_EQ(wizard->findChild<ui::Label*>(u"lblCurPage"_s)->Caption(), u"3"_s);
  EXPECT_TRUE(Title(3).isVisible());
  EXPECT_FALSE(Title(1).isVisible());
  for (int page = 1; page <= 10; ++page) {
    EXPECT_EQ(PageButton(page).ForeColor(), page == 3 ? ui::Role::Red : ui::Role::Blue);
  }
  GoToPage(1);
  EXPECT_EQ(RowsInView().size(), 4);
  EXPECT_EQ(Box(u"txtScrol"_s).Text(), u"4"_s);
  EXPECT_EQ(Spin().Value(), 17);
}

TEST_F(CreatTableTest, CtrlPageKeys_InARow_GoToTheNextPagesRowOrTitle) {
  AskForFields(2);
  GoToPage(2);
  AskForFields(1);
  GoToPage(1);
  Click(Field(1));
  QTest::keyClick(&Field(1), Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_TRUE(Field(2).hasFocus());
  QTest::keyClick(&Field(2), Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_TRUE(Title(3).hasFocus());
  QTest::keyClick(&Title(3), Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_TRUE(Title(2).hasFocus());
  QTest::keyClick(&Title(2), Qt::Key_PageUp, Qt::ControlModifier);
  QTest::keyClick(&Title(1), Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_TRUE(Title(1).hasFocus());
  EXPECT_EQ(RowsInView(), QList<int>({0, 1}));
}

TEST_F(CreatTableTest, CtrlPageDown_InARefusedRow_StaysOnThePage) {
  Type(Field(0), u"a/b"_s);
  QTest::keyClick(&Field(0), Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(TakeMessage().Text, Shown(strings::ForbiddenCharacters));
  EXPECT_TRUE(Field(0).hasFocus());
  EXPECT_EQ(RowsInView(), QList<int>({0}));
}

TEST_F(CreatTableTest, Activate_BackFromAnotherScreen_CountIs1AndPage1IsInView) {
  AskForFields(3);
  GoToPage(3);
  AskForFields(5);
  auto* other = new OtherScreen;
  other->Show();
  wizard->BringToFront();
  EXPECT_EQ(Spin().Value(), 20);
  EXPECT_EQ(Box(u"txtScrol"_s).Text(), u"1"_s);
  EXPECT_EQ(RowsInView(), QList<int>({0, 1, 2}));
  EXPECT_EQ(wizard->findChild<ui::Label*>(u"lblCurPage"_s)->Caption(), u"3"_s);
  // The page of the screen stays 3, so the button works on that page and brings it into view.
  Press(u"cmdChangeNumF"_s);
  EXPECT_EQ(RowsInView(), QList<int>({3}));
  other->Unload();
}

TEST_F(CreatTableTest, MainName_WithAForbiddenCharacter_StaysAndIsSelected) {
  Type(Box(u"MainName"_s), u"Com*pany"_s);
  Click(Field(0));
  const ui::Message message = TakeMessage();
  EXPECT_EQ(message.Text,
            u"This string cannot contain any of the following characters:\r\n"
            u"                       ,.\\[]{}/<>~`:;()|!%^&*'?\" "_s.replace(u"\r\n"_s, u"\n"_s));
  EXPECT_EQ(message.Icon, ui::MsgIcon::None);
  EXPECT_EQ(message.Title, u"Velmora"_s);
  EXPECT_TRUE(Box(u"MainName"_s).hasFocus());
  EXPECT_EQ(Box(u"MainName"_s).selectedText(), u"Com*pany"_s);
}

TEST_F(CreatTableTest, MainName_IsTheNumberColumn_IsEmptiedWithoutKeepingTheFocus) {
  Type(Box(u"MainName"_s), u"Index@"_s);
  Click(Field(0));
  const ui::Message message = TakeMessage();
  EXPECT_EQ(message.Text, u"Please select a different name."_s);
  EXPECT_EQ(message.Title, u"Info"_s);
  EXPECT_EQ(message.Icon, ui::MsgIcon::Information);
  EXPECT_TRUE(Box(u"MainName"_s).Text().isEmpty());
  EXPECT_TRUE(Field(0).hasFocus());
}

TEST_F(CreatTableTest, MainName_EqualsAFieldInAnotherCase_IsRefused) {
  GoToPage(2);
  AskForFields(1);
  Type(Field(1), u"City"_s);
  Type(Box(u"MainName"_s), u"CITY"_s);
  QTest::keyClick(&Box(u"MainName"_s), Qt::Key_Tab);
  EXPECT_EQ(TakeMessage().Text, u"This name already exists!\nPlease select a different name."_s);
  EXPECT_TRUE(Box(u"MainName"_s).Text().isEmpty());
  EXPECT_TRUE(Box(u"MainName"_s).hasFocus());
}

TEST_F(CreatTableTest, TextIn_IsTheNumberColumn_IsEmptiedWithoutKeepingTheFocus) {
  AskForFields(2);
  Type(Field(0), u"Index@"_s);
  QTest::keyClick(&Field(0), Qt::Key_Return);
  EXPECT_EQ(TakeMessage().Text, u"Please select a different name."_s);
  EXPECT_TRUE(Field(0).Text().isEmpty());
  EXPECT_TRUE(Field(1).hasFocus());
}

TEST_F(CreatTableTest, TextIn_EqualsTheMainField_IsRefusedInTheSameCaseOnly) {
  Type(Box(u"MainName"_s), u"Company"_s);
  Type(Field(0), u"Company"_s);
  QTest::keyClick(&Field(0), Qt::Key_Tab);
  EXPECT_EQ(TakeMessage().Text, u"This name already exists!\nPlease select a different name."_s);
  EXPECT_TRUE(Field(0).Text().isEmpty());
  EXPECT_TRUE(Field(0).hasFocus());
  QTest::keyClicks(&Field(0), u"company"_s);
  QTest::keyClick(&Field(0), Qt::Key_Tab);
  EXPECT_TRUE(Kind(0).hasFocus());
}

TEST_F(CreatTableTest, TextIn_EqualsAFieldOfAnotherPage_IsRefusedInTheSameCaseOnly) {
  Type(Field(0), u"City"_s);
  GoToPage(4);
  AskForFields(1);
  Type(Field(1), u"City"_s);
  GoToPage(1);
  TakeMessage();
  EXPECT_TRUE(Field(1).hasFocus());
  EXPECT_EQ(wizard->findChild<ui::Label*>(u"lblCurPage"_s)->Caption(), u"4"_s);
  QTest::keyClicks(&Field(1), u"city"_s);
  GoToPage(1);
  EXPECT_TRUE(Field(0).isVisible());
}

TEST_F(CreatTableTest, TextIn_LeftEmptyBesideEmptyOnes_IsNoDuplicate) {
  AskForFields(3);
  Click(Field(1));
  Click(Field(2));
  EXPECT_TRUE(Field(2).hasFocus());
}

TEST_F(CreatTableTest, TextIn_RefusedByAClickOnOk_MakesNoFile) {
  Type(Box(u"MainName"_s), u"Company"_s);
  Type(Field(0), u"it's"_s);
  Press(u"CreateData"_s);
  EXPECT_EQ(TakeMessage().Text, Shown(strings::ForbiddenCharacters));
  EXPECT_FALSE(QFile::exists(m_path));
  EXPECT_TRUE(wizard->isVisible());
}

TEST_F(CreatTableTest, txtNamePage_AnyText_HasNoChecks) {
  Type(Title(1), u"Don't [stop]: 100%!"_s);
  QTest::keyClick(&Title(1), Qt::Key_Tab);
  EXPECT_TRUE(Spin().hasFocus());
  EXPECT_EQ(Title(1).Text(), u"Don't [stop]: 100%!"_s);
}

TEST_F(CreatTableTest, CancelData_Clicked_MakesNothing) {
  Type(Box(u"MainName"_s), u"Company"_s);
  Press(u"CancelData"_s);
  EXPECT_EQ(ui::Forms().size(), 1);
  EXPECT_FALSE(QFile::exists(m_path));
  EXPECT_TRUE(QTest::qWaitFor([&] { return wizard.isNull(); }));
}

TEST_F(CreatTableTest, Escape_Pressed_ClosesAsCancelDoes) {
  Type(Box(u"MainName"_s), u"a*"_s);
  QTest::keyClick(&Box(u"MainName"_s), Qt::Key_Escape);
  EXPECT_EQ(ui::Forms().size(), 1);
  EXPECT_FALSE(QFile::exists(m_path));
}

TEST_F(CreatTableTest, CloseBox_Pressed_ClosesAsCancelDoes) {
  frame.area->currentSubWindow()->close();
  EXPECT_EQ(ui::Forms().size(), 1);
  EXPECT_FALSE(QFile::exists(m_path));
}

TEST_F(CreatTableTest, CmdHelp_Clicked_OpensItsTopic) {
  Press(u"CmdHelp"_s);
  EXPECT_EQ(frame.Calls, QStringList({u"ShowHelpTopic 113"_s}));
}

}  // namespace
}  // namespace velmora::test
