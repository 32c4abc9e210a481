// SPDX-License-Identifier: MIT
#include "tests/cards/CardOfEveryKind.h"

namespace velmora::test {

TEST_F(EditTableSaveTest, Save_EveryKindEntered_StoresTheCardAndShowsIt) {
  const EditTable& form = Edit();
  Name(form, u"Zoe "_s);
  FillIn(form);
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

TEST_F(EditTableSaveTest, Save_NothingButAName_LeavesNumberAndDateUnset) {
  const EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  Save(form);
  EXPECT_EQ(Column(6, u"City"_s), u" "_s);
  EXPECT_EQ(Column(6, u"Size"_s), u"Null"_s);
  EXPECT_EQ(Column(6, u"Paid"_s), u"0"_s);
  EXPECT_EQ(Column(6, u"Due"_s), u"Null"_s);
  EXPECT_EQ(Column(6, u"Remarks"_s), u" "_s);
}

TEST_F(EditTableSaveTest, Save_ReminderSet_IsStoredForTheNewCard) {
  const EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  form.NameDate[3].SetText(u"7/4/2025"_s);
  form.NameDate[3].SetIsActive(true);
  form.NameDate[3].strAgents = u"Ann"_s;
  Save(form);
  EXPECT_EQ(Reminders(), QStringList(u"6|7/4/2025|Ann"_s));
}

TEST_F(EditTableSaveTest, Save_InactiveDate_LeavesAReminderOfADeletedCardToItsHeir) {
  file->AddRow(u"TableDatesRemainder"_s, {{u"Index"_s, 6}, {u"Due"_s, u"2024-06-30"_s}});
  const EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  TypeDate(form.NameDate[3], u"7/4/2025"_s);
  Save(form);
  EXPECT_EQ(Reminders(), QStringList(u"6|6/30/2024|Null"_s));
  EXPECT_TRUE(OpenScreen<ShowTable>()->NameDate[3].IsActive());
}

TEST_F(EditTableSaveTest, Save_NameEmpty_ComesBeforeTheNumber) {
  const EditTable& form = Edit();
  Number(form).SetText({});
  const MessageAnswers answers({Ok});
  Save(form);
  EXPECT_EQ(answers.Asked().value(0).Text, u"Please specify main field name."_s);
  EXPECT_FALSE(form.IsClosing());
  EXPECT_EQ(Cards(), 3);
}

TEST_F(EditTableSaveTest, Save_NumberCleared_DoesNothing) {
  const EditTable& form = Edit();
  form.DescrText->SetFocus();
  // A name that is taken: its message would come were the number not looked at first.
  form.NameRecord->SetText(u"Card 1"_s);
  Number(form).SetText({});
  Save(form);
  EXPECT_FALSE(form.IsClosing());
  EXPECT_EQ(Cards(), 3);
}

TEST_F(EditTableSaveTest, Save_NameOfAnotherCard_IsRefused) {
  const EditTable& form = Edit();
  form.DescrText->SetFocus();
  form.NameRecord->SetText(u"CARD 1"_s);
  const MessageAnswers answers({Ok});
  Save(form);
  EXPECT_EQ(answers.Asked().value(0).Text, u"This name already exists!"_s);
  EXPECT_EQ(Cards(), 3);
}

TEST_F(EditTableSaveTest, Save_NameOfTheCurrentCard_GetsThrough) {
  const EditTable& form = Edit();
  form.DescrText->SetFocus();
  form.NameRecord->SetText(u"Card 2"_s);
  Save(form);
  EXPECT_EQ(Cards(), 4);
  EXPECT_EQ(Column(6, u"Name"_s), u"Card 2"_s);
}

TEST_F(EditTableSaveTest, Save_NumberTakenMeanwhile_BecomesTheLowestFree) {
  const EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  file->AddCard(6, u"Quick"_s);
  Save(form);
  EXPECT_EQ(Global().CurCard, 3);
  EXPECT_EQ(Column(3, u"Name"_s), u"Zoe"_s);
}

TEST_F(EditTableSaveTest, Save_NumberWithALetterBehind_TakesTheNumber) {
  const EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  Type(Number(form), u"12a"_s);
  PressTab(Number(form));
  EXPECT_EQ(Number(form).Text(), u"12a"_s);
  EXPECT_TRUE(form.NameRecord->hasFocus());
  Save(form);
  EXPECT_EQ(Column(12, u"Name"_s), u"Zoe"_s);
}

TEST_F(EditTableSaveTest, Save_UniqueNumberViolated_StaysOpenAndStoresNothing) {
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

TEST_F(EditTableSaveTest, Save_ColumnGone_StaysOpenAndStoresNothing) {
  const EditTable& form = Edit();
  Name(form, u"Zoe"_s);
  file->Database().DeleteField(u"MainData", u"Street");
  Save(form);
  EXPECT_FALSE(form.IsClosing());
  EXPECT_EQ(Cards(), 3);
  EXPECT_EQ(Global().CurCard, 2);
}

TEST_F(EditTableSaveTest, Save_DiskFails_StaysOpenAndCanBeSavedAgain) {
  const FailingWrites writes;
  OpenAgain();
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

}  // namespace velmora::test
