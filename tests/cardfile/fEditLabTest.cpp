// SPDX-License-Identifier: MIT
#include "tests/cardfile/FieldEditor.h"

namespace velmora {
namespace {

using namespace Qt::StringLiterals;
using test::ACardFile;
using test::Click;
using test::DateField;
using test::Find;
using test::Lines;
using test::TextField;
using test::Type;
using ui::MsgAnswer;

class fEditLabTest : public test::FieldEditor {};

TEST_F(fEditLabTest, Load_FileWithFields_ShowsPage1) {
  OpenOnThreeFields();
  EXPECT_EQ(m_screen->windowTitle(), u"Add/Delete File Fields"_s);
  EXPECT_EQ(RowsInView(), QStringList{u"City"_s});
  EXPECT_EQ(Lines(List()), QStringList{u"City"_s});
  EXPECT_EQ(PageLabel(), u"1"_s);
  EXPECT_EQ(PageButton(1).ForeColor(), ui::Role::Red);
  EXPECT_EQ(PageButton(2).ForeColor(), ui::Role::Blue);
  EXPECT_TRUE(NewField().hasFocus());
  EXPECT_EQ(Find<ui::ComboBox>(*m_screen, u"lstType"_s).Text(), u"Text"_s);
}

TEST_F(fEditLabTest, Tips_OfTheControls_AreTheirs) {
  OpenOnThreeFields();
  EXPECT_EQ(Row(0).toolTip(), u"Enter Field Name"_s);
  EXPECT_EQ(NewField().toolTip(), u"Enter Name of Field You Wish to Add"_s);
  EXPECT_EQ(Find<QWidget>(*m_screen, u"lstType"_s).toolTip(),
            u"Choose Type of Field. Your Choice Will Influence Query Options"_s);
  EXPECT_EQ(Find<QWidget>(*m_screen, u"cmdAdd"_s).toolTip(), u"Click to Enter New Name"_s);
  EXPECT_EQ(Find<QWidget>(*m_screen, u"cmdDel"_s).toolTip(), u"Click to Delete Field"_s);
  EXPECT_EQ(Title(1).toolTip(), u"Enter Name of Page"_s);
  EXPECT_EQ(Find<QWidget>(*m_screen, u"cmdNamePage"_s).toolTip(), u"Click to Enter New Page Name"_s);
  for (int page = 1; page <= MaxPages; ++page)
    EXPECT_EQ(PageButton(page).toolTip(), u"Click to Create Card  Fields for Sheet %1"_s.arg(page));
  EXPECT_EQ(Find<QWidget>(*m_screen, u"CreateData"_s).toolTip(), u"Click OK to Save Changes"_s);
  EXPECT_EQ(Find<QWidget>(*m_screen, u"CancelData"_s).toolTip(), u"Click to Exit"_s);
}

TEST_F(fEditLabTest, Load_NoFileOpen_IsEmpty) {
  Show();
  EXPECT_EQ(RowsInView(), QStringList{QString()});
  EXPECT_EQ(Lines(List()), QStringList());
}

TEST_F(fEditLabTest, Rows_OfAFullPage_StandInThreeColumns) {
  OpenOn(ACardFile().WithTexts(21));
  for (const auto& [index, left, top] : {std::tuple{0, 135, 1400}, std::tuple{6, 135, 3410},
                                         std::tuple{7, 3335, 1400}, std::tuple{20, 6535, 3410}}) {
    EXPECT_EQ(Row(index).Left(), left);
    EXPECT_EQ(Row(index).Top(), top);
  }
}

TEST_F(fEditLabTest, Rows_FirstFieldOnAnotherPage_StandsOnPage1AllTheSame) {
  OpenOn(ACardFile().With(TextField(u"City"_s), 3).With(TextField(u"Trade"_s), 3));
  EXPECT_EQ(RowsInView(), QStringList{u"City"_s});
  GoToPage(3);
  EXPECT_EQ(RowsInView(), QStringList{u"Trade"_s});
  EXPECT_EQ(Lines(List()), QStringList({u"City"_s, u"Trade"_s}));
}

TEST_F(fEditLabTest, TextIn_Clicked_HandsTheFocusToTheFirstPageButton) {
  OpenOnThreeFields();
  Click(Row(0));
  EXPECT_TRUE(PageButton(1).hasFocus());
  EXPECT_TRUE(Row(0).Locked());
}

TEST_F(fEditLabTest, CmdPage_AnotherPage_ShowsItsFieldsAndTitle) {
  OpenOnThreeFields();
  GoToPage(2);
  EXPECT_EQ(RowsInView(), QStringList({u"Trade"_s, u"Due"_s}));
  EXPECT_EQ(Lines(List()), QStringList({u"Trade"_s, u"Due"_s}));
  EXPECT_EQ(Title(2).Text(), u"Work"_s);
  EXPECT_TRUE(Title(2).isVisible());
  EXPECT_FALSE(Title(1).isVisible());
  EXPECT_EQ(PageLabel(), u"2"_s);
  EXPECT_EQ(PageButton(2).ForeColor(), ui::Role::Red);
  EXPECT_EQ(PageButton(1).ForeColor(), ui::Role::Blue);
  EXPECT_TRUE(NewField().hasFocus());
}

TEST_F(fEditLabTest, PageKeys_FromPage1_StepThroughThePages) {
  OpenOnThreeFields();
  QTest::keyClick(&NewField(), Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(PageLabel(), u"2"_s);
  QTest::keyClick(&NewField(), Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(PageLabel(), u"1"_s);
}

TEST_F(fEditLabTest, Delete_TheFirstField_IsRefused) {
  OpenOnThreeFields();
  test::ClickLine(List(), 0);
  const MessageAnswers answers({MsgAnswer::Ok});
  Push(u"cmdDel"_s);
  EXPECT_EQ(answers.Asked().value(0).Text, u"You can't delete the first field!"_s);
}

TEST_F(fEditLabTest, Delete_NoLineChosen_AsksForOne) {
  OpenOnThreeFields();
  const MessageAnswers answers({MsgAnswer::Ok});
  Push(u"cmdDel"_s);
  EXPECT_EQ(answers.Asked().value(0).Text, u"Please select name of field."_s);
}

TEST_F(fEditLabTest, Delete_Question_TellsTheQueriesThatGoAndCancelIsItsDefault) {
  OpenOnThreeFields();
  GoToPage(2);
  Delete(u"Due"_s, MsgAnswer::Cancel);
  EXPECT_EQ(m_question.Text, u"Do you wish to delete this field?"_s);
  EXPECT_EQ(m_question.Buttons, ui::MsgButtons::OkCancel);
  EXPECT_TRUE(m_question.Destroys);
  EXPECT_EQ(m_question.Note, u"No saved query goes with it."_s);
  m_file->Database().CreateQueryDef(u"A&", u"SELECT * FROM Agent");
  Delete(u"Due"_s, MsgAnswer::Cancel);
  EXPECT_EQ(m_question.Note, u"1 saved query goes with it."_s);
  m_file->Database().CreateQueryDef(u"B&", u"SELECT * FROM Agent");
  Delete(u"Due"_s, MsgAnswer::Cancel);
  EXPECT_EQ(m_question.Note, u"2 saved queries go with it."_s);
  EXPECT_EQ(Lines(List()), QStringList({u"Trade"_s, u"Due"_s}));
  EXPECT_EQ(m_file->Database().QueryDefs().size(), 2);
}

TEST_F(fEditLabTest, Delete_Confirmed_OpensTheScreenAgainOnThePage) {
  OpenOnThreeFields();
  const QPointer<fEditLab> before = m_screen;
  GoToPage(2);
  Delete(u"Trade"_s);
  EXPECT_NE(m_screen, before);
  EXPECT_EQ(PageLabel(), u"2"_s);
  EXPECT_EQ(RowsInView(), QStringList{u"Due"_s});
  EXPECT_EQ(Lines(List()), QStringList{u"Due"_s});
  EXPECT_FALSE(CardColumns().contains(u"Trade"_s));
}

TEST_F(fEditLabTest, Delete_LastFieldOfAPage_RemovesItsTitle) {
  OpenOnThreeFields();
  GoToPage(2);
  Delete(u"Trade"_s);
  Delete(u"Due"_s);
  EXPECT_EQ(Title(2).Text(), QString());
  EXPECT_EQ(PageTitle(2), std::nullopt);
  EXPECT_EQ(PageLabel(), u"2"_s);
}

TEST_F(fEditLabTest, Delete_Fails_TellsWhyAndTakesNothing) {
  OpenOnThreeFields();
  m_file->Database().CreateQueryDef(u"A&", u"SELECT * FROM Agent");
  m_file->Database().DeleteTableDef(u"TradeT");
  GoToPage(2);
  test::ClickLine(List(), 0);
  const MessageAnswers answers({MsgAnswer::Ok, MsgAnswer::Ok});
  Push(u"cmdDel"_s);
  EXPECT_EQ(answers.Asked().value(1).Text, u"There is no table \"TradeT\"."_s);
  EXPECT_EQ(Lines(List()), QStringList({u"Trade"_s, u"Due"_s}));
  EXPECT_TRUE(CardColumns().contains(u"Trade"_s));
  EXPECT_EQ(m_file->Database().QueryDefs(), QStringList{u"A&"_s});
  EXPECT_EQ(m_frame.Calls.filter(u"WhatWas"_s), QStringList());
}

TEST_F(fEditLabTest, Delete_CardScreenRefusesToClose_DeletesNothing) {
  OpenOnThreeFields();
  m_frame.CardScreensLetGo = false;
  GoToPage(2);
  Delete(u"Due"_s);
  EXPECT_TRUE(CardColumns().contains(u"Due"_s));
}

TEST_F(fEditLabTest, Apply_PageWithFields_GivesItItsTitle) {
  OpenOnThreeFields();
  Type(Title(1), u"  Places "_s);
  Push(u"cmdNamePage"_s);
  EXPECT_EQ(PageTitle(1), u"Places"_s);
  GoToPage(2);
  Type(Title(2), u"Trades"_s);
  Push(u"cmdNamePage"_s);
  EXPECT_EQ(PageTitle(2), u"Trades"_s);
  EXPECT_EQ(ui::NoticeInView(), QString());
}

TEST_F(fEditLabTest, Apply_PageWithoutFields_EmptiesTheBox) {
  OpenOnThreeFields();
  GoToPage(3);
  Type(Title(3), u"Empty"_s);
  Push(u"cmdNamePage"_s);
  EXPECT_EQ(Title(3).Text(), QString());
  EXPECT_EQ(ui::NoticeInView(), QString(strings::fieldeditor::PageWithoutFields));
}

TEST_F(fEditLabTest, Apply_NothingTyped_KeepsTheTitle) {
  OpenOnThreeFields();
  GoToPage(2);
  Type(Title(2), {});
  Push(u"cmdNamePage"_s);
  EXPECT_EQ(PageTitle(2), u"Work"_s);
  EXPECT_EQ(ui::NoticeInView(), QString(strings::fieldeditor::NameThePage));
}

TEST_F(fEditLabTest, Apply_NoFileOpen_TellsIt) {
  Show();
  Push(u"cmdNamePage"_s);
  EXPECT_EQ(ui::NoticeInView(), u"The page was not named: No card file is open."_s);
}

TEST_F(fEditLabTest, Activation_Again_GoesBackToPage1) {
  OpenOnThreeFields();
  GoToPage(2);
  Add(u"Colour"_s);
  class Other final : public ui::Form {
   public:
    Other() : Form(u"Other"_s, u"Other"_s) {}
  };
  auto* other = new Other;
  other->Show();
  EXPECT_EQ(PageLabel(), u"2"_s);
  other->Unload();
  EXPECT_EQ(PageLabel(), u"1"_s);
  EXPECT_EQ(RowsInView(), QStringList{u"City"_s});
  Add(u"Shape"_s);
  EXPECT_EQ(RowsInView(), QStringList({u"City"_s, u"Shape"_s}));
}

TEST_F(fEditLabTest, OkAndCancel_FileWithCards_LeaveForTheCard) {
  OpenOnThreeFields();
  for (const QString& button : {u"CreateData"_s, u"CancelData"_s}) {
    if (!m_screen) Show();
    m_frame.Calls.clear();
    const QPointer<fEditLab> left = m_screen;
    Push(button);
    EXPECT_TRUE(left.isNull() || left->IsClosing());
    EXPECT_EQ(m_frame.Calls, QStringList{u"ShowCard"_s});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(fEditLabTest, OkAndCancel_FileWithoutCards_LeaveForANewCard) {
  for (const QString& button : {u"CreateData"_s, u"CancelData"_s}) {
    m_file.emplace(ACardFile().With(TextField(u"City"_s)).Design());
    Global().NoFile = False;
    Show();
    m_frame.Calls.clear();
    Push(button);
    EXPECT_EQ(m_frame.Calls, QStringList({u"ShowCard"_s, u"NewCard"_s}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_file.reset();
  }
}

TEST_F(fEditLabTest, CmdHelp_Clicked_OpensTopic113) {
  OpenOnThreeFields();
  Push(u"CmdHelp"_s);
  EXPECT_EQ(m_frame.Calls, QStringList{u"ShowHelpTopic 113"_s});
}

}  // namespace
}  // namespace velmora
