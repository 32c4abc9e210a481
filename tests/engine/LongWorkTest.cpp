// SPDX-License-Identifier: MIT
#include "engine/sqlite/LongWork.h"
#include "tests/engine/PlainSqlite.h"
#include "tests/support/TestDatabase.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace velmora::db {
namespace {

using namespace Qt::StringLiterals;
using test::ErrorNumberOf;
using test::TestDatabase;

/// A file whose rows make work of some seconds when each is set beside each of two others.
class LongWork : public ::testing::Test {
 protected:
  LongWork() {
    m_file.Table(u"T"_s, {{.Name = u"N"_s, .Type = FieldType::Long}});
    for (int i = 0; i < 260; ++i) m_file.Add(u"T", {{u"N"_s, i}});
  }
  ~LongWork() override { SetLongWorkHook({}); }

  [[nodiscard]] std::int32_t CountTriples() {
    return m_file
        ->OpenRecordset(
            u"SELECT Count(*) AS C FROM T AS a, T AS b, T AS c WHERE a.N + b.N = c.N + 1000")[u"C"]
        .Long();
  }

  /// The hook is there before the file is opened; each test says what it does.
  struct Installed {
    Installed() {
      SetLongWorkHook([this] {
        if (Run) Run();
      });
    }
    std::function<void()> Run;
  } m_hook;
  TestDatabase m_file;
};

TEST_F(LongWork, Hook_LongStatement_IsCalledAndChangesNothing) {
  const std::int32_t quiet = CountTriples();
  int calls = 0;
  m_hook.Run = [&calls] { ++calls; };
  EXPECT_EQ(CountTriples(), quiet);
  EXPECT_GT(calls, 0);
}

TEST_F(LongWork, Hook_ColumnDroppedFromManyRows_IsCalled) {
  std::vector<Field> columns{{.Name = u"N"_s, .Type = FieldType::Long}};
  for (int i = 1; i <= 40; ++i) columns.push_back({.Name = u"F%1"_s.arg(i), .Type = FieldType::Long});
  m_file.Table(u"Cards"_s, columns);
  test::PlainSqlite(m_file.Path())
      .Run(
          u"WITH RECURSIVE C(N) AS (SELECT 1 UNION ALL SELECT N + 1 FROM C WHERE N < 800000) "
          u"INSERT INTO Cards (N, F40) SELECT N, -N FROM C");
  int calls = 0;
  m_hook.Run = [&calls] { ++calls; };
  m_file->AsOneTransaction([this] { m_file->DeleteField(u"Cards", u"F1"); });
  EXPECT_GT(calls, 0);
  EXPECT_EQ(m_file->OpenRecordset(u"SELECT * FROM Cards WHERE N = 800000")[u"F40"].Long(), -800000);
}

TEST_F(LongWork, Hook_ShortStatement_IsNotCalled) {
  int calls = 0;
  m_hook.Run = [&calls] { ++calls; };
  for (int i = 0; i < 100; ++i) EXPECT_FALSE(m_file->OpenRecordset(u"SELECT * FROM T WHERE N = 7").AtEnd());
  EXPECT_EQ(calls, 0);
}

TEST_F(LongWork, Hook_UsesTheFile_IsRefusedAndTheStatementGoesOn) {
  const std::int32_t quiet = CountTriples();
  Recordset open = m_file->OpenRecordset(u"SELECT * FROM T");
  QList<int> errors;
  m_hook.Run = [&] {
    errors += ErrorNumberOf([&] { (void)m_file->OpenRecordset(u"T"); });
    errors += ErrorNumberOf([&] { m_file->Execute(u"Delete * from T"); });
    errors += ErrorNumberOf([&] { open.MoveNext(); });
  };
  EXPECT_EQ(CountTriples(), quiet);
  ASSERT_FALSE(errors.isEmpty());
  EXPECT_EQ(errors, QList<int>(errors.size(), 3045));
  m_hook.Run = {};
  EXPECT_EQ(m_file->OpenRecordset(u"T").RecordCount(), 260);
}

TEST_F(LongWork, Hook_Throws_EndsTheStatementAndReachesWhoeverRunsIt) {
  const std::int32_t quiet = CountTriples();
  m_hook.Run = [] { throw std::runtime_error("a fault of the hook's own"); };
  EXPECT_THROW(static_cast<void>(CountTriples()), std::runtime_error);
  m_hook.Run = {};
  EXPECT_EQ(CountTriples(), quiet);
}

TEST_F(LongWork, Hook_ThrowsWhileRowsAreFetched_RowsAreNotTakenTwice) {
  Recordset rows =
      m_file->OpenRecordset(u"SELECT DISTINCT a.N FROM T AS a, T AS b, T AS c WHERE a.N + b.N <> c.N + 1000");
  m_hook.Run = [] { throw std::runtime_error("a fault of the hook's own"); };
  EXPECT_THROW(static_cast<void>(rows.RecordCount()), std::runtime_error);
  m_hook.Run = {};
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(rows.RecordCount()); }), 3000);
}

}  // namespace
}  // namespace velmora::db
