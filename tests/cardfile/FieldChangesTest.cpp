// SPDX-License-Identifier: MIT
#include "cardfile/FieldCatalogue.h"
#include "cardfile/FieldChanges.h"
#include "frame/Session.h"
#include "tests/engine/FailingWrites.h"
#include "tests/support/CardFiles.h"
#include "tests/support/TestDatabase.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;
using test::ACardFile;
using test::CardFile;
using test::DateField;
using test::ErrorNumberOf;
using test::NumberField;
using test::TextField;
using test::YesNoField;

/// A file with a text field on page 1, a text and a date field on page 2, and two cards.
class FieldChangesTest : public ::testing::Test {
 protected:
  FieldChangesTest() {
    m_file.AddCard(1, u"Ann"_s, {{u"City"_s, u"Rome"_s}, {u"Trade"_s, u"Wood"_s}});
    m_file.AddCard(2, u"Bob"_s);
  }

  /// All the steps of adding a field.
  static void Add(const DesignField& field, int page = 1) {
    MakeFieldColumn(field);
    EnterField(field, page);
    MakeFieldTables(field);
  }
  [[nodiscard]] db::Field Column(const QString& name) const {
    const db::TableDef cards = m_file.Database().TableDefOf(u"MainData");
    const db::Field* column = cards.FindField(name);
    return column == nullptr ? db::Field{} : *column;
  }
  [[nodiscard]] QStringList Catalogue() const { return m_file.Rows(u"Location"_s); }
  [[nodiscard]] QStringList ReminderColumns() const {
    QStringList names;
    for (const db::Field& column : m_file.Database().TableDefOf(u"TableDatesRemainder").Fields)
      names += column.Name;
    return names;
  }
  void StoreQueries() const {
    m_file.Database().CreateQueryDef(u"Towns&", u"SELECT [City] FROM  MainData ");
    m_file.Database().CreateQueryDef(u"Other", u"SELECT * FROM Agent");
  }

  CardFile m_file = ACardFile()
                        .With(TextField(u"City"_s))
                        .With(TextField(u"Trade"_s), 2)
                        .With(DateField(u"Due"_s), 2)
                        .Titled(2, u"Work"_s)
                        .Make();
};

TEST_F(FieldChangesTest, MakeFieldColumn_EachKind_HasTheTypeOfAFieldAddedLater) {
  Add(TextField(u"A"_s));
  Add(NumberField(u"B"_s));
  Add(YesNoField(u"C"_s));
  Add(DateField(u"D"_s));
  EXPECT_EQ(Column(u"A"_s).Type, db::FieldType::Text);
  EXPECT_EQ(Column(u"A"_s).Size, 255);
  EXPECT_EQ(Column(u"B"_s).Type, db::FieldType::Long);
  EXPECT_EQ(Column(u"C"_s).Type, db::FieldType::YesNo);
  EXPECT_EQ(Column(u"D"_s).Type, db::FieldType::Date);
  EXPECT_EQ(m_file.Rows(u"SELECT A, B, C, D, City FROM MainData WHERE [Index@] = 1"_s),
            QStringList{u"Null|Null|0|Null|Rome"_s});
}

TEST_F(FieldChangesTest, EnterField_FirstOfAPage_StandsLastAndMakesNoPage) {
  Add(NumberField(u"Staff"_s), 7);
  EXPECT_EQ(Catalogue().last(), u"Staff|7|3"_s);
  EXPECT_EQ(PageTitle(7), std::nullopt);
  for (const CatalogueRow& row : CaptionRows()) EXPECT_NE(row.Tab, 7);
}

TEST_F(FieldChangesTest, MakeFieldTables_TextField_MakesItsListAndMarksIt) {
  Add(TextField(u"Colour"_s));
  const db::TableDef list = m_file.Database().TableDefOf(u"ColourT");
  ASSERT_EQ(list.Fields.size(), 1U);
  EXPECT_EQ(list.Fields[0].Name, u"Colour"_s);
  EXPECT_EQ(list.Fields[0].Size, 255);
  EXPECT_EQ(m_file.Database().TableProperty(u"ColourT", u"Replicable"), u"T"_s);
  EXPECT_EQ(m_file.Database().TableProperty(u"CityT", u"Replicable"), QString());
}

