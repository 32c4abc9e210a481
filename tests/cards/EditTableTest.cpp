// SPDX-License-Identifier: MIT
#include "forms/Default.h"
#include "tests/cards/CardScreens.h"
#include "tests/engine/FailingWrites.h"

using namespace velmora;
using namespace velmora::test;
using enum velmora::ui::MsgAnswer;

namespace {

class EditTableTest : public CardScreensTest {
 protected:
  /// Fields: 0 City (text), 1 Size (number), 2 Paid (yes/no), 3 Due (date); on page 2: 4 Street (text).
  EditTableTest() {
    Make(ACardFile()
             .With(TextField(u"City"_s))
             .With(NumberField(u"Size"_s))
             .With(YesNoField(u"Paid"_s))
             .With(DateField(u"Due"_s))
             .With(TextField(u"Street"_s), 2));
    Connect();
  }

  /// The editor over a file with the cards 1, 2 and 5, of which 2 is the current one.
  EditTable& Edit() {
    for (const std::int32_t number : {1, 2, 5}) file->AddCard(number, u"Card %1"_s.arg(number));
    Global().CurCard = 2;
    return OpenEditor();
  }
  static ui::TextBox& Number(const EditTable& form) { return Box(form, u"IndexText"_s); }
  static void Save(const EditTable& form) { Press(form, u"EditData"_s); }
  /// Types the name and leaves its box.
  static void Name(const EditTable& form, const QString& name) {
    Type(*form.NameRecord, name);
    PressTab(*form.NameRecord);
  }
  [[nodiscard]] int Cards() const {
    return static_cast<int>(file->Database().OpenRecordset(u"MainData").RecordCount());
  }
};

}  // namespace

TEST_F(EditTableTest, Load_FileWithCards_OffersTheNextNumber) {
  const EditTable& form = Edit();
  EXPECT_EQ(form.windowTitle(), u"Create a New Customer Card"_s);
  EXPECT_EQ(Number(form).Text(), u"6"_s);
  EXPECT_EQ(form.NameCard->Caption(), u"Name"_s);
  EXPECT_TRUE(form.NameRecord->hasFocus());
  EXPECT_FALSE(frame->DelCardEnabled);
  EXPECT_EQ(form.Tab[0].ForeColor(), ui::Role::Red);
  EXPECT_TRUE(form.NameText[0].isVisible());
  EXPECT_FALSE(form.NameText[4].isVisible());
  EXPECT_EQ(form.NameNumber[1].Mask(), u"999999999999"_s);
  EXPECT_EQ(Global().CardChanged, False);
}

TEST_F(EditTableTest, Load_EmptyFile_OffersOne) { EXPECT_EQ(Number(OpenEditor()).Text(), u"1"_s); }

TEST_F(EditTableTest, Load_EveryControl_HasItsCaptionAndTip) {
  const EditTable& form = Edit();
  const QList<std::pair<QString, QString>> tips{
      {u"EditData"_s, u"Click OK to Confirm Your Changes"_s},
      {u"CancelData"_s, u"Click to Exit"_s},
      {u"cmdGetEmpty"_s, u"Click to Receive the Lowest Available Number"_s},
      {u"IndexText"_s, u"Current Customer Card No."_s},
      {u"NameRecord"_s, u"Name of Customer Card Will Appear on All Pages"_s},
      {u"DescrText"_s,
       u"Enter General Comments for Customer Card -- These Comments Will Appear on All Data Sheets"_s},
      {u"Tab(0)"_s, u"Click to Receive an Additional Data Sheet"_s},
      {u"Tab(1)"_s, u"Click to Receive an Additional Data Sheet"_s},
  };
  for (const auto& [name, tip] : tips) EXPECT_EQ(Find<QWidget>(form, name).toolTip(), tip);
  EXPECT_EQ(Button(form, u"cmdGetEmpty"_s).Caption(), u"Card No."_s);
  EXPECT_EQ(Button(form, u"CancelData"_s).Caption(), u"Cancel"_s);
  EXPECT_EQ(Button(form, u"CmdHelp"_s).Caption(), u"Help"_s);
}

