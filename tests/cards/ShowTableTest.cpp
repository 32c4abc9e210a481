// SPDX-License-Identifier: MIT
#include "tests/cards/CardScreens.h"
#include "tests/engine/FailingWrites.h"

using namespace velmora;
using namespace velmora::test;
using enum velmora::ui::MsgAnswer;

namespace {

class ShowTableTest : public CardScreensTest {
 protected:
  /// Fields: 0 City (text), 1 Size (number), 2 Paid (yes/no), 3 Due (date); on page 2: 4 Street (text).
  ShowTableTest() {
    Make(ACardFile()
             .With(TextField(u"City"_s))
             .With(NumberField(u"Size"_s))
             .With(YesNoField(u"Paid"_s))
             .With(DateField(u"Due"_s))
             .With(TextField(u"Street"_s), 2));
    Connect();
  }

  void AddCards(std::initializer_list<std::int32_t> numbers) const {
    for (const std::int32_t number : numbers) file->AddCard(number, u"Card %1"_s.arg(number));
  }
  /// The viewer on card 1, "Card 1" of Paris; there are cards 1, 2 and 5.
  ShowTable& View() {
    file->AddCard(1, u"Card 1"_s,
                  {{u"City"_s, u"Paris"_s},
                   {u"Size"_s, 12.5},
                   {u"Paid"_s, true},
                   {u"Due"_s, u"2024-06-30"_s},
                   {u"Street"_s, u"Rue"_s},
                   {u"Remarks"_s, u"one\ntwo"_s}});
    AddCards({2, 5});
    return OpenViewer(1);
  }
  [[nodiscard]] static QString Number(const ShowTable& form) {
    return Find<ui::SSPanel>(form, u"IndexText"_s).Caption();
  }
  static void Save(const ShowTable& form) { Press(form, u"EditData"_s); }
  static void ExpectUnmarked() { EXPECT_EQ(Global().CardChanged, False); }
};

}  // namespace

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
  const QList<std::pair<QString, QString>> tips{
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
  };
  for (const auto& [name, tip] : tips) EXPECT_EQ(Find<QWidget>(form, name).toolTip(), tip);
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

TEST_F(ShowTableTest, Save_EveryKindChanged_IsStored) {
  const ShowTable& form = View();
  Type(*form.NameRecord, u"One "_s);
  Type(form.NameText[0], u"Rome"_s);
  Type(form.NameNumber[1], u"77"_s);
  form.NameCheck[2].SetFocus();
  QTest::keyClick(&form.NameCheck[2], Qt::Key_Space);
  TypeDate(form.NameDate[3], u"7/4/2025"_s);
  form.DescrText->selectAll();
  QTest::keyClicks(form.DescrText, u"three"_s);
  Save(form);
  EXPECT_EQ(Column(1, u"Name"_s), u"One"_s);
  EXPECT_EQ(Column(1, u"City"_s), u"Rome"_s);
  EXPECT_EQ(Column(1, u"Size"_s), u"77"_s);
  EXPECT_EQ(Column(1, u"Paid"_s), u"0"_s);
  EXPECT_EQ(Column(1, u"Due"_s), u"7/4/2025"_s);
  EXPECT_EQ(Column(1, u"Remarks"_s), u"three"_s);
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(frame->ClientLab().Caption(), u"One"_s);
  ExpectUnmarked();
}

TEST_F(ShowTableTest, Save_Unchanged_StoresTheSame) {
  const ShowTable& form = View();
  const QStringList before = file->Rows(u"MainData"_s);
  Save(form);
  EXPECT_EQ(file->Rows(u"MainData"_s), before);
}

TEST_F(ShowTableTest, Save_TextAndCommentCleared_StoresOneBlank) {
  const ShowTable& form = View();
  Type(form.NameText[0], {});
  form.DescrText->selectAll();
  QTest::keyClick(form.DescrText, Qt::Key_Delete);
  Save(form);
  EXPECT_EQ(Column(1, u"City"_s), u" "_s);
  EXPECT_EQ(Column(1, u"Remarks"_s), u" "_s);
}

TEST_F(ShowTableTest, Save_NumberCleared_KeepsTheOldNumber) {
  const ShowTable& form = View();
  Type(form.NameNumber[1], {});
  EXPECT_EQ(form.NameNumber[1].Text(), QString());
  Save(form);
  EXPECT_EQ(Column(1, u"Size"_s), u"12.5"_s);
  EXPECT_EQ(form.NameNumber[1].Text(), u"12.5"_s);
}