TEST_F(FieldChangesTest, MakeFieldTables_DateField_AddsItsReminders) {
  Add(DateField(u"Paid"_s));
  EXPECT_EQ(ReminderColumns(),
            QStringList({u"Index"_s, u"Due"_s, u"DueAgents"_s, u"Paid"_s, u"PaidAgents"_s}));
  EXPECT_EQ(m_file.Rows(u"SupportRemainder"_s), QStringList({u"Due"_s, u"Paid"_s}));
}

TEST_F(FieldChangesTest, MakeFieldTables_DateFieldInAFileWithoutReminders_MakesBothTables) {
  m_file.Database().DeleteTableDef(u"TableDatesRemainder");
  m_file.Database().DeleteTableDef(u"SupportRemainder");
  Add(DateField(u"Paid"_s));
  EXPECT_EQ(ReminderColumns(), QStringList({u"Index"_s, u"Paid"_s, u"PaidAgents"_s}));
  EXPECT_EQ(m_file.Rows(u"SupportRemainder"_s), QStringList{u"Paid"_s});
}

TEST_F(FieldChangesTest, MakeFieldColumn_NameInAnotherCase_IsRefused) {
  EXPECT_EQ(ErrorNumberOf([] { MakeFieldColumn(TextField(u"CITY"_s)); }), 3191);
}

TEST_F(FieldChangesTest, NumberField_AddedLater_StoresWholeNumbers) {
  Add(NumberField(u"Staff"_s));
  m_file.AddCard(3, u"Cid"_s, {{u"Staff"_s, u"2.5"_s}});
  EXPECT_EQ(m_file.Rows(u"SELECT Staff FROM MainData WHERE [Index@] = 3"_s), QStringList{u"2"_s});
}

TEST_F(FieldChangesTest, DeleteField_TextField_TakesItsColumnListAndRow) {
  DeleteField(u" Trade "_s);
  EXPECT_EQ(CardColumns(), QStringList({u"Index@"_s, u"Name"_s, u"City"_s, u"Due"_s, u"Remarks"_s}));
  EXPECT_FALSE(TableExists(u"TradeT"_s));
  EXPECT_TRUE(TableExists(u"CityT"_s));
  EXPECT_EQ(Queryp(u"Trade"_s), -1);
  EXPECT_EQ(m_file.Rows(u"SELECT [Index@], Name, City FROM MainData"_s),
            QStringList({u"1|Ann|Rome"_s, u"2|Bob|Null"_s}));
}

TEST_F(FieldChangesTest, DeleteField_AnyField_TakesAllStoredQueries) {
  StoreQueries();
  EXPECT_EQ(QueriesLostWithAField(), 2);
  DeleteField(u"Due"_s);
  EXPECT_EQ(m_file.Database().QueryDefs(), QStringList());
}

TEST_F(FieldChangesTest, DeleteField_DateField_LeavesItsReminders) {
  m_file.AddRow(u"TableDatesRemainder"_s,
                {{u"Index"_s, 1}, {u"Due"_s, u"2026-05-04"_s}, {u"DueAgents"_s, u"Eve"_s}});
  DeleteField(u"Due"_s);
  EXPECT_EQ(m_file.Rows(u"SELECT [Index], DueAgents FROM TableDatesRemainder WHERE Due = #5/4/2026#"_s),
            QStringList{u"1|Eve"_s});
  EXPECT_EQ(m_file.Rows(u"SupportRemainder"_s), QStringList{u"Due"_s});
}

TEST_F(FieldChangesTest, DeleteField_LastOfItsPage_TakesThePagesTitle) {
  DeleteField(u"Trade"_s);
  EXPECT_EQ(PageTitle(2), u"Work"_s);
  DeleteField(u"Due"_s);
  EXPECT_EQ(PageTitle(2), std::nullopt);
  EXPECT_EQ(Catalogue(), QStringList({u"Name|0|0"_s, u"Null|1|1"_s, u"City|1|2"_s}));
}

TEST_F(FieldChangesTest, DeleteField_PageOfTheSameName_KeepsItsTitle) {
  ASSERT_TRUE(SetPageTitle(1, u"Trade"_s));
  DeleteField(u"Trade"_s);
  EXPECT_EQ(PageTitle(1), u"Trade"_s);
  EXPECT_EQ(FieldRows().size(), 2U);
  EXPECT_FALSE(CardColumns().contains(u"Trade"_s));
}

