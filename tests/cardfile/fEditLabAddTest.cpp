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

/// A message as its box shows it.
QString Shown(const strings::Text& text) { return QString(text).replace(u"\r\n"_s, u"\n"_s); }

class fEditLabAddTest : public test::FieldEditor {};

TEST_F(fEditLabAddTest, NewField_ForbiddenCharacter_IsToldOnLeavingAndSelected) {
  OpenOnThreeFields();
  Type(NewField(), u"a.b"_s);
  const MessageAnswers answers({MsgAnswer::Ok});
  GoToPage(2);
  EXPECT_EQ(answers.Asked().value(0).Text, Shown(strings::ForbiddenCharacters));
  EXPECT_TRUE(NewField().hasFocus());
  EXPECT_EQ(NewField().selectedText(), u"a.b"_s);
  EXPECT_EQ(PageLabel(), u"1"_s);
  NewField().SetText({});
}

TEST_F(fEditLabAddTest, NewField_NameThatCannotBe_IsToldByANoticeOnLeaving) {
  OpenOnThreeFields();
  for (const auto& [name, notice] : {std::pair{u"remarks"_s, strings::fieldeditor::ProgramsColumn},
                                     std::pair{u"CITY"_s, strings::fieldeditor::ColumnTaken},
                                     std::pair{u"Agen"_s, strings::fieldeditor::TableTaken}}) {
    Type(NewField(), name);
    PageButton(2).setFocus();
    EXPECT_EQ(ui::NoticeInView(), QString(notice));
    EXPECT_EQ(NewField().Text(), name);
  }
}

TEST_F(fEditLabAddTest, NewField_KindChangedAfterwards_IsToldToo) {
  OpenOnThreeFields();
  Type(NewField(), u"Index"_s);
  Find<QWidget>(*m_screen, u"lstType"_s).setFocus();
  EXPECT_EQ(ui::NoticeInView(), QString());
  ChooseKind(FieldKind::Date);
  EXPECT_EQ(ui::NoticeInView(), QString(strings::fieldeditor::ReminderTaken));
}

TEST_F(fEditLabAddTest, NewField_NameTooLong_IsToldWithTheLengthOfItsKind) {
  OpenOnThreeFields();
  Type(NewField(), QString(64, u'x'));
  PageButton(2).setFocus();
  EXPECT_EQ(ui::NoticeInView(), QString(strings::fieldeditor::NameTooLong).arg(63));
}

TEST_F(fEditLabAddTest, NewField_TooLongForATelephoneField_IsTold) {
  OpenOnThreeFields();
  Type(NewField(), QString(41, u'x'));
  PageButton(2).setFocus();
  EXPECT_EQ(ui::NoticeInView(), QString(strings::fieldeditor::TooLongForTelephone).arg(40));
  Add(QString(41, u'x'));
  EXPECT_EQ(Queryp(QString(41, u'x')), 2);
}

TEST_F(fEditLabAddTest, Add_EachKind_StandsOnThePageInTheListAndInTheFile) {
  OpenOnThreeFields();
  Add(u" Colour "_s, FieldKind::Text);
  Add(u"Staff"_s, FieldKind::Number);
  Add(u"Active"_s, FieldKind::YesNo);
  Add(u"Paid"_s, FieldKind::Date);
  const QStringList page{u"City"_s, u"Colour"_s, u"Staff"_s, u"Active"_s, u"Paid"_s};
  EXPECT_EQ(RowsInView(), page);
  EXPECT_EQ(Lines(List()), page);
  EXPECT_EQ(NewField().Text(), QString());
  EXPECT_TRUE(NewField().hasFocus());
  EXPECT_EQ(Catalogue().mid(Catalogue().size() - 4),
            QStringList({u"Colour|1|2"_s, u"Staff|1|3"_s, u"Active|1|4"_s, u"Paid|1|5"_s}));
  EXPECT_TRUE(TableExists(u"ColourT"_s));
  // The screen that is opened anew shows the same.
  m_screen->Unload();
  Show();
  EXPECT_EQ(RowsInView(), page);
}

TEST_F(fEditLabAddTest, Add_NameOfAColumn_IsRefusedAndEmptied) {
  OpenOnThreeFields();
  for (const QString& name : {u"Remarks"_s, u"Index@"_s, u"City"_s, u"Name"_s}) {
    Type(NewField(), name);
    const MessageAnswers answers({MsgAnswer::Ok});
    Push(u"cmdAdd"_s);
    EXPECT_EQ(answers.Asked().value(0).Text, u"This name already exists!\nPlease select a different name."_s);
    EXPECT_EQ(NewField().Text(), QString());
    EXPECT_TRUE(NewField().hasFocus());
  }
  EXPECT_EQ(FieldRows().size(), 3U);
}

TEST_F(fEditLabAddTest, Add_NameInAnotherCase_IsRefusedByANoticeAlone) {
  OpenOnThreeFields();
  Add(u"CITY"_s);
  EXPECT_EQ(NewField().Text(), QString());
  EXPECT_EQ(ui::NoticeInView(), QString(strings::fieldeditor::ColumnTaken));
  EXPECT_EQ(RowsInView(), QStringList{u"City"_s});
}

TEST_F(fEditLabAddTest, Add_ListWouldBeATableOfTheProgram_MakesNothing) {
  OpenOnThreeFields();
  Add(u"Agen"_s);
  EXPECT_EQ(ui::NoticeInView(), QString(strings::fieldeditor::TableTaken));
  EXPECT_FALSE(CardColumns().contains(u"Agen"_s));
  EXPECT_EQ(FieldRows().size(), 3U);
}