TEST_F(ShowTableTest, Save_NumberWithBlanks_ReadsTheDigits) {
  const ShowTable& form = View();
  Type(form.NameNumber[1], u"1 200"_s);
  Save(form);
  EXPECT_EQ(Column(1, u"Size"_s), u"1200"_s);
}

TEST_F(ShowTableTest, Save_DateCleared_StoresNullAndLeavesTheReminder) {
  file->AddRow(u"TableDatesRemainder"_s, {{u"Index"_s, 1}, {u"Due"_s, u"2024-06-30"_s}});
  const ShowTable& form = View();
  TypeDate(form.NameDate[3], {});
  Save(form);
  EXPECT_EQ(Column(1, u"Due"_s), u"Null"_s);
  EXPECT_EQ(Reminders(), QStringList(u"1|6/30/2024|Null"_s));
  EXPECT_FALSE(form.NameDate[3].IsActive());
}

TEST_F(ShowTableTest, Save_InactiveDate_TakesTheReminderBack) {
  file->AddRow(u"TableDatesRemainder"_s, {{u"Index"_s, 1}, {u"Due"_s, u"2024-06-30"_s}});
  const ShowTable& form = View();
  form.NameDate[3].SetIsActive(false);
  Save(form);
  EXPECT_EQ(Reminders(), QStringList(u"1|Null|Null"_s));
}

TEST_F(ShowTableTest, Save_NameEmpty_AsksForIt) {
  const ShowTable& form = View();
  Type(*form.NameRecord, u"  "_s);
  const MessageAnswers answers({Ok});
  Save(form);
  EXPECT_EQ(answers.Asked().value(0).Text, u"Enter name of card."_s);
  EXPECT_EQ(Column(1, u"Name"_s), u"Card 1"_s);
  EXPECT_EQ(Global().CardChanged, True);
}

TEST_F(ShowTableTest, Save_TwinsOfOneName_IsRefusedWhenTheFirstRowIsTheOther) {
  ShowTable& form = View();
  file->AddCard(8, u"Twin"_s);
  file->AddCard(7, u"Twin"_s);
  form.ShowIndex(8);
  Save(form);
  form.ShowIndex(7);
  const MessageAnswers answers({Ok});
  Save(form);
  EXPECT_EQ(answers.Asked().value(0).Text, u"This name already exists!"_s);
  EXPECT_EQ(form.NameRecord->Text(), QString());
  EXPECT_TRUE(form.NameRecord->hasFocus());
  EXPECT_EQ(Column(7, u"Name"_s), u"Twin"_s);
}

TEST_F(ShowTableTest, Save_CardGone_DoesNothing) {
  const ShowTable& form = View();
  file->Database().Execute(u"Delete * from MainData Where [Index@] = 1");
  Save(form);
  EXPECT_EQ(Number(form), u"1"_s);
}

TEST_F(ShowTableTest, Save_ColumnGone_StoresNothingAndStaysOpen) {
  const ShowTable& form = View();
  Type(form.NameText[0], u"Rome"_s);
  file->Database().DeleteField(u"MainData", u"Street");
  Save(form);
  EXPECT_EQ(Column(1, u"City"_s), u"Paris"_s);
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(form.NameText[0].Text(), u"Rome"_s);
  EXPECT_EQ(Global().CardChanged, True);
}

TEST_F(ShowTableTest, Save_TextTooLong_StoresNothingAndStaysOpen) {
  const ShowTable& form = View();
  form.NameText[0].Write(QString(201, u'x'));
  Type(form.NameNumber[1], u"77"_s);
  Save(form);
  EXPECT_EQ(Column(1, u"Size"_s), u"12.5"_s);
  EXPECT_EQ(form.NameText[0].Text().size(), 201);
  EXPECT_EQ(Global().CardChanged, True);
}

TEST_F(ShowTableTest, Save_DateThatIsNone_StoresNothingAndStaysOpen) {
  const ShowTable& form = View();
  Type(form.NameText[0], u"Rome"_s);
  TypeDate(form.NameDate[3], u"2/30/2024"_s);
  Save(form);
  EXPECT_EQ(Column(1, u"City"_s), u"Paris"_s);
  EXPECT_EQ(Global().CardChanged, True);
}

