// SPDX-License-Identifier: MIT
#include "tests/engine/FailingWrites.h"
#include "tests/engine/PlainSqlite.h"
#include "tests/support/TestDatabase.h"

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::ErrorNumberOf;
using test::FailingWrites;
using test::PlainSqlite;
using test::TestDatabase;

namespace {

const Field Number{u"N"_s, FieldType::Long};
const Field Name{u"Name"_s, FieldType::Text, 50};

TableDef ATable(const QString& name) { return {name, {Number, Name}, {}}; }

class OddNames : public testing::TestWithParam<QString> {};

TEST_P(OddNames, Table_OfThatName_KeepsRowsAndName) {
  TestDatabase file;
  file.Table(GetParam(), {{GetParam(), FieldType::Text, 50}, Number}, {{u"I"_s, {GetParam()}, false, false}});
  file.Add(GetParam(), {{GetParam(), u"x"_s}, {u"N"_s, 1}});
  file->AppendField(GetParam(), {u"Later"_s, FieldType::YesNo});
  file.Reopen();
  EXPECT_EQ(file->TableDefs(), QStringList{GetParam()});
  EXPECT_EQ(file->TableDefOf(GetParam()).Fields.at(0).Name, GetParam());
  EXPECT_EQ(file->TableDefOf(GetParam()).Indexes.at(0).Name, u"I");
  EXPECT_EQ(file->TableDefOf(GetParam()).Indexes.at(0).Fields, QStringList{GetParam()});
  Recordset rows = file->OpenRecordset(GetParam());
  EXPECT_EQ(rows.FieldAt(0).Name, GetParam());
  EXPECT_EQ(rows[GetParam()].Text(), u"x");
  rows.Edit();
  rows.Set(GetParam(), u"y"_s);
  rows.Update();
  EXPECT_EQ(file.Rows(GetParam()), QStringList{u"y|1|0"_s});
}

TEST_P(OddNames, Select_WithTheNameInBrackets_FindsTableAndColumn) {
  const TestDatabase file;
  file.Table(GetParam(), {{GetParam(), FieldType::Text, 50}});
  file.Add(GetParam(), {{GetParam(), u"x"_s}});
  const QString sql = u"SELECT [%1] FROM [%1] WHERE [%1] = 'X'"_s.arg(GetParam());
  EXPECT_EQ(file.Rows(sql), QStringList{u"x"_s});
}

INSTANTIATE_TEST_SUITE_P(Names, OddNames,
                         testing::Values(u"Index@"_s, u"1"_s, u"16"_s, u"City T"_s, u"Größe"_s, u"a-b"_s,
                                         u"#1"_s, u"$"_s, u"a+b=c@d"_s, u"Select"_s, u"Order"_s, u"rowid"_s,
                                         u"OID"_s, u"_rowid_"_s, u"sqlite_x"_s, u"SQLite_Sequence"_s,
                                         u"Queries"_s, u"it's"_s, u"say \"hi\""_s, u"100%1"_s, u"日本"_s,
                                         u"😀"_s, QString(64, u'n')));

TEST(Structure, OrdinaryNames_InTheFile_StandAsTheyAre) {
  const TestDatabase file;
  file.Table(u"City T"_s,
             {{u"Index@"_s, FieldType::Long}, {u"1"_s, FieldType::Text, 10}, {u"rowid"_s, FieldType::Long}},
             {{u"Index"_s, {u"Index@"_s}, true, false}});
  const PlainSqlite plain(file.Path());
  EXPECT_EQ(plain.Rows(u"SELECT name FROM pragma_table_info('City T')"),
            (QStringList{u"Index@"_s, u"1"_s, u"rowid"_s}));
  EXPECT_EQ(plain.Rows(u"SELECT name FROM sqlite_schema WHERE type = 'index'"),
            QStringList{u"City T.Index"_s});
}

TEST(Structure, RowIdNames_AllThreeAsColumns_AreOrdinaryColumns) {
  const TestDatabase file;
  file.Table(u"T"_s,
             {{u"rowid"_s, FieldType::Long}, {u"oid"_s, FieldType::Long}, {u"_rowid_"_s, FieldType::Long}});
  file.Add(u"T", {{u"rowid"_s, 30}, {u"oid"_s, 20}, {u"_rowid_"_s, 10}});
  file.Add(u"T", {{u"rowid"_s, 3}, {u"oid"_s, 2}, {u"_rowid_"_s, 1}});
  EXPECT_EQ(file.Rows(u"T"), (QStringList{u"30|20|10"_s, u"3|2|1"_s}));
}

TEST(Structure, Names_OfTheSameLetters_AreTheSameName) {
  const TestDatabase file;
  file.Table(u"Größe"_s, {{u"Straße"_s, FieldType::Long}});
  EXPECT_TRUE(file->HasTable(u"GRÖßE"));
  EXPECT_TRUE(file->HasTable(u"größe  "));
  EXPECT_EQ(ErrorNumberOf([&] { file->AppendTableDef(ATable(u"grÖßE"_s)); }), 3010);
  EXPECT_EQ(ErrorNumberOf([&] { file->AppendField(u"größe", {u"strAße "_s, FieldType::Long}); }), 3191);
  EXPECT_EQ(file->TableDefOf(u"GRÖßE").Name, u"Größe");
  EXPECT_EQ(file->OpenRecordset(u"größe").FieldAt(0).Name, u"Straße");
}

TEST(Structure, Names_BlanksAtTheEnd_AreDropped) {
  const TestDatabase file;
  file.Table(u"Cards  "_s, {{u"City "_s, FieldType::Text, 20}});
  EXPECT_EQ(file->TableDefs(), QStringList{u"Cards"_s});
  EXPECT_EQ(file->TableDefOf(u"Cards").Fields.at(0).Name, u"City");
}

TEST(Structure, Names_ThatCannotBe_Fail3125) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number});
  for (const QString& name : {u""_s, u"  "_s, u" a"_s, u"a.b"_s, u"a!"_s, u"a`"_s, u"[a]"_s, u"a\tb"_s,
                              QString(1, QChar(u'\0')), QString(65, u'n')}) {
    EXPECT_EQ(ErrorNumberOf([&] { file->AppendTableDef(ATable(name)); }), 3125) << name.toStdString();
    EXPECT_EQ(ErrorNumberOf([&] { file->AppendField(u"T", {name, FieldType::Long}); }), 3125);
    EXPECT_EQ(ErrorNumberOf([&] { file->CreateQueryDef(name, u"SELECT * FROM T"); }), 3125);
  }
  EXPECT_EQ(file->TableDefs(), QStringList{u"T"_s});
}

