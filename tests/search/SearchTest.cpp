// SPDX-License-Identifier: MIT
#include "search/Search.h"
#include "tests/search/SearchScreens.h"

namespace velmora::test {
namespace {

const QString endOfText = u"You have reached the end of the text."_s;
const QString beginningOfText = u"You have reached the beginning of the text."_s;
const QString noSuchText = u"The text does not exist!"_s;

class SearchTest : public SearchScreensTest {
 protected:
  SearchTest() { Show<Search>(); }
  void ShowContacts() const { Tabs().SetTab(0); }
  void FetchCards() const { PressButton(u"cmdGetDataCard"_s); }
  void FetchContacts() const {
    ShowContacts();
    PressButton(u"cmdGetDataAgent"_s);
  }
  void FindNext(int expectedRow) const {
    PressButton(u"cmdSearch"_s);
    EXPECT_EQ(Grid(u"flxCard"_s).Row(), expectedRow);
  }
  [[nodiscard]] bool IsEnabled(const QString& button) const { return In<QWidget>(button).isEnabled(); }
  void ExpectPlainMessage(const QString& text, const QString& button) const {
    ExpectMessage(text, ui::MsgIcon::None, [&] { PressButton(button); });
  }
};

}  // namespace

TEST_F(SearchTest, Load_Tabs_StandInTheirOrderWithTheCardsInView) {
  EXPECT_EQ(Tabs().Tabs(), 2);
  EXPECT_EQ(Tabs().TabCaption(0), u"Contacts"_s);
  EXPECT_EQ(Tabs().TabCaption(1), u"Cards"_s);
  EXPECT_EQ(Tabs().Tab(), 1);
  EXPECT_EQ(dynamic_cast<QWidget*>(ui::FindScreen(u"Search"))->windowTitle(), u"Search"_s);
}

TEST_F(SearchTest, Load_EveryControl_HasItsCaptionAndTip) {
  ExpectWords({
      {u"cmdGetDataCard"_s, u"Data"_s,
       u"Click to Receive Data -- Please Keep in Mind that The Length of Time Depends on the Number of Cards in the File "_s},
      {u"txtName"_s, {}, u"Enter Name of Card or Part of Name and Click to View Options"_s},
      {u"cmdSearch"_s, {}, u"Enter Name of Company or Part of Name and Click to View Next Option"_s},
      {u"cmdFindPrev"_s, {}, u"Click to View Previous Option"_s},
      {u"cmdCard(0)"_s, {}, u"Click to Order Cards by Card Number"_s},
      {u"cmdCard(1)"_s, {}, u"Click to Order Cards Alphabetically"_s},
      {u"cmdToCard"_s, u"Card"_s, u"Choose the Desired Card and Click to View Card"_s},
      {u"cmdPrint"_s, u"Print"_s, u"Click to View Print Options"_s},
      {u"CmdHelp1"_s, u"Help"_s, u"Click for Help"_s},
      {u"cmdGetDataAgent"_s, u"Data"_s,
       u"Click to Receive Data -- Please Remember that the Length of Waiting Time Depends on the Number of Cards in the File"_s},
      {u"txtAgent"_s, {}, u"Enter Name of Contact  or Part  of Name and Click to View Options"_s},
      {u"cmdFindFirst"_s, {}, u"Enter Name of Contact and Click to View Options"_s},
      {u"cmdPrev"_s, {}, u"Click to View Previous Option"_s},
      {u"cmdAgent(0)"_s, {}, u"Click to Order Contacts by Number"_s},
      {u"cmdAgent(1)"_s, {}, u"Click to Order Contacts by First Name"_s},
      {u"cmdAgent(2)"_s, {}, u"Click to Order Contacts by Family Name"_s},
      {u"cmdToAgent"_s, u"Contact"_s,
       u"Choose the Desired Contact and Click to View Card or Double Click Name of Contact"_s},
      {u"cmdPrintAgent"_s, u"Print"_s, u"Click to View Print Options"_s},
      {u"CmdHelp"_s, u"Help"_s, u"Click for Help"_s},
  });
}

TEST_F(SearchTest, Load_NothingFetched_HasEmptyGridsAndNothingToFind) {
  EXPECT_EQ(RowText(u"flxCard"_s, 0), u"No. |Company"_s);
  EXPECT_EQ(Grid(u"flxCard"_s).Rows(), 1);
  EXPECT_EQ(Grid(u"flxCard"_s).ColWidth(0), 680);
  EXPECT_EQ(Grid(u"flxCard"_s).ColWidth(1), 3800);
  for (const QString& button : {u"cmdSearch"_s, u"cmdFindPrev"_s, u"cmdFindFirst"_s, u"cmdPrev"_s})
    EXPECT_FALSE(IsEnabled(button)) << button.toStdString();
}

TEST_F(SearchTest, Focus_ShownAndTabsChanged_GoesToTheDataButton) {
  EXPECT_EQ(QApplication::focusWidget(), &In<QWidget>(u"cmdGetDataCard"_s));
  Tabs().SetTab(0);
  EXPECT_EQ(QApplication::focusWidget(), &In<QWidget>(u"cmdGetDataAgent"_s));
  Tabs().SetTab(1);
  EXPECT_EQ(QApplication::focusWidget(), &In<QWidget>(u"cmdGetDataCard"_s));
}

TEST_F(SearchTest, Data_Cards_FetchesAllAndPressesTheFirstOrder) {
  FetchCards();
  EXPECT_EQ(Column(u"flxCard"_s), u"7,12,112,312"_s);
  EXPECT_EQ(RowText(u"flxCard"_s, 3), u"112|Ann's"_s);
  EXPECT_EQ(RowText(u"flxCard"_s, 0), u"No. |Company"_s);
  EXPECT_TRUE(Ribbon(u"cmdCard(0)"_s).Value());
  EXPECT_TRUE(IsEnabled(u"cmdSearch"_s));
  EXPECT_FALSE(IsEnabled(u"cmdFindPrev"_s));
}

TEST_F(SearchTest, Data_Contacts_FetchesAllAndPressesTheFirstOrder) {
  FetchContacts();
  EXPECT_EQ(Column(u"flxAgent"_s), u"312,7,12,99"_s);
  EXPECT_EQ(RowText(u"flxAgent"_s, 0), u"No. |Name |Last Name"_s);
  EXPECT_TRUE(Ribbon(u"cmdAgent(0)"_s).Value());
  EXPECT_TRUE(IsEnabled(u"cmdFindFirst"_s));
  const QList<int> widths{680, 1900, 1900};
  for (int column = 0; column < widths.size(); ++column)
    EXPECT_EQ(Grid(u"flxAgent"_s).ColWidth(column), widths[column]);
}

TEST_F(SearchTest, FindNext_NumberAsText_FindsItInTheCardNumbersInTurn) {
  FetchCards();
  TypeInto(u"txtName"_s, u"12"_s);
  FindNext(2);
  EXPECT_EQ(Grid(u"flxCard"_s).Col(), 0);
  FindNext(3);
  FindNext(4);
}

TEST_F(SearchTest, FindNext_Zero_SearchesTheNames) {
  file.AddCard(10, u"Route 0"_s);
  FetchCards();
  TypeInto(u"txtName"_s, u"0"_s);
  FindNext(5);
  EXPECT_EQ(Grid(u"flxCard"_s).Col(), 1);
}

TEST_F(SearchTest, FindNext_Hit_MarksItsRowAndBringsItIntoView) {
  for (int card = 1000; card < 1200; ++card) file.AddCard(card, u"Filler %1"_s.arg(card));
  file.AddCard(2000, u"The Last"_s);
  FetchCards();
  TypeInto(u"txtName"_s, u"the last"_s);
  FindNext(205);
  const ui::FlexGrid& grid = Grid(u"flxCard"_s);
  EXPECT_EQ(grid.RowSel(), 205);
  EXPECT_EQ(grid.ColSel(), 1);
  EXPECT_TRUE(grid.selectionModel()->isRowSelected(204, {}));
  EXPECT_TRUE(grid.viewport()->rect().intersects(grid.visualRect(grid.model()->index(204, 0))));
  TypeInto(u"txtName"_s, u"filler 1100"_s);
  FindNext(105);
  EXPECT_EQ(grid.TopRow(), 105);
}

TEST_F(SearchTest, FindNext_PastTheLastHit_SaysSoEachTimeAndStays) {
  FetchCards();
  TypeInto(u"txtName"_s, u"ann"_s);
  FindNext(3);
  FindNext(4);
  for (int click = 0; click < 2; ++click) {
    ExpectPlainMessage(endOfText, u"cmdSearch"_s);
    EXPECT_EQ(Grid(u"flxCard"_s).Row(), 4);
  }
}

TEST_F(SearchTest, FindNext_NewTextAfterTheEnd_StartsOver) {
  FetchCards();
  TypeInto(u"txtName"_s, u"ann"_s);
  FindNext(3);
  FindNext(4);
  ExpectPlainMessage(endOfText, u"cmdSearch"_s);
  TypeInto(u"txtName"_s, u"o"_s);
  FindNext(1);
}

TEST_F(SearchTest, FindNext_Nowhere_SaysSoAndLeavesTheGrid) {
  FetchCards();
  Grid(u"flxCard"_s).SetRow(2);
  TypeInto(u"txtName"_s, u"xyz"_s);
  ExpectPlainMessage(noSuchText, u"cmdSearch"_s);
  EXPECT_EQ(Grid(u"flxCard"_s).Row(), 2);
  ExpectPlainMessage(noSuchText, u"cmdSearch"_s);
}

TEST_F(SearchTest, FindNext_Apostrophe_IsATextLikeAny) {
  FetchCards();
  TypeInto(u"txtName"_s, u"N'S"_s);
  FindNext(3);
}

TEST_F(SearchTest, FindNext_SignOfAPattern_StandsForItself) {
  FetchCards();
  TypeInto(u"txtName"_s, u"*"_s);
  ExpectPlainMessage(noSuchText, u"cmdSearch"_s);
}

TEST_F(SearchTest, FindNext_NoText_DoesNothing) {
  FetchCards();
  TypeInto(u"txtName"_s, u"  "_s);
  FindNext(0);
  EXPECT_EQ(ui::NoticeInView(), strings::namesearch::NoTextTyped.View());
}

TEST_F(SearchTest, Enter_InTheBox_FindsNextOrAsksForData) {
  TypeInto(u"txtName"_s, u"ann"_s);
  QTest::keyClick(&Box(u"txtName"_s), Qt::Key_Return);
  EXPECT_EQ(ui::NoticeInView(), strings::namesearch::NoData.View());
  FetchCards();
  QTest::keyClick(&Box(u"txtName"_s), Qt::Key_Return);
  EXPECT_EQ(Grid(u"flxCard"_s).Row(), 3);
}

TEST_F(SearchTest, FindPrev_BetweenHits_GoesBackAndEndsAtTheFirst) {
  FetchCards();
  TypeInto(u"txtName"_s, u"ann"_s);
  FindNext(3);
  EXPECT_FALSE(IsEnabled(u"cmdFindPrev"_s));
  FindNext(4);
  EXPECT_TRUE(IsEnabled(u"cmdFindPrev"_s));
  PressButton(u"cmdFindPrev"_s);
  EXPECT_EQ(Grid(u"flxCard"_s).Row(), 3);
  EXPECT_TRUE(IsEnabled(u"cmdFindPrev"_s));
  ExpectPlainMessage(beginningOfText, u"cmdFindPrev"_s);
  EXPECT_EQ(Grid(u"flxCard"_s).Row(), 3);
  EXPECT_FALSE(IsEnabled(u"cmdFindPrev"_s));
  EXPECT_EQ(QApplication::focusWidget(), &In<QWidget>(u"cmdSearch"_s));
  FindNext(4);
  EXPECT_TRUE(IsEnabled(u"cmdFindPrev"_s));
}

TEST_F(SearchTest, Sort_OfCards_OrdersThemAndStartsTheSearchOver) {
  FetchCards();
  TypeInto(u"txtName"_s, u"ann"_s);
  FindNext(3);
  PressButton(u"cmdCard(1)"_s);
  EXPECT_EQ(Column(u"flxCard"_s), u"112,12,312,7"_s);
  EXPECT_EQ(RowText(u"flxCard"_s, 0), u"No. |Company"_s);
  FindNext(1);
  FindNext(3);
  PressButton(u"cmdCard(0)"_s);
  EXPECT_EQ(Column(u"flxCard"_s), u"7,12,112,312"_s);
  FindNext(3);
}

TEST_F(SearchTest, Sort_ReleasedAgain_KeepsTheRowsAndStartsTheSearchOver) {
  FetchCards();
  PressButton(u"cmdCard(1)"_s);
  TypeInto(u"txtName"_s, u"ann"_s);
  FindNext(1);
  FindNext(3);
  PressButton(u"cmdCard(1)"_s);
  EXPECT_EQ(Column(u"flxCard"_s), u"112,12,312,7"_s);
  FindNext(1);
}

TEST_F(SearchTest, Sort_NothingFetched_DoesNothing) {
  PressButton(u"cmdCard(1)"_s);
  EXPECT_EQ(Grid(u"flxCard"_s).Rows(), 1);
  EXPECT_FALSE(Ribbon(u"cmdCard(1)"_s).Value());
  EXPECT_EQ(ui::NoticeInView(), strings::namesearch::NothingToSort.View());
  ShowContacts();
  PressButton(u"cmdAgent(2)"_s);
  EXPECT_EQ(Grid(u"flxAgent"_s).Rows(), 1);
}

TEST_F(SearchTest, FindContact_SortColumn_TellsWhichNameIsSearched) {
  FetchContacts();
  TypeInto(u"txtAgent"_s, u"an"_s);
  PressButton(u"cmdFindFirst"_s);
  EXPECT_EQ(Grid(u"flxAgent"_s).Row(), 3);
  EXPECT_EQ(Grid(u"flxAgent"_s).Col(), 1);
  PressButton(u"cmdAgent(2)"_s);
  EXPECT_EQ(Column(u"flxAgent"_s, 2), u"Anders,Else,Moreno,Trujillo"_s);
  PressButton(u"cmdFindFirst"_s);
  EXPECT_EQ(Grid(u"flxAgent"_s).Row(), 1);
  EXPECT_EQ(Grid(u"flxAgent"_s).Col(), 2);
  PressButton(u"cmdAgent(1)"_s);
  EXPECT_EQ(Column(u"flxAgent"_s, 1), u"Ana,Maria,Nobody,Zoé"_s);
  PressButton(u"cmdFindFirst"_s);
  EXPECT_EQ(Grid(u"flxAgent"_s).Col(), 1);
  PressButton(u"cmdAgent(0)"_s);
  EXPECT_EQ(Column(u"flxAgent"_s), u"7,12,99,312"_s);
}

TEST_F(SearchTest, FindContact_NextAndPrevious_StepThroughTheHits) {
  FetchContacts();
  TypeInto(u"txtAgent"_s, u"A"_s);
  PressButton(u"cmdFindFirst"_s);
  EXPECT_EQ(Grid(u"flxAgent"_s).Row(), 1);
  EXPECT_FALSE(IsEnabled(u"cmdPrev"_s));
  PressButton(u"cmdFindFirst"_s);
  EXPECT_EQ(Grid(u"flxAgent"_s).Row(), 3);
  ExpectPlainMessage(endOfText, u"cmdFindFirst"_s);
  PressButton(u"cmdPrev"_s);
  EXPECT_EQ(Grid(u"flxAgent"_s).Row(), 1);
  ExpectPlainMessage(beginningOfText, u"cmdPrev"_s);
  EXPECT_FALSE(IsEnabled(u"cmdPrev"_s));
  TypeInto(u"txtAgent"_s, u"99"_s);
  PressButton(u"cmdFindFirst"_s);
  EXPECT_EQ(Grid(u"flxAgent"_s).Row(), 4);
  EXPECT_EQ(Grid(u"flxAgent"_s).Col(), 0);
}

TEST_F(SearchTest, HandOver_DoubleClickAndButton_ShowTheCard) {
  frame->txtSeek().SetText(u"5"_s);
  FetchCards();
  DoubleClickRow(u"flxCard"_s, 3);
  EXPECT_EQ(Global().CurCard, 112);
  EXPECT_EQ(frame->txtSeek().Text(), u"5"_s);
  Grid(u"flxCard"_s).SetRow(4);
  PressButton(u"cmdToCard"_s);
  EXPECT_EQ(Global().CurCard, 312);
  EXPECT_EQ(frame->Calls, QStringList({u"ShowCard"_s, u"ShowCard"_s}));
  EXPECT_EQ(frame->txtSeek().Text(), QString());
}

TEST_F(SearchTest, ToAgent_Pressed_OnlyEmptiesTheSeekBox) {
  frame->txtSeek().SetText(u"5"_s);
  FetchContacts();
  Grid(u"flxAgent"_s).SetRow(1);
  PressButton(u"cmdToAgent"_s);
  EXPECT_EQ(frame->txtSeek().Text(), QString());
  EXPECT_TRUE(frame->Calls.isEmpty());
  EXPECT_EQ(ui::NoticeInView(), strings::search::NoContactCard.View());
}

TEST_F(SearchTest, Data_FetchedAnew_ShowsWhatWasAddedAndStartsTheSearchOver) {
  FetchCards();
  TypeInto(u"txtName"_s, u"o"_s);
  FindNext(1);
  FindNext(2);
  file.AddCard(3, u"Oslo"_s);
  FetchCards();
  EXPECT_EQ(Column(u"flxCard"_s), u"7,12,112,312,3"_s);
  FindNext(1);
}

TEST_F(SearchTest, Tab_FromData_ReachesEveryControlOfThePageInOrder) {
  FetchCards();
  In<ui::SSCommand>(u"cmdGetDataCard"_s).SetFocus();
  EXPECT_EQ(TabStops(), QStringList({u"cmdGetDataCard"_s, u"txtName"_s, u"cmdSearch"_s, u"flxCard"_s,
                                     u"cmdCard(0)"_s, u"cmdCard(1)"_s, u"cmdToCard"_s, u"cmdPrint"_s,
                                     u"CmdHelp1"_s, u"qt_tabwidget_tabbar"_s}));
}

}  // namespace velmora::test