TEST_F(EditTableTest, Load_Frame_HoldsTheButtonsInSight) {
  const EditTable& form = Edit();
  for (const QString& name : {u"EditData"_s, u"CancelData"_s, u"CmdHelp"_s}) {
    const QWidget& button = Find<QWidget>(form, name);
    const QPoint corner = button.mapTo(frame.get(), button.rect().bottomRight());
    EXPECT_TRUE(frame->rect().contains(corner)) << name.toStdString();
  }
}

TEST_F(EditTableTest, Save_EveryKindEntered_StoresTheCardAndShowsIt) {
  const EditTable& form = Edit();
  Name(form, u"Zoe "_s);
  Type(form.NameText[0], u"Rome"_s);
  Type(form.NameNumber[1], u"77"_s);
  form.NameCheck[2].SetFocus();
  QTest::keyClick(&form.NameCheck[2], Qt::Key_Space);
  TypeDate(form.NameDate[3], u"7/4/2025"_s);
  QTest::keyClicks(form.DescrText, u"new"_s);
  Save(form);
  EXPECT_TRUE(form.IsClosing());
  EXPECT_EQ(Global().CurCard, 6);
  const QStringList columns{u"Name"_s, u"City"_s, u"Size"_s, u"Paid"_s, u"Due"_s, u"Street"_s, u"Remarks"_s};
  QStringList stored;
  for (const QString& column : columns) stored += Column(6, column);
  EXPECT_EQ(stored.join(u'|'), u"Zoe|Rome|77|-1|7/4/2025| |new"_s);
  EXPECT_TRUE(Reminders().isEmpty());
  const ShowTable* viewer = OpenScreen<ShowTable>();
  ASSERT_NE(viewer, nullptr);
  EXPECT_EQ(viewer->NameRecord->Text(), u"Zoe"_s);
  EXPECT_EQ(frame->ClientLab().Caption(), u"Zoe"_s);
  EXPECT_TRUE(frame->DelCardEnabled);
  EXPECT_EQ(Global().CardChanged, False);
}

TEST_F(EditTableTest, Save_NothingButAName_LeavesNumberAndDateUnset) {
  const EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  Save(form);
  EXPECT_EQ(Column(6, u"City"_s), u" "_s);
  EXPECT_EQ(Column(6, u"Size"_s), u"Null"_s);
  EXPECT_EQ(Column(6, u"Paid"_s), u"0"_s);
  EXPECT_EQ(Column(6, u"Due"_s), u"Null"_s);
  EXPECT_EQ(Column(6, u"Remarks"_s), u" "_s);
}

TEST_F(EditTableTest, Save_ReminderSet_IsStoredForTheNewCard) {
  const EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  form.NameDate[3].SetText(u"7/4/2025"_s);
  form.NameDate[3].SetIsActive(true);
  form.NameDate[3].strAgents = u"Ann"_s;
  Save(form);
  EXPECT_EQ(Reminders(), QStringList(u"6|7/4/2025|Ann"_s));
}

TEST_F(EditTableTest, Save_InactiveDate_LeavesAReminderOfADeletedCardToItsHeir) {
  file->AddRow(u"TableDatesRemainder"_s, {{u"Index"_s, 6}, {u"Due"_s, u"2024-06-30"_s}});
  const EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  TypeDate(form.NameDate[3], u"7/4/2025"_s);
  Save(form);
  EXPECT_EQ(Reminders(), QStringList(u"6|6/30/2024|Null"_s));
  EXPECT_TRUE(OpenScreen<ShowTable>()->NameDate[3].IsActive());
}

TEST_F(EditTableTest, Save_NameEmpty_ComesBeforeTheNumber) {
  const EditTable& form = Edit();
  Number(form).SetText({});
  const MessageAnswers answers({Ok});
  Save(form);
  EXPECT_EQ(answers.Asked().value(0).Text, u"Please specify main field name."_s);
  EXPECT_FALSE(form.IsClosing());
  EXPECT_EQ(Cards(), 3);
}

TEST_F(EditTableTest, Save_NumberCleared_DoesNothing) {
  const EditTable& form = Edit();
  form.DescrText->SetFocus();
  // A name that is taken: its message would come were the number not looked at first.
  form.NameRecord->SetText(u"Card 1"_s);
  Number(form).SetText({});
  Save(form);
  EXPECT_FALSE(form.IsClosing());
  EXPECT_EQ(Cards(), 3);
}