TEST_F(fEditLabAddTest, Add_NothingTyped_TellsWhatIsMissing) {
  OpenOnThreeFields();
  Add(u"   "_s);
  EXPECT_EQ(ui::NoticeInView(), QString(strings::fieldeditor::NameTheField));
  EXPECT_EQ(NewField().Text(), QString());
  EXPECT_EQ(FieldRows().size(), 3U);
}

TEST_F(fEditLabAddTest, Add_TheHundredAndFirstField_GetsTheMessage) {
  ACardFile design;
  for (int page = 1; page <= 5; ++page) design.WithTexts(20, page);
  OpenOn(design);
  GoToPage(6);
  Type(NewField(), u"More"_s);
  const MessageAnswers answers({MsgAnswer::Ok});
  Push(u"cmdAdd"_s);
  EXPECT_EQ(answers.Asked().value(0).Text,
            u"You have 100 fields in file\nIn order to add a field you must delete one or more fields."_s);
  EXPECT_EQ(NewField().Text(), u"More"_s);
  EXPECT_EQ(FieldRows().size(), 100U);
}

TEST_F(fEditLabAddTest, Add_TheHundredthField_IsTaken) {
  ACardFile design;
  for (int page = 1; page <= 5; ++page) design.WithTexts(page == 5 ? 19 : 20, page);
  OpenOn(design);
  GoToPage(5);
  Add(u"More"_s);
  EXPECT_EQ(FieldRows().size(), 100U);
}

TEST_F(fEditLabAddTest, Add_The22ndOfAPage_GetsNoMessageButANotice) {
  OpenOn(ACardFile().WithTexts(21));
  Add(u"More"_s);
  EXPECT_EQ(ui::NoticeInView(), QString(strings::fieldeditor::PageIsFull));
  EXPECT_EQ(NewField().Text(), u"More"_s);
  EXPECT_EQ(FieldRows().size(), 21U);
}

TEST_F(fEditLabAddTest, Add_NoFileOpen_EmptiesTheBoxAndTellsIt) {
  Show();
  Add(u"More"_s);
  EXPECT_EQ(NewField().Text(), QString());
  EXPECT_EQ(ui::NoticeInView(), u"The field was not added: No card file is open."_s);
}

TEST_F(fEditLabAddTest, Add_DateFieldOfADeletedName_StaysWithoutAnythingButItsColumnAndRow) {
  OpenOnThreeFields();
  GoToPage(2);
  Delete(u"Due"_s);
  Add(u"Due"_s, FieldKind::Date);
  EXPECT_EQ(NewField().Text(), QString());
  EXPECT_TRUE(ui::NoticeInView().startsWith(u"The field was added, but not all that goes with it: "_s));
  EXPECT_EQ(RowsInView(), QStringList({u"Trade"_s, u"Due"_s}));
  EXPECT_EQ(Lines(List()), QStringList{u"Trade"_s});
  EXPECT_EQ(Queryp(u"Due"_s), 5);
  EXPECT_TRUE(CardColumns().contains(u"Due"_s));
  EXPECT_EQ(m_file->Rows(u"SupportRemainder"_s), QStringList{u"Due"_s});
  GoToPage(2);
  EXPECT_EQ(Lines(List()), QStringList({u"Trade"_s, u"Due"_s}));
}

TEST_F(fEditLabAddTest, Add_CatalogueRowFails_LeavesAColumnWithoutARow) {
  const test::FailingWrites writes;
  OpenOnThreeFields();
  // The column is a first commit; the row in the catalogue is the second.
  Type(NewField(), u"Colour"_s);
  test::FailingWrites::FailCommitAfter(1);
  Push(u"cmdAdd"_s);
  EXPECT_TRUE(CardColumns().contains(u"Colour"_s));
  EXPECT_EQ(Queryp(u"Colour"_s), -1);
  EXPECT_FALSE(TableExists(u"ColourT"_s));
  EXPECT_EQ(NewField().Text(), QString());
  EXPECT_EQ(RowsInView(), QStringList({u"City"_s, u"Colour"_s}));
  EXPECT_EQ(Lines(List()), QStringList{u"City"_s});
  EXPECT_TRUE(ui::NoticeInView().startsWith(u"Only the column of the field was made"_s));
}

TEST_F(fEditLabAddTest, Add_ColumnFails_AddsNothing) {
  const test::FailingWrites writes;
  OpenOnThreeFields();
  Type(NewField(), u"Colour"_s);
  test::FailingWrites::FailNextCommit();
  Push(u"cmdAdd"_s);
  EXPECT_FALSE(CardColumns().contains(u"Colour"_s));
  EXPECT_EQ(RowsInView(), QStringList{u"City"_s});
  EXPECT_EQ(NewField().Text(), QString());
  EXPECT_TRUE(ui::NoticeInView().startsWith(u"The field was not added: "_s));
}

TEST_F(fEditLabAddTest, Add_CardScreenRefusesToClose_AddsNothing) {
  OpenOnThreeFields();
  m_frame.CardScreensLetGo = false;
  Add(u"Colour"_s);
  EXPECT_FALSE(CardColumns().contains(u"Colour"_s));
  EXPECT_EQ(NewField().Text(), u"Colour"_s);
}

TEST_F(fEditLabAddTest, Add_FieldWithAPageNumberThatIsNone_GetsANumberOfItsOwn) {
  m_file.emplace(ACardFile().With(TextField(u"City"_s)).Design());
  m_file->AddRow(u"Location"_s, {{u"Name"_s, u"Lost"_s}, {u"Tab"_s, 11}, {u"Type"_s, 2}});
  Show();
  Add(u"Colour"_s);
  EXPECT_EQ(RowsInView(), QStringList({u"City"_s, u"Colour"_s}));
}

}  // namespace
}  // namespace velmora
