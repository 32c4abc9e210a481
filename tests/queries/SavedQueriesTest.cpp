// SPDX-License-Identifier: MIT
#include "queries/QueryText.h"
#include "queries/SavedQueries.h"
#include "queries/WhereGenerator.h"
#include "tests/support/CardFiles.h"

#include <QDate>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

const QString nobody;

CardFile AFile() { return ACardFile().Named(u"Company"_s).With(TextField(u"City"_s)).Make(); }

void Store(const CardFile& file, const QString& name, const QString& sql) {
  file.Database().CreateQueryDef(name, sql);
}

const QString allCards = u"SELECT [Index@],[Company] FROM  MainData "_s;
const QString allContacts = u"SELECT [Name] FROM  Agent "_s;

}  // namespace

TEST(SavedQueries, StoredQueryName_EmptyUser_EndsInTheAmpersand) {
  EXPECT_EQ(StoredQueryName(u"Customers"_s, nobody), u"Customers&"_s);
  EXPECT_EQ(StoredQueryName(u" Customers "_s, u"Eve"_s), u" Customers &Eve"_s);
}

TEST(SavedQueries, DisplayNameOf_IsAllBeforeTheFirstAmpersand) {
  EXPECT_EQ(DisplayNameOf(u"A&B&C"_s), u"A"_s);
  EXPECT_EQ(DisplayNameOf(u"&"_s), QString());
}

TEST(SavedQueries, IsQueryOf_PartBehindTheAmpersand_MustBeTheUserWithCase) {
  EXPECT_TRUE(IsQueryOf(u"A&"_s, nobody));
  EXPECT_FALSE(IsQueryOf(u"A&B"_s, nobody));
  EXPECT_TRUE(IsQueryOf(u"A&B"_s, u"B"_s));
  EXPECT_FALSE(IsQueryOf(u"A&B"_s, u"b"_s));
  EXPECT_FALSE(IsQueryOf(u"A"_s, nobody));
  EXPECT_FALSE(IsQueryOf(u"A&B&"_s, nobody));
}

TEST(SavedQueries, FillQueryNames_DefinitionWithoutAmpersand_IsInNeitherList) {
  const CardFile file = AFile();
  Store(file, u"Plain"_s, allCards);
  Store(file, u"Mine&"_s, allCards);
  EXPECT_EQ(FillQueryNames(file.Database(), nobody), QStringList(u"Mine"_s));
  EXPECT_EQ(FillQueryList(file.Database(), nobody), QStringList(u"Mine"_s));
}

TEST(SavedQueries, FillQueryNames_QueryOfAnotherUser_IsListedForHimOnly) {
  const CardFile file = AFile();
  Store(file, u"A&B"_s, allCards);
  EXPECT_TRUE(FillQueryNames(file.Database(), nobody).isEmpty());
  EXPECT_EQ(FillQueryNames(file.Database(), u"B"_s), QStringList(u"A"_s));
}

TEST(SavedQueries, FillQueryNames_OrderIsTheFiles) {
  const CardFile file = AFile();
  for (const QString& name : {u"b&"_s, u"C&"_s, u"a&"_s}) Store(file, name, allCards);
  EXPECT_EQ(FillQueryNames(file.Database(), nobody), QStringList({u"a"_s, u"b"_s, u"C"_s}));
}

TEST(SavedQueries, FillQueryList_QueryOfAnotherTable_IsListedByFillQueryNamesOnly) {
  const CardFile file = AFile();
  Store(file, u"Cards&"_s, allCards);
  Store(file, u"Contacts&"_s, allContacts);
  EXPECT_EQ(FillQueryNames(file.Database(), nobody), QStringList({u"Cards"_s, u"Contacts"_s}));
  EXPECT_EQ(FillQueryList(file.Database(), nobody), QStringList(u"Cards"_s));
}

TEST(SavedQueries, QueryExists_BlanksAndCase_DoNotCount) {
  const CardFile file = AFile();
  Store(file, u"Größe&"_s, allCards);
  EXPECT_TRUE(QueryExists(file.Database(), u"  GRÖßE& "_s));
  EXPECT_FALSE(QueryExists(file.Database(), u"Größe"_s));
}

TEST(SavedQueries, QuerySqlHas_TextOfTheStatement_WhateverItsCase) {
  const CardFile file = AFile();
  Store(file, u"Mine&"_s, u"SELECT [City] from   maindata"_s);
  EXPECT_TRUE(QuerySqlHas(file.Database(), u"Mine&"_s, u"From MainData"_s));
  EXPECT_FALSE(QuerySqlHas(file.Database(), u"Mine&"_s, u"From Agent"_s));
}

