// SPDX-License-Identifier: MIT
#include "queries/QueryText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

db::TableDef Cards(const QStringList& names) {
  db::TableDef table{.Name = u"MainData"_s, .Fields = {}, .Indexes = {}};
  for (const QString& name : names) table.Fields.push_back({.Name = name});
  return table;
}

using Keys = std::array<SortKey, SortKeyCount>;

std::string Order(const Keys& keys, bool ascending = true) {
  return OrderByText(keys, ascending).toStdString();
}

}  // namespace

TEST(QueryText, ChoosableColumns_NumberAndMainField_AreNotOffered) {
  EXPECT_EQ(ChoosableColumns(Cards({u"Index@"_s, u"Company"_s, u"City"_s, u"Area"_s})),
            QStringList({u"City"_s, u"Area"_s}));
}

TEST(QueryText, ChoosableColumns_RemarksAndOwnColumns_CanNeverBeChosen) {
  EXPECT_EQ(ChoosableColumns(Cards({u"Index@"_s, u"Company"_s, u"Remarks"_s, u" Remarks "_s, u"s_Due"_s,
                                    u"s_"_s, u"S_Due"_s, u"remarks"_s, u"s"_s})),
            QStringList({u"S_Due"_s, u"remarks"_s, u"s"_s}));
}

TEST(QueryText, ChoosableColumns_FewerThanTwoColumns_AreNone) {
  EXPECT_TRUE(ChoosableColumns(Cards({u"Index@"_s})).isEmpty());
}

TEST(QueryText, WithColumns_AddsAtTheEndWhatIsNotThereYet) {
  EXPECT_EQ(WithColumns({u"B"_s}, {u"A"_s, u"B"_s, u"C"_s, u"A"_s}), QStringList({u"B"_s, u"A"_s, u"C"_s}));
}

TEST(QueryText, ColumnListText_NothingChosen_IsNumberAndMainField) {
  EXPECT_EQ(ColumnListText(u"Company"_s, {}), u"[Index@],[Company]"_s);
}

TEST(QueryText, SelectText_CityAndAWhere_IsTheStoredStatement) {
  EXPECT_EQ(SelectText(ColumnListText(u"Company"_s, {u" City "_s}), u"WHERE ([City]  Like '*Paris*')"_s),
            u"SELECT [Index@],[Company],[City] FROM  MainData WHERE ([City]  Like '*Paris*')"_s);
}

TEST(QueryText, SelectText_NoWhere_EndsInABlank) {
  EXPECT_EQ(SelectText(u"[Index@],[Company]"_s, QString()), u"SELECT [Index@],[Company] FROM  MainData "_s);
}

TEST(QueryText, StripSqlTail_EnginesText_LosesLineEndsAndSemicolon) {
  EXPECT_EQ(StripSqlTail(u"SELECT [Index@], [City]\r\nFROM MainData\r\nWHERE ([City]  Like '*x*');\r\n"),
            u"SELECT [Index@], [City] FROM MainData WHERE ([City]  Like '*x*')"_s);
}

TEST(QueryText, StripSqlTail_NoLineEnd_LosesItsLastCharacter) {
  EXPECT_EQ(StripSqlTail(u"SELECT a;"), u"SELECT a"_s);
  EXPECT_EQ(StripSqlTail(u"SELECT ab"), u"SELECT a"_s);
  EXPECT_EQ(StripSqlTail(u"SELECT a\r\nFROM T"), u"SELECT a FROM "_s);
}

TEST(QueryText, StripSqlTail_CharacterBehindCarriageReturn_IsDroppedWhateverItIs) {
  EXPECT_EQ(StripSqlTail(u"a\rbc;"), u"a c"_s);
  EXPECT_EQ(StripSqlTail(u"a\r"), u"a "_s);
}

TEST(QueryText, StripSqlTail_SemicolonInside_CutsThere) {
  EXPECT_EQ(StripSqlTail(u"WHERE a = 'x;y';\r\n"), u"WHERE a = 'x"_s);
}

TEST(QueryText, StripSqlTail_Empty_IsEmpty) { EXPECT_EQ(StripSqlTail(u""), QString()); }

TEST(QueryText, SortListItems_BeginWithNoKeyAndTheNumber) {
  EXPECT_EQ(SortListItems({u"Number"_s, u"Company"_s, u"City"_s}),
            QStringList({QString(), u"Number"_s, u"Company"_s, u"City"_s}));
}

TEST(QueryText, OrderByText_AllListsEmpty_IsEmpty) {
  EXPECT_EQ(Order({}), "");
  EXPECT_EQ(Order(Keys{{{QString(), 0}, {QString(), 0}, {QString(), 0}}}), "");
}

TEST(QueryText, OrderByText_CityThenNumberDescending_DirectionIsTheFirstKeys) {
  EXPECT_EQ(Order(Keys{{{u"City"_s, 3}, {u"Number"_s, 1}, {}}}, false),
            " ORDER BY [City]  DESC  , [Index@] ");
}

TEST(QueryText, OrderByText_NumberFirst_OrdersByTheCardNumber) {
  EXPECT_EQ(Order(Keys{{{u"Number"_s, 1}, {u"City"_s, 3}, {u"Area"_s, 4}}}),
            " ORDER BY [Index@]  ASC  , [City]  , [Area] ");
}

TEST(QueryText, OrderByText_OnlyALaterList_HasNoDirection) {
  EXPECT_EQ(Order(Keys{{{}, {u"City"_s, 3}, {}}}, false), " ORDER BY [City] ");
  EXPECT_EQ(Order(Keys{{{QString(), 0}, {}, {u"Number"_s, 1}}}, false), " ORDER BY [Index@] ");
}

TEST(QueryText, OrderByText_SameColumnTwice_StandsTwice) {
  EXPECT_EQ(Order(Keys{{{u"City"_s, 3}, {u"City"_s, 3}, {}}}), " ORDER BY [City]  ASC  , [City] ");
}

TEST(QueryText, OrderByText_ColumnNamedNumber_IsAColumn) {
  EXPECT_EQ(Order(Keys{{{u"Number"_s, 4}, {}, {}}}), " ORDER BY [Number]  ASC ");
}

TEST(QueryText, OrderByText_TextWithoutAPick_IsNoKey) {
  EXPECT_EQ(Order(Keys{{{u"City"_s, -1}, {u"Area"_s, 4}, {}}}), " ORDER BY [Area] ");
}

TEST(QueryText, YesNoText_ZeroIsNoAndAnythingElseYes) {
  EXPECT_EQ(YesNoText(u"0"_s), u"No"_s);
  EXPECT_EQ(YesNoText(QString()), u"No"_s);
  EXPECT_EQ(YesNoText(u"-1"_s), u"Yes"_s);
  EXPECT_EQ(YesNoText(u"7"_s), u"Yes"_s);
}

TEST(QueryText, ResultFormat_NamesTheColumnsBehindTheNumber) {
  EXPECT_EQ(ResultFormat({u"Index@"_s, u"Company"_s, u"City"_s}), u" |Company |City"_s);
  EXPECT_EQ(ResultFormat({u"Index@"_s}), QString());
}
