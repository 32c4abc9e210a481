// SPDX-License-Identifier: MIT
#include "queries/WhereGenerator.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

QueryField Text(const QStringList& lines, const QString& name = u"City"_s) {
  return {name, FieldKind::Text, lines};
}
QueryField Number(const QStringList& lines) { return {u"Turnover"_s, FieldKind::Number, lines}; }
QueryField YesNo(const QStringList& lines) { return {u"Active"_s, FieldKind::YesNo, lines}; }
QueryField Date(const QStringList& lines) { return {u"Due"_s, FieldKind::Date, lines}; }

QueryModel Query(std::vector<QueryField> firstPage) {
  QueryModel query;
  query.Pages[0] = std::move(firstPage);
  return query;
}

QueryModel Narrowing(const QString& base, std::vector<QueryField> firstPage) {
  QueryModel query = Query(std::move(firstPage));
  query.BaseQuery = base;
  return query;
}

std::string And(const QueryModel& query) { return BuildWhereAnd(query).toStdString(); }
std::string Or(const QueryModel& query) { return BuildWhereOr(query).toStdString(); }

}  // namespace

TEST(WhereGenerator, BuildWhere_NoLineAndAllCards_IsEmpty) {
  EXPECT_EQ(And({}), "");
  EXPECT_EQ(Or({}), "");
  EXPECT_EQ(And(Query({Text({}), Number({})})), "");
}

TEST(WhereGenerator, BuildWhereAnd_TwoCitiesAndANumber_JoinsLinesByOrAndFieldsByAnd) {
  EXPECT_EQ(And(Query({Text({u"Paris"_s, u"Lyon"_s}), Number({u"> 100"_s})})),
            "WHERE ([City]  Like '*Paris*' OR [City]  Like '*Lyon*') AND ([Turnover] > 100)");
}

TEST(WhereGenerator, BuildWhereOr_BaseQuery_BindsWithTheFirstFieldOnly) {
  EXPECT_EQ(Or(Narrowing(u"Customers"_s, {YesNo({u"Yes"_s}), Number({u"< 5"_s, u"> 10"_s})})),
            " WHERE ([Index@] = ANY ( Select [Index@] From [Customers&])) AND ([Active]  = TRUE)  OR "
            "([Turnover] < 5 OR [Turnover] > 10)");
}

TEST(WhereGenerator, BuildWhereAnd_BaseQuery_BindsByAndThroughout) {
  EXPECT_EQ(And(Narrowing(u"Customers"_s, {YesNo({u"Yes"_s}), Number({u"< 5"_s})})),
            " WHERE ([Index@] = ANY ( Select [Index@] From [Customers&])) AND ([Active]  = TRUE)  AND "
            "([Turnover] < 5)");
}

TEST(WhereGenerator, BuildWhere_BaseQueryWithoutConditions_IsTheBaseAlone) {
  const std::string base = " WHERE ([Index@] = ANY ( Select [Index@] From [Customers&])) ";
  EXPECT_EQ(And(Narrowing(u"Customers"_s, {})), base);
  EXPECT_EQ(Or(Narrowing(u"Customers"_s, {Text({})})), base);
}

TEST(WhereGenerator, BuildWhere_BaseQueryOfANamedUser_NamesTheUserBehindTheAmpersand) {
  QueryModel query = Narrowing(u"Customers"_s, {});
  query.UserName = u"Eve"_s;
  EXPECT_EQ(And(query), " WHERE ([Index@] = ANY ( Select [Index@] From [Customers&Eve])) ");
}

TEST(WhereGenerator, BuildWhere_BaseQueryWithEmptyName_IsStillABase) {
  EXPECT_EQ(And(Narrowing(QString(), {})), " WHERE ([Index@] = ANY ( Select [Index@] From [&])) ");
}

TEST(WhereGenerator, BuildWhereAnd_TwoDates_AreJoinedByAndAndWrapped) {
  EXPECT_EQ(And(Query({Date({u">=  1/2/1999"_s, u"<=  3/4/1999"_s})})),
            "WHERE (([Due] >=   DateValue('1/2/1999')  AND [Due]  <=   DateValue('3/4/1999') ))");
}

