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
TEST(RecordsetWriting, Set_WithoutEditOrAddNew_Fails3020) {
  const Numbers file(1);
  Recordset rows = file.Open();
  EXPECT_EQ(ErrorNumberOf([&] { rows.Set(u"N", 5); }), 3020);
  EXPECT_EQ(ErrorNumberOf([&] { rows.Update(); }), 3020);
  rows.Edit();
  rows.Update();
  EXPECT_EQ(ErrorNumberOf([&] { rows.Update(); }), 3020);
  EXPECT_EQ(ErrorNumberOf([&] { rows.Set(u"N", 5); }), 3020);
}

TEST(RecordsetWriting, Edit_ThenUpdate_WritesAndStaysOnTheRow) {
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

TEST(RecordsetWriting, Pending_EditOrAddNew_IsDroppedByAnyMove) {
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

TEST(RecordsetWriting, AddNew_AfterEdit_DropsTheEdit) {
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

TEST(RecordsetWriting, AddNewUpdate_FormerRow_StaysCurrentAndTheNewOneIsLast) {
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

TEST(RecordsetWriting, AddNewUpdate_NothingSet_AddsARowOfNulls) {
  const Numbers file(0);
  Recordset rows = file.Open();
  rows.AddNew();
  rows.Update();
  EXPECT_EQ((*file).Rows(u"T"), QStringList{u"-|-|0"_s});
}

TEST(RecordsetWriting, AddNewUpdate_EmptyRecordset_StaysAtEndUntilAMove) {
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

TEST(RecordsetWriting, AddNewUpdate_WhileRowsAreFetched_EachRowComesOnce) {
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

TEST(RecordsetWriting, Update_KeyThatExists_Fails3022AndCanBeMended) {
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

TEST(RecordsetWriting, Update_TwoNullKeys_AreTaken) {
  const Numbers file(0);
  (*file).Add(u"T", {{u"N"_s, Value()}});
  (*file).Add(u"T", {{u"N"_s, Value()}});
  EXPECT_EQ(file.Open().RecordCount(), 2);
}

TEST(RecordsetWriting, Update_KeyMovedWhileWalkingItsIndex_EachRowComesOnce) {
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

TEST(RecordsetWriting, Delete_CurrentRow_LeavesItsPlaceAtTheNextMove) {
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

TEST(RecordsetWriting, Delete_ThenMovePrevious_IsTheRowBefore) {
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

TEST(RecordsetWriting, Delete_EveryRowInALoop_EmptiesTheTable) {
  const Numbers file(4);
  Recordset rows = file.Open();
  for (; !rows.AtEnd(); rows.MoveNext()) rows.Delete();
  EXPECT_EQ(rows.RecordCount(), 0);
  EXPECT_TRUE(rows.AtStart());
  EXPECT_EQ(ErrorNumberOf([&] { rows.MoveFirst(); }), 3021);
  EXPECT_TRUE((*file).Rows(u"T").isEmpty());
}

}  // namespace
}  // namespace velmora::db
