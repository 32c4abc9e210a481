// SPDX-License-Identifier: MIT
#include "forms/Default.h"
#include "forms/FlexGrid.h"
#include "queries/ResultQuery.h"
#include "tests/queries/QueryScreens.h"
#include "tests/support/Screens.h"

#include <QElapsedTimer>

namespace velmora::test {
namespace {

/// Four cards, two of them in one city, and a query of all their columns.
class ResultQueryTest : public QueryScreensTest {
 protected:
  ResultQueryTest() {
    Make(ACardFile()
             .Named(u"Company"_s)
             .With(TextField(u"City"_s))
             .With(NumberField(u"Turnover"_s))
             .With(YesNoField(u"Active"_s)),
         false);
    Card(1, u"Cecil"_s, u"Paris"_s, 30, true);
    Card(2, u"Ann"_s, u"Oslo"_s, 10, false);
    Card(3, u"Dora"_s, u"Paris"_s, 20, false);
    Card(7, u"Bob"_s, u"Zürich"_s, 9, true);
    file->Database().CreateQueryDef(u"All&", allColumns);
  }
  ~ResultQueryTest() override { EXPECT_EQ(QApplication::overrideCursor(), nullptr); }

  void Card(std::int32_t number, const QString& name, const QString& city, int turnover, bool active) const {
    file->AddCard(number, name,
                  {{u"City"_s, city}, {u"Turnover"_s, turnover}, {u"Active"_s, active ? -1 : 0}});
  }
  static ResultQuery& Show(const QString& name = u"All"_s) {
    auto& screen = ui::Default<ResultQuery>();
    screen.SetQueryName(name);
    screen.SetQueryKey(name + u'&');
    screen.Show();
    QApplication::processEvents();
    return screen;
  }
  ResultQuery& ShowQueryOf(const QString& sql) const {
    file->Database().CreateQueryDef(u"Special&", sql);
    return Show(u"Special"_s);
  }
  static ui::FlexGrid& Grid(const ResultQuery& screen) { return Find<ui::FlexGrid>(screen, u"MyFlex"_s); }
  /// A row, row 0 the headings, its cells joined by '|'.
  static QString RowText(const ResultQuery& screen, int row) {
    QStringList cells;
    for (int column = 0; column < Grid(screen).Cols(); ++column)
      cells += Grid(screen).TextMatrix(row, column);
    return cells.join(u'|');
  }
  /// The card numbers from the first row to the last.
  static QString Numbers(const ResultQuery& screen) {
    QStringList numbers;
    for (int row = 1; row < Grid(screen).Rows(); ++row) numbers += Grid(screen).TextMatrix(row, 0);
    return numbers.join(u',');
  }
  static QString Caption(const ResultQuery& screen, const QString& label) {
    return Find<ui::Label>(screen, label).Caption();
  }
  static ui::ComboBox& Order(const ResultQuery& screen, int list) {
    return Find<ui::ComboBox>(screen, u"lstOrder(%1)"_s.arg(list));
  }
  /// Picks an entry of a sort list by keys.
  static void PickKey(const ResultQuery& screen, int list, int entry) {
    ui::ComboBox& box = Order(screen, list);
    box.SetFocus();
    QTest::keyClick(&box, Qt::Key_Home);
    for (int i = 0; i < entry; ++i) QTest::keyClick(&box, Qt::Key_Down);
    ASSERT_EQ(box.ListIndex(), entry);
  }
  /// Sorts by an entry of each list, from the first list on.
  static void SortBy(const ResultQuery& screen, std::initializer_list<int> entries, bool descends = false) {
    int list = 0;
    for (const int entry : entries) PickKey(screen, list++, entry);
    if (descends) Click(Find<ui::OptionButton>(screen, u"optZ"_s));
    Press(screen, u"cmdMakeOrder"_s);
  }
  static QStringList Items(const ui::ComboBox& box) {
    QStringList items;
    for (int i = 0; i < box.ListCount(); ++i) items += box.List(i);
    return items;
  }
  static QPoint CentreOf(const ui::FlexGrid& grid, int row, int column) {
    return grid.visualRect(grid.model()->index(row - 1, column)).center();
  }
  void ExpectCardShown(std::int32_t card) const {
    EXPECT_EQ(Global().CurCard, card);
    EXPECT_EQ(frame->Calls, QStringList({u"SetWin %1 0"_s.arg(card), u"ShowCard"_s}));
    EXPECT_EQ(OpenScreen<ResultQuery>(), nullptr);
    EXPECT_EQ(frame->txtSeek().Text(), QString());
  }