TEST_F(EditTableTest, Save_NameOfAnotherCard_IsRefused) {
  const EditTable& form = Edit();
  form.DescrText->SetFocus();
  form.NameRecord->SetText(u"CARD 1"_s);
  const MessageAnswers answers({Ok});
  Save(form);
  EXPECT_EQ(answers.Asked().value(0).Text, u"This name already exists!"_s);
  EXPECT_EQ(Cards(), 3);
}

TEST_F(EditTableTest, Save_NameOfTheCurrentCard_GetsThrough) {
  const EditTable& form = Edit();
  form.DescrText->SetFocus();
  form.NameRecord->SetText(u"Card 2"_s);
  Save(form);
  EXPECT_EQ(Cards(), 4);
  EXPECT_EQ(Column(6, u"Name"_s), u"Card 2"_s);
}

TEST_F(EditTableTest, Save_NumberTakenMeanwhile_BecomesTheLowestFree) {
  const EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  file->AddCard(6, u"Quick"_s);
  Save(form);
  EXPECT_EQ(Global().CurCard, 3);
  EXPECT_EQ(Column(3, u"Name"_s), u"Zoe"_s);
}

TEST_F(EditTableTest, Save_NumberWithALetterBehind_TakesTheNumber) {
  const EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  Type(Number(form), u"12a"_s);
  PressTab(Number(form));
  EXPECT_EQ(Number(form).Text(), u"12a"_s);
  EXPECT_TRUE(form.NameRecord->hasFocus());
  Save(form);
  EXPECT_EQ(Column(12, u"Name"_s), u"Zoe"_s);
}

TEST_F(EditTableTest, Save_UniqueNumberViolated_StaysOpenAndStoresNothing) {
  // A sign passes the look for a taken number, but not the index.
  file->AddCard(-5, u"Odd"_s);
  const EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  Number(form).SetText(u"-5"_s);
  Save(form);
  EXPECT_FALSE(form.IsClosing());
  EXPECT_EQ(Cards(), 4);
  EXPECT_EQ(Column(-5, u"Name"_s), u"Odd"_s);
  EXPECT_EQ(Global().CardChanged, True);
}

TEST_F(EditTableTest, Save_ColumnGone_StaysOpenAndStoresNothing) {
  const EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  file->Database().DeleteField(u"MainData", u"Street");
  Save(form);
  EXPECT_FALSE(form.IsClosing());
  EXPECT_EQ(Cards(), 3);
  EXPECT_EQ(Global().CurCard, 2);
}

TEST_F(EditTableTest, Save_DiskFails_StaysOpenAndCanBeSavedAgain) {
  const FailingWrites writes;
  Global().CardDb->Close();
  Global().CardDb = Global().DBEngine().OpenDatabase(file->Path());
  const EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  FailingWrites::FailNextCommit();
  Save(form);
  EXPECT_FALSE(form.IsClosing());
  EXPECT_EQ(Cards(), 3);
  FailingWrites::Stop();
  Save(form);
  EXPECT_EQ(Column(6, u"Name"_s), u"Zoe"_s);
}

TEST_F(EditTableTest, LeaveNumber_TakenByAnotherCard_GivesTheNextOne) {
  const EditTable& form = Edit();
  Type(Number(form), u"5"_s);
  const MessageAnswers answers({Ok});
  PressTab(Number(form));
  EXPECT_EQ(answers.Asked().value(0).Text, u"This number already exists!"_s);
  EXPECT_EQ(Number(form).Text(), u"6"_s);
  EXPECT_TRUE(form.NameRecord->hasFocus());
}

TEST_F(EditTableTest, LeaveNumber_NoCleanNumber_SendsToTheNameAndLeavesTheText) {
  const EditTable& form = Edit();
  for (const QString& text : {u"12a"_s, u"abc"_s, u"007"_s, u"0"_s, QString()}) {
    Type(Number(form), text);
    Click(Button(form, u"CmdHelp"_s));
    EXPECT_TRUE(form.NameRecord->hasFocus()) << text.toStdString();
    EXPECT_EQ(Number(form).Text(), text);
  }
  EXPECT_TRUE(frame->Calls.isEmpty());
}

TEST_F(EditTableTest, LeaveNumber_FreeNumberWithBlanks_Passes) {
  const EditTable& form = Edit();
  Type(Number(form), u" 9 "_s);
  form.DescrText->SetFocus();
  EXPECT_TRUE(form.DescrText->hasFocus());
  EXPECT_EQ(Number(form).Text(), u" 9 "_s);
}