TEST(Structure, TableDefs_ManyTables_ListByNameWithoutCaseAndWithoutHidden) {
  const TestDatabase file;
  for (const QString& name : {u"beta"_s, u"Alpha"_s, u"Zoo"_s, u"alpaca"_s, u"Äpfel"_s, u"1"_s}) {
    file.Table(name, {Number});
  }
  file->CreateQueryDef(u"Q", u"SELECT * FROM beta");
  EXPECT_EQ(file->TableDefs(),
            (QStringList{u"1"_s, u"alpaca"_s, u"Alpha"_s, u"Äpfel"_s, u"beta"_s, u"Zoo"_s}));
}

TEST(Structure, AppendTableDef_TwoColumnsOfOneName_Fails3191AndMakesNothing) {
  const TestDatabase file;
  const TableDef table{u"T"_s, {Number, {u"n"_s, FieldType::Text, 10}}, {}};
  EXPECT_EQ(ErrorNumberOf([&] { file->AppendTableDef(table); }), 3191);
  EXPECT_TRUE(file->TableDefs().isEmpty());
}

TEST(Structure, AppendTableDef_BadDefinitions_Fail) {
  const TestDatabase file;
  const auto append = [&](const TableDef& table) {
    return ErrorNumberOf([&] { file->AppendTableDef(table); });
  };
  EXPECT_EQ(append({u"T"_s, {}, {}}), 3001);
  EXPECT_EQ(append({u"T"_s, {{u"A"_s, FieldType::Text, 256}}, {}}), 3001);
  EXPECT_EQ(append({u"T"_s, {Number}, {{u"I"_s, {u"Missing"_s}, false, false}}}), 3265);
  EXPECT_EQ(append({u"T"_s, {Number}, {{u"I"_s, {}, false, false}}}), 3001);
  EXPECT_EQ(append({u"T"_s, {Number}, {{u"I"_s, {u"N"_s}, false, false}, {u"i"_s, {u"N"_s}, false, false}}}),
            3012);
  EXPECT_TRUE(file->TableDefs().isEmpty());
}

