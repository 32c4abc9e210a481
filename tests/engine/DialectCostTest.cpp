// SPDX-License-Identifier: MIT
#include "engine/dialect/Dialect.h"
#include "engine/values/Error.h"
#include "tests/engine/SampleFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

constexpr auto Seek = "SEARCH t1 USING"_L1;
constexpr auto Sort = "TEMP B-TREE"_L1;

struct Plan {
  const char* Statement;
  bool UsesIndex;
  bool Sorts;
};

void PrintTo(const Plan& plan, std::ostream* out) { *out << plan.Statement; }

// A step between cards reads one entry of the index, whatever the number of cards.
const Plan Plans[] = {
    {"Select * from MainData WHERE [Index@] = 20", true, false},
    {"Select * from MainData WHERE [Index@] = 20 OR [Index@] = 30", true, true},
    {"Select * from MainData WHERE [Index@] IN (20, 30)", true, true},
    {"Select * from MainData WHERE [Index@] BETWEEN 30 AND 20 ORDER BY [Index@]", true, false},
    {"Select * from MainData WHERE [Index@] > 20 ORDER BY [Index@]", true, false},
    {"Select * from MainData WHERE [Index@] < 20 ORDER BY [Index@] DESC", true, false},
    {"Select * from MainData ORDER BY [Index@]", false, false},
    {"Select * from MainData ORDER BY [Index@] DESC", false, false},
    {"Select * from [Customers&] WHERE [Index@] = 20", true, false},
    {"Select * from Agent WHERE Index = 10", true, false},
    {"Select * from Agent ORDER BY Index", false, false},
    {"Select * from MainData", false, false},
    {"Select * from MainData WHERE Company LIKE '*a*'", false, false},
};

}  // namespace

class DialectCost : public testing::TestWithParam<Plan> {};

TEST_P(DialectCost, Keys_OfStatement_TakeTheIndexAndDoNotSort) {
  const auto& [text, usesIndex, sorts] = GetParam();
  SampleFile file;
  const Translation translation = Translate(*ParseStatement(QString::fromUtf8(text)), file);
  const QString plan = file.PlanOf(translation.KeySql);
  EXPECT_EQ(plan.contains(Seek), usesIndex) << plan.toStdString();
  EXPECT_EQ(plan.contains(Sort), sorts) << plan.toStdString();
}

INSTANTIATE_TEST_SUITE_P(All, DialectCost, testing::ValuesIn(Plans));

TEST(DialectCost, ValuesGiven_TakeTheIndexAndDoNotSort) {
  SampleFile file;
  const auto planOf = [&](QStringView text, const ParameterKinds& kinds) {
    return file.PlanOf(Translate(*ParseStatement(text, ParameterUse::Allowed), file, kinds).KeySql);
  };
  constexpr ParameterKind number = ParameterKind::Long;
  for (const QString& plan :
       {planOf(u"Select * from MainData WHERE [Index@] = ?", {number}),
        planOf(u"Select * from MainData WHERE [Index@] BETWEEN ? AND ? ORDER BY [Index@]", {number, number}),
        planOf(u"Select * from MainData WHERE [Index@] < ? ORDER BY [Index@] DESC", {number})}) {
    EXPECT_TRUE(plan.contains(Seek)) << plan.toStdString();
    EXPECT_FALSE(plan.contains(Sort)) << plan.toStdString();
  }
}

/// Whether SQLite knows that the pattern stays the same for all rows, so that it is read once: it marks the
/// arguments of a call that do.
bool KeepsPattern(SampleFile& file, const QString& pattern, const ParameterKinds& kinds) {
  const QString text = u"SELECT * FROM MainData WHERE City LIKE "_s + pattern;
  const QString sql = Translate(*ParseStatement(text, ParameterUse::Allowed), file, kinds).KeySql;
  const StatementHandle steps = Prepare(file.Handle(), u"EXPLAIN "_s + sql);
  while (Step(steps.get())) {
    if (ColumnText(steps.get(), 5) == "like(2)"_L1) return (sqlite3_column_int(steps.get(), 2) & 1) != 0;
  }
  return false;
}

TEST(DialectCost, PatternGivenAsValue_IsReadOnceForAllRows) {
  SampleFile file;
  const ParameterKinds text{ParameterKind::Text};
  EXPECT_TRUE(KeepsPattern(file, u"'*a*'"_s, {}));
  EXPECT_TRUE(KeepsPattern(file, u"?"_s, text));
  EXPECT_TRUE(KeepsPattern(file, u"'*' & ? & '*'"_s, text));
  EXPECT_TRUE(KeepsPattern(file, u"'*' & ?"_s, {ParameterKind::Long}));
  EXPECT_FALSE(KeepsPattern(file, u"Company & ?"_s, text));
}

TEST(DialectCost, Delete_ByCardNumber_TakesTheIndex) {
  SampleFile file;
  const QString sql = Translate(*ParseStatement(u"Delete * from MainData WHERE [Index@] = 5"), file).Sql;
  EXPECT_TRUE(file.PlanOf(sql).contains(u"SEARCH t1 USING"_s)) << sql.toStdString();
}