TEST_F(EditTableTest, GetEmpty_Clicked_GivesTheLowestFreeNumber) {
  const EditTable& form = Edit();
  Press(form, u"cmdGetEmpty"_s);
  EXPECT_EQ(Number(form).Text(), u"3"_s);
}

TEST_F(EditTableTest, LeaveName_Apostrophe_KeepsTheFocus) {
  const EditTable& form = Edit();
  Type(*form.NameRecord, u"O'Hara"_s);
  const MessageAnswers answers({Ok});
  PressTab(*form.NameRecord);
  EXPECT_EQ(answers.Asked().value(0).Text, u"This string cannot contain the apostrophe ( ' ) character"_s);
  EXPECT_TRUE(form.NameRecord->hasFocus());
  EXPECT_EQ(form.NameRecord->selectedText(), u"O'Hara"_s);
}

TEST_F(EditTableTest, LeaveName_NameOfTheCurrentCard_IsRefused) {
  const EditTable& form = Edit();
  Type(*form.NameRecord, u"Card 2"_s);
  const MessageAnswers answers({Ok});
  PressTab(*form.NameRecord);
  EXPECT_EQ(answers.Asked().value(0).Text, u"This name already exists! "_s);
  EXPECT_EQ(form.NameRecord->Text(), QString());
  EXPECT_TRUE(form.NameRecord->hasFocus());
}

TEST_F(EditTableTest, LeaveName_SimilarNameAndCancel_LetsGo) {
  file->AddCard(7, u"Joanna"_s);
  const EditTable& form = Edit();
  Type(*form.NameRecord, u"Ann Lee"_s);
  const MessageAnswers answers({Cancel});
  PressTab(*form.NameRecord);
  const ui::Message& asked = answers.Asked().value(0);
  EXPECT_EQ(asked.Title, u"Check names"_s);
  EXPECT_EQ(asked.Text,
            u"This name already exists in the file\nClick \"OK\" to view a list of similar names."_s);
  EXPECT_TRUE(form.NameText[0].hasFocus());
}

TEST_F(EditTableTest, LeaveName_SimilarNameAndOk_AsksToSaveAndGoesToTheSearch) {
  file->AddCard(7, u"Joanna"_s);
  const EditTable& form = Edit();
  Type(*form.NameRecord, u"Ann Lee"_s);
  const MessageAnswers answers({Ok, No});
  PressTab(*form.NameRecord);
  EXPECT_EQ(answers.Asked().value(answers.Asked().size() - 1).Text, u"Do you wish to save changes?"_s);
  EXPECT_EQ(frame->Calls.last(), u"SearchSimilarNames Ann"_s);
  EXPECT_TRUE(form.IsClosing());
  EXPECT_EQ(Cards(), 4);
  EXPECT_TRUE(frame->DelCardEnabled);
}

TEST_F(EditTableTest, LeaveText_Apostrophe_IsRefused) {
  const EditTable& form = Edit();
  Type(form.NameText[0], u"L'Aquila"_s);
  const MessageAnswers answers({Ok});
  QTest::keyClick(&form.NameText[0], Qt::Key_Return);
  EXPECT_TRUE(form.NameText[0].hasFocus());
}

TEST_F(EditTableTest, Focus_TextBoxes_KeepTheirColours) {
  const EditTable& form = Edit();
  form.NameText[0].SetFocus();
  EXPECT_EQ(form.NameText[0].BackColor(), ui::Role::Default);
  form.DescrText->SetFocus();
  EXPECT_EQ(form.NameText[0].BackColor(), ui::Role::Default);
}

TEST_F(EditTableTest, Cancel_FileWithCards_ShowsTheViewerWithoutAQuestion) {
  const EditTable& form = Edit();
  Type(*form.NameRecord, u"Zoe"_s);
  Press(form, u"CancelData"_s);
  EXPECT_TRUE(form.IsClosing());
  EXPECT_EQ(Cards(), 3);
  ASSERT_NE(OpenScreen<ShowTable>(), nullptr);
  EXPECT_EQ(OpenScreen<ShowTable>()->NameRecord->Text(), u"Card 2"_s);
  EXPECT_TRUE(frame->DelCardEnabled);
  EXPECT_EQ(Global().CardChanged, False);
}