TEST(Structure, AppendTableDef_NameOfAQuery_Fails3012) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number});
  file->CreateQueryDef(u"Q", u"SELECT * FROM T");
  EXPECT_EQ(ErrorNumberOf([&] { file->AppendTableDef(ATable(u"q"_s)); }), 3012);
}

TEST(Structure, Indexes_SameNameInTwoTables_AreReadBackInTheirOrder) {
  TestDatabase file;
  const std::vector<Index> indexes{{u"Index"_s, {u"N"_s}, true, false},
                                   {u"Both"_s, {u"Name"_s, u"n"_s}, false, false},
                                   {u"Main"_s, {u"N"_s}, true, true}};
  file.Table(u"A"_s, {Number, Name}, indexes);
  file.Table(u"B"_s, {Number, Name}, indexes);
  file.Reopen();
  for (const auto* table : {u"A", u"B"}) {
    const TableDef read = file->TableDefOf(table);
    ASSERT_EQ(read.Indexes.size(), 3U);
    EXPECT_EQ(read.Indexes[0].Name, u"Index");
    EXPECT_TRUE(read.Indexes[0].Unique);
    EXPECT_FALSE(read.Indexes[0].Primary);
    EXPECT_EQ(read.Indexes[1].Fields, (QStringList{u"Name"_s, u"N"_s}));
    EXPECT_FALSE(read.Indexes[1].Unique);
    EXPECT_EQ(read.Indexes[2].Name, u"Main");
    EXPECT_TRUE(read.Indexes[2].Primary);
  }
}

TEST(Structure, AppendField_TableWithRows_ReadsNoAndNull) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number});
  file.Add(u"T", {{u"N"_s, 1}});
  file->AppendField(u"t", {u"Ok"_s, FieldType::YesNo});
  file->AppendField(u"T", {u"City"_s, FieldType::Text, 200});
  const Recordset rows = file->OpenRecordset(u"T");
  EXPECT_EQ(rows[u"Ok"], Value(false));
  EXPECT_TRUE(rows[u"City"].IsNull());
  EXPECT_EQ(file->TableDefOf(u"T").Fields.at(2).Size, 200);
  EXPECT_EQ(PlainSqlite(file.Path()).Rows(u"SELECT quote(Ok) FROM T"), QStringList{u"0"_s});
}

TEST(Structure, AppendField_WithoutASize_Has255) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number});
  file->AppendField(u"T", {u"City"_s, FieldType::Text, 0});
  EXPECT_EQ(file->TableDefOf(u"T").Fields.at(1).Size, DefaultTextSize);
}

TEST(Structure, AppendField_NoSuchTable_Fails3265) {
  const TestDatabase file;
  EXPECT_EQ(ErrorNumberOf([&] { file->AppendField(u"T", Number); }), 3265);
}

TEST(Structure, DeleteField_OfATableWithRows_KeepsTheRest) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number, Name, {u"Ok"_s, FieldType::YesNo}});
  file.Add(u"T", {{u"N"_s, 1}, {u"Name"_s, u"Ann"_s}, {u"Ok"_s, true}});
  file.Add(u"T", {{u"N"_s, 2}, {u"Name"_s, u"Bob"_s}});
  file->DeleteField(u"T", u"NAME");
  EXPECT_EQ(file.Rows(u"T"), (QStringList{u"1|-1"_s, u"2|0"_s}));
  EXPECT_EQ(file->TableDefOf(u"T").FindField(u"Name"), nullptr);
}

