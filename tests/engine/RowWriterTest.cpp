// SPDX-License-Identifier: MIT
#include "engine/file/FileAccess.h"
#include "engine/file/FileConnection.h"
#include "engine/repair/RowWriter.h"
#include "tests/engine/CardFileOnDisk.h"
#include "tests/engine/FailingWrites.h"
#include "tests/support/TestDatabase.h"

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::CardFileOnDisk;
using test::ErrorNumberOf;
using test::FailingWrites;

namespace {

TEST(RowWriter, ReadingTheColumnsFails_IsAnErrorAndNoShorterTable) {
  const CardFileOnDisk file(3);
  const FailingWrites failing;
  const ConnectionHandle connection = OpenNew(file.Path());
  const std::size_t all = RowWriter(connection.get(), u"MainData"_s).Affinities().size();
  int failures = 0;
  for (int steps = 0; steps < 400; ++steps) {
    std::size_t columns = 0;
    FailingWrites::FailAfterSteps(steps);
    const int error =
        ErrorNumberOf([&] { columns = RowWriter(connection.get(), u"MainData"_s).Affinities().size(); });
    FailingWrites::Stop();
    if (error != 0) {
      ++failures;
    } else {
      ASSERT_EQ(columns, all) << steps;
    }
  }
  EXPECT_GT(failures, 3);
}

TEST(RowWriter, ValueThatSqliteRefuses_IsAnErrorAndNoNull) {
  const CardFileOnDisk file(3);
  const ConnectionHandle connection = OpenNew(file.Path());
  RowWriter writer(connection.get(), u"MainData"_s);
  SavedRow row;
  row.RowId = 1000;
  row.Row.Values.resize(writer.Affinities().size());
  row.Row.Values[1] = {.Type = RawValue::Kind::Text, .Bytes = QByteArray(5000, 'x')};
  sqlite3_limit(connection.get(), SQLITE_LIMIT_LENGTH, 4000);
  EXPECT_NE(ErrorNumberOf([&] { writer.Put(row); }), 0);
  EXPECT_EQ(QueryNumber(connection.get(), u"SELECT count(*) FROM MainData WHERE rowid = 1000"), 0);
}

}  // namespace
}  // namespace velmora::db
