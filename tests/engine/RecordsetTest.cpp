// SPDX-License-Identifier: MIT
#include "tests/engine/Numbers.h"
#include "tests/engine/PlainSqlite.h"

#include <gmock/gmock.h>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::AllNumbers;
using test::ErrorNumberOf;
using test::Numbers;
using test::PlainSqlite;
using test::TestDatabase;

namespace {

using testing::ElementsAre;
TEST(Recordset, Open_EmptyTable_IsAtBothEndsAndFails3021) {
  const Numbers file(0);
  Recordset rows = file.Open();
  EXPECT_TRUE(rows.AtEnd());
  EXPECT_TRUE(rows.AtStart());
  EXPECT_EQ(rows.RecordCount(), 0);
  EXPECT_EQ(ErrorNumberOf([&] { rows.MoveFirst(); }), 3021);
  EXPECT_EQ(ErrorNumberOf([&] { rows.MoveLast(); }), 3021);
  EXPECT_EQ(ErrorNumberOf([&] { rows.MoveNext(); }), 3021);
  EXPECT_EQ(ErrorNumberOf([&] { rows.MovePrevious(); }), 3021);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(rows[u"N"]); }), 3021);
  EXPECT_EQ(ErrorNumberOf([&] { rows.Edit(); }), 3021);
  EXPECT_EQ(ErrorNumberOf([&] { rows.Delete(); }), 3021);
}

TEST(Recordset, Open_SomeRows_StandsOnTheFirst) {
  const Numbers file(3);
  const Recordset rows = file.Open();
  EXPECT_FALSE(rows.AtEnd());
  EXPECT_FALSE(rows.AtStart());
  EXPECT_EQ(rows[u"n"], Value(1));
  EXPECT_EQ(rows.At(0), Value(1));
}

TEST(Recordset, MoveNext_OnTheLastRow_IsAtEndAndOnceMoreFails3021) {
  const Numbers file(2);
  Recordset rows = file.Open();
  rows.MoveNext();
  EXPECT_FALSE(rows.AtEnd());
  rows.MoveNext();
  EXPECT_TRUE(rows.AtEnd());
  EXPECT_FALSE(rows.AtStart());
  EXPECT_EQ(ErrorNumberOf([&] { rows.MoveNext(); }), 3021);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(rows[u"N"]); }), 3021);
  EXPECT_EQ(ErrorNumberOf([&] { rows.Edit(); }), 3021);
  rows.MovePrevious();
  EXPECT_EQ(rows[u"N"], Value(2));
}

TEST(Recordset, MovePrevious_OnTheFirstRow_IsAtStartAndOnceMoreFails3021) {
  const Numbers file(2);
  Recordset rows = file.Open();
  rows.MovePrevious();
  EXPECT_TRUE(rows.AtStart());
  EXPECT_FALSE(rows.AtEnd());
  EXPECT_EQ(ErrorNumberOf([&] { rows.MovePrevious(); }), 3021);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(rows[u"N"]); }), 3021);
  rows.MoveNext();
  EXPECT_EQ(rows[u"N"], Value(1));
}

TEST(Recordset, Move_AnywhereInTheRows_FindsThem) {
  const Numbers file(5);
  Recordset rows = file.Open();
  rows.MoveLast();
  EXPECT_EQ(rows[u"N"], Value(5));
  rows.MoveTo(1);
  EXPECT_EQ(rows[u"N"], Value(2));
  rows.MoveFirst();
  EXPECT_EQ(rows[u"N"], Value(1));
  rows.MoveTo(99);
  EXPECT_TRUE(rows.AtEnd());
  rows.MovePrevious();
  EXPECT_EQ(rows[u"N"], Value(5));
  EXPECT_EQ(ErrorNumberOf([&] { rows.MoveTo(-1); }), 3001);
  EXPECT_EQ(rows[u"N"], Value(5));
}

TEST(Recordset, Columns_ByNameAndPlace_AreFoundOrFail3265) {
  const Numbers file(1);
  const Recordset rows = file.Open();
  EXPECT_EQ(rows.FieldCount(), 3);
  EXPECT_EQ(rows.FieldAt(1).Name, u"Name");
  EXPECT_EQ(rows.FieldAt(1).Size, 10);
  for (const int place : {-1, 3}) {
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(rows.FieldAt(place)); }), 3265);
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(rows.At(place)); }), 3265);
  }
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(rows[u"City"]); }), 3265);
}

TEST(Recordset, Read_RowDeletedByAnother_Fails3167AndMovesPassOver) {
  const Numbers file(3);
  Recordset rows = file.Open();
  rows.MoveNext();
  EXPECT_EQ(rows[u"N"], Value(2));
  rows.Edit();
  rows.Set(u"Name", u"x"_s);
  file->Execute(u"Delete * from T WHERE N = 2");
  EXPECT_EQ(ErrorNumberOf([&] { rows.Update(); }), 3167);
  rows.CancelUpdate();
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(rows[u"N"]); }), 3167);
  rows.MoveNext();
  EXPECT_EQ(rows[u"N"], Value(3));
}

TEST(Recordset, Read_RowChangedByAnother_IsTheNewValue) {
  const Numbers file(2);
  const Recordset rows = file.Open();
  EXPECT_TRUE(rows[u"Name"].IsNull());
  file->Execute(u"UPDATE T SET [Name] = 'new' WHERE N = 1");
  EXPECT_EQ(rows[u"Name"], Value(u"new"_s));
}