TEST(DialectCost, SubqueryOverStoredQuery_IsAskedOnce) {
  SampleFile file;
  const auto statement =
      ParseStatement(u"SELECT * FROM MainData WHERE [Index@] = ANY (SELECT [Index@] FROM [Customers&])");
  const QString plan = file.PlanOf(Translate(*statement, file).KeySql);
  EXPECT_FALSE(plan.contains(u"CORRELATED"_s)) << plan.toStdString();
}

TEST(DialectCost, ManyConditions_Picked_StillRun) {
  SampleFile file;
  QStringList conditions;
  for (int i = 0; i < 5000; ++i) conditions.append(u"[City]  Like '*town %1*'"_s.arg(i));
  const QString any = u"SELECT [Index@] FROM MainData WHERE ("_s + conditions.join(u" OR "_s) + u')';
  EXPECT_EQ(file.Rows(any), QString());
  const QString all = u"SELECT [Index@] FROM MainData WHERE NOT ("_s + conditions.join(u" AND "_s) + u')';
  EXPECT_EQ(file.Rows(all).split(u'|').size(), 5);
}

TEST(DialectCost, DateConditions_WrappedManyTimes_StillRun) {
  SampleFile file;
  QString clause = u"[Due] >=   DateValue('1/2/1999') "_s;
  for (int i = 0; i < 60; ++i) clause = u'(' + clause + u" AND [Due]  <=   DateValue('3/4/1999') )"_s;
  EXPECT_EQ(file.Rows(u"SELECT [Index@] FROM MainData WHERE ("_s + clause + u')'), u"30|10"_s);
}

TEST(DialectCost, LongRowOfJoinedTexts_StillRuns) {
  SampleFile file;
  const QString row = QString(u"'a' & "_s).repeated(500) + u"'a'"_s;
  EXPECT_EQ(file.Rows(u"SELECT Len("_s + row + u')'), u"501"_s);
}

// A stranger's file may hold queries made to exhaust the program.
TEST(DialectLimits, QueriesThatDoubleEachOther_AreRefused) {
  SampleFile file;
  file.StoreQuery(u"D0"_s, u"SELECT Company & Company AS x FROM MainData"_s);
  for (int i = 1; i < 45; ++i) {
    file.StoreQuery(u"D%1"_s.arg(i), u"SELECT x & x AS x FROM D%1"_s.arg(i - 1));
  }
  EXPECT_THROW(static_cast<void>(file.Rows(u"SELECT * FROM D44")), Error);
}

TEST(DialectLimits, QueriesThatAskEachOtherTwice_AreRefused) {
  SampleFile file;
  file.StoreQuery(u"E0"_s, u"SELECT [Index@] FROM MainData"_s);
  for (int i = 1; i < 45; ++i) {
    file.StoreQuery(u"E%1"_s.arg(i),
                    u"SELECT [Index@] FROM MainData WHERE [Index@] IN (SELECT [Index@] FROM E%1) "
                    "OR [Index@] IN (SELECT [Index@] FROM E%1)"_s.arg(i - 1));
  }
  EXPECT_THROW(static_cast<void>(file.Rows(u"SELECT * FROM E44")), Error);
}

TEST(DialectLimits, DeepNesting_OfEveryKind_IsRefusedAndDoesNotCrash) {
  SampleFile file;
  constexpr int depth = 20'000;
  const auto repeated = [](const QString& text) { return text.repeated(depth); };
  const QString statements[] = {
      u"SELECT "_s + repeated(u"("_s) + u'1' + repeated(u")"_s),
      u"SELECT "_s + repeated(u"-"_s) + u'1',
      u"SELECT "_s + repeated(u"NOT "_s) + u'1',
      u"SELECT "_s + repeated(u"Len("_s) + u'1' + repeated(u")"_s),
      u"SELECT "_s + repeated(u"1 + "_s) + u'1',
      u"SELECT "_s + repeated(u"1 = "_s) + u'1',
      u"SELECT 1"_s + repeated(u" LIKE 1"_s),
      u"SELECT "_s + repeated(u"1 IN ("_s) + u'1' + repeated(u")"_s),
      u"SELECT "_s + repeated(u"(SELECT "_s) + u'1' + repeated(u")"_s),
      u"SELECT * FROM "_s + repeated(u"("_s) + u"MainData"_s + repeated(u")"_s),
      u"SELECT * FROM "_s + repeated(u"(SELECT * FROM "_s) + u"MainData"_s + repeated(u") AS x"_s),
      u"SELECT * FROM MainData"_s + repeated(u" INNER JOIN MainData ON 1 = 1"_s),
      u"SELECT 1"_s + repeated(u" UNION SELECT 1"_s),
  };
  for (const QString& statement : statements) {
    EXPECT_THROW(static_cast<void>(file.Rows(statement)), Error) << statement.left(40).toStdString();
  }
}

}  // namespace velmora::db