TEST(SavedQueries, QuerySqlHas_MissingQuery_IsFalse) {
  const CardFile file = AFile();
  EXPECT_FALSE(QuerySqlHas(file.Database(), u"None&"_s, u"From MainData"_s));
}

TEST(SavedQueries, QueryFails_QueryThatRuns_IsFalse) {
  const CardFile file = AFile();
  Store(file, u"Mine&"_s, allCards);
  EXPECT_FALSE(QueryFails(file.Database(), u"Mine&"_s));
}

TEST(SavedQueries, QueryFails_MissingQueryOrColumn_IsTrue) {
  const CardFile file = AFile();
  Store(file, u"Mine&"_s, u"SELECT [Index@],[Gone] FROM  MainData "_s);
  EXPECT_TRUE(QueryFails(file.Database(), u"Mine&"_s));
  EXPECT_TRUE(QueryFails(file.Database(), u"None&"_s));
}

TEST(SavedQueries, DeleteQuery_ExactName_Deletes) {
  const CardFile file = AFile();
  Store(file, u"Mine&"_s, allCards);
  EXPECT_TRUE(DeleteQuery(file.Database(), u"Mine&"_s));
  EXPECT_TRUE(file.Database().QueryDefs().isEmpty());
}

TEST(SavedQueries, DeleteQuery_NoLineChosen_DeletesNothing) {
  const CardFile file = AFile();
  Store(file, u"Mine&"_s, allCards);
  EXPECT_FALSE(DeleteQuery(file.Database(), StoredQueryName(QString(), nobody)));
  EXPECT_EQ(file.Database().QueryDefs(), QStringList(u"Mine&"_s));
}

TEST(SavedQueries, QueryNameOrDefault_OnlyBlanks_IsMyQuery) {
  EXPECT_EQ(QueryNameOrDefault(u"   "_s), u"My Query"_s);
  EXPECT_EQ(QueryNameOrDefault(u" x "_s), u" x "_s);
}

TEST(SavedQueries, CheckNewQueryName_SecondRunWithoutAName_IsTaken) {
  const CardFile file = AFile();
  const QString name = QueryNameOrDefault(u" "_s);
  EXPECT_EQ(CheckNewQueryName(file.Database(), name, QString(), nobody), NewQueryName::Free);
  Store(file, StoredQueryName(name, nobody), allCards);
  EXPECT_EQ(CheckNewQueryName(file.Database(), name, QString(), nobody), NewQueryName::Taken);
}

TEST(SavedQueries, CheckNewQueryName_NameOfTheBase_IsRefusedBeforeItIsLookedFor) {
  const CardFile file = AFile();
  Store(file, u"Mine&"_s, allCards);
  EXPECT_EQ(CheckNewQueryName(file.Database(), u" Mine "_s, u"Mine"_s, nobody), NewQueryName::SameAsBase);
  EXPECT_EQ(CheckNewQueryName(file.Database(), u"mine"_s, u"Mine"_s, nobody), NewQueryName::Taken);
}

TEST(SavedQueries, CheckNewQueryName_BlanksAroundTheName_FindWhatTheNameItselfDoesNotDelete) {
  const CardFile file = AFile();
  Store(file, u"Mine&"_s, allCards);
  EXPECT_EQ(CheckNewQueryName(file.Database(), u"Mine "_s, QString(), nobody), NewQueryName::Taken);
  EXPECT_FALSE(DeleteQuery(file.Database(), StoredQueryName(u"Mine "_s, nobody)));
}

TEST(SavedQueries, OpenOrDelete_QueryOverARemovedColumn_IsDeletedWithoutWarning) {
  const CardFile file = AFile();
  Store(file, u"Towns&"_s, u"SELECT [Index@],[Company],[City] FROM  MainData "_s);
  EXPECT_EQ(OpenOrDelete(file.Database(), u"Towns&"_s), OpenQuery::Show);
  file.Database().DeleteField(u"MainData", u"City");
  EXPECT_EQ(OpenOrDelete(file.Database(), u"Towns&"_s), OpenQuery::Deleted);
  EXPECT_TRUE(file.Database().QueryDefs().isEmpty());
}

TEST(SavedQueries, DecideReturn_NoQueryRunYet_DoesNothing) {
  const CardFile file = AFile();
  EXPECT_EQ(DecideReturn(file.Database(), QString()), ReturnStep::Nothing);
}

TEST(SavedQueries, DecideReturn_QueryThatFails_DoesNothingAndKeepsIt) {
  const CardFile file = AFile();
  Store(file, u"Mine&"_s, u"SELECT [Gone] FROM  MainData "_s);
  EXPECT_EQ(DecideReturn(file.Database(), u"Mine&"_s), ReturnStep::Nothing);
  EXPECT_EQ(file.Database().QueryDefs(), QStringList(u"Mine&"_s));
}