TEST(Structure, DeleteField_NamedByAnIndex_Fails3280) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number, Name}, {{u"I"_s, {u"Name"_s, u"N"_s}, false, false}});
  EXPECT_EQ(ErrorNumberOf([&] { file->DeleteField(u"T", u"n"); }), 3280);
  EXPECT_EQ(file->TableDefOf(u"T").Fields.size(), 2U);
}

TEST(Structure, DeleteField_Missing_Fails3265) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number, Name});
  EXPECT_EQ(ErrorNumberOf([&] { file->DeleteField(u"T", u"City"); }), 3265);
  EXPECT_EQ(ErrorNumberOf([&] { file->DeleteField(u"U", u"City"); }), 3265);
}

TEST(Structure, DeleteField_StoredQueryNamesIt_QueryFails3061WhenRun) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number, Name});
  file->CreateQueryDef(u"Q", u"SELECT [Name] FROM T");
  EXPECT_EQ(file->OpenRecordset(u"Q").RecordCount(), 0);
  file->DeleteField(u"T", u"Name");
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(file->OpenRecordset(u"Q")); }), 3061);
  EXPECT_EQ(file->QueryDefs(), QStringList{u"Q"_s});
}

TEST(Structure, DeleteTableDef_Table_TakesRowsIndexesAndProperties) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number}, {{u"I"_s, {u"N"_s}, false, false}});
  file->SetTableProperty(u"T", u"Look", u"blue"_s);
  file->DeleteTableDef(u"t");
  EXPECT_FALSE(file->HasTable(u"T"));
  EXPECT_EQ(ErrorNumberOf([&] { file->DeleteTableDef(u"T"); }), 3265);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(file->TableDefOf(u"T")); }), 3265);
  file.Table(u"T"_s, {Number}, {{u"I"_s, {u"N"_s}, false, false}});
  EXPECT_EQ(file->TableProperty(u"T", u"Look"), u"");
}

TEST(Structure, HiddenTables_ByName_CannotBeReached) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number});
  file->CreateQueryDef(u"Q", u"SELECT * FROM T");
  for (const auto* name : {u".Queries", u".Properties", u"sqlite_schema", u"sqlite_master"}) {
    EXPECT_FALSE(file->HasTable(name));
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(file->TableDefOf(name)); }), 3265);
    EXPECT_EQ(ErrorNumberOf([&] { file->DeleteTableDef(name); }), 3265);
    EXPECT_NE(ErrorNumberOf([&] { static_cast<void>(file->OpenRecordset(name)); }), 0);
  }
}

TEST(Structure, TableProperty_SetTwice_IsTheLastText) {
  TestDatabase file;
  file.Table(u"T"_s, {Number});
  EXPECT_EQ(file->TableProperty(u"T", u"Look"), u"");
  file->SetTableProperty(u"T", u"Look", u"blue"_s);
  file->SetTableProperty(u"t", u"LOOK", u"red"_s);
  file.Reopen();
  EXPECT_EQ(file->TableProperty(u"T", u"Look"), u"red");
  EXPECT_EQ(ErrorNumberOf([&] { file->SetTableProperty(u"U", u"Look", u"red"_s); }), 3265);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(file->TableProperty(u"U", u"Look")); }), 3265);
}

TEST(Structure, QueryDefs_Stored_ListByNameAndKeepTheirText) {
  TestDatabase file;
  file.Table(u"T"_s, {Number, Name});
  file->CreateQueryDef(u"b&", u"SELECT [N],[Name] FROM  T WHERE ([Name]  Like '*x*')");
  file->CreateQueryDef(u"A&", u"SELECT * FROM T");
  file.Reopen();
  EXPECT_EQ(file->QueryDefs(), (QStringList{u"A&"_s, u"b&"_s}));
  EXPECT_EQ(file->QueryDefOf(u"B&").Name, u"b&");
  EXPECT_EQ(file->QueryDefOf(u"B&").SQL, u"SELECT [N], [Name]\r\nFROM T\r\nWHERE ([Name]  Like '*x*');\r\n");
}

