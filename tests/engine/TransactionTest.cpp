// SPDX-License-Identifier: MIT
#include "engine/rows/Connection.h"
#include "tests/engine/PlainSqlite.h"
#include "tests/support/TestDatabase.h"

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::ErrorNumberOf;
using test::PlainSqlite;
using test::TestDatabase;

namespace {

class OpenTransaction : public testing::Test {
 protected:
  OpenTransaction() { m_file.Table(u"T"_s, {{.Name = u"N"_s, .Type = FieldType::Long}}); }
  void AddRow() { m_connection.Borrow(u"INSERT INTO T (N) VALUES (1)"_s).Step(); }
  [[nodiscard]] qlonglong RowsInFile() const {
    return PlainSqlite(m_file.Path()).Number(u"SELECT count(*) FROM T");
  }

  TestDatabase m_file;
  Connection m_connection{m_file.Path(), LockKind::Shared};
};

TEST_F(OpenTransaction, AnotherBegunWithin_FailsAndTheOuterOneGoesOn) {
  Transaction outer(m_connection);
  AddRow();
  EXPECT_NE(ErrorNumberOf([&] { const Transaction inner(m_connection); }), 0);
  AddRow();
  outer.Commit();
  EXPECT_EQ(RowsInFile(), 2);
}

TEST_F(OpenTransaction, GoesWithoutCommit_IsRolledBack) {
  {
    const Transaction transaction(m_connection);
    AddRow();
  }
  EXPECT_EQ(RowsInFile(), 0);
}

TEST_F(OpenTransaction, BeginThatFails_LeavesNoneOpen) {
  const PlainSqlite other(m_file.Path());
  other.Run(u"BEGIN EXCLUSIVE");
  sqlite3_busy_timeout(m_connection.Handle(), 0);
  EXPECT_EQ(ErrorNumberOf([&] { const Transaction refused(m_connection); }), 3045);
  other.Run(u"ROLLBACK");
  Transaction transaction(m_connection);
  AddRow();
  transaction.Commit();
  EXPECT_EQ(RowsInFile(), 1);
}

class OneTransaction : public testing::Test {
 protected:
  OneTransaction() { m_file.Table(u"T"_s, {{.Name = u"N"_s, .Type = FieldType::Long}}); }
  void AddRow(int value) { m_file.Add(u"T", {{u"N"_s, value}}); }
  [[nodiscard]] QStringList RowsInFile() const { return PlainSqlite(m_file.Path()).Rows(u"SELECT N FROM T"); }

  TestDatabase m_file;
};

TEST_F(OneTransaction, RunsToItsEnd_AllChangesReachTheFileAtOnce) {
  QStringList seenMeanwhile{u"not asked"_s};
  m_file->AsOneTransaction([&] {
    AddRow(1);
    m_file->Execute(u"UPDATE T SET N = 2");
    m_file->AppendField(u"T", {.Name = u"M"_s, .Type = FieldType::Text, .Size = 9});
    m_file.Add(u"T", {{u"N"_s, 3}, {u"M"_s, u"x"_s}});
    seenMeanwhile = RowsInFile();
  });
  EXPECT_EQ(seenMeanwhile, QStringList());
  EXPECT_EQ(m_file.Rows(u"T"), QStringList({u"2|-"_s, u"3|x"_s}));
  EXPECT_EQ(RowsInFile(), QStringList({u"2"_s, u"3"_s}));
}

TEST_F(OneTransaction, Throws_TakesBackRowsStructureAndQueries) {
  AddRow(1);
  m_file->CreateQueryDef(u"Q", u"SELECT * FROM T");
  EXPECT_EQ(ErrorNumberOf([&] {
              m_file->AsOneTransaction([&] {
                AddRow(2);
                m_file->DeleteQueryDef(u"Q");
                m_file->AppendTableDef({u"U"_s, {{.Name = u"A"_s}}, {}});
                m_file->AppendField(u"T", {.Name = u"M"_s});
                m_file->DeleteTableDef(u"Missing");
              });
            }),
            3265);
  EXPECT_EQ(m_file->TableDefs(), QStringList{u"T"_s});
  EXPECT_EQ(m_file->QueryDefs(), QStringList{u"Q"_s});
  EXPECT_EQ(m_file.Rows(u"T"), QStringList{u"1"_s});
  AddRow(3);
  EXPECT_EQ(RowsInFile(), QStringList({u"1"_s, u"3"_s}));
}

TEST_F(OneTransaction, PartThatFailsAndIsSkipped_LeavesTheRest) {
  m_file->AsOneTransaction([&] {
    AddRow(1);
    EXPECT_EQ(ErrorNumberOf([&] { m_file->AppendField(u"T", {.Name = u"n"_s}); }), 3191);
    EXPECT_EQ(ErrorNumberOf([&] {
                m_file->AsOneTransaction([&] {
                  AddRow(2);
                  m_file->DeleteTableDef(u"Missing");
                });
              }),
              3265);
    AddRow(3);
  });
  EXPECT_EQ(RowsInFile(), QStringList({u"1"_s, u"3"_s}));
}

TEST_F(OneTransaction, SqliteTakesItBackMeanwhile_NothingMoreIsWritten) {
  Connection connection(m_file.Path(), LockKind::Shared);
  EXPECT_EQ(ErrorNumberOf([&] {
              connection.AsOneTransaction([&] {
                sqlite3_exec(connection.Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
                Transaction part(connection);
                connection.Borrow(u"INSERT INTO T (N) VALUES (1)"_s).Step();
                part.Commit();
              });
            }),
            3000);
  EXPECT_EQ(RowsInFile(), QStringList());
}

TEST_F(OneTransaction, RowsThatAreOpen_GoOnAfterIt) {
  for (int i = 1; i <= 3; ++i) AddRow(i);
  Recordset rows = m_file->OpenRecordset(u"T");
  m_file->AsOneTransaction([&] { m_file->AppendField(u"T", {.Name = u"M"_s}); });
  rows.MoveNext();
  EXPECT_EQ(rows[u"N"].Long(), 2);
  EXPECT_EQ(rows.RecordCount(), 3);
}

}  // namespace
}  // namespace velmora::db