TEST(SavedQueries, DecideReturn_QueryOfAnotherList_ShowsNothing) {
  const CardFile file = AFile();
  Store(file, u"Contacts&"_s, allContacts);
  EXPECT_EQ(DecideReturn(file.Database(), u"Contacts&"_s), ReturnStep::OtherList);
}

TEST(SavedQueries, DecideReturn_QueryOfCards_Shows) {
  const CardFile file = AFile();
  Store(file, u"Mine&"_s, allCards);
  EXPECT_EQ(DecideReturn(file.Database(), u"Mine&"_s), ReturnStep::Show);
}

TEST(SavedQueries, ReadsOtherList_EachOfTheThree_WhateverTheCase) {
  EXPECT_TRUE(ReadsOtherList(u"SELECT * FROM Meeting;"_s));
  EXPECT_TRUE(ReadsOtherList(u"select * from agent"_s));
  EXPECT_TRUE(ReadsOtherList(u"SELECT *\r\nFROM PriceList;\r\n"_s));
  EXPECT_FALSE(ReadsOtherList(u"SELECT Agent FROM MainData"_s));
}

// The engine gives a stored text back in its own form; the sort screen must be able to go on from it.
TEST(SavedQueries, StripSqlTail_StoredQuery_RunsWithAnOrderBehindIt) {
  const CardFile file = AFile();
  file.AddCard(1, u"Zeta"_s, {{u"City"_s, u"Paris"_s}});
  file.AddCard(2, u"Alpha"_s, {{u"City"_s, u"Paris"_s}});
  file.AddCard(3, u"Beta"_s, {{u"City"_s, u"Lyon"_s}});
  Store(file, u"Mine&"_s,
        SelectText(ColumnListText(u"Company"_s, {u"City"_s}), u"WHERE ([City]  Like '*Paris*')"_s));
  const QString sorted = StripSqlTail(file.Database().QueryDefOf(u"Mine&").SQL) +
                         OrderByText({{{u"Company"_s, 2}, {}, {}}}, true);
  EXPECT_EQ(file.Rows(sorted), QStringList({u"2|Alpha|Paris"_s, u"1|Zeta|Paris"_s}));
}

// What the generator writes must run, stored and as a base of another query.
TEST(SavedQueries, GeneratedStatements_OfEachKind_FindTheirCards) {
  const CardFile file = ACardFile()
                            .Named(u"Company"_s)
                            .With(TextField(u"City"_s))
                            .With(NumberField(u"Turnover"_s))
                            .With(YesNoField(u"Active"_s))
                            .With(DateField(u"Due"_s))
                            .Make();
  const auto card = [&](int number, const QString& city, int turnover, bool active, int day) {
    file.AddCard(number, u"C%1"_s.arg(number),
                 {{u"City"_s, city},
                  {u"Turnover"_s, turnover},
                  {u"Active"_s, active},
                  {u"Due"_s, QDate(1999, 2, day)}});
  };
  card(1, u"Paris 5e"_s, 200, true, 1);
  card(2, u"lyon"_s, 50, true, 2);
  card(3, u"Nice"_s, 3, false, 3);
  const auto found = [&](const QueryModel& query, bool any) {
    const QString where = any ? BuildWhereOr(query) : BuildWhereAnd(query);
    return file.Rows(SelectText(u"[Index@]"_s, where)).join(u' ');
  };
  QueryModel query;
  query.Pages[0] = {{u"City"_s, FieldKind::Text, {u"Paris"_s, u"Lyon"_s}},
                    {u"Turnover"_s, FieldKind::Number, {u"> 100"_s}}};
  EXPECT_EQ(found(query, false), u"1"_s);
  EXPECT_EQ(found(query, true), u"1 2"_s);

  query.Pages[0] = {{u"Due"_s, FieldKind::Date, {u">=  2/2/1999"_s, u"<=  2/3/1999"_s}}};
  EXPECT_EQ(found(query, false), u"2 3"_s);

  Store(file, u"Customers&"_s, SelectText(u"[Index@],[Company]"_s, u"WHERE ([Turnover] > 40)"_s));
  query.BaseQuery = u"Customers"_s;
  query.Pages[0] = {};
  EXPECT_EQ(found(query, false), u"1 2"_s);
  // The last field of an OR query finds cards outside its base query.
  query.Pages[0] = {{u"Active"_s, FieldKind::YesNo, {u"Yes"_s}},
                    {u"Turnover"_s, FieldKind::Number, {u"< 5"_s}}};
  EXPECT_EQ(found(query, true), u"1 2 3"_s);
  EXPECT_EQ(found(query, false), QString());
}