TEST(Structure, CreateQueryDef_NameTaken_Fails3012) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number});
  file->CreateQueryDef(u"Q", u"SELECT * FROM T");
  EXPECT_EQ(ErrorNumberOf([&] { file->CreateQueryDef(u"q ", u"SELECT * FROM T"); }), 3012);
  EXPECT_EQ(ErrorNumberOf([&] { file->CreateQueryDef(u"t", u"SELECT * FROM T"); }), 3012);
}

TEST(Structure, CreateQueryDef_TextThatDoesNotParse_FailsAndStoresNothing) {
  const TestDatabase file;
  EXPECT_NE(ErrorNumberOf([&] { file->CreateQueryDef(u"Q", u"SELECT FROM WHERE"); }), 0);
  EXPECT_TRUE(file->QueryDefs().isEmpty());
}

TEST(Structure, ReplaceQueryDef_NameOfAQuery_TakesItsPlace) {
  const TestDatabase file;
  file->CreateQueryDef(u"Old&", u"SELECT A FROM T");
  file->ReplaceQueryDef(u"OLD&", u"SELECT B FROM T");
  file->ReplaceQueryDef(u"New&", u"SELECT C FROM T");
  EXPECT_EQ(file->QueryDefs(), (QStringList{u"New&"_s, u"OLD&"_s}));
  EXPECT_EQ(file->QueryDefOf(u"old&").SQL.simplified(), u"SELECT B FROM T;");
}

TEST(Structure, ReplaceQueryDef_Refused_LeavesTheOldQuery) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number});
  file->CreateQueryDef(u"Q", u"SELECT A FROM T");
  EXPECT_NE(ErrorNumberOf([&] { file->ReplaceQueryDef(u"Q", u"SELECT FROM WHERE"); }), 0);
  EXPECT_EQ(file->QueryDefOf(u"Q").SQL.simplified(), u"SELECT A FROM T;");
  EXPECT_EQ(ErrorNumberOf([&] { file->ReplaceQueryDef(u"T", u"SELECT A FROM T"); }), 3012);
}

TEST(Structure, CreateQueryDef_UnknownTableAndColumn_FailWhenRun) {
  const TestDatabase file;
  file->CreateQueryDef(u"Q", u"SELECT [Col] FROM Later");
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(file->OpenRecordset(u"Q")); }), 3078);
  file.Table(u"Later"_s, {Number});
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(file->OpenRecordset(u"Q")); }), 3061);
}

TEST(Structure, DeleteQueryDef_Missing_Fails3265) {
  const TestDatabase file;
  file->CreateQueryDef(u"Q", u"SELECT * FROM T");
  file->DeleteQueryDef(u"q");
  EXPECT_TRUE(file->QueryDefs().isEmpty());
  EXPECT_EQ(ErrorNumberOf([&] { file->DeleteQueryDef(u"Q"); }), 3265);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(file->QueryDefOf(u"Q")); }), 3265);
}

TEST(Structure, Changes_WhileRowsAreStillBeingFetched_KeepTheRows) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number, Name});
  for (int number = 1; number <= 5; ++number) file.Add(u"T", {{u"N"_s, number}});
  Recordset rows = file->OpenRecordset(u"T");
  EXPECT_EQ(rows[u"N"], Value(1));
  file->AppendField(u"T", {u"Ok"_s, FieldType::YesNo});
  file.Table(u"Other"_s, {Number});
  file->DeleteTableDef(u"Other");
  rows.MoveNext();
  EXPECT_EQ(rows[u"N"], Value(2));
  file->DeleteField(u"T", u"Ok");
  EXPECT_EQ(rows.RecordCount(), 5);
  rows.MoveLast();
  EXPECT_EQ(rows[u"N"], Value(5));
}

TEST(Structure, DeleteTableDef_WhileARecordsetIsOpenOnIt_RowsAreGone) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number});
  file.Add(u"T", {{u"N"_s, 1}});
  file.Add(u"T", {{u"N"_s, 2}});
  Recordset rows = file->OpenRecordset(u"T");
  EXPECT_FALSE(rows.AtEnd());
  file->DeleteTableDef(u"T");
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(rows[u"N"]); }), 3078);
}

}  // namespace
}  // namespace velmora::db