TEST(WhereGenerator, BuildWhere_EachFurtherDate_AddsAPairOfParentheses) {
  EXPECT_EQ(
      Or(Query({Date({u">=  1/1/1999"_s, u"<=  2/2/1999"_s, u"<>  3/3/1999 "_s})})),
      "WHERE ((([Due] >=   DateValue('1/1/1999')  AND [Due]  <=   DateValue('2/2/1999') ) AND [Due]  <>   "
      "DateValue('3/3/1999') ))");
}

TEST(WhereGenerator, BuildWhere_TextLines_OnlyTheFirstIsTrimmed) {
  EXPECT_EQ(And(Query({Text({u"  Paris "_s, u" Lyon  "_s})})),
            "WHERE ([City]  Like '*Paris*' OR [City]  Like '* Lyon  *')");
}

TEST(WhereGenerator, BuildWhere_NumberLine_IsCopiedUnchecked) {
  EXPECT_EQ(And(Query({Number({u"  ?? 7 or so"_s, u"= "_s})})),
            "WHERE ([Turnover]   ?? 7 or so OR [Turnover] = )");
}

TEST(WhereGenerator, BuildWhere_YesNoWithTwoLines_TakesTheFirstOnly) {
  EXPECT_EQ(And(Query({YesNo({u"No"_s, u"Yes"_s})})), "WHERE ([Active]  = FALSE)");
}

TEST(WhereGenerator, BuildWhere_YesNoLine_IsFalseWhenItContainsNoWithCase) {
  EXPECT_EQ(And(Query({YesNo({u"Yes"_s})})), "WHERE ([Active]  = TRUE)");
  EXPECT_EQ(And(Query({YesNo({u"-No-"_s})})), "WHERE ([Active]  = FALSE)");
  EXPECT_EQ(And(Query({YesNo({u"no"_s})})), "WHERE ([Active]  = TRUE)");
  EXPECT_EQ(And(Query({YesNo({QString()})})), "WHERE ([Active]  = TRUE)");
}

TEST(WhereGenerator, BuildWhere_NameWithBrackets_IsNotQuotedFurther) {
  EXPECT_EQ(And(Query({Text({u"x"_s, u"y"_s}, u"a]b"_s)})), "WHERE ([a]b]  Like '*x*' OR [a]b]  Like '*y*')");
}

TEST(WhereGenerator, BuildWhere_Apostrophe_IsNotEscaped) {
  EXPECT_EQ(And(Query({Text({u"d'Or"_s})})), "WHERE ([City]  Like '*d'Or*')");
}

// A page that bears a field's name can stand before it in the catalogue.
TEST(WhereGenerator, BuildWhere_FieldTakenForAPage_IsItsNameAlone) {
  EXPECT_EQ(And(Query({{u"City"_s, std::nullopt, {u"Paris"_s, u"Lyon"_s}}})), "WHERE ([City] )");
}

TEST(WhereGenerator, BuildWhere_Pages_AreWalkedInTheirOrder) {
  QueryModel query;
  query.Pages[9] = {Number({u"= 3"_s})};
  query.Pages[1] = {Text({}), YesNo({u"Yes"_s})};
  query.Pages[0] = {Text({u"Paris"_s})};
  EXPECT_EQ(And(query), "WHERE ([City]  Like '*Paris*') AND ([Active]  = TRUE) AND ([Turnover] = 3)");
  EXPECT_EQ(Or(query), "WHERE ([City]  Like '*Paris*') OR ([Active]  = TRUE) OR ([Turnover] = 3)");
}

TEST(WhereGenerator, BuildWhere_EqualLines_StandTwice) {
  EXPECT_EQ(And(Query({Number({u"> 5"_s, u"> 5"_s})})), "WHERE ([Turnover] > 5 OR [Turnover] > 5)");
}