  enum Key { NoKey, Number, Company, City, Turnover, Active };
  static inline const QString allColumns =
      u"SELECT [Index@],[Company],[City],[Turnover],[Active] FROM  MainData "_s;
};

}  // namespace

TEST_F(ResultQueryTest, Load_EveryControl_HasItsCaptionAndTip) {
  const ResultQuery& screen = Show();
  EXPECT_EQ(screen.windowTitle(), u"Query Results"_s);
  EXPECT_EQ(Caption(screen, u"lblQueryName"_s), u"Query Name:"_s);
  EXPECT_EQ(Caption(screen, u"lblTotal"_s), u"Total :"_s);
  EXPECT_EQ(Caption(screen, u"lblOrder(0)"_s), u"Sort  by :"_s);
  EXPECT_EQ(Caption(screen, u"lblOrder(1)"_s), u"Then By :"_s);
  EXPECT_EQ(Caption(screen, u"lblOrder(2)"_s), u"Then By:"_s);
  for (int list = 0; list < 3; ++list)
    EXPECT_EQ(Order(screen, list).toolTip(), u"Click to Select Field for Alphabetic Sorting"_s);
  const auto& ascending = Find<ui::OptionButton>(screen, u"optA"_s);
  const auto& descending = Find<ui::OptionButton>(screen, u"optZ"_s);
  EXPECT_EQ(ascending.Caption(), u"Ascending"_s);
  EXPECT_EQ(descending.Caption(), u"Descending"_s);
  EXPECT_TRUE(ascending.Value());
  EXPECT_FALSE(descending.Value());
  EXPECT_EQ(ascending.toolTip(), u"Refers to \"Sort By\" Field Only"_s);
  EXPECT_EQ(descending.toolTip(), u"Refers to \"Sort By\" Field Only"_s);
  EXPECT_EQ(Button(screen, u"cmdMakeOrder"_s).toolTip(), u"Enter Definitions and Click Sort"_s);
  EXPECT_EQ(Button(screen, u"cmdToCard"_s).toolTip(),
            u"Choose the Card and Click to View Card  or Double Click Name of Card"_s);
  EXPECT_EQ(Button(screen, u"cmdPrint"_s).toolTip(), u"Click to View Print Options"_s);
  EXPECT_EQ(Button(screen, u"cmdCancel"_s).toolTip(), u"Click to Exit"_s);
}

TEST_F(ResultQueryTest, Activate_StoredQuery_ShowsRowsHeadingsAndCount) {
  const ResultQuery& screen = Show();
  EXPECT_EQ(Caption(screen, u"lblNameQuery"_s), u"All"_s);
  EXPECT_EQ(Caption(screen, u"lblNumber"_s), u" 4"_s);
  EXPECT_EQ(RowText(screen, 0), u"Number|Company|City|Turnover|Active"_s);
  EXPECT_EQ(RowText(screen, 1), u"1|Cecil|Paris|30|Yes"_s);
  EXPECT_EQ(RowText(screen, 2), u"2|Ann|Oslo|10|No"_s);
  EXPECT_EQ(Numbers(screen), u"1,2,3,7"_s);
  EXPECT_EQ(Grid(screen).Row(), 1);
}

TEST_F(ResultQueryTest, Activate_NoQuery_ShowsNothing) {
  auto& screen = ui::Default<ResultQuery>();
  screen.Show();
  EXPECT_EQ(Grid(screen).Rows(), 1);
  EXPECT_EQ(Order(screen, 0).ListCount(), 0);
}

TEST_F(ResultQueryTest, Activate_BackFromAnotherScreen_RunsTheQueryAgain) {
  ResultQuery& screen = Show();
  ui::Default<OtherScreen>().Show();
  QApplication::processEvents();
  Card(9, u"Eve"_s, u"Rome"_s, 1, false);
  screen.BringToFront();
  QApplication::processEvents();
  EXPECT_EQ(Caption(screen, u"lblNumber"_s), u" 5"_s);
  EXPECT_EQ(Numbers(screen), u"1,2,3,7,9"_s);
}

TEST_F(ResultQueryTest, Activate_CatalogueGone_KnowsTheKindsOfItsColumns) {
  file->Database().Execute(u"Delete * from Location");
  const ResultQuery& screen = Show();
  EXPECT_EQ(RowText(screen, 1), u"1|Cecil|Paris|30|Yes"_s);
}

TEST_F(ResultQueryTest, Activate_QueryOnAQuery_KnowsTheKindsOfItsColumns) {
  const ResultQuery& screen =
      ShowQueryOf(u"SELECT [Index@],[Company],[Active] FROM [All&] ORDER BY [Index@]"_s);
  EXPECT_EQ(RowText(screen, 2), u"2|Ann|No"_s);
}

TEST_F(ResultQueryTest, Activate_QueryThatFails_EndsInSilence) {
  file->Database().DeleteField(u"MainData", u"City");
  const ResultQuery& screen = Show();
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(Grid(screen).Rows(), 1);
}

TEST_F(ResultQueryTest, FormatGrid_YesNoInTheSecondColumn_StaysANumber) {
  const ResultQuery& screen = ShowQueryOf(u"SELECT [Index@],[Active],[Company] FROM  MainData "_s);
  EXPECT_EQ(RowText(screen, 1), u"1|-1|Cecil"_s);
  EXPECT_EQ(RowText(screen, 2), u"2|0|Ann"_s);
}

TEST_F(ResultQueryTest, FormatGrid_EveryColumn_Is1000WideAndLeft) {
  const ui::FlexGrid& grid = Grid(Show());
  for (int column = 0; column < grid.Cols(); ++column) {
    EXPECT_EQ(grid.ColWidth(column), 1000) << column;
    EXPECT_EQ(grid.ColAlignment(column), ui::ColAlign::Left) << column;
  }
}

TEST_F(ResultQueryTest, FillOrderLists_Columns_StandBehindNoKeyAndTheNumber) {
  const ResultQuery& screen = Show();
  const QStringList items{QString(), u"Number"_s, u"Company"_s, u"City"_s, u"Turnover"_s, u"Active"_s};
  for (int list = 0; list < 3; ++list) {
    EXPECT_EQ(Items(Order(screen, list)), items) << list;
    EXPECT_LT(Order(screen, list).ListIndex(), 1) << list;
  }
}

TEST_F(ResultQueryTest, Sort_AllListsEmpty_DoesNothing) {
  const ResultQuery& screen = Show();
  const ui::GridSource* before = Grid(screen).DataSource();
  Press(screen, u"cmdMakeOrder"_s);
  SortBy(screen, {NoKey});
  EXPECT_EQ(Grid(screen).DataSource(), before);
  EXPECT_EQ(Numbers(screen), u"1,2,3,7"_s);
}

TEST_F(ResultQueryTest, Sort_ByOneColumn_Ascends) {
  const ResultQuery& screen = Show();
  SortBy(screen, {Company});
  EXPECT_EQ(Numbers(screen), u"2,7,1,3"_s);
  SortBy(screen, {Turnover});
  EXPECT_EQ(Numbers(screen), u"7,2,3,1"_s);
}

TEST_F(ResultQueryTest, Sort_ByCityThenNumberDescending_TurnsTheFirstKeyOnly) {
  const ResultQuery& screen = Show();
  SortBy(screen, {City, Number}, true);
  EXPECT_EQ(Numbers(screen), u"7,1,3,2"_s);
}

TEST_F(ResultQueryTest, Sort_ByNumberDescending_OrdersByTheCardNumber) {
  const ResultQuery& screen = Show();
  SortBy(screen, {Number}, true);
  EXPECT_EQ(Numbers(screen), u"7,3,2,1"_s);
}

TEST_F(ResultQueryTest, Sort_OnlyTheSecondList_AscendsWhateverTheDirection) {
  const ResultQuery& screen = Show();
  PickKey(screen, 1, Company);
  Click(Find<ui::OptionButton>(screen, u"optZ"_s));
  Press(screen, u"cmdMakeOrder"_s);
  EXPECT_EQ(Numbers(screen), u"2,7,1,3"_s);
}

TEST_F(ResultQueryTest, Sort_TwoListsOnTheSameColumn_IsAccepted) {
  const ResultQuery& screen = Show();
  SortBy(screen, {Company, Company});
  EXPECT_EQ(Numbers(screen), u"2,7,1,3"_s);
}

TEST_F(ResultQueryTest, Sort_ByThreeKeys_UsesThemInTurn) {
  Card(4, u"Bert"_s, u"Paris"_s, 20, true);
  const ResultQuery& screen = Show();
  SortBy(screen, {City, Turnover, Company});
  EXPECT_EQ(Numbers(screen), u"2,4,3,1,7"_s);
}

TEST_F(ResultQueryTest, Sort_Again_StartsFromTheStoredText) {
  const ResultQuery& screen = Show();
  const QString stored = file->Database().QueryDefOf(u"All&").SQL;
  SortBy(screen, {Company});
  SortBy(screen, {City});
  // Were the order by company still there, card 1 could not stand before card 3 by chance alone.
  PickKey(screen, 1, Number);
  Click(Find<ui::OptionButton>(screen, u"optZ"_s));
  Press(screen, u"cmdMakeOrder"_s);
  EXPECT_EQ(Numbers(screen), u"7,1,3,2"_s);
  EXPECT_EQ(file->Database().QueryDefOf(u"All&").SQL, stored);
}

TEST_F(ResultQueryTest, Sort_Done_KeepsColumnsTextsWidthsCountAndLists) {
  const ResultQuery& screen = Show();
  PickKey(screen, 0, Company);
  Card(9, u"Aaron"_s, u"Rome"_s, 1, false);
  Press(screen, u"cmdMakeOrder"_s);
  EXPECT_EQ(RowText(screen, 0), u"Number|Company|City|Turnover|Active"_s);
  EXPECT_EQ(RowText(screen, 1), u"9|Aaron|Rome|1|No"_s);
  EXPECT_EQ(RowText(screen, 3), u"7|Bob|Zürich|9|Yes"_s);
  for (int column = 0; column < 5; ++column) EXPECT_EQ(Grid(screen).ColWidth(column), 1000);
  EXPECT_EQ(Caption(screen, u"lblNumber"_s), u" 4"_s);
  EXPECT_EQ(Order(screen, 0).ListIndex(), Company);
  EXPECT_EQ(Order(screen, 0).ListCount(), 6);
}

TEST_F(ResultQueryTest, Sort_CatalogueChangedMeanwhile_KeepsTheKindsThatWereRead) {
  const ResultQuery& screen = Show();
  file->Database().Execute(u"Delete * from Location");
  SortBy(screen, {Company});
  EXPECT_EQ(RowText(screen, 1), u"2|Ann|Oslo|10|No"_s);
}

TEST_F(ResultQueryTest, Sort_QueryWithConditions_KeepsThem) {
  const ResultQuery& screen =
      ShowQueryOf(u"SELECT [Index@],[Company] FROM  MainData WHERE ([City]  Like '*Paris*')"_s);
  EXPECT_EQ(Items(Order(screen, 0)), QStringList({QString(), u"Number"_s, u"Company"_s}));
  SortBy(screen, {Number}, true);
  EXPECT_EQ(Numbers(screen), u"3,1"_s);
}

TEST_F(ResultQueryTest, Sort_StoredQueryGone_LeavesTheGridInSilence) {
  const ResultQuery& screen = Show();
  file->Database().DeleteQueryDef(u"All&");
  SortBy(screen, {Company});
  EXPECT_EQ(Numbers(screen), u"1,2,3,7"_s);
}

TEST_F(ResultQueryTest, NoRows_HeaderOnlyAndToCardDoesNothing) {
  Global().CurCard = 2;
  const ResultQuery& screen = ShowQueryOf(u"SELECT [Index@],[Company] FROM  MainData WHERE [City] = 'X'"_s);
  EXPECT_EQ(Grid(screen).Rows(), 1);
  EXPECT_EQ(RowText(screen, 0), u"Number|Company"_s);
  EXPECT_EQ(Caption(screen, u"lblNumber"_s), u" 0"_s);
  Press(screen, u"cmdToCard"_s);
  Grid(screen).SetFocus();
  QTest::keyClick(&Grid(screen), Qt::Key_Return);
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(Global().CurCard, 2);
  EXPECT_TRUE(frame->Calls.isEmpty());
}

TEST_F(ResultQueryTest, ToCard_NoRowPicked_ShowsTheCardOfTheFirstRow) {
  const ResultQuery& screen = Show();
  SortBy(screen, {Company});
  EXPECT_EQ(Grid(screen).Row(), 1);
  Press(screen, u"cmdToCard"_s);
  ExpectCardShown(2);
}

TEST_F(ResultQueryTest, ToCard_Button_ShowsTheCardOfTheRowAfterASecond) {
  frame->txtSeek().SetText(u"12"_s);
  const ResultQuery& screen = Show();
  QTest::mouseClick(Grid(screen).viewport(), Qt::LeftButton, {}, CentreOf(Grid(screen), 4, 2));
  QElapsedTimer timer;
  bool goneBefore = false;
  frame->OnCall = [&](const QString& call) {
    if (call == u"ShowCard") goneBefore = OpenScreen<ResultQuery>() == nullptr && timer.elapsed() >= 999;
  };
  timer.start();
  Press(screen, u"cmdToCard"_s);
  EXPECT_TRUE(goneBefore);
  ExpectCardShown(7);
}

TEST_F(ResultQueryTest, ToCard_DoubleClickOnARow_ShowsItsCard) {
  const ResultQuery& screen = Show();
  SortBy(screen, {Company});
  QTest::mouseDClick(Grid(screen).viewport(), Qt::LeftButton, {}, CentreOf(Grid(screen), 4, 3));
  ExpectCardShown(3);
}

TEST_F(ResultQueryTest, ToCard_EnterOnARow_ShowsItsCard) {
  const ResultQuery& screen = Show();
  Grid(screen).SetFocus();
  QTest::keyClick(&Grid(screen), Qt::Key_Down);
  QTest::keyClick(&Grid(screen), Qt::Key_Down);
  const int row = Grid(screen).Row();
  QTest::keyClick(&Grid(screen), Qt::Key_Return);
  EXPECT_EQ(row, 3);
  ExpectCardShown(3);
}

TEST_F(ResultQueryTest, ToCard_FrameThatClosesTheScreens_StillShowsTheCard) {
  const QPointer<ResultQuery> screen = &Show();
  frame->OnCall = [this](const QString& call) {
    if (call.startsWith(u"SetWin"_s)) frame->UnloadOtherForms();
  };
  Grid(*screen).SetRow(1);
  Press(*screen, u"cmdToCard"_s);
  EXPECT_EQ(frame->LastCall(), u"ShowCard"_s);
  EXPECT_EQ(Global().CurCard, 1);
}

TEST_F(ResultQueryTest, ToCard_CardThatStaysOpen_StopsTheJump) {
  const ResultQuery& screen = Show();
  frame->CardScreensLetGo = false;
  const std::int32_t before = Global().CurCard;
  Grid(screen).SetRow(3);
  Press(screen, u"cmdToCard"_s);
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(Global().CurCard, before);
  EXPECT_TRUE(frame->Calls.isEmpty());
}

TEST_F(ResultQueryTest, Print_Clicked_DoesNothing) {
  const ResultQuery& screen = Show();
  Press(screen, u"cmdPrint"_s);
  EXPECT_TRUE(screen.isVisible());
  EXPECT_TRUE(frame->Calls.isEmpty());
}

TEST_F(ResultQueryTest, Cancel_Clicked_BringsTheCardBack) {
  Press(Show(), u"cmdCancel"_s);
  EXPECT_EQ(OpenScreen<ResultQuery>(), nullptr);
  EXPECT_EQ(frame->Calls, QStringList(u"ShowCard"_s));
}

TEST_F(ResultQueryTest, Tab_FromTheGrid_ReachesEveryControlInOrder) {
  const ResultQuery& screen = Show();
  Grid(screen).SetFocus();
  EXPECT_EQ(TabStops(),
            QStringList({u"MyFlex"_s, u"lstOrder(0)"_s, u"lstOrder(1)"_s, u"lstOrder(2)"_s, u"optA"_s,
                         u"cmdMakeOrder"_s, u"cmdToCard"_s, u"cmdPrint"_s, u"cmdCancel"_s}));
}

}  // namespace velmora::test