TEST_F(EditTableTest, Cancel_FileWithoutCards_OpensTheEditorAgain) {
  const EditTable& form = OpenEditor();
  frame->OnCall = [this](const QString& call) {
    if (call == u"NewCard") {
      frame->OnCall = {};
      OpenEditor();
    }
  };
  Press(form, u"CancelData"_s);
  EXPECT_TRUE(form.IsClosing());
  const EditTable* again = OpenScreen<EditTable>();
  ASSERT_NE(again, nullptr);
  EXPECT_NE(again, &form);
  EXPECT_EQ(frame->Calls, QStringList({u"ShowCard"_s, u"NewCard"_s}));
  EXPECT_FALSE(frame->DelCardEnabled);
}

TEST_F(EditTableTest, Close_ChangedWithoutAName_IsRefused) {
  EditTable& form = Edit();
  Type(form.NameText[0], u"Rome"_s);
  {
    const MessageAnswers answers({Ok});
    EXPECT_FALSE(form.Unload());
    EXPECT_EQ(answers.Asked().value(0).Text, u"Please enter a name for your main field."_s);
  }
  EXPECT_FALSE(form.IsClosing());
  EXPECT_EQ(Global().CardChanged, True);
  EXPECT_FALSE(frame->DelCardEnabled);
}

TEST_F(EditTableTest, Close_ChangedAndAnsweredYes_SavesAndShowsNoViewer) {
  EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  const MessageAnswers answers({Yes});
  EXPECT_TRUE(form.Unload());
  EXPECT_EQ(Column(6, u"Name"_s), u"Zoe"_s);
  EXPECT_EQ(OpenScreen<ShowTable>(), nullptr);
  EXPECT_EQ(OpenScreen<EditTable>(), nullptr);
  EXPECT_EQ(frame->ClientLab().Caption(), u"Zoe"_s);
  EXPECT_EQ(frame->NumberLab().Caption(), u"6"_s);
  EXPECT_TRUE(frame->DelCardEnabled);
}

TEST_F(EditTableTest, Close_ChangedAndAnsweredNo_DropsTheCardAndShowsTheCurrentOneInTheStrip) {
  file->AddContact(2, u"Ann"_s, {{u"Activ"_s, true}});
  EditTable& form = Edit();
  frame->ClearpMainPic();
  Name(form, u"Zoe"_s);
  const MessageAnswers answers({No});
  EXPECT_TRUE(form.Unload());
  EXPECT_EQ(Cards(), 3);
  EXPECT_EQ(frame->ClientLab().Caption(), u"Card 2"_s);
  EXPECT_EQ(frame->NumberLab().Caption(), u"2"_s);
  EXPECT_EQ(frame->AgentLab().Text(), u"Ann      "_s);
  EXPECT_EQ(Global().CardChanged, False);
}

TEST_F(EditTableTest, Close_OnlyTheCommentChanged_AsksNothing) {
  EditTable& form = Edit();
  QTest::keyClicks(form.DescrText, u"hello"_s);
  EXPECT_EQ(Global().CardChanged, False);
  EXPECT_TRUE(form.Unload());
}

TEST_F(EditTableTest, ChangeMarks_EachControlButTheComment_SetsThem) {
  const EditTable& form = Edit();
  const QList<std::function<void()>> edits{
      [&] { QTest::keyClicks(form.NameRecord, u"x"_s); },
      [&] { QTest::keyClicks(&form.NameText[0], u"x"_s); },
      [&] { QTest::keyClicks(&form.NameNumber[1], u"1"_s); },
      [&] { Click(form.NameCheck[2]); },
      [&] { QTest::keyClick(&form.NameCheck[2], Qt::Key_Space); },
      [&] { QTest::keyClicks(form.NameDate[3].DateVal(), u"1"_s); },
  };
  for (qsizetype i = 0; i < edits.size(); ++i) {
    Global().CardChanged = False;
    edits[i]();
    EXPECT_EQ(Global().CardChanged, True) << i;
  }
}

