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

}  // namespace
}  // namespace velmora::db
