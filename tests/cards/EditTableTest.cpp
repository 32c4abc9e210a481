// SPDX-License-Identifier: MIT
#include "tests/cards/CardOfEveryKind.h"

namespace velmora::test {

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
  ExpectTips(
      form,
      {
          {u"EditData"_s, u"Click OK to Confirm Your Changes"_s},
          {u"CancelData"_s, u"Click to Exit"_s},
          {u"cmdGetEmpty"_s, u"Click to Receive the Lowest Available Number"_s},
          {u"IndexText"_s, u"Current Customer Card No."_s},
          {u"NameRecord"_s, u"Name of Customer Card Will Appear on All Pages"_s},
          {u"DescrText"_s,
           u"Enter General Comments for Customer Card -- These Comments Will Appear on All Data Sheets"_s},
          {u"Tab(0)"_s, u"Click to Receive an Additional Data Sheet"_s},
          {u"Tab(1)"_s, u"Click to Receive an Additional Data Sheet"_s},
      });
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

TEST_F(EditTableTest, LeaveName_NameOfTheCurrentCard_IsRefused) {
  const EditTable& form = Edit();
  Type(*form.NameRecord, u"Card 2"_s);
  const MessageAnswers answers({Ok});
  PressTab(*form.NameRecord);
  EXPECT_EQ(answers.Asked().value(0).Text, u"This name already exists! "_s);
  EXPECT_EQ(form.NameRecord->Text(), QString());
  EXPECT_TRUE(form.NameRecord->hasFocus());
}

TEST_F(EditTableTest, LeaveName_SimilarNameAndOk_AsksToSaveAndGoesToTheSearch) {
  file->AddCard(7, u"Joanna"_s);
  const EditTable& form = Edit();
  Type(*form.NameRecord, u"Ann Lee"_s);
  const MessageAnswers answers({Ok, No});
  PressTab(*form.NameRecord);
  EXPECT_EQ(answers.Asked().value(answers.Asked().size() - 1).Text, u"Do you wish to save changes?"_s);
  EXPECT_EQ(frame->LastCall(), u"SearchSimilarNames Ann"_s);
  EXPECT_TRUE(form.IsClosing());
  EXPECT_EQ(Cards(), 4);
  EXPECT_TRUE(frame->DelCardEnabled);
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

TEST_F(EditTableTest, DoubleClickOnLabel_OpensTheValueListOfTheFieldBefore) {
  const EditTable& form = Edit();
  Global().CurFieldIndex = 4;
  QTest::mouseDClick(&form.NameLab[3], Qt::LeftButton);
  EXPECT_EQ(Global().CurFieldIndex, 4);
  EXPECT_EQ(frame->LastCall(), u"ShowValueList Editor"_s);
  EXPECT_EQ(ui::Default<frmReminder>().DateCtl, &form.NameDate[3]);
}

TEST_F(EditTableTest, Tab_FromTheNumber_ReachesEveryControlOfThePageInOrder) {
  const EditTable& form = Edit();
  form.NameRecord->SetText(u"Zoe"_s);
  Number(form).SetFocus();
  EXPECT_EQ(ReachedByTab(13),
            QStringList({u"NameRecord"_s, u"NameText(0)"_s, u"NameNumber(1)"_s, u"NameCheck(2)"_s,
                         u"DateVal"_s, u"DescrText"_s, u"cmdEdUp"_s, u"EditData"_s, u"CancelData"_s,
                         u"CmdHelp"_s, u"Tab(0)"_s, u"Tab(1)"_s, u"cmdGetEmpty"_s}));
}

}  // namespace velmora::test
