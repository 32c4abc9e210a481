// SPDX-License-Identifier: MIT
#include "cardfile/CardFileSchema.h"
#include "tests/support/CardFiles.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

QString KindName(const db::Field& field) {
  switch (field.Type) {
    case db::FieldType::Text:
      return field.Size == db::DefaultTextSize ? u"Text"_s : u"Text(%1)"_s.arg(field.Size);
    case db::FieldType::Memo:
      return u"Memo"_s;
    case db::FieldType::Long:
      return u"Long"_s;
    case db::FieldType::Double:
      return u"Double"_s;
    case db::FieldType::Currency:
      return u"Currency"_s;
    case db::FieldType::YesNo:
      return u"Yes/No"_s;
    case db::FieldType::Date:
      return u"Date"_s;
  }
  return {};
}

/// A definition as one line: columns with their kinds, then each index with its columns.
std::string Line(const db::TableDef& table) {
  QStringList parts;
  for (const db::Field& field : table.Fields) parts += field.Name + u' ' + KindName(field);
  for (const db::Index& index : table.Indexes) {
    QString text = u"index "_s + index.Name + u" on "_s + index.Fields.join(u"+"_s);
    if (index.Unique) text += u" unique"_s;
    if (index.Primary) text += u" primary"_s;
    parts += text;
  }
  return (table.Name + u": "_s + parts.join(u", "_s)).toStdString();
}

const std::vector<std::string> FixedLines{
    "Captions: Caption Text, Num Long",
    "WebAddress: Index Long, Name Text, defText Text, defNum Long",
    "tOptions: txtKey Text(40), tVal Text(40)",
    "Telefon: Index Long, Date Date, Time Date, Collaborator Text, Cooperation Text, DesTok Memo, Agent "
    "Text, "
    "index Index on Index",
    "Goods: Index Long, Barcod Text, Type Text, Name Text, Description Memo, Price Currency, Discount Text, "
    "Another Memo, Image Memo, PriceDiler Currency, DiscountClient Text, index Index on Index, "
    "index Barcod on Barcod, index Name on Name, index PriceDiler on PriceDiler, index Discount on Discount",
    "TypeGoods: Type Text",
    "Meeting: Index Long, Date Date, Time Date, Place Text, Adress Text, TelephPl Text, Collaborator Text, "
    "Agent Text, Define Text, Description Memo, Name Text, Post Text, Tel1 Text, Tel2 Text, Pelephon Text, "
    "OrderMeet Date, OrderTime Date, PathFoto Memo, index Index on Index, index Date on Date, "
    "index Time on Time",
    "TabProd: ProdID Long, SugID Long, Query Text, Descrip Memo, index IndPrim on SugID+Query, "
    "index IndSug on SugID",
    "NotifyTable: Collaborator Text, Date Date, Time Date, For Text, NotifyOrder Date, Memo Memo, "
    "NotifyDate Date, QMemo Text",
    "PriceList: Index Long, Year Long, NumbOf Long, FileName Memo, Date Date, Agent Text, Status Text",
    "TabSug: SugID Long, Descrip Text, Pict Memo, index SugID on SugID",
    "Agent: Index Long, Name Text, Activ Yes/No, 1 Text, 2 Text, 3 Text, 4 Text, 5 Text, 6 Text, 7 Text, "
    "8 Text, 9 Text, 10 Text, 11 Text, 12 Text, 13 Text, 14 Text, 15 Text, 16 Text, Biografy Memo, "
    "PathFoto Text, index Index on Index",
    "TCoop: Type Text, Activ Yes/No",
    "TelCalls: Index Long, Date Date, Time Date, Priority Long, Tel1 Text, Tel2 Text, Collaborator Text, "
    "Agent Text, Tok Memo, ActivTime Yes/No, DateOrder Date, NameFirm Text, index Date on Date",
    "tArchiv: Date Date, Program Text, File Text, Rem Memo, Index Long",
};

ACardFile OfEachKind() {
  return ACardFile()
      .Named(u" Customer "_s)
      .With(TextField(u"City"_s))
      .With(NumberField(u" Turnover "_s))
      .With(YesNoField(u"Active"_s), 2)
      .With(DateField(u"Due"_s), 2);
}

}  // namespace

TEST(CardFileSchemaTest, FixedTables_ColumnsAndIndexes_AreTheFormats) {
  std::vector<std::string> lines;
  for (const db::TableDef& table : FixedTables()) lines.push_back(Line(table));
  EXPECT_EQ(lines, FixedLines);
}

TEST(CardFileSchemaTest, MainDataTable_Columns_FollowTheDesign) {
  EXPECT_EQ(
      Line(MainDataTable(OfEachKind().Design())),
      "MainData: Index@ Long, Customer Text(150), City Text(200), Turnover Double, Active Yes/No, Due Date, "
      "Remarks Memo, index Index on Index@ unique");
}

TEST(CardFileSchemaTest, LocationTable_HasNoIndex) {
  EXPECT_EQ(Line(LocationTable()), "Location: Name Text, Tab Long, Type Long");
}

TEST(CardFileSchemaTest, ReminderTableOf_EachDateField_HasItsAgentsBesideIt) {
  EXPECT_EQ(
      Line(ReminderTableOf({u"Due"_s, u"Birth day"_s})),
      "TableDatesRemainder: Index Long, Due Date, DueAgents Text, Birth day Date, Birth dayAgents Text");
  EXPECT_EQ(Line(ReminderTableOf({})), "TableDatesRemainder: Index Long");
}

TEST(CardFileSchemaTest, ValueListTableOf_HasTheFieldAsItsOneColumn) {
  EXPECT_EQ(Line(ValueListTableOf(u"City"_s)), "CityT: City Text");
}

TEST(CardFileSchemaTest, FieldKindOf_ColumnOfAField_IsTheKindOfTheField) {
  for (const FieldKind kind : {FieldKind::Text, FieldKind::Number, FieldKind::YesNo, FieldKind::Date}) {
    CardDesign design{.MainField = u"Company"_s, .Pages = {}};
    design.Pages[0].Fields = {{.Name = u"Field"_s, .Kind = kind}};
    EXPECT_EQ(FieldKindOf(MainDataTable(design).FindField(u"Field")->Type), kind);
    EXPECT_EQ(FieldKindOf(AddedColumnOf({.Name = u"Field"_s, .Kind = kind}).Type), kind);
  }
  EXPECT_EQ(FieldKindOf(db::FieldType::Memo), std::nullopt);
}

TEST(CardFileSchemaTest, MakeCardFile_StoredTables_AreAsDefined) {
  const CardFile file = OfEachKind().Make();
  std::vector<std::string> expected = FixedLines;
  expected.insert(
      expected.end(),
      {Line(LocationTable()), Line(MainDataTable(OfEachKind().Design())), "CityT: City Text",
       "TableDatesRemainder: Index Long, Due Date, DueAgents Text", "SupportRemainder: Name Text"});
  std::vector<std::string> stored;
  for (const QString& table : file.Database().TableDefs()) {
    stored.push_back(Line(file.Database().TableDefOf(table)));
  }
  std::ranges::sort(expected);
  std::ranges::sort(stored);
  EXPECT_EQ(stored, expected);
}