TEST_F(FieldChangesTest, DeleteField_NotInTheCatalogue_TakesTheQueriesAlone) {
  MakeFieldColumn(TextField(u"Stray"_s));
  StoreQueries();
  DeleteField(u"Stray"_s);
  EXPECT_TRUE(CardColumns().contains(u"Stray"_s));
  EXPECT_EQ(QueriesLostWithAField(), 0);
}

TEST_F(FieldChangesTest, DeleteField_ListIsMissing_FailsAndTakesNothing) {
  StoreQueries();
  m_file.Database().DeleteTableDef(u"TradeT");
  const QStringList before = Catalogue();
  EXPECT_EQ(ErrorNumberOf([] { DeleteField(u"Trade"_s); }), 3265);
  EXPECT_EQ(QueriesLostWithAField(), 2);
  EXPECT_EQ(Catalogue(), before);
  EXPECT_TRUE(CardColumns().contains(u"Trade"_s));
}

TEST_F(FieldChangesTest, DeleteField_CommitFails_TakesNothing) {
  const test::FailingWrites writes;
  Global().CardDb->Close();
  Global().CardDb = Global().DBEngine().OpenDatabase(m_file.Path());
  StoreQueries();
  test::FailingWrites::FailNextCommit();
  EXPECT_NE(ErrorNumberOf([] { DeleteField(u"Trade"_s); }), 0);
  EXPECT_EQ(QueriesLostWithAField(), 2);
  EXPECT_TRUE(TableExists(u"TradeT"_s));
  EXPECT_EQ(m_file.Rows(u"SELECT Trade FROM MainData"_s), QStringList({u"Wood"_s, u"Null"_s}));
  DeleteField(u"Trade"_s);
  EXPECT_FALSE(CardColumns().contains(u"Trade"_s));
}

TEST_F(FieldChangesTest, DeleteField_ATableHasTheNameOfItsList_LeavesThatTable) {
  const DesignField field = TextField(u"Agen"_s);
  MakeFieldColumn(field);
  EnterField(field, 1);
  ASSERT_EQ(ErrorNumberOf([&field] { MakeFieldTables(field); }), 3010);
  DeleteField(u"Agen"_s);
  EXPECT_TRUE(TableExists(u"Agent"_s));
  EXPECT_FALSE(CardColumns().contains(u"Agen"_s));
}

TEST_F(FieldChangesTest, DateField_AddedAgain_MeetsTheRemindersOfTheOldOne) {
  DeleteField(u"Due"_s);
  EXPECT_EQ(ErrorNumberOf([] { Add(DateField(u"Due"_s), 2); }), 3191);
  EXPECT_TRUE(CardColumns().contains(u"Due"_s));
  EXPECT_EQ(Catalogue().last(), u"Due|2|5"_s);
}

TEST_F(FieldChangesTest, SetPageTitle_PageWithARow_ChangesIt) {
  EXPECT_TRUE(SetPageTitle(2, u"Trades"_s));
  EXPECT_TRUE(SetPageTitle(1, u"L'Aquila"_s));
  EXPECT_EQ(PageTitle(1), u"L'Aquila"_s);
  EXPECT_EQ(PageTitle(2), u"Trades"_s);
  EXPECT_EQ(CaptionRows().size(), 3U);
}

TEST_F(FieldChangesTest, SetPageTitle_PageThatGotItsFirstFieldLater_AddsARow) {
  Add(NumberField(u"Staff"_s), 7);
  EXPECT_TRUE(SetPageTitle(7, u"People"_s));
  EXPECT_EQ(Catalogue().last(), u"People|7|1"_s);
  EXPECT_EQ(PageTitle(7), u"People"_s);
}

TEST_F(FieldChangesTest, SetPageTitle_PageWithoutFields_IsRefused) {
  EXPECT_FALSE(SetPageTitle(3, u"Empty"_s));
  EXPECT_EQ(PageTitle(3), std::nullopt);
}

TEST_F(FieldChangesTest, NamesInFile_TablesOfReminders_MayBeMissing) {
  EXPECT_EQ(NamesInFile().ReminderColumns, QStringList({u"Index"_s, u"Due"_s, u"DueAgents"_s}));
  m_file.Database().DeleteTableDef(u"TableDatesRemainder");
  EXPECT_EQ(NamesInFile().ReminderColumns, QStringList());
  EXPECT_EQ(NamesInFile().Columns, CardColumns());
}

}  // namespace
}  // namespace velmora
