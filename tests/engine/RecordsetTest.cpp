// SPDX-License-Identifier: MIT
#include "tests/engine/PlainSqlite.h"
#include "tests/support/TestDatabase.h"

#include <gmock/gmock.h>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::ErrorNumberOf;
using test::PlainSqlite;
using test::TestDatabase;

namespace {

/// A table T of the numbers 1 to `count` with a unique index on them.
class Numbers {
 public:
  explicit Numbers(int count) {
    m_file.Table(u"T"_s,
                 {{u"N"_s, FieldType::Long}, {u"Name"_s, FieldType::Text, 10}, {u"Ok"_s, FieldType::YesNo}},
                 {{u"I"_s, {u"N"_s}, true, false}});
    for (int number = 1; number <= count; ++number) m_file.Add(u"T", {{u"N"_s, number}});
  }
  [[nodiscard]] Recordset Open(QStringView source = u"T") const { return m_file->OpenRecordset(source); }
  const TestDatabase& operator*() const { return m_file; }
  Database* operator->() const { return &*m_file; }

 private:
  TestDatabase m_file;
};

std::vector<std::int32_t> AllNumbers(Recordset& rows) {
  std::vector<std::int32_t> numbers;
  if (rows.RecordCount() > 0) {
    for (rows.MoveFirst(); !rows.AtEnd(); rows.MoveNext()) numbers.push_back(rows[u"N"].Long());
  }
  return numbers;
}

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

TEST(Recordset, Set_WithoutEditOrAddNew_Fails3020) {
  const Numbers file(1);
  Recordset rows = file.Open();
  EXPECT_EQ(ErrorNumberOf([&] { rows.Set(u"N", 5); }), 3020);
  EXPECT_EQ(ErrorNumberOf([&] { rows.Update(); }), 3020);
  rows.Edit();
  rows.Update();
  EXPECT_EQ(ErrorNumberOf([&] { rows.Update(); }), 3020);
  EXPECT_EQ(ErrorNumberOf([&] { rows.Set(u"N", 5); }), 3020);
}

TEST(Recordset, Edit_ThenUpdate_WritesAndStaysOnTheRow) {
  const Numbers file(3);
  Recordset rows = file.Open();
  rows.MoveNext();
  rows.Edit();
  rows.Set(u"Name", u"Bob"_s);
  EXPECT_EQ(rows[u"Name"], Value(u"Bob"_s));
  rows.Set(u"NAME", u"Zoe"_s);
  rows.Update();
  EXPECT_EQ(rows[u"N"], Value(2));
  EXPECT_EQ(rows[u"Name"], Value(u"Zoe"_s));
  EXPECT_EQ((*file).Rows(u"T"), (QStringList{u"1|-|0"_s, u"2|Zoe|0"_s, u"3|-|0"_s}));
}

TEST(Recordset, Pending_EditOrAddNew_IsDroppedByAnyMove) {
  const Numbers file(3);
  const std::vector<std::function<void(Recordset&)>> moves{
      [](Recordset& rows) { rows.MoveNext(); }, [](Recordset& rows) { rows.MoveFirst(); },
      [](Recordset& rows) { rows.MoveLast(); }, [](Recordset& rows) { rows.MovePrevious(); },
      [](Recordset& rows) { rows.MoveTo(1); },  [](Recordset& rows) { rows.CancelUpdate(); },
      [](Recordset& rows) { rows.Close(); }};
  for (const auto& move : moves) {
    for (const bool adds : {true, false}) {
      Recordset rows = file.Open();
      rows.MoveNext();
      if (adds) {
        rows.AddNew();
      } else {
        rows.Edit();
      }
      rows.Set(u"N", 77);
      move(rows);
      EXPECT_EQ((*file).Rows(u"SELECT N FROM T"), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
      EXPECT_NE(ErrorNumberOf([&] { rows.Update(); }), 0);
    }
  }
}

TEST(Recordset, AddNew_AfterEdit_DropsTheEdit) {
  const Numbers file(1);
  Recordset rows = file.Open();
  rows.Edit();
  rows.Set(u"Name", u"lost"_s);
  rows.AddNew();
  EXPECT_TRUE(rows[u"Name"].IsNull());
  EXPECT_EQ(rows[u"Ok"], Value(false));
  rows.Set(u"N", 2);
  rows.Update();
  EXPECT_EQ((*file).Rows(u"T"), (QStringList{u"1|-|0"_s, u"2|-|0"_s}));
}

TEST(Recordset, AddNewUpdate_FormerRow_StaysCurrentAndTheNewOneIsLast) {
  const Numbers file(3);
  Recordset rows = file.Open();
  rows.MoveNext();
  rows.AddNew();
  rows.Set(u"N", 9);
  rows.Update();
  EXPECT_EQ(rows[u"N"], Value(2));
  EXPECT_EQ(rows.RecordCount(), 4);
  rows.MoveLast();
  EXPECT_EQ(rows[u"N"], Value(9));
}

TEST(Recordset, AddNewUpdate_NothingSet_AddsARowOfNulls) {
  const Numbers file(0);
  Recordset rows = file.Open();
  rows.AddNew();
  rows.Update();
  EXPECT_EQ((*file).Rows(u"T"), QStringList{u"-|-|0"_s});
}

TEST(Recordset, AddNewUpdate_EmptyRecordset_StaysAtEndUntilAMove) {
  const Numbers file(0);
  Recordset rows = file.Open();
  rows.AddNew();
  rows.Set(u"N", 1);
  rows.Update();
  EXPECT_TRUE(rows.AtEnd());
  EXPECT_EQ(rows.RecordCount(), 1);
  rows.MoveFirst();
  EXPECT_EQ(rows[u"N"], Value(1));
}

TEST(Recordset, AddNewUpdate_WhileRowsAreFetched_EachRowComesOnce) {
  const Numbers file(3);
  for (const auto* source :
       {u"T", u"SELECT * FROM T ORDER BY N", u"SELECT * FROM T WHERE N > 0 ORDER BY N DESC"}) {
    Recordset rows = file.Open(source);
    static_cast<void>(rows.AtEnd());
    rows.AddNew();
    rows.Set(u"N", static_cast<int>(file->OpenRecordset(u"T").RecordCount()) + 1);
    rows.Update();
    auto numbers = AllNumbers(rows);
    const std::int32_t added = numbers.back();
    std::sort(numbers.begin(), numbers.end());
    EXPECT_EQ(std::unique(numbers.begin(), numbers.end()), numbers.end());
    EXPECT_EQ(numbers.size(), static_cast<std::size_t>(added));
  }
}

TEST(Recordset, Update_KeyThatExists_Fails3022AndCanBeMended) {
  const Numbers file(3);
  Recordset rows = file.Open();
  rows.AddNew();
  rows.Set(u"N", 2);
  rows.Set(u"Name", u"kept"_s);
  EXPECT_EQ(ErrorNumberOf([&] { rows.Update(); }), 3022);
  EXPECT_EQ(rows[u"Name"], Value(u"kept"_s));
  rows.Set(u"N", 4);
  rows.Update();
  rows.Edit();
  rows.Set(u"N", 4);
  EXPECT_EQ(ErrorNumberOf([&] { rows.Update(); }), 3022);
  rows.Set(u"N", 10);
  rows.Update();
  EXPECT_EQ((*file).Rows(u"SELECT N, [Name] FROM T"),
            (QStringList{u"10|-"_s, u"2|-"_s, u"3|-"_s, u"4|kept"_s}));
}

TEST(Recordset, Update_TwoNullKeys_AreTaken) {
  const Numbers file(0);
  (*file).Add(u"T", {{u"N"_s, Value()}});
  (*file).Add(u"T", {{u"N"_s, Value()}});
  EXPECT_EQ(file.Open().RecordCount(), 2);
}

TEST(Recordset, Update_KeyMovedWhileWalkingItsIndex_EachRowComesOnce) {
  const Numbers file(5);
  Recordset rows = file.Open(u"SELECT * FROM T WHERE N > 0 ORDER BY N");
  int steps = 0;
  for (; !rows.AtEnd() && steps < 100; rows.MoveNext(), ++steps) {
    rows.Edit();
    rows.Set(u"N", rows[u"N"].Long() + 100);
    rows.Update();
  }
  EXPECT_EQ(steps, 5);
}

TEST(Recordset, Delete_CurrentRow_LeavesItsPlaceAtTheNextMove) {
  const Numbers file(3);
  Recordset rows = file.Open();
  rows.MoveNext();
  rows.Delete();
  EXPECT_FALSE(rows.AtEnd());
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(rows[u"N"]); }), 3167);
  EXPECT_EQ(ErrorNumberOf([&] { rows.Edit(); }), 3167);
  EXPECT_EQ(ErrorNumberOf([&] { rows.Delete(); }), 3167);
  EXPECT_EQ(rows.RecordCount(), 2);
  rows.MoveNext();
  EXPECT_EQ(rows[u"N"], Value(3));
  EXPECT_THAT(AllNumbers(rows), ElementsAre(1, 3));
}

TEST(Recordset, Delete_ThenMovePrevious_IsTheRowBefore) {
  const Numbers file(3);
  Recordset rows = file.Open();
  rows.MoveNext();
  rows.Delete();
  rows.MovePrevious();
  EXPECT_EQ(rows[u"N"], Value(1));
  rows.Delete();
  rows.MovePrevious();
  EXPECT_TRUE(rows.AtStart());
  rows.MoveNext();
  EXPECT_EQ(rows[u"N"], Value(3));
}

TEST(Recordset, Delete_EveryRowInALoop_EmptiesTheTable) {
  const Numbers file(4);
  Recordset rows = file.Open();
  for (; !rows.AtEnd(); rows.MoveNext()) rows.Delete();
  EXPECT_EQ(rows.RecordCount(), 0);
  EXPECT_TRUE(rows.AtStart());
  EXPECT_EQ(ErrorNumberOf([&] { rows.MoveFirst(); }), 3021);
  EXPECT_TRUE((*file).Rows(u"T").isEmpty());
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
