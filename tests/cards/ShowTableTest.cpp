// SPDX-License-Identifier: MIT
#include "tests/cards/CardOfEveryKind.h"

namespace velmora::test {

TEST_F(ShowTableTest, Load_CurrentCard_ShowsEveryField) {
  const ShowTable& form = View();
  EXPECT_EQ(form.windowTitle(), u"Customer Cards"_s);
  EXPECT_EQ(Number(form), u"1"_s);
  EXPECT_EQ(form.NameCard->Caption(), u"Name"_s);
  EXPECT_EQ(form.NameRecord->Text(), u"Card 1"_s);
  EXPECT_EQ(form.NameText[0].Text(), u"Paris"_s);
  EXPECT_EQ(form.NameNumber[1].Text(), u"12.5"_s);
  EXPECT_EQ(form.NameNumber[1].Mask(), u"999999999999"_s);
  EXPECT_EQ(form.NameCheck[2].Value(), 1);
  EXPECT_EQ(form.NameDate[3].Text(), u"6/30/2024"_s);
  EXPECT_EQ(form.NameText[4].Text(), u"Rue"_s);
  EXPECT_EQ(form.DescrText->Text(), u"one\ntwo"_s);
  EXPECT_EQ(frame->ClientLab().Caption(), u"Card 1"_s);
  EXPECT_EQ(frame->NumberLab().Caption(), u"1"_s);
  ExpectUnmarked();
}

TEST_F(ShowTableTest, Load_EveryControl_HasItsCaptionAndTip) {
  const ShowTable& form = View();
  ExpectTips(form, {
                       {u"EditData"_s, u"Click OK to Save Changes"_s},
                       {u"CancelData"_s, u"Click Cancel to Exit with No Changes"_s},
                       {u"CmdHelp"_s, u"Click for Help"_s},
                       {u"IndexText"_s, u"Card No."_s},
                       {u"NameRecord"_s, u"Name of Customer/Name of Card"_s},
                       {u"NameNumber(1)"_s, u"Numerical Field"_s},
                       {u"NameCheck(2)"_s, u"Yes/No Field"_s},
                       {u"DescrText"_s, u"Comments on Customer"_s},
                       {u"Tab(0)"_s, u"Data Sheet for Card"_s},
                       {u"Tab(1)"_s, u"Data Sheet for Card"_s},
                   });
  EXPECT_EQ(Button(form, u"EditData"_s).Caption(), u"OK"_s);
  EXPECT_EQ(Button(form, u"CancelData"_s).Caption(), u"Cancel"_s);
  EXPECT_EQ(Button(form, u"CmdHelp"_s).Caption(), u"Help"_s);
  EXPECT_EQ(Find<ui::Label>(form, u"Label1"_s).Caption(), u"Card No:"_s);
}

TEST_F(ShowTableTest, Load_FileWithoutCards_LaysNothingOut) {
  const ShowTable& form = OpenViewer(0);
  EXPECT_EQ(form.NameText.Count(), 1);
  EXPECT_FALSE(form.Tab[0].isVisible());
}

TEST_F(ShowTableTest, Load_NullFields_AreEmpty) {
  file->AddRow(u"MainData"_s, {{u"Index@"_s, 3}});
  const ShowTable& form = OpenViewer(3);
  EXPECT_EQ(form.NameRecord->Text(), QString());
  EXPECT_EQ(form.NameText[0].Text(), QString());
  EXPECT_EQ(form.NameNumber[1].Text(), QString());
  EXPECT_EQ(form.NameCheck[2].Value(), 0);
  EXPECT_EQ(form.NameDate[3].Text(), QString());
  EXPECT_EQ(form.DescrText->Text(), QString());
  EXPECT_EQ(frame->ClientLab().Caption(), QString());
}

TEST_F(ShowTableTest, ShowIndex_StepUpIntoAGap_ShowsTheNextCard) {
  ShowTable& form = View();
  form.ShowIndex(3);
  EXPECT_EQ(Number(form), u"5"_s);
  EXPECT_EQ(Global().CurCard, 5);
}

TEST_F(ShowTableTest, ShowIndex_StepDownIntoAGap_ShowsTheCardBelow) {
  ShowTable& form = View();
  form.ShowIndex(5);
  form.ShowIndex(4);
  EXPECT_EQ(Number(form), u"2"_s);
}

TEST_F(ShowTableTest, ShowIndex_StepAboveHighestCard_ShowsHighestAgain) {
  ShowTable& form = View();
  form.ShowIndex(5);
  file->Database().Execute(u"Update MainData Set City = 'Oslo' Where [Index@] = 5");
  form.ShowIndex(6);
  EXPECT_EQ(Number(form), u"5"_s);
  EXPECT_EQ(form.NameText[0].Text(), u"Oslo"_s);
}

TEST_F(ShowTableTest, ShowIndex_StepBelowLowestCard_ShowsLowestAgain) {
  ShowTable& form = View();
  file->Database().Execute(u"Update MainData Set City = 'Oslo' Where [Index@] = 1");
  form.ShowIndex(0);
  EXPECT_EQ(Number(form), u"1"_s);
  EXPECT_EQ(form.NameText[0].Text(), u"Oslo"_s);
}

TEST_F(ShowTableTest, ShowIndex_CurrentCardGone_ShowsTheFirstStored) {
  file->AddCard(9, u"Card 9"_s);
  ShowTable& form = View();
  file->Database().Execute(u"Delete * from MainData Where [Index@] = 1");
  form.ShowIndex(1);
  EXPECT_EQ(Number(form), u"9"_s);
}

TEST_F(ShowTableTest, ShowIndex_LargeNumber_IsGrouped) {
  file->AddCard(1234567, u"Far"_s);
  EXPECT_EQ(Number(OpenViewer(1234567)), u"1,234,567"_s);
  EXPECT_EQ(frame->NumberLab().Caption(), u"1,234,567"_s);
}

TEST_F(ShowTableTest, ShowIndex_CurrentCardUnchanged_ShowsItAgainWithoutAQuestion) {
  ShowTable& form = View();
  file->Database().Execute(u"Update MainData Set City = 'Oslo' Where [Index@] = 1");
  form.ShowIndex(1);
  EXPECT_EQ(Number(form), u"1"_s);
  EXPECT_EQ(form.NameText[0].Text(), u"Oslo"_s);
}

TEST_F(ShowTableTest, ShowIndex_CardChangedAndAnsweredNo_DropsTheChange) {
  ShowTable& form = View();
  Type(form.NameText[0], u"Rome"_s);
  const MessageAnswers answers({No});
  form.ShowIndex(1);
  EXPECT_EQ(answers.Asked().value(0).Text, u"Do you wish to save changes?"_s);
  EXPECT_EQ(answers.Asked().value(0).Buttons, ui::MsgButtons::YesNo);
  EXPECT_EQ(form.NameText[0].Text(), u"Paris"_s);
  EXPECT_EQ(Column(1, u"City"_s), u"Paris"_s);
  ExpectUnmarked();
}

TEST_F(ShowTableTest, ShowIndex_CardChangedAndAnsweredYes_SavesAndMovesOn) {
  ShowTable& form = View();
  Type(form.NameText[0], u"Rome"_s);
  const MessageAnswers answers({Yes});
  form.ShowIndex(2);
  EXPECT_EQ(Column(1, u"City"_s), u"Rome"_s);
  EXPECT_EQ(Number(form), u"2"_s);
}

TEST_F(ShowTableTest, ShowIndex_ColumnGone_LeavesTheLaterFieldsAsTheyWere) {
  ShowTable& form = View();
  file->Database().DeleteField(u"MainData", u"Size");
  form.ShowIndex(2);
  EXPECT_EQ(form.NameRecord->Text(), u"Card 2"_s);
  EXPECT_EQ(form.NameText[0].Text(), QString());
  EXPECT_EQ(form.NameNumber[1].Text(), QString());
  EXPECT_EQ(form.NameText[4].Text(), u"Rue"_s);
}

TEST_F(ShowTableTest, ShowIndex_DateWithoutAReminderRow_IsNotActive) {
  const ShowTable& form = View();
  EXPECT_FALSE(form.NameDate[3].IsActive());
}

TEST_F(ShowTableTest, ShowIndex_DateWithAReminder_IsActiveWithItsAgents) {
  file->AddRow(u"TableDatesRemainder"_s,
               {{u"Index"_s, 1}, {u"Due"_s, u"2024-06-30"_s}, {u"DueAgents"_s, u"Ann,Bob"_s}});
  ShowTable& form = View();
  EXPECT_TRUE(form.NameDate[3].IsActive());
  EXPECT_EQ(form.NameDate[3].strAgents, u"Ann,Bob"_s);
  form.ShowIndex(2);
  EXPECT_FALSE(form.NameDate[3].IsActive());
}

TEST_F(ShowTableTest, ShowIndex_CardWithContacts_FillsTheStrip) {
  file->AddContact(2, u"Ann"_s, {{u"1"_s, u"Lee"_s}, {u"7"_s, u"111"_s}, {u"Activ"_s, true}});
  ShowTable& form = View();
  form.ShowIndex(2);
  EXPECT_EQ(frame->AgentLab().Text(), u"Ann   Lee   "_s);
  EXPECT_EQ(frame->TelephonList().Text(), u"111"_s);
}

TEST_F(ShowTableTest, Cancel_CardChanged_ReopensOnTheStoredCardWithoutAQuestion) {
  ShowTable& form = View();
  Type(form.NameText[0], u"Rome"_s);
  Press(form, u"CancelData"_s);
  EXPECT_TRUE(form.IsClosing());
  const ShowTable* again = OpenScreen<ShowTable>();
  ASSERT_NE(again, nullptr);
  EXPECT_EQ(again->NameText[0].Text(), u"Paris"_s);
  ExpectUnmarked();
}

TEST_F(ShowTableTest, Close_CardChangedAndAnsweredYes_Saves) {
  ShowTable& form = View();
  Type(form.NameText[0], u"Rome"_s);
  const MessageAnswers answers({Yes});
  EXPECT_TRUE(form.Unload());
  EXPECT_EQ(Column(1, u"City"_s), u"Rome"_s);
  ExpectUnmarked();
}

TEST_F(ShowTableTest, Close_CardChangedAndAnsweredNo_Drops) {
  ShowTable& form = View();
  Type(form.NameText[0], u"Rome"_s);
  const MessageAnswers answers({No});
  QTest::keyClick(&form.NameText[0], Qt::Key_Escape);
  EXPECT_TRUE(form.IsClosing());
  EXPECT_EQ(Column(1, u"City"_s), u"Paris"_s);
  ExpectUnmarked();
}

TEST_F(ShowTableTest, Close_Unchanged_AsksNothing) { EXPECT_TRUE(View().Unload()); }

TEST_F(ShowTableTest, Comment_Enlarged_CoversThePageAndHidesItsFirstElements) {
  const ShowTable& form = View();
  EXPECT_TRUE(Button(form, u"cmdEdUp"_s).isVisible());
  EXPECT_FALSE(Button(form, u"cmdEdDwn"_s).isVisible());
  Press(form, u"cmdEdUp"_s);
  EXPECT_EQ(form.DescrText->Top(), 960);
  EXPECT_EQ(form.DescrText->Height(), 3040);
  EXPECT_FALSE(form.NameText[0].isVisible());
  EXPECT_TRUE(form.NameNumber[1].Visible());
  EXPECT_FALSE(Button(form, u"cmdEdUp"_s).isVisible());
  EXPECT_TRUE(Button(form, u"cmdEdDwn"_s).hasFocus());
  Press(form, u"cmdEdDwn"_s);
  EXPECT_EQ(form.DescrText->Top(), 3330);
  EXPECT_EQ(form.DescrText->Height(), 670);
  EXPECT_TRUE(form.NameText[0].isVisible());
  EXPECT_FALSE(form.NameCheck[0].isVisible());
  EXPECT_TRUE(Button(form, u"cmdEdUp"_s).isVisible());
}

TEST_F(ShowTableTest, Comment_EnlargedOverAnotherPage_HidesTheFirstElementsWhenTheirPageComes) {
  const ShowTable& form = View();
  PressPage(form, 2);
  Press(form, u"cmdEdUp"_s);
  PressPage(form, 1);
  EXPECT_FALSE(form.NameText[0].isVisible());
  EXPECT_TRUE(form.NameNumber[1].Visible());
  PressPage(form, 2);
  Press(form, u"cmdEdDwn"_s);
  EXPECT_FALSE(form.NameText[0].isVisible());
  PressPage(form, 1);
  EXPECT_TRUE(form.NameText[0].isVisible());
}

TEST_F(ShowTableTest, Comment_Enlarged_KeepsTabOffTheCoveredFields) {
  const ShowTable& form = View();
  Press(form, u"cmdEdUp"_s);
  form.NameRecord->SetFocus();
  PressTab(*form.NameRecord);
  EXPECT_TRUE(form.DescrText->hasFocus());
  Press(form, u"cmdEdDwn"_s);
  form.NameRecord->SetFocus();
  PressTab(*form.NameRecord);
  EXPECT_TRUE(form.NameText[0].hasFocus());
}

TEST_F(ShowTableTest, Focus_TextBoxes_TurnWhiteAndBack) {
  const ShowTable& form = View();
  for (ui::TextBox* box : {form.NameRecord, &form.NameText[0]}) {
    box->SetFocus();
    EXPECT_EQ(box->BackColor(), ui::Role::White);
    EXPECT_EQ(box->ForeColor(), ui::Role::Ink);
    form.DescrText->SetFocus();
    EXPECT_EQ(box->BackColor(), ui::Role::ButtonFace);
    EXPECT_EQ(box->ForeColor(), ui::Role::DarkRed);
  }
}

TEST_F(ShowTableTest, LeaveText_ApostropheByClickOnOk_SavesNothing) {
  const ShowTable& form = View();
  Type(form.NameText[0], u"L'Aquila"_s);
  const MessageAnswers answers({Ok});
  Save(form);
  EXPECT_TRUE(form.NameText[0].hasFocus());
  EXPECT_FALSE(Button(form, u"EditData"_s).isDown());
  EXPECT_EQ(Column(1, u"City"_s), u"Paris"_s);
}

TEST_F(ShowTableTest, LeaveText_ScreenCloses_RunsNoCheck) {
  ShowTable& form = View();
  Type(form.NameText[0], u"L'Aquila"_s);
  const MessageAnswers answers({No});
  form.Unload();
  EXPECT_EQ(answers.Asked().value(0).Text, u"Do you wish to save changes?"_s);
}

TEST_F(ShowTableTest, LeaveName_Refused_StaysWhite) {
  const ShowTable& form = View();
  Type(*form.NameRecord, u"O'Hara"_s);
  const MessageAnswers answers({Ok});
  PressTab(*form.NameRecord);
  EXPECT_TRUE(form.NameRecord->hasFocus());
  EXPECT_EQ(form.NameRecord->BackColor(), ui::Role::White);
}

TEST_F(ShowTableTest, LeaveName_Unchanged_RunsNoCheck) {
  ShowTable& form = View();
  file->AddCard(7, u"Card 1"_s);
  form.NameRecord->SetFocus();
  PressTab(*form.NameRecord);
  EXPECT_TRUE(form.NameText[0].hasFocus());
}

TEST_F(ShowTableTest, LeaveName_OwnName_PassesTheTakenCheck) {
  file->AddCard(1, u"Alone"_s);
  const ShowTable& form = OpenViewer(1);
  Type(*form.NameRecord, u"Alone"_s);
  PressTab(*form.NameRecord);
  EXPECT_TRUE(form.NameText[0].hasFocus());
}

TEST_F(ShowTableTest, LeaveName_SimilarNameAndOk_GoesToTheSearchWithTheFirstWord) {
  ShowTable& form = View();
  file->AddCard(7, u"Blacksmith Inc"_s);
  Type(*form.NameRecord, u"Smith Ltd"_s);
  const MessageAnswers answers({Ok, No});
  Save(form);
  EXPECT_EQ(answers.Asked().value(answers.Asked().size() - 1).Text, u"Do you wish to save changes?"_s);
  EXPECT_EQ(frame->LastCall(), u"SearchSimilarNames Smith"_s);
  EXPECT_TRUE(form.IsClosing());
  EXPECT_EQ(Column(1, u"Name"_s), u"Card 1"_s);
}

TEST_F(ShowTableTest, Enter_NameAndFields_WalkThePageRoundAndRound) {
  const ShowTable& form = View();
  form.NameRecord->SetFocus();
  QTest::keyClick(form.NameRecord, Qt::Key_Return);
  EXPECT_TRUE(form.NameText[0].hasFocus());
  QTest::keyClick(&form.NameText[0], Qt::Key_Return);
  EXPECT_TRUE(form.NameNumber[1].hasFocus());
  QTest::keyClick(&form.NameNumber[1], Qt::Key_Enter);
  EXPECT_TRUE(form.NameCheck[2].hasFocus());
  QTest::keyClick(&form.NameCheck[2], Qt::Key_Return);
  EXPECT_TRUE(form.NameDate[3].DateVal()->hasFocus());
  QTest::keyClick(form.NameDate[3].DateVal(), Qt::Key_Return);
  EXPECT_TRUE(form.NameText[0].hasFocus());
  ExpectUnmarked();
}

TEST_F(ShowTableTest, ChangeMarks_AnsweredNo_AreCleared) {
  ShowTable& form = View();
  form.DescrText->SetFocus();
  const QList<std::function<void()>> edits{
      [&] { QTest::keyClicks(form.NameRecord, u"x"_s); },
      [&] { QTest::keyClicks(&form.NameText[0], u"x"_s); },
      [&] { Click(form.NameCheck[2]); },
      [&] { QTest::keyClicks(form.NameDate[3].DateVal(), u"1"_s); },
      [&] { QTest::keyClicks(form.DescrText, u"x"_s); },
  };
  for (qsizetype i = 0; i < edits.size(); ++i) {
    edits[i]();
    EXPECT_EQ(Global().CardChanged, True) << i;
    const MessageAnswers answers({No});
    form.ShowIndex(1);
    EXPECT_EQ(Global().CardChanged, False) << i;
  }
}

TEST_F(ShowTableTest, ChangeMarks_ShowIndex_SetsNone) {
  ShowTable& form = View();
  QSignalSpy text(&form.NameText[0], &ui::TextBox::Change);
  QSignalSpy date(&form.NameDate[3], &DateCtrl::Change);
  QSignalSpy check(&form.NameCheck[2], &ui::CheckBox::Click);
  QSignalSpy comment(form.DescrText, &ui::MemoBox::Change);
  form.ShowIndex(2);
  form.ShowIndex(1);
  EXPECT_EQ(text.count() + date.count() + check.count() + comment.count(), 0);
  ExpectUnmarked();
}

TEST_F(ShowTableTest, Tab_FromTheName_ReachesEveryControlOfThePageInOrder) {
  const ShowTable& form = View();
  form.NameRecord->SetFocus();
  EXPECT_EQ(ReachedByTab(10), QStringList({u"NameText(0)"_s, u"NameNumber(1)"_s, u"NameCheck(2)"_s,
                                           u"DateVal"_s, u"DescrText"_s, u"cmdEdUp"_s, u"EditData"_s,
                                           u"CancelData"_s, u"CmdHelp"_s, u"Tab(0)"_s}));
}

}  // namespace velmora::test