TEST_F(EditTableTest, ShowMainString_CardWithoutAName_EmptiesTheViewersNameToo) {
  Edit().Unload();
  ShowTable& viewer = OpenViewer(2);
  file->Database().Execute(u"Update MainData Set [Name] = Null Where [Index@] = 2");
  EditTable::ShowMainString();
  EXPECT_EQ(viewer.NameRecord->Text(), QString());
  EXPECT_EQ(frame->ClientLab().Caption(), QString());
  EXPECT_EQ(frame->NumberLab().Caption(), u"2"_s);
}

TEST_F(EditTableTest, Comment_EnlargedAndShrunk_TakesItsOwnPlaces) {
  const EditTable& form = Edit();
  Press(form, u"cmdEdUp"_s);
  EXPECT_EQ(form.DescrText->Top(), 970);
  EXPECT_EQ(form.DescrText->Height(), 3060);
  EXPECT_TRUE(form.NameText[0].Visible());
  EXPECT_FALSE(Button(form, u"cmdEdUp"_s).isVisible());
  Press(form, u"cmdEdDwn"_s);
  EXPECT_EQ(form.DescrText->Top(), 3360);
  EXPECT_EQ(form.DescrText->Height(), 670);
  EXPECT_TRUE(Button(form, u"cmdEdUp"_s).isVisible());
}

TEST_F(EditTableTest, PageButton_Clicked_ShowsItsPage) {
  const EditTable& form = Edit();
  PressPage(form, 2);
  EXPECT_TRUE(form.NameText[4].isVisible());
  EXPECT_FALSE(form.NameText[0].isVisible());
  EXPECT_EQ(form.Tab[0].ForeColor(), ui::Role::Ink);
  EXPECT_EQ(form.Tab[1].ForeColor(), ui::Role::Red);
}

TEST_F(EditTableTest, NumberField_OtherKey_EmptiesTheSelectedTextOnly) {
  const EditTable& form = Edit();
  Type(form.NameNumber[1], u"123"_s);
  form.NameNumber[1].setSelection(1, 1);
  QTest::keyClicks(&form.NameNumber[1], u"x"_s);
  EXPECT_EQ(form.NameNumber[1].Text(), u"13"_s);
  QTest::keyClicks(&form.NameNumber[1], u"x"_s);
  PressTab(form.NameNumber[1]);
  EXPECT_EQ(form.NameNumber[1].Text(), u"13"_s);
}

TEST_F(EditTableTest, DoubleClickOnText_OpensItsValueList) {
  const EditTable& form = Edit();
  QTest::mouseDClick(&form.NameText[0], Qt::LeftButton);
  EXPECT_EQ(Global().CurFieldIndex, 0);
  EXPECT_EQ(frame->Calls.last(), u"ShowValueList Editor"_s);
}

TEST_F(EditTableTest, DoubleClickOnLabel_OpensTheValueListOfTheFieldBefore) {
  const EditTable& form = Edit();
  Global().CurFieldIndex = 4;
  QTest::mouseDClick(&form.NameLab[3], Qt::LeftButton);
  EXPECT_EQ(Global().CurFieldIndex, 4);
  EXPECT_EQ(frame->Calls.last(), u"ShowValueList Editor"_s);
  EXPECT_EQ(ui::Default<frmReminder>().DateCtl, &form.NameDate[3]);
}

TEST_F(EditTableTest, Help_Clicked_OpensTopic118) {
  Press(Edit(), u"CmdHelp"_s);
  EXPECT_EQ(frame->Calls.last(), u"ShowHelpTopic 118"_s);
}

TEST_F(EditTableTest, Tab_FromTheNumber_ReachesEveryControlOfThePageInOrder) {
  const EditTable& form = Edit();
  form.NameRecord->SetText(u"Zoe"_s);
  Number(form).SetFocus();
  QStringList reached;
  for (int i = 0; i < 13; ++i) {
    PressTab(*QApplication::focusWidget());
    reached += QApplication::focusWidget()->objectName();
  }
  EXPECT_EQ(reached, QStringList({u"NameRecord"_s, u"NameText(0)"_s, u"NameNumber(1)"_s, u"NameCheck(2)"_s,
                                  u"DateVal"_s, u"DescrText"_s, u"cmdEdUp"_s, u"EditData"_s, u"CancelData"_s,
                                  u"CmdHelp"_s, u"Tab(0)"_s, u"Tab(1)"_s, u"cmdGetEmpty"_s}));
}