TEST(Recordset, Order_WithoutOrderBy_IsTheOrderOfInsertion) {
  const Numbers file(0);
  for (const int number : {5, 1, 9, 3}) (*file).Add(u"T", {{u"N"_s, number}});
  EXPECT_EQ((*file).Rows(u"SELECT N FROM T"), (QStringList{u"5"_s, u"1"_s, u"9"_s, u"3"_s}));
  EXPECT_EQ((*file).Rows(u"SELECT N FROM T WHERE N > 1"), (QStringList{u"5"_s, u"9"_s, u"3"_s}));
  EXPECT_EQ((*file).Rows(u"SELECT N FROM T ORDER BY N DESC"), (QStringList{u"9"_s, u"5"_s, u"3"_s, u"1"_s}));
}

TEST(Recordset, SomeColumns_EditAndAddNew_WriteThemAlone) {
  const Numbers file(2);
  Recordset rows = file.Open(u"SELECT [Name], N FROM T WHERE N = 2");
  rows.Edit();
  rows.Set(u"Name", u"two"_s);
  rows.Update();
  rows.AddNew();
  rows.Set(u"N", 3);
  rows.Update();
  EXPECT_EQ((*file).Rows(u"T"), (QStringList{u"1|-|0"_s, u"2|two|0"_s, u"3|-|0"_s}));
}

TEST(Recordset, ComputedColumn_Set_Fails3027) {
  const Numbers file(1);
  Recordset rows = file.Open(u"SELECT N, N + 1 AS M FROM T");
  EXPECT_EQ(rows[u"M"].Long(), 2);
  rows.Edit();
  EXPECT_EQ(ErrorNumberOf([&] { rows.Set(u"M", 5); }), 3027);
}

TEST(Recordset, GroupedRows_ReadAndMove_ButCannotBeChanged) {
  const Numbers file(4);
  file->Execute(u"UPDATE T SET [Name] = 'a' WHERE N < 4");
  Recordset rows = file.Open(u"SELECT [Name], Count(*) AS C FROM T GROUP BY [Name] ORDER BY [Name]");
  EXPECT_EQ(rows.RecordCount(), 2);
  EXPECT_TRUE(rows[u"Name"].IsNull());
  rows.MoveNext();
  EXPECT_EQ(rows[u"C"].Long(), 3);
  EXPECT_EQ(ErrorNumberOf([&] { rows.Edit(); }), 3027);
  EXPECT_EQ(ErrorNumberOf([&] { rows.AddNew(); }), 3027);
  EXPECT_EQ(ErrorNumberOf([&] { rows.Delete(); }), 3027);
}

TEST(Recordset, GroupedRows_TableChangesMeanwhile_StayAsTheyWere) {
  const Numbers file(3);
  Recordset rows = file.Open(u"SELECT DISTINCT N FROM T ORDER BY N");
  EXPECT_EQ(rows[u"N"].Long(), 1);
  (*file).Add(u"T", {{u"N"_s, 7}});
  file->Execute(u"Delete * from T WHERE N = 2");
  EXPECT_THAT(AllNumbers(rows), ElementsAre(1, 2, 3));
}

TEST(Recordset, Execute_WhileRowsAreFetched_RowsAreThoseFromBefore) {
  const Numbers file(3);
  Recordset rows = file.Open(u"SELECT N FROM T WHERE N > 0 ORDER BY N");
  static_cast<void>(rows.AtEnd());
  file->Execute(u"UPDATE T SET N = N + 10");
  EXPECT_THAT(AllNumbers(rows), ElementsAre(11, 12, 13));
}

TEST(Recordset, Close_Used_Fails3420) {
  const Numbers file(1);
  Recordset rows = file.Open();
  rows.Close();
  rows.Close();
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(rows.AtEnd()); }), 3420);
  EXPECT_EQ(ErrorNumberOf([&] { rows.MoveNext(); }), 3420);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(rows[u"N"]); }), 3420);
}

TEST(Recordset, DatabaseClosed_EveryUse_Fails3420) {
  const Numbers file(3);
  Recordset rows = file.Open();
  static_cast<void>(rows.AtEnd());
  Recordset untouched = file.Open();
  Recordset adding = file.Open();
  adding.AddNew();
  adding.Set(u"N", 9);
  file->Close();
  file->Close();
  for (Recordset* const each : {&rows, &untouched, &adding}) {
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(each->AtEnd()); }), 3420);
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(each->RecordCount()); }), 3420);
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>((*each)[u"N"]); }), 3420);
    EXPECT_EQ(ErrorNumberOf([&] { each->MoveNext(); }), 3420);
    EXPECT_EQ(ErrorNumberOf([&] { each->AddNew(); }), 3420);
    EXPECT_EQ(ErrorNumberOf([&] { each->Update(); }), 3420);
  }
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(file->TableDefs()); }), 3420);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(file->OpenRecordset(u"T")); }), 3420);
  EXPECT_EQ(ErrorNumberOf([&] { file->Execute(u"Delete * from T"); }), 3420);
  EXPECT_EQ(PlainSqlite((*file).Path()).Number(u"SELECT count(*) FROM T"), 3);
}

TEST(Recordset, ManyRows_KeysBeyond32Bits_AreFound) {
  const Numbers file(2);
  PlainSqlite((*file).Path())
      .Run(u"INSERT INTO T (rowid, N) VALUES (5000000000, 3), (5000000001, 4), (-7, 0)");
  Recordset rows = file.Open();
  EXPECT_THAT(AllNumbers(rows), ElementsAre(0, 1, 2, 3, 4));
}

}  // namespace
}  // namespace velmora::db
