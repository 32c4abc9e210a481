// SPDX-License-Identifier: MIT
#include "tests/engine/FailingWrites.h"
#include "tests/engine/PlainSqlite.h"
#include "tests/support/TestDatabase.h"

#include <functional>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::ErrorNumberOf;
using test::FailingWrites;
using test::PlainSqlite;
using test::TestDatabase;

namespace {

const Field Number{u"N"_s, FieldType::Long};
const Field Name{u"Name"_s, FieldType::Text, 50};

/// What a plain tool sees of the whole file: structure and rows.
std::string Everything(const QString& path) {
  const PlainSqlite plain(path);
  QStringList rows = plain.Rows(u"SELECT type, name, sql FROM sqlite_schema ORDER BY name");
  for (const auto* table : {u"T", u".Queries", u".Properties"})
    rows += plain.Rows(u"SELECT * FROM \"%1\""_s.arg(table));
  return rows.join(u'\n').toStdString();
}

struct ChangeCase {
  const char* Name;
  std::function<void(Database&)> Change;
};

class FailingChange : public testing::TestWithParam<ChangeCase> {
 protected:
  static void Prepare(const TestDatabase& file) {
    file.Table(u"T"_s, {Number, Name}, {{u"I"_s, {u"N"_s}, true, false}});
    file.Add(u"T", {{u"N"_s, 1}, {u"Name"_s, u"Ann"_s}});
    file.Add(u"T", {{u"N"_s, 2}, {u"Name"_s, u"Bob"_s}});
    file->CreateQueryDef(u"Q", u"SELECT * FROM T");
    file->SetTableProperty(u"T", u"Look", u"blue"_s);
    file.Table(u"Spare"_s, {Number}, {{u"I"_s, {u"N"_s}, true, false}});
    file->SetTableProperty(u"Spare", u"Look", u"green"_s);
  }
};

TEST_P(FailingChange, AnyChange_StoppedAtAnyStep_LeavesNothingHalfWritten) {
  const FailingWrites failing;
  const TestDatabase changed;
  Prepare(changed);
  GetParam().Change(*changed);
  const std::string after = Everything(changed.Path());
  const TestDatabase file;
  Prepare(file);
  const std::string before = Everything(file.Path());
  int failures = 0;
  std::string now = before;
  for (int steps = 0; now == before; ++steps) {
    FailingWrites::FailAfterSteps(steps);
    const int error = ErrorNumberOf([&] { GetParam().Change(*file); });
    FailingWrites::Stop();
    if (error != 0) ++failures;
    now = Everything(file.Path());
    // SQLite can be stopped for the last time just behind its commit.
    ASSERT_TRUE(now == before || now == after) << "stopped after step " << steps << ": " << now;
  }
  EXPECT_GT(failures, 0);
  EXPECT_EQ(now, after);
}

TEST_P(FailingChange, AnyChange_CommitFails_LeavesEverythingAndWorksTheNextTime) {
  const FailingWrites failing;
  const TestDatabase file;
  Prepare(file);
  const std::string before = Everything(file.Path());
  FailingWrites::FailNextCommit();
  EXPECT_NE(ErrorNumberOf([&] { GetParam().Change(*file); }), 0);
  EXPECT_EQ(Everything(file.Path()), before);
  GetParam().Change(*file);
  EXPECT_NE(Everything(file.Path()), before);
}

INSTANTIATE_TEST_SUITE_P(
    Changes, FailingChange,
    testing::Values(
        ChangeCase{"AppendTableDef",
                   [](Database& file) {
                     file.AppendTableDef(
                         {u"New"_s,
                          {Number, Name},
                          {{u"I"_s, {u"N"_s}, true, false}, {u"J"_s, {u"Name"_s}, false, false}}});
                   }},
        ChangeCase{"DeleteTableDef", [](Database& file) { file.DeleteTableDef(u"Spare"); }},
        ChangeCase{"AppendField",
                   [](Database& file) {
                     file.AppendField(u"T", {u"Ok"_s, FieldType::YesNo});
                   }},
        ChangeCase{"DeleteField", [](Database& file) { file.DeleteField(u"T", u"Name"); }},
        ChangeCase{"CreateQueryDef", [](Database& file) { file.CreateQueryDef(u"R", u"SELECT * FROM T"); }},
        ChangeCase{"ReplaceQueryDef", [](Database& file) { file.ReplaceQueryDef(u"Q", u"SELECT N FROM T"); }},
        ChangeCase{"DeleteQueryDef", [](Database& file) { file.DeleteQueryDef(u"Q"); }},
        ChangeCase{"SetTableProperty",
                   [](Database& file) { file.SetTableProperty(u"T", u"Look", u"red"_s); }},
        ChangeCase{"Update",
                   [](Database& file) {
                     Recordset rows = file.OpenRecordset(u"T");
                     rows.Edit();
                     rows.Set(u"Name", u"Zoe"_s);
                     rows.Update();
                   }},
        ChangeCase{"AddNew",
                   [](Database& file) {
                     Recordset rows = file.OpenRecordset(u"T");
                     rows.AddNew();
                     rows.Set(u"N", 3);
                     rows.Update();
                   }},
        ChangeCase{"Delete", [](Database& file) { file.OpenRecordset(u"T").Delete(); }},
        ChangeCase{"Execute", [](Database& file) { file.Execute(u"UPDATE T SET N = N + 10, Name = 'x'"); }}),
    [](const testing::TestParamInfo<ChangeCase>& entry) { return std::string(entry.param.Name); });

}  // namespace
}  // namespace velmora::db
