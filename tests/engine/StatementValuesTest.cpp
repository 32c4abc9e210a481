// SPDX-License-Identifier: MIT
#include "engine/rows/Connection.h"
#include "tests/support/TestDatabase.h"

#include <gmock/gmock.h>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::ErrorNumberOf;
using test::TestDatabase;
using testing::ElementsAre;

namespace {

constexpr QStringView ByNumber = u"SELECT * FROM T WHERE N = ?";
constexpr QStringView InTown = u"SELECT * FROM T WHERE Town = ?";

/// A table T of towns, numbered from 1.
class Towns {
 public:
  explicit Towns(const QStringList& towns) {
    m_file.Table(u"T"_s,
                 {{u"N"_s, FieldType::Long}, {u"Town"_s, FieldType::Text, 20}, {u"Due"_s, FieldType::Date}},
                 {{u"I"_s, {u"N"_s}, true, false}});
    int number = 0;
    for (const QString& town : towns) m_file.Add(u"T", {{u"N"_s, ++number}, {u"Town"_s, town}});
  }
  const TestDatabase& operator*() const { return m_file; }
  Database* operator->() const { return &*m_file; }

  [[nodiscard]] std::vector<std::int32_t> Numbers(QStringView source,
                                                  const std::vector<Value>& values) const {
    std::vector<std::int32_t> numbers;
    for (Recordset rows = m_file->OpenRecordset(source, values); !rows.AtEnd(); rows.MoveNext()) {
      numbers.push_back(rows[u"N"].Long());
    }
    return numbers;
  }

 private:
  TestDatabase m_file;
};

int StatementsOf(sqlite3* connection) {
  int count = 0;
  for (sqlite3_stmt* each = nullptr; (each = sqlite3_next_stmt(connection, each)) != nullptr;) ++count;
  return count;
}

TEST(StatementValues, OpenRecordset_OneTextManyValues_GivesEachItsRows) {
  const Towns file({u"Lyon"_s, u"Paris"_s, u"lyon"_s});
  EXPECT_THAT(file.Numbers(InTown, {u"LYON"_s}), ElementsAre(1, 3));
  EXPECT_THAT(file.Numbers(InTown, {u"Paris"_s}), ElementsAre(2));
  EXPECT_THAT(file.Numbers(InTown, {u"Rome"_s}), ElementsAre());
  EXPECT_THAT(file.Numbers(InTown, {Value()}), ElementsAre());
  EXPECT_THAT(file.Numbers(InTown, {u"LYON"_s}), ElementsAre(1, 3));
}

TEST(StatementValues, OpenRecordset_TextWithApostrophe_IsAText) {
  const Towns file({u"L'Aquila"_s, u"x' OR 'a'='a"_s, u"Lyon"_s});
  EXPECT_THAT(file.Numbers(InTown, {u"L'Aquila"_s}), ElementsAre(1));
  EXPECT_EQ(file->Execute(u"Delete * from T WHERE Town = ?", {u"x' OR 'a'='a"_s}), 1);
  EXPECT_EQ((*file).Rows(u"SELECT N FROM T"), (QStringList{u"1"_s, u"3"_s}));
}

TEST(StatementValues, OpenRecordset_ValuesOfOtherKinds_FollowTheRulesOfEach) {
  const Towns file({u"7"_s});
  EXPECT_THAT(file.Numbers(ByNumber, {1}), ElementsAre(1));
  EXPECT_THAT(file.Numbers(ByNumber, {1.0}), ElementsAre(1));
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(file.Numbers(ByNumber, {u"1"_s})); }), 3464);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(file.Numbers(InTown, {7})); }), 3464);
  EXPECT_THAT(file.Numbers(InTown, {u"7"_s}), ElementsAre(1));
}

TEST(StatementValues, OpenRecordset_TextThatIsNoDate_Fails3464BeforeARowIsAsked) {
  const Towns file({u"Lyon"_s});
  const QStringView due = u"SELECT * FROM T WHERE Due > ?";
  EXPECT_THAT(file.Numbers(due, {u"1999-01-01"_s}), ElementsAre());
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(file->OpenRecordset(due, {u"no date"_s})); }), 3464);
}

TEST(StatementValues, OpenRecordset_PatternGivenWholeOrInPart_FindsWhatMatches) {
  const Towns file({u"Lyon"_s, u"Paris"_s, u"100%"_s, u"a*b"_s});
  EXPECT_THAT(file.Numbers(u"SELECT * FROM T WHERE Town LIKE ?", {u"?y*"_s}), ElementsAre(1));
  const QStringView part = u"SELECT * FROM T WHERE Town LIKE '*' & ? & '*'";
  EXPECT_THAT(file.Numbers(part, {u"AR"_s}), ElementsAre(2));
  EXPECT_THAT(file.Numbers(part, {u"%"_s}), ElementsAre(3));
  EXPECT_THAT(file.Numbers(part, {u"[*]"_s}), ElementsAre(4));
}

