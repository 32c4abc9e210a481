// SPDX-License-Identifier: MIT
#include "shell/ToolTable.h"

#include <QSet>
#include <QString>

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

/// What a click on a button comes to.
struct Pressed {
  int Closings = 0;
  std::optional<Command> Ran;
};

Pressed Press(ToolRows bar, int index, bool othersClose = true) {
  Pressed pressed;
  PressTool(
      bar, index,
      [&] {
        ++pressed.Closings;
        return othersClose;
      },
      [&](Command command) { pressed.Ran = command; });
  return pressed;
}

QList<int> Guarded(ToolRows bar, int last) {
  QList<int> places;
  for (int index = 0; index <= last; ++index) {
    if (Press(bar, index).Closings > 0) places += index;
  }
  return places;
}

}  // namespace

TEST(ToolTable, PressTool_EachButton_RunsItsOwn) {
  using enum Command;
  const QList<Command> expectedLong{
      QuickSearch, NewCard,  Browser,  Browser,  Browser,    FieldEditor, Browser, Browser,   Browser,
      Browser,     Program3, Program2, Program1, Calculator, Browser,     Browser, QueryList, PreviousQuery,
      Browser,     Search,   Browser,  Browser,  Browser,    Quit,        Browser};
  const QList<Command> expectedShort{CustomerCard, Browser,      Browser, Browser, Browser, Browser, Browser,
                                     Browser,      QueryBuilder, Browser, Browser, Browser, Browser};
  for (int index = 0; index < expectedLong.size(); ++index)
    EXPECT_EQ(Press(LongTools(), index).Ran, expectedLong[index]) << index;
  for (int index = 0; index < expectedShort.size(); ++index)
    EXPECT_EQ(Press(ShortTools(), index).Ran, expectedShort[index]) << index;
  EXPECT_EQ(LongTools().size(), static_cast<std::size_t>(expectedLong.size()));
  EXPECT_EQ(ShortTools().size(), static_cast<std::size_t>(expectedShort.size()));
}

TEST(ToolTable, PressTool_GuardedButtons_CloseTheOthersFirst) {
  EXPECT_EQ(Guarded(LongTools(), 24), QList<int>({0, 1, 3, 5, 9, 16, 19, 23}));
  EXPECT_EQ(Guarded(ShortTools(), 12), QList<int>({0, 1, 2, 3, 4, 5, 6, 7, 8, 11, 12}));
}

TEST(ToolTable, PressTool_OthersStay_GuardedRunNothingAndUnguardedRun) {
  EXPECT_EQ(Press(LongTools(), 23, false).Ran, std::nullopt);
  EXPECT_EQ(Press(ShortTools(), 0, false).Ran, std::nullopt);
  EXPECT_EQ(Press(LongTools(), 13, false).Ran, Command::Calculator);
}

TEST(ToolTable, PressTool_AnyOtherIndex_IsTheButtonBehindTheTips) {
  for (const int index : {24, 25, 99, -1}) {
    EXPECT_EQ(Press(LongTools(), index).Ran, Command::Browser) << index;
    EXPECT_EQ(Press(LongTools(), index).Closings, 0) << index;
    EXPECT_EQ(Press(ShortTools(), index).Ran, Command::Browser) << index;
    EXPECT_EQ(Press(ShortTools(), index).Closings, 1) << index;
  }
}

TEST(ToolTable, Rows_AllButTheLast_HaveATip) {
  for (const ToolRows bar : {LongTools(), ShortTools()}) {
    for (const ToolRow& row : bar.first(bar.size() - 1)) EXPECT_FALSE(row.Tip.View().isEmpty());
    EXPECT_TRUE(bar.back().Tip.View().isEmpty());
  }
}

TEST(ToolTable, Rows_LettersOfABar_TellButtonsApart) {
  for (const ToolRows bar : {LongTools(), ShortTools()}) {
    QSet<QString> seen;
    for (const ToolRow& row : bar) seen += row.Letters.toString() + row.Digit.toString();
    EXPECT_EQ(static_cast<std::size_t>(seen.size()), bar.size());
  }
}