TEST_F(ShowTableTest, Save_DiskFails_LeavesTheFileAsItWas) {
  const FailingWrites writes;
  Global().CardDb->Close();
  Global().CardDb = Global().DBEngine().OpenDatabase(file->Path());
  const ShowTable& form = View();
  const QStringList before = file->Rows(u"MainData"_s);
  Type(form.NameText[0], u"Rome"_s);
  FailingWrites::FailNextCommit();
  Save(form);
  EXPECT_EQ(file->Rows(u"MainData"_s), before);
  EXPECT_EQ(form.NameText[0].Text(), u"Rome"_s);
  EXPECT_EQ(Global().CardChanged, True);
  FailingWrites::Stop();
  Save(form);
  EXPECT_EQ(Column(1, u"City"_s), u"Rome"_s);
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

TEST_F(ShowTableTest, PageButton_Clicked_ShowsItsPageAndTurnsRed) {
  const ShowTable& form = View();
  EXPECT_EQ(form.Tab[0].ForeColor(), ui::Role::Red);
  PressPage(form, 2);
  EXPECT_FALSE(form.NameText[0].isVisible());
  EXPECT_FALSE(form.NameLab[0].isVisible());
  EXPECT_TRUE(form.NameText[4].isVisible());
  EXPECT_TRUE(form.NameLab[4].isVisible());
  EXPECT_EQ(form.Tab[0].ForeColor(), ui::Role::Ink);
  EXPECT_EQ(form.Tab[1].ForeColor(), ui::Role::Red);
}

TEST_F(ShowTableTest, PageKeys_InAField_GoToTheNextPageAndItsFirstField) {
  const ShowTable& form = View();
  form.NameText[0].SetFocus();
  QTest::keyClick(&form.NameText[0], Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_TRUE(form.NameText[4].isVisible());
  EXPECT_TRUE(form.NameText[4].hasFocus());
  QTest::keyClick(&form.NameText[4], Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_TRUE(form.NameText[4].isVisible());
  QTest::keyClick(&form.NameText[4], Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_TRUE(form.NameText[0].hasFocus());
}

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

TEST_F(ShowTableTest, LeaveText_ApostropheByTab_IsRefusedWithTheTextSelected) {
  const ShowTable& form = View();
  Type(form.NameText[0], u"L'Aquila"_s);
  const MessageAnswers answers({Ok});
  PressTab(form.NameText[0]);
  EXPECT_EQ(answers.Asked().value(0).Text, u"This string cannot contain the apostrophe ( ' ) character"_s);
  EXPECT_TRUE(form.NameText[0].hasFocus());
  EXPECT_EQ(form.NameText[0].selectedText(), u"L'Aquila"_s);
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

TEST_F(ShowTableTest, LeaveName_Apostrophe_IsRefusedAndStaysWhite) {
  const ShowTable& form = View();
  Type(*form.NameRecord, u"O'Hara"_s);
  const MessageAnswers answers({Ok});
  PressTab(*form.NameRecord);
  EXPECT_TRUE(form.NameRecord->hasFocus());
  EXPECT_EQ(form.NameRecord->selectedText(), u"O'Hara"_s);
  EXPECT_EQ(form.NameRecord->BackColor(), ui::Role::White);
}

TEST_F(ShowTableTest, LeaveName_Unchanged_RunsNoCheck) {
  ShowTable& form = View();
  file->AddCard(7, u"Card 1"_s);
  form.NameRecord->SetFocus();
  PressTab(*form.NameRecord);
  EXPECT_TRUE(form.NameText[0].hasFocus());
}

TEST_F(ShowTableTest, LeaveName_NameOfAnotherCard_IsClearedAndRefused) {
  const ShowTable& form = View();
  Type(*form.NameRecord, u"card 2"_s);
  const MessageAnswers answers({Ok});
  PressTab(*form.NameRecord);
  EXPECT_EQ(answers.Asked().value(0).Text, u"This name already exists!"_s);
  EXPECT_EQ(form.NameRecord->Text(), QString());
  EXPECT_TRUE(form.NameRecord->hasFocus());
}

TEST_F(ShowTableTest, LeaveName_OwnName_PassesTheTakenCheck) {
  file->AddCard(1, u"Alone"_s);
  const ShowTable& form = OpenViewer(1);
  Type(*form.NameRecord, u"Alone"_s);
  PressTab(*form.NameRecord);
  EXPECT_TRUE(form.NameText[0].hasFocus());
}

TEST_F(ShowTableTest, LeaveName_SimilarNameAndCancel_LetsGo) {
  const ShowTable& form = View();
  file->AddCard(7, u"Blacksmith Inc"_s);
  Type(*form.NameRecord, u"Smith Ltd"_s);
  const MessageAnswers answers({Cancel});
  PressTab(*form.NameRecord);
  const ui::Message& asked = answers.Asked().value(0);
  EXPECT_EQ(asked.Title, u"Check name of card"_s);
  EXPECT_EQ(asked.Text,
            u"This name already exists in the file \nPress \"Enter\" to view a list of similar names."_s);
  EXPECT_EQ(asked.Buttons, ui::MsgButtons::OkCancel);
  EXPECT_TRUE(form.NameText[0].hasFocus());
  EXPECT_EQ(form.NameRecord->Text(), u"Smith Ltd"_s);
}

TEST_F(ShowTableTest, LeaveName_SimilarNameAndOk_GoesToTheSearchWithTheFirstWord) {
  ShowTable& form = View();
  file->AddCard(7, u"Blacksmith Inc"_s);
  Type(*form.NameRecord, u"Smith Ltd"_s);
  const MessageAnswers answers({Ok, No});
  Save(form);
  EXPECT_EQ(answers.Asked().value(answers.Asked().size() - 1).Text, u"Do you wish to save changes?"_s);
  EXPECT_EQ(frame->Calls.last(), u"SearchSimilarNames Smith"_s);
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

TEST_F(ShowTableTest, ChangeMarks_EachControl_SetsThem) {
  ShowTable& form = View();
  form.DescrText->SetFocus();
  const QList<std::function<void()>> edits{
      [&] { QTest::keyClicks(form.NameRecord, u"x"_s); },
      [&] { QTest::keyClicks(&form.NameText[0], u"x"_s); },
      [&] { QTest::keyClicks(&form.NameNumber[1], u"1"_s); },
      [&] { Click(form.NameCheck[2]); },
      [&] { QTest::keyClick(&form.NameCheck[2], Qt::Key_Space); },
      [&] { QTest::keyClicks(form.NameDate[3].DateVal(), u"1"_s); },
      [&] { QTest::keyClicks(form.DescrText, u"x"_s); },
      [&] { form.NameText[0].Write(u"Paris"_s); },
      [&] { form.NameDate[3].SetText(form.NameDate[3].Text()); },
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

TEST_F(ShowTableTest, DoubleClickOnText_OpensItsValueList) {
  const ShowTable& form = View();
  PressPage(form, 2);
  QTest::mouseDClick(&form.NameText[4], Qt::LeftButton);
  EXPECT_EQ(Global().CurFieldIndex, 4);
  EXPECT_EQ(frame->Calls.last(), u"ShowValueList Viewer"_s);
}

TEST_F(ShowTableTest, ValueListKeys_OnText_OpenItsValueList) {
  const ShowTable& form = View();
  QTest::keyClick(&form.NameText[0], Qt::Key_F4);
  QTest::keyClick(&form.NameText[0], Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(frame->Calls.count(u"ShowValueList Viewer"_s), 2);
  EXPECT_EQ(Global().CurFieldIndex, 0);
}

TEST_F(ShowTableTest, Help_Clicked_OpensTopic118) {
  Press(View(), u"CmdHelp"_s);
  EXPECT_EQ(frame->Calls.last(), u"ShowHelpTopic 118"_s);
}

TEST_F(ShowTableTest, Tab_FromTheName_ReachesEveryControlOfThePageInOrder) {
  const ShowTable& form = View();
  form.NameRecord->SetFocus();
  QStringList reached;
  for (int i = 0; i < 10; ++i) {
    PressTab(*QApplication::focusWidget());
    reached += QApplication::focusWidget()->objectName();
  }
  EXPECT_EQ(reached, QStringList({u"NameText(0)"_s, u"NameNumber(1)"_s, u"NameCheck(2)"_s, u"DateVal"_s,
                                  u"DescrText"_s, u"cmdEdUp"_s, u"EditData"_s, u"CancelData"_s, u"CmdHelp"_s,
                                  u"Tab(0)"_s}));
}
