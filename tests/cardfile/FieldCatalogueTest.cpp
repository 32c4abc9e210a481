// SPDX-License-Identifier: MIT
#include "cardfile/FieldCatalogue.h"
#include "frame/Session.h"
#include "tests/support/CardFiles.h"
#include "tests/support/TestDatabase.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

ACardFile Design() {
  return ACardFile()
      .Named(u"Customer"_s)
      .With(TextField(u"City"_s))
      .With(NumberField(u"Turnover"_s), 3)
      .With(YesNoField(u"Active"_s))
      .With(DateField(u"Due"_s))
      .Titled(3, u"Figures"_s);
}

QStringList NamesOf(const std::vector<CatalogueRow>& rows) {
  QStringList names;
  for (const CatalogueRow& row : rows)
    names += row.Name.value_or(u"Null"_s) + u'/' + QString::number(row.Tab);
  return names;
}

}  // namespace

TEST(FieldCatalogueTest, MainFieldName_IsTheFieldThatNamesTheCard) {
  const CardFile file = Design().Make();
  EXPECT_EQ(MainFieldName(), u"Customer"_s);
}

TEST(FieldCatalogueTest, MainFieldName_NoFile_Fails) {
  Global() = Session();
  EXPECT_EQ(ErrorNumberOf([] { std::ignore = MainFieldName(); }), 3420);
}

TEST(FieldCatalogueTest, MainFieldName_EmptyCatalogue_Fails) {
  const CardFile file = Design().Make();
  file.Database().Execute(u"Delete * from Location");
  EXPECT_EQ(ErrorNumberOf([] { std::ignore = MainFieldName(); }), 3021);
}

TEST(FieldCatalogueTest, Queryp_Field_IsItsKindPlus2) {
  const CardFile file = Design().Make();
  EXPECT_EQ(Queryp(u"Customer"_s), 0);
  EXPECT_EQ(Queryp(u"City"_s), 2);
  EXPECT_EQ(Queryp(u"Turnover"_s), 3);
  EXPECT_EQ(Queryp(u"Active"_s), 4);
  EXPECT_EQ(Queryp(u"Due"_s), 5);
}

TEST(FieldCatalogueTest, Queryp_UnknownName_IsMinus1) {
  const CardFile file = Design().Make();
  EXPECT_EQ(Queryp(u"Nothing"_s), -1);
  EXPECT_EQ(Queryp(QString()), -1);
}

TEST(FieldCatalogueTest, Queryp_NameOfAPageAndAField_IsThatOfTheFirstRow) {
  const CardFile file = ACardFile().With(TextField(u"City"_s)).Titled(1, u"City"_s).Make();
  EXPECT_EQ(Queryp(u"City"_s), 1);
}

TEST(FieldCatalogueTest, Queryp_OtherLettersOrAnApostrophe_FindsTheRow) {
  const CardFile file = Design().Make();
  file.AddRow(u"Location"_s, {{u"Name"_s, u"L'Été"_s}, {u"Tab"_s, 1}, {u"Type"_s, 3}});
  EXPECT_EQ(Queryp(u"CITY "_s), 2);
  EXPECT_EQ(Queryp(u"l'été"_s), 3);
  EXPECT_EQ(Queryp(u"x' OR 'a'='a"_s), -1);
}

TEST(FieldCatalogueTest, CatalogueRows_RowThatCannotBeRead_LeavesTheOthers) {
  const CardFile file = ACardFile().Named(u"Customer"_s).With(TextField(u"City"_s)).Make();
  file.AddRow(u"Location"_s, {{u"Name"_s, u"NoCode"_s}, {u"Tab"_s, 1}, {u"Type"_s, db::Value()}});
  file.AddRow(u"Location"_s, {{u"Name"_s, u"NoPage"_s}, {u"Tab"_s, db::Value()}, {u"Type"_s, 2}});
  EXPECT_EQ(NamesOf(CatalogueRows()),
            QStringList({u"Customer/0"_s, u"Null/1"_s, u"City/1"_s, u"NoPage/-1"_s}));
}

TEST(FieldCatalogueTest, FieldRows_AreInTheOrderOfTheCatalogue) {
  const CardFile file = Design().Make();
  EXPECT_EQ(NamesOf(FieldRows()), QStringList({u"City/1"_s, u"Active/1"_s, u"Due/1"_s, u"Turnover/3"_s}));
}

TEST(FieldCatalogueTest, FieldRows_FieldDeletedAndAdded_StandsLast) {
  const CardFile file = Design().Make();
  file.Database().Execute(u"Delete * from Location where Name = 'City'");
  file.AddRow(u"Location"_s, {{u"Name"_s, u"City"_s}, {u"Tab"_s, 1}, {u"Type"_s, 2}});
  EXPECT_EQ(NamesOf(FieldRows()), QStringList({u"Active/1"_s, u"Due/1"_s, u"Turnover/3"_s, u"City/1"_s}));
}

TEST(FieldCatalogueTest, CaptionRows_MainFieldStandsFirst) {
  const CardFile file = Design().Make();
  EXPECT_EQ(NamesOf(CaptionRows()), QStringList({u"Customer/0"_s, u"Null/1"_s, u"Figures/3"_s}));
}

TEST(FieldCatalogueTest, PageTitle_IsNothingWithoutOne) {
  const CardFile file = Design().Make();
  EXPECT_EQ(PageTitle(3), u"Figures"_s);
  EXPECT_EQ(PageTitle(1), std::nullopt);
  EXPECT_EQ(PageTitle(2), std::nullopt);
}

TEST(FieldCatalogueTest, FieldKindOf_Row_IsItsCodeLess2) {
  EXPECT_EQ(FieldKindOf({.Name = {}, .Tab = 1, .Type = 2}), FieldKind::Text);
  EXPECT_EQ(FieldKindOf({.Name = {}, .Tab = 1, .Type = 5}), FieldKind::Date);
  EXPECT_EQ(FieldKindOf({.Name = {}, .Tab = 1, .Type = 1}), std::nullopt);
  EXPECT_EQ(FieldKindOf({.Name = {}, .Tab = 1, .Type = 6}), std::nullopt);
}

TEST(FieldCatalogueTest, FieldInQuery_OutputColumn_IsFoundWithoutCase) {
  const CardFile file = Design().Make();
  file.Database().CreateQueryDef(u"Towns&", u"SELECT [Index@], [City] FROM MainData");
  EXPECT_TRUE(FieldInQuery(u"Towns&"_s, u"CITY"_s));
  EXPECT_TRUE(FieldInQuery(u"towns&"_s, u"Index@"_s));
  EXPECT_FALSE(FieldInQuery(u"Towns&"_s, u"Due"_s));
}

TEST(FieldCatalogueTest, FieldInQuery_Failure_IsFalse) {
  const CardFile file = Design().Make();
  EXPECT_FALSE(FieldInQuery(u"Nothing"_s, u"City"_s));
  EXPECT_FALSE(FieldInQuery(u"TableDatesRemainder"_s, u"Due"_s));
  file.Database().CreateQueryDef(u"Broken", u"SELECT City, Gone FROM MainData");
  EXPECT_FALSE(FieldInQuery(u"Broken"_s, u"City"_s));
  Global() = Session();
  EXPECT_FALSE(FieldInQuery(u"Towns&"_s, u"City"_s));
}

TEST(FieldCatalogueTest, TableExists_KnowsTables) {
  const CardFile file = Design().Make();
  EXPECT_TRUE(TableExists(u"SupportRemainder"_s));
  EXPECT_TRUE(TableExists(u"CityT"_s));
  EXPECT_FALSE(TableExists(u"TurnoverT"_s));
}