TEST(StatementValues, OpenRecordset_RowsAreReadOneByOne_EachWithItsValues) {
  const Towns file({u"Lyon"_s, u"Paris"_s});
  const QStringView marked = u"SELECT N, Town & ? AS M FROM T WHERE N >= ? ORDER BY N";
  Recordset first = file->OpenRecordset(marked, {u"!"_s, 1});
  Recordset second = file->OpenRecordset(marked, {u"?"_s, 2});
  EXPECT_EQ(first[u"M"].Text(), u"Lyon!"_s);
  EXPECT_EQ(second[u"M"].Text(), u"Paris?"_s);
  first.MoveNext();
  EXPECT_EQ(first[u"M"].Text(), u"Paris!"_s);
  EXPECT_EQ(first.RecordCount(), 2);
  EXPECT_EQ(second.RecordCount(), 1);
}

TEST(StatementValues, OpenRecordset_GroupedRows_TakeValuesToo) {
  const Towns file({u"Lyon"_s, u"Paris"_s, u"lyon"_s});
  const Recordset rows =
      file->OpenRecordset(u"SELECT Town, Count(*) AS C FROM T WHERE N < ? GROUP BY Town", {4});
  EXPECT_EQ(rows.RecordCount(), 2);
  EXPECT_EQ(rows[u"C"].Long(), 2);
}

TEST(StatementValues, Recordset_OpenedWithValues_CanBeEdited) {
  const Towns file({u"Lyon"_s, u"Paris"_s});
  Recordset rows = file->OpenRecordset(ByNumber, {2});
  rows.Edit();
  rows.Set(u"Town", u"L'Aquila"_s);
  rows.Update();
  EXPECT_EQ(rows[u"Town"].Text(), u"L'Aquila"_s);
  EXPECT_EQ((*file).Rows(u"SELECT Town FROM T"), (QStringList{u"Lyon"_s, u"L'Aquila"_s}));
}

TEST(StatementValues, Execute_InsertUpdateDelete_TakeValues) {
  const Towns file({});
  EXPECT_EQ(
      file->Execute(u"INSERT INTO T (N, Town, Due) VALUES (?, ?, ?)", {1, u"it's"_s, QDate(1999, 2, 1)}), 1);
  EXPECT_EQ(file->Execute(u"UPDATE T SET N = ?, Due = ? WHERE Town = ?", {7, Value(), u"IT'S"_s}), 1);
  EXPECT_EQ((*file).Rows(u"T"), QStringList{u"7|it's|-"_s});
  EXPECT_EQ(file->Execute(u"Delete * from T WHERE N = ?", {6}), 0);
  EXPECT_EQ(file->Execute(u"Delete * from T WHERE N = ?", {7}), 1);
}

TEST(StatementValues, Execute_ValueThatTheColumnCannotTake_FailsAndChangesNothing) {
  const Towns file({u"Lyon"_s});
  const auto set = [&](const Value& town) { file->Execute(u"UPDATE T SET Town = ?", {town}); };
  EXPECT_EQ(ErrorNumberOf([&] { set(QString(21, u'x')); }), 3163);
  EXPECT_EQ(ErrorNumberOf([&] { file->Execute(u"UPDATE T SET N = ?", {u"x"_s}); }), 3421);
  EXPECT_EQ(ErrorNumberOf([&] { file->Execute(u"UPDATE T SET N = ?", {3e9}); }), 3349);
  EXPECT_EQ((*file).Rows(u"T"), QStringList{u"1|Lyon|-"_s});
}

TEST(StatementValues, WrongCount_Always_Fails) {
  const Towns file({u"Lyon"_s});
  const auto open = [&](QStringView source, const std::vector<Value>& values) {
    return ErrorNumberOf([&] { static_cast<void>(file->OpenRecordset(source, values)); });
  };
  EXPECT_EQ(open(ByNumber, {}), 3061);
  EXPECT_EQ(open(ByNumber, {1, 2}), 3001);
  EXPECT_EQ(open(u"T", {1}), 3001);
  EXPECT_EQ(open(ByNumber, {1}), 0);
  EXPECT_EQ(ErrorNumberOf([&] { file->Execute(u"Delete * from T WHERE N = ?"); }), 3061);
}

TEST(StatementValues, StoredQuery_WithPlaceForAValue_IsRefused) {
  const Towns file({u"Lyon"_s});
  EXPECT_EQ(ErrorNumberOf([&] { file->CreateQueryDef(u"Q", ByNumber); }), 3075);
  EXPECT_TRUE(file->QueryDefs().isEmpty());
  file->CreateQueryDef(u"Q", u"SELECT * FROM T");
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(file->OpenRecordset(u"Q", {1})); }), 3001);
  EXPECT_THAT(file.Numbers(u"SELECT * FROM Q WHERE N = ?", {1}), ElementsAre(1));
}

TEST(StatementValues, Statement_OtherValuesOfTheSameKinds_IsTranslatedAndPreparedOnce) {
  const Towns file({u"Lyon"_s, u"Paris"_s, u"Rome"_s});
  Connection connection((*file).Path(), LockKind::Shared);
  const auto read = [&](const Value& number) {
    const auto translation = connection.TranslateSource(ByNumber, ParameterKindsOf({number}));
    const BorrowedStatement statement = connection.Borrow(translation->KeySql);
    return translation;
  };
  const auto first = read(1);
  const int statements = StatementsOf(connection.Handle());
  EXPECT_EQ(read(2), first);
  EXPECT_EQ(read(3), first);
  EXPECT_EQ(StatementsOf(connection.Handle()), statements);
  EXPECT_NE(read(2.5), first);
}

}  // namespace
}  // namespace velmora::db
