// SPDX-License-Identifier: MIT
#include "tests/cards/CardOfEveryKind.h"

namespace velmora::test {

TEST_F(ShowTableSaveTest, Save_EveryKindChanged_IsStored) {
  const ShowTable& form = View();
  Type(*form.NameRecord, u"One "_s);
  FillIn(form);
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

TEST_F(ShowTableSaveTest, Save_Unchanged_StoresTheSame) {
  const ShowTable& form = View();
  const QStringList before = file->Rows(u"MainData"_s);
  Save(form);
  EXPECT_EQ(file->Rows(u"MainData"_s), before);
}

TEST_F(ShowTableSaveTest, Save_TextAndCommentCleared_StoresOneBlank) {
  const ShowTable& form = View();
  Type(form.NameText[0], {});
  form.DescrText->selectAll();
  QTest::keyClick(form.DescrText, Qt::Key_Delete);
  Save(form);
  EXPECT_EQ(Column(1, u"City"_s), u" "_s);
  EXPECT_EQ(Column(1, u"Remarks"_s), u" "_s);
}

TEST_F(ShowTableSaveTest, Save_NumberCleared_KeepsTheOldNumber) {
  const ShowTable& form = View();
  Type(form.NameNumber[1], {});
  EXPECT_EQ(form.NameNumber[1].Text(), QString());
  Save(form);
  EXPECT_EQ(Column(1, u"Size"_s), u"12.5"_s);
  EXPECT_EQ(form.NameNumber[1].Text(), u"12.5"_s);
}

TEST_F(ShowTableSaveTest, Save_NumberWithBlanks_ReadsTheDigits) {
  const ShowTable& form = View();
  Type(form.NameNumber[1], u"1 200"_s);
  Save(form);
  EXPECT_EQ(Column(1, u"Size"_s), u"1200"_s);
}

TEST_F(ShowTableSaveTest, Save_DateCleared_StoresNullAndLeavesTheReminder) {
  file->AddRow(u"TableDatesRemainder"_s, {{u"Index"_s, 1}, {u"Due"_s, u"2024-06-30"_s}});
  const ShowTable& form = View();
  TypeDate(form.NameDate[3], {});
  Save(form);
  EXPECT_EQ(Column(1, u"Due"_s), u"Null"_s);
  EXPECT_EQ(Reminders(), QStringList(u"1|6/30/2024|Null"_s));
  EXPECT_FALSE(form.NameDate[3].IsActive());
}

TEST_F(ShowTableSaveTest, Save_InactiveDate_TakesTheReminderBack) {
  file->AddRow(u"TableDatesRemainder"_s, {{u"Index"_s, 1}, {u"Due"_s, u"2024-06-30"_s}});
  const ShowTable& form = View();
  form.NameDate[3].SetIsActive(false);
  Save(form);
  EXPECT_EQ(Reminders(), QStringList(u"1|Null|Null"_s));
}

TEST_F(ShowTableSaveTest, Save_NameEmpty_AsksForIt) {
  const ShowTable& form = View();
  Type(*form.NameRecord, u"  "_s);
  const MessageAnswers answers({Ok});
  Save(form);
  EXPECT_EQ(answers.Asked().value(0).Text, u"Enter name of card."_s);
  EXPECT_EQ(Column(1, u"Name"_s), u"Card 1"_s);
  EXPECT_EQ(Global().CardChanged, True);
}

TEST_F(ShowTableSaveTest, Save_TwinsOfOneName_IsRefusedWhenTheFirstRowIsTheOther) {
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

TEST_F(ShowTableSaveTest, Save_CardGone_DoesNothing) {
  const ShowTable& form = View();
  file->Database().Execute(u"Delete * from MainData Where [Index@] = 1");
  Save(form);
  EXPECT_EQ(Number(form), u"1"_s);
}

TEST_F(ShowTableSaveTest, Save_ColumnGone_StoresNothingAndStaysOpen) {
  const ShowTable& form = View();
  Type(form.NameText[0], u"Rome"_s);
  file->Database().DeleteField(u"MainData", u"Street");
  Save(form);
  EXPECT_EQ(Column(1, u"City"_s), u"Paris"_s);
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(form.NameText[0].Text(), u"Rome"_s);
  EXPECT_EQ(Global().CardChanged, True);
}

TEST_F(ShowTableSaveTest, Save_TextTooLong_StoresNothingAndStaysOpen) {
  const ShowTable& form = View();
  form.NameText[0].Write(QString(201, u'x'));
  Type(form.NameNumber[1], u"77"_s);
  Save(form);
  EXPECT_EQ(Column(1, u"Size"_s), u"12.5"_s);
  EXPECT_EQ(form.NameText[0].Text().size(), 201);
  EXPECT_EQ(Global().CardChanged, True);
}

TEST_F(ShowTableSaveTest, Save_DateThatIsNone_StoresNothingAndStaysOpen) {
  const ShowTable& form = View();
  Type(form.NameText[0], u"Rome"_s);
  TypeDate(form.NameDate[3], u"2/30/2024"_s);
  Save(form);
  EXPECT_EQ(Column(1, u"City"_s), u"Paris"_s);
  EXPECT_EQ(Global().CardChanged, True);
}

TEST_F(ShowTableSaveTest, Save_DiskFails_LeavesTheFileAsItWas) {
  const FailingWrites writes;
  OpenAgain();
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

}  // namespace velmora::test
