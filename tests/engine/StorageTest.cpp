// SPDX-License-Identifier: MIT
#include "engine/sqlite/Storage.h"
#include "tests/engine/PlainSqlite.h"
#include "tests/support/TestDatabase.h"

#include <limits>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::ErrorNumberOf;
using test::PlainSqlite;
using test::TestDatabase;

namespace {

const std::vector<Field> EveryKind{{u"T"_s, FieldType::Text, 5}, {u"Plain"_s, FieldType::Text},
                                   {u"M"_s, FieldType::Memo},    {u"L"_s, FieldType::Long},
                                   {u"D"_s, FieldType::Double},  {u"C"_s, FieldType::Currency},
                                   {u"Y"_s, FieldType::YesNo},   {u"W"_s, FieldType::Date}};

TEST(Storage, Declarations_AllKinds_AreReadByPlainTools) {
  const TestDatabase file;
  file.Table(u"All"_s, EveryKind);
  EXPECT_EQ(
      PlainSqlite(file.Path()).Rows(u"SELECT sql FROM sqlite_schema WHERE name = 'All'"),
      QStringList{u"CREATE TABLE \"All\" (\"T\" TEXT(5) COLLATE NOCASE, \"Plain\" TEXT(255) COLLATE NOCASE, "
                  "\"M\" LONGTEXT COLLATE NOCASE, \"L\" INTEGER, \"D\" DOUBLE, \"C\" CURRENCY, "
                  "\"Y\" YESNO NOT NULL DEFAULT 0, \"W\" DATE)"_s});
}

TEST(Storage, TableDefOf_AllKinds_GivesTheDefinitionBack) {
  TestDatabase file;
  file.Table(u"All"_s, EveryKind);
  file.Reopen();
  const TableDef table = file->TableDefOf(u"ALL");
  EXPECT_EQ(table.Name, u"All");
  ASSERT_EQ(table.Fields.size(), EveryKind.size());
  for (std::size_t column = 0; column < EveryKind.size(); ++column) {
    EXPECT_EQ(table.Fields[column].Name, EveryKind[column].Name);
    EXPECT_EQ(table.Fields[column].Type, EveryKind[column].Type);
    EXPECT_EQ(table.Fields[column].Size, EveryKind[column].Size);
  }
}

struct StoredCase {
  QString Column;
  Value Given;
  /// As typeof and quote show it to a plain tool.
  QString Stored;
};

class StoredValues : public testing::TestWithParam<StoredCase> {};

TEST_P(StoredValues, Update_OneValue_StandsInTheFileAs) {
  const TestDatabase file;
  file.Table(u"All"_s, EveryKind);
  file.Add(u"All", {{GetParam().Column, GetParam().Given}});
  const QString sql = u"SELECT typeof(%1), quote(%1) FROM \"All\""_s.arg(GetParam().Column);
  EXPECT_EQ(PlainSqlite(file.Path()).Rows(sql), QStringList{GetParam().Stored});
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, StoredValues,
    testing::Values(
        StoredCase{u"T"_s, u"12345"_s, u"text|'12345'"_s}, StoredCase{u"T"_s, u"äöü€😀"_s, u"text|'äöü€😀'"_s},
        StoredCase{u"T"_s, u""_s, u"text|''"_s}, StoredCase{u"T"_s, u" "_s, u"text|' '"_s},
        StoredCase{u"T"_s, Value(), u"null|NULL"_s}, StoredCase{u"T"_s, 12, u"text|'12'"_s},
        StoredCase{u"T"_s, 2.5, u"text|'2.5'"_s}, StoredCase{u"T"_s, u"it's"_s, u"text|'it''s'"_s},
        StoredCase{u"M"_s, u"0123456789"_s, u"text|'0123456789'"_s},
        StoredCase{u"M"_s, Value(), u"null|NULL"_s}, StoredCase{u"L"_s, 2147483647, u"integer|2147483647"_s},
        StoredCase{u"L"_s, -2147483647 - 1, u"integer|-2147483648"_s},
        StoredCase{u"L"_s, 2.5, u"integer|2"_s}, StoredCase{u"L"_s, 3.5, u"integer|4"_s},
        StoredCase{u"L"_s, u"-1.5"_s, u"integer|-2"_s}, StoredCase{u"L"_s, true, u"integer|-1"_s},
        StoredCase{u"L"_s, Value(), u"null|NULL"_s}, StoredCase{u"D"_s, 0.1, u"real|0.1"_s},
        StoredCase{u"D"_s, 3, u"real|3.0"_s}, StoredCase{u"D"_s, u"1e3"_s, u"real|1000.0"_s},
        StoredCase{u"C"_s, 1.23456, u"real|1.2346"_s}, StoredCase{u"C"_s, 1.00005, u"integer|1"_s},
        StoredCase{u"C"_s, 1.00015, u"real|1.0002"_s}, StoredCase{u"C"_s, -1.00005, u"integer|-1"_s},
        StoredCase{u"C"_s, u"12.50"_s, u"real|12.5"_s}, StoredCase{u"Y"_s, true, u"integer|-1"_s},
        StoredCase{u"Y"_s, 5, u"integer|-1"_s}, StoredCase{u"Y"_s, -1, u"integer|-1"_s},
        StoredCase{u"Y"_s, 0.5, u"integer|-1"_s}, StoredCase{u"Y"_s, 0, u"integer|0"_s},
        StoredCase{u"Y"_s, Value(), u"integer|0"_s}, StoredCase{u"Y"_s, u"Yes"_s, u"integer|-1"_s},
        StoredCase{u"W"_s, QDate(2024, 2, 29), u"text|'2024-02-29'"_s},
        StoredCase{u"W"_s, u"2/29/2024"_s, u"text|'2024-02-29'"_s},
        StoredCase{u"W"_s, u"31/12/1999"_s, u"text|'1999-12-31'"_s},
        StoredCase{u"W"_s, u"0100-01-01"_s, u"text|'0100-01-01'"_s},
        StoredCase{u"W"_s, u"9999-12-31 23:59:59"_s, u"text|'9999-12-31 23:59:59'"_s},
        StoredCase{u"W"_s, Value(), u"null|NULL"_s}));

struct RefusedCase {
  QString Column;
  Value Given;
  int Error;
};

class RefusedValues : public testing::TestWithParam<RefusedCase> {};

TEST_P(RefusedValues, Set_ValueThatDoesNotFit_FailsAndKeepsTheOldOne) {
  const TestDatabase file;
  file.Table(u"All"_s, EveryKind);
  Recordset rows = file->OpenRecordset(u"All");
  rows.AddNew();
  EXPECT_EQ(ErrorNumberOf([&] { rows.Set(GetParam().Column, GetParam().Given); }), GetParam().Error);
  rows.Update();
  rows.MoveFirst();
  EXPECT_TRUE(rows[GetParam().Column].IsNull() || rows[GetParam().Column] == Value(false));
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, RefusedValues,
    testing::Values(RefusedCase{u"T"_s, u"123456"_s, 3163}, RefusedCase{u"T"_s, u"äöü€😀😀"_s, 3163},
                    RefusedCase{u"T"_s, 123456, 3163}, RefusedCase{u"Plain"_s, QString(256, u'x'), 3163},
                    RefusedCase{u"L"_s, 2147483648.0, 3349}, RefusedCase{u"L"_s, -2147483649.0, 3349},
                    RefusedCase{u"L"_s, u"abc"_s, 3421}, RefusedCase{u"L"_s, u""_s, 3421},
                    RefusedCase{u"D"_s, u"x"_s, 3421},
                    RefusedCase{u"D"_s, std::numeric_limits<double>::infinity(), 3349},
                    RefusedCase{u"C"_s, 1e15, 3349}, RefusedCase{u"C"_s, u"1 Euro"_s, 3421},
                    RefusedCase{u"Y"_s, u"perhaps"_s, 3421}, RefusedCase{u"W"_s, u"2/30/2023"_s, 3421},
                    RefusedCase{u"W"_s, u"0099-12-31"_s, 3421}, RefusedCase{u"W"_s, 1e9, 3421}));

TEST(Storage, Update_LongestText_FitsExactly) {
  const TestDatabase file;
  file.Table(u"All"_s, EveryKind);
  file.Add(u"All", {{u"Plain"_s, QString(255, u'é')}});
  EXPECT_EQ(file->OpenRecordset(u"All")[u"Plain"].Text(), QString(255, u'é'));
}

TEST(Storage, Read_EachKind_ComesBackAsItsKind) {
  const TestDatabase file;
  file.Table(u"All"_s, EveryKind);
  file.Add(
      u"All",
      {{u"T"_s, u"x"_s}, {u"L"_s, 3}, {u"D"_s, 2}, {u"C"_s, 2}, {u"Y"_s, true}, {u"W"_s, QDate(2020, 1, 2)}});
  const Recordset rows = file->OpenRecordset(u"All");
  EXPECT_EQ(rows[u"T"], Value(u"x"_s));
  EXPECT_TRUE(rows[u"M"].IsNull());
  EXPECT_EQ(rows[u"L"], Value(3));
  EXPECT_EQ(rows[u"D"], Value(2.0));
  EXPECT_EQ(rows[u"C"], Value(2.0));
  EXPECT_EQ(rows[u"Y"], Value(true));
  EXPECT_EQ(rows[u"W"], Value(QDate(2020, 1, 2)));
}

TEST(Storage, Read_WhatOtherToolsWrote_ComesAsItIs) {
  const TestDatabase file;
  file.Table(u"All"_s, EveryKind);
  PlainSqlite(file.Path())
      .Run(
          u"INSERT INTO \"All\" (T, L, D, Y, W) VALUES ('longer than five', 'no number', 'x', 'true', "
          u"'soon');"
          "INSERT INTO \"All\" (L, Y, W) VALUES (5000000000, 7, '2024-02-29T01:02:03.5Z');"
          "INSERT INTO \"All\" (T, W) VALUES (x'4142', 5)");
  Recordset rows = file->OpenRecordset(u"All");
  EXPECT_EQ(rows[u"T"], Value(u"longer than five"_s));
  EXPECT_EQ(rows[u"L"], Value(u"no number"_s));
  EXPECT_EQ(rows[u"D"], Value(u"x"_s));
  EXPECT_EQ(rows[u"Y"], Value(true));
  EXPECT_EQ(rows[u"W"], Value(u"soon"_s));
  rows.MoveNext();
  EXPECT_EQ(rows[u"L"], Value(std::int64_t{5000000000}));
  EXPECT_EQ(rows[u"Y"], Value(true));
  EXPECT_EQ(rows[u"W"], Value(QDateTime(QDate(2024, 2, 29), QTime(1, 2, 3), Qt::UTC)));
  rows.MoveNext();
  EXPECT_EQ(rows[u"T"], Value(u"AB"_s));
  EXPECT_EQ(rows[u"W"], Value(5));
}

struct DeclaredCase {
  QString Declared;
  FieldType Type;
  int Size = DefaultTextSize;
};

TEST(Storage, FieldOfDeclaration_OtherTools_TakesTheNearestKind) {
  const std::vector<DeclaredCase> cases{{u"VARCHAR(30)"_s, FieldType::Text, 30},
                                        {u"nvarchar( 40 )"_s, FieldType::Text, 40},
                                        {u"TEXT"_s, FieldType::Memo},
                                        {u"TEXT(x)"_s, FieldType::Memo},
                                        {u"VARCHAR(0)"_s, FieldType::Memo},
                                        {u"VARCHAR(99999999999999)"_s, FieldType::Memo},
                                        {u"bigint"_s, FieldType::Long},
                                        {u"BOOLEAN"_s, FieldType::YesNo},
                                        {u"BIT"_s, FieldType::YesNo},
                                        {u"DECIMAL(10,2)"_s, FieldType::Double},
                                        {u"NUMERIC"_s, FieldType::Double},
                                        {u"FLOAT"_s, FieldType::Double},
                                        {u"REAL"_s, FieldType::Double},
                                        {u"MONEY"_s, FieldType::Currency},
                                        {u"DATETIME"_s, FieldType::Date},
                                        {u"TIMESTAMP"_s, FieldType::Date},
                                        {u"BLOB"_s, FieldType::Memo},
                                        {u""_s, FieldType::Memo},
                                        {u"(("_s, FieldType::Memo},
                                        {u"my own type"_s, FieldType::Memo}};
  for (const DeclaredCase& entry : cases) {
    const Field field = FieldOfDeclaration(u"F"_s, entry.Declared);
    EXPECT_EQ(field.Type, entry.Type) << entry.Declared.toStdString();
    EXPECT_EQ(field.Size, entry.Size) << entry.Declared.toStdString();
  }
}

}  // namespace
}  // namespace velmora::db
