// SPDX-License-Identifier: MIT
#include "search/fQSearch.h"
#include "tests/search/SearchScreens.h"

#include <QTabBar>

namespace velmora::test {
namespace {

constexpr int cardsTab = 2;

class OtherScreen final : public ui::Form {
 public:
  OtherScreen() : Form(u"OtherScreen"_s, u"Other"_s) {}
};

class fQSearchTest : public SearchScreensTest {
 protected:
  fQSearchTest() { Show<fQSearch>(); }
  void ShowContacts() const { Tabs().SetTab(1); }
  void Search(const QString& text) const {
    TypeInto(u"txtName"_s, text);
    PressButton(u"cmdSearch"_s);
  }
};

}  // namespace

TEST_F(fQSearchTest, Load_Tabs_StandInTheirOrderWithTheCardsInView) {
  EXPECT_EQ(Tabs().TabCaption(0), u"Telephone No."_s);
  EXPECT_EQ(Tabs().TabCaption(1), u"Contacts"_s);
  EXPECT_EQ(Tabs().TabCaption(2), u"Cards"_s);
  EXPECT_EQ(Tabs().Tab(), cardsTab);
  EXPECT_EQ(In<QWidget>(u"txtName"_s).window()->windowTitle(), frame->windowTitle());
  EXPECT_EQ(ui::FindScreen(u"fQSearch")->ScreenName(), u"fQSearch"_s);
  EXPECT_EQ(dynamic_cast<QWidget*>(ui::FindScreen(u"fQSearch"))->windowTitle(), u"Quick Search"_s);
}

TEST_F(fQSearchTest, Activation_FocusAtTheTabs_GoesToTheBoxInView) {
  const QList<QString> boxes{u"txtTeleph"_s, u"txtAgent"_s, u"txtName"_s};
  for (int tab = 0; tab < boxes.size(); ++tab) {
    Tabs().SetTab(tab);
    Tabs().tabBar()->setFocus();
    ui::Default<OtherScreen>().Show();
    ui::Default<OtherScreen>().Unload();
    QApplication::processEvents();
    EXPECT_TRUE(Box(boxes[tab]).hasFocus()) << tab;
  }
}

TEST_F(fQSearchTest, Load_Grids_AreEmptyUnderTheirHeadings) {
  EXPECT_EQ(RowText(u"flxCard"_s, 0), u"No.|Company"_s);
  EXPECT_EQ(RowText(u"flxAgent"_s, 0), u"Number |Name |Last Name"_s);
  for (const QString& grid : {u"flxCard"_s, u"flxAgent"_s}) EXPECT_EQ(Grid(grid).Rows(), 1);
  EXPECT_EQ(Grid(u"flxCard"_s).ColWidth(0), 680);
  EXPECT_EQ(Grid(u"flxCard"_s).ColWidth(1), 3900);
  EXPECT_EQ(Grid(u"flxAgent"_s).ColWidth(0), 680);
  EXPECT_EQ(Grid(u"flxAgent"_s).ColWidth(1), 1900);
  EXPECT_EQ(Grid(u"flxAgent"_s).ColWidth(2), 2000);
}

TEST_F(fQSearchTest, Load_EveryControl_HasItsCaptionAndTip) {
  ExpectWords({
      {u"txtName"_s, {}, u"Enter Name of Customer or Part of Name and Click to View Options"_s},
      {u"cmdSearch"_s, u"&Search"_s,
       u"Click to View Card Options -- Each Click Will Show Additional Options"_s},
      {u"cmdCard(0)"_s, {}, u"Click to Order Cards According to Card No."_s},
      {u"cmdCard(1)"_s, {}, u"Click to Order Cards Alphabetically"_s},
      {u"cmdToCard"_s, u"Card"_s, u"Choose Card and Click to View"_s},
      {u"cmdPrint"_s, {}, u"Click to Print"_s},
      {u"CmdHelp1"_s, u"Help"_s, u"Click for Help"_s},
      {u"txtAgent"_s, {}, u"Enter First Name of Contact  or Part of Name and Click to Search"_s},
      {u"cmdFindFirst"_s,
       {},
       u"Click to View Requested Contact  -- Each Click Will Show Additional Options"_s},
      {u"txtSname"_s, {}, u"Enter Last Name of Contact and Click to View Options"_s},
      {u"cmdFindSName"_s,
       {},
       u"Click to View Requested Contact -- Each Click Will Show Additional Options"_s},
      {u"cmdAgent(0)"_s, {}, u"Click to Order Contacts According to Card No."_s},
      {u"cmdAgent(1)"_s, {}, u"Click to Order Contacts  According to First Name"_s},
      {u"cmdAgent(2)"_s, {}, u"Click to Order Contacts According to Last  Name"_s},
      {u"cmdToAgent"_s, u"Contacts"_s, u"Choose Name of  Card and Click to View Contact Card"_s},
      {u"cmdPrintAgent"_s, {}, u"Click to Print"_s},
      {u"CmdHelp"_s, u"Help"_s, u"Click to Help"_s},
  });
  EXPECT_EQ(In<ui::Label>(u"lblAgent"_s).Caption(), u"Search  by First Name"_s);
  EXPECT_EQ(In<ui::Label>(u"lblAgent"_s).toolTip(), u"Enter First Name of Contact Only"_s);
  EXPECT_EQ(In<ui::Label>(u"lblSname"_s).Caption(), u"Search by Last Name"_s);
  EXPECT_EQ(In<ui::Label>(u"lblSname"_s).toolTip(), u"Enter Last Name of Contact"_s);
}

TEST_F(fQSearchTest, Tabs_Changed_GiveTheFocusToTheirBox) {
  Box(u"txtName"_s).SetFocus();
  Tabs().SetTab(1);
  EXPECT_EQ(QApplication::focusWidget(), &Box(u"txtAgent"_s));
  Tabs().SetTab(0);
  EXPECT_EQ(QApplication::focusWidget(), &Box(u"txtTeleph"_s));
}

TEST_F(fQSearchTest, Search_PieceOfAName_ShowsNumberAndNameOfTheCards) {
  Search(u" FOTO "_s);
  EXPECT_EQ(RowText(u"flxCard"_s, 0), u"No.|Company"_s);
  EXPECT_EQ(RowText(u"flxCard"_s, 1), u"7|Łódź Foto"_s);
  EXPECT_EQ(Grid(u"flxCard"_s).Rows(), 2);
}

TEST_F(fQSearchTest, Search_EmptyBox_ShowsEveryCard) {
  PressButton(u"cmdSearch"_s);
  EXPECT_EQ(Column(u"flxCard"_s), u"7,12,112,312"_s);
}

TEST_F(fQSearchTest, Search_NoHit_SaysSoAndEmptiesTheGrid) {
  Search(u"o"_s);
  ASSERT_GT(Grid(u"flxCard"_s).Rows(), 1);
  ExpectMessage(u"Text not found."_s, ui::MsgIcon::Exclamation, [this] { Search(u"xyz"_s); });
  EXPECT_EQ(Grid(u"flxCard"_s).Rows(), 1);
}

TEST_F(fQSearchTest, Search_MessageInView_ShowsNoHourglass) {
  bool asked = false;
  ui::SetMsgBoxResponder([&asked](const ui::Message&) {
    asked = true;
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    return ui::MsgAnswer::Ok;
  });
  Search(u"xyz"_s);
  ShowContacts();
  TypeInto(u"txtAgent"_s, u"xyz"_s);
  PressButton(u"cmdFindFirst"_s);
  EXPECT_TRUE(asked);
}

TEST_F(fQSearchTest, Search_Apostrophe_IsRefusedWithTheTextSelected) {
  TypeInto(u"txtName"_s, u"Ann's"_s);
  ExpectMessage(u"This string cannot contain the apostrophe ( ' ) character"_s, ui::MsgIcon::None,
                [this] { PressButton(u"cmdSearch"_s); });
  EXPECT_EQ(QApplication::focusWidget(), &Box(u"txtName"_s));
  EXPECT_EQ(Box(u"txtName"_s).selectedText(), u"Ann's"_s);
  EXPECT_EQ(Grid(u"flxCard"_s).Rows(), 1);
}

TEST_F(fQSearchTest, Enter_InEachBox_RunsItsSearch) {
  TypeInto(u"txtName"_s, u"hanna"_s);
  QTest::keyClick(&Box(u"txtName"_s), Qt::Key_Return);
  EXPECT_EQ(Column(u"flxCard"_s), u"312"_s);
  ShowContacts();
  TypeInto(u"txtAgent"_s, u"an"_s);
  QTest::keyClick(&Box(u"txtAgent"_s), Qt::Key_Enter);
  EXPECT_EQ(Column(u"flxAgent"_s, 1), u"Ana"_s);
  TypeInto(u"txtSname"_s, u"moren"_s);
  QTest::keyClick(&Box(u"txtSname"_s), Qt::Key_Return);
  EXPECT_EQ(Column(u"flxAgent"_s, 1), u"Zoé"_s);
}

TEST_F(fQSearchTest, Sort_AfterASearch_ShowsAllColumnsInTheOrder) {
  Search(u"o"_s);
  PressButton(u"cmdCard(1)"_s);
  EXPECT_EQ(Column(u"flxCard"_s), u"12,7"_s);
  EXPECT_EQ(RowText(u"flxCard"_s, 0), u"No.|Company|Phone|Remarks"_s);
  PressButton(u"cmdCard(0)"_s);
  EXPECT_EQ(Column(u"flxCard"_s), u"7,12"_s);
  EXPECT_FALSE(Ribbon(u"cmdCard(1)"_s).Value());
}

TEST_F(fQSearchTest, Sort_PressedAgain_ReleasesAndLeavesTheRows) {
  Search(u"o"_s);
  PressButton(u"cmdCard(1)"_s);
  PressButton(u"cmdCard(1)"_s);
  EXPECT_FALSE(Ribbon(u"cmdCard(1)"_s).Value());
  EXPECT_EQ(Column(u"flxCard"_s), u"12,7"_s);
}

TEST_F(fQSearchTest, Search_AfterASort_HasItsTwoColumnsAndNoOrder) {
  Search(u"o"_s);
  PressButton(u"cmdCard(1)"_s);
  PressButton(u"cmdSearch"_s);
  EXPECT_EQ(RowText(u"flxCard"_s, 0), u"No.|Company"_s);
  EXPECT_EQ(Column(u"flxCard"_s), u"7,12"_s);
  EXPECT_FALSE(Ribbon(u"cmdCard(1)"_s).Value());
}

TEST_F(fQSearchTest, Sort_NoSearchMade_DoesNothingOnEitherTab) {
  PressButton(u"cmdCard(0)"_s);
  EXPECT_EQ(ui::NoticeInView(), strings::quicksearch::NothingToSort.View());
  EXPECT_EQ(Grid(u"flxCard"_s).Rows(), 1);
  EXPECT_FALSE(Ribbon(u"cmdCard(0)"_s).Value());
  ui::DropNotice();
  ShowContacts();
  PressButton(u"cmdAgent(1)"_s);
  EXPECT_EQ(ui::NoticeInView(), strings::quicksearch::NothingToSort.View());
  EXPECT_EQ(Grid(u"flxAgent"_s).Rows(), 1);
}

TEST_F(fQSearchTest, Sort_ApostropheTyped_IsToldByANotice) {
  TypeInto(u"txtName"_s, u"Ann's"_s);
  PressButton(u"cmdCard(0)"_s);
  EXPECT_EQ(ui::NoticeInView(), strings::NoApostrophe.View());
  EXPECT_EQ(Grid(u"flxCard"_s).Rows(), 1);
}

TEST_F(fQSearchTest, FindFirstAndLast_PieceOfAName_ShowTheContacts) {
  ShowContacts();
  TypeInto(u"txtAgent"_s, u"a"_s);
  PressButton(u"cmdFindFirst"_s);
  EXPECT_EQ(RowText(u"flxAgent"_s, 0), u"Number |Name |Last Name"_s);
  EXPECT_EQ(Column(u"flxAgent"_s), u"312,12"_s);
  TypeInto(u"txtSname"_s, u"E"_s);
  PressButton(u"cmdFindSName"_s);
  EXPECT_EQ(Column(u"flxAgent"_s, 2), u"Anders,Moreno,Else"_s);
}

TEST_F(fQSearchTest, FindFirstAndLast_NoHitOrApostrophe_SaySo) {
  ShowContacts();
  for (const auto& [box, button] :
       {std::pair{u"txtAgent"_s, u"cmdFindFirst"_s}, std::pair{u"txtSname"_s, u"cmdFindSName"_s}}) {
    TypeInto(box, u"xyz"_s);
    ExpectMessage(u"Text not found."_s, ui::MsgIcon::Exclamation, [&] { PressButton(button); });
    TypeInto(box, u"O'Hara"_s);
    ExpectMessage(strings::NoApostrophe, ui::MsgIcon::None, [&] { PressButton(button); });
    EXPECT_EQ(Box(box).selectedText(), u"O'Hara"_s);
  }
}

TEST_F(fQSearchTest, FindFirst_EmptyBox_ForgetsTheSearchAndKeepsTheRows) {
  ShowContacts();
  TypeInto(u"txtAgent"_s, u"a"_s);
  PressButton(u"cmdFindFirst"_s);
  TypeInto(u"txtAgent"_s, u" "_s);
  PressButton(u"cmdFindFirst"_s);
  EXPECT_EQ(ui::NoticeInView(), strings::quicksearch::NoNameTyped.View());
  EXPECT_EQ(Column(u"flxAgent"_s), u"312,12"_s);
  PressButton(u"cmdAgent(0)"_s);
  EXPECT_EQ(Column(u"flxAgent"_s), u"312,12"_s);
  EXPECT_EQ(ui::NoticeInView(), strings::quicksearch::NothingToSort.View());
}

TEST_F(fQSearchTest, SortOfContacts_EachButton_OrdersTheLastSearch) {
  ShowContacts();
  TypeInto(u"txtAgent"_s, u"o"_s);
  PressButton(u"cmdFindFirst"_s);
  ASSERT_EQ(Column(u"flxAgent"_s), u"7,99"_s);
  // What stands in the box now does not count.
  TypeInto(u"txtAgent"_s, u"xyz"_s);
  PressButton(u"cmdAgent(1)"_s);
  EXPECT_EQ(Column(u"flxAgent"_s, 1), u"Nobody,Zoé"_s);
  PressButton(u"cmdAgent(0)"_s);
  EXPECT_EQ(Column(u"flxAgent"_s), u"7,99"_s);
  PressButton(u"cmdAgent(2)"_s);
  EXPECT_EQ(Column(u"flxAgent"_s, 2), u"Else,Moreno"_s);
}

TEST_F(fQSearchTest, DoubleClick_OnACard_ShowsItAndLeavesTheSeekBox) {
  frame->txtSeek().SetText(u"5"_s);
  Search(u"o"_s);
  DoubleClickRow(u"flxCard"_s, 2);
  EXPECT_EQ(Global().CurCard, 12);
  EXPECT_EQ(frame->Calls, QStringList{u"ShowCard"_s});
  EXPECT_EQ(frame->txtSeek().Text(), u"5"_s);
}

TEST_F(fQSearchTest, ToCard_RowChosen_ShowsTheCardAndEmptiesTheSeekBox) {
  frame->txtSeek().SetText(u"5"_s);
  Search(u"o"_s);
  Grid(u"flxCard"_s).SetRow(1);
  PressButton(u"cmdToCard"_s);
  EXPECT_EQ(Global().CurCard, 7);
  EXPECT_EQ(frame->Calls, QStringList{u"ShowCard"_s});
  EXPECT_EQ(frame->txtSeek().Text(), QString());
}

TEST_F(fQSearchTest, ToCard_NoRowChosen_OnlyEmptiesTheSeekBox) {
  const std::int32_t before = Global().CurCard;
  frame->txtSeek().SetText(u"5"_s);
  Search(u"o"_s);
  PressButton(u"cmdToCard"_s);
  EXPECT_EQ(Global().CurCard, before);
  EXPECT_TRUE(frame->Calls.isEmpty());
  EXPECT_EQ(frame->txtSeek().Text(), QString());
  EXPECT_EQ(ui::NoticeInView(), strings::search::NoCardChosen.View());
}

TEST_F(fQSearchTest, ToCard_CardScreenThatStaysOpen_StopsTheJump) {
  frame->CardScreensLetGo = false;
  const std::int32_t before = Global().CurCard;
  frame->txtSeek().SetText(u"5"_s);
  Search(u"o"_s);
  Grid(u"flxCard"_s).SetRow(1);
  PressButton(u"cmdToCard"_s);
  EXPECT_EQ(Global().CurCard, before);
  EXPECT_TRUE(frame->Calls.isEmpty());
  EXPECT_EQ(frame->txtSeek().Text(), u"5"_s);
}

TEST_F(fQSearchTest, ButtonsWithoutAFeature_Pressed_SaySoInANotice) {
  PressButton(u"cmdPrint"_s);
  EXPECT_EQ(ui::NoticeInView(), strings::search::NoPrinting.View());
  ShowContacts();
  for (const auto& [button, notice] : {std::pair{u"cmdPrintAgent"_s, strings::search::NoPrinting},
                                       std::pair{u"cmdToAgent"_s, strings::search::NoContactCard}}) {
    ui::DropNotice();
    PressButton(button);
    EXPECT_EQ(ui::NoticeInView(), notice.View()) << button.toStdString();
  }
  EXPECT_TRUE(frame->Calls.isEmpty());
}

TEST_F(fQSearchTest, DoubleClick_OnAContact_HandsNothingOver) {
  ShowContacts();
  TypeInto(u"txtAgent"_s, u"a"_s);
  PressButton(u"cmdFindFirst"_s);
  DoubleClickRow(u"flxAgent"_s, 1);
  EXPECT_TRUE(frame->Calls.isEmpty());
  EXPECT_EQ(ui::NoticeInView(), strings::search::NoContactCard.View());
}

TEST_F(fQSearchTest, Help_OnEachTab_OpensTopic147) {
  PressButton(u"CmdHelp1"_s);
  Tabs().SetTab(1);
  PressButton(u"CmdHelp"_s);
  Tabs().SetTab(0);
  PressButton(u"CmdHelp2"_s);
  EXPECT_EQ(frame->Calls, QStringList(3, u"ShowHelpTopic 147"_s));
}

TEST_F(fQSearchTest, Search_FileClosed_IsToldByANotice) {
  file.Database().Close();
  TypeInto(u"txtName"_s, u"o"_s);
  PressButton(u"cmdSearch"_s);
  EXPECT_TRUE(ui::NoticeInView().startsWith(strings::search::Failed.View()));
}

TEST_F(fQSearchTest, Tab_FromTheBox_ReachesEveryControlOfThePageInOrder) {
  Box(u"txtName"_s).SetFocus();
  EXPECT_EQ(TabStops(),
            QStringList({u"txtName"_s, u"cmdSearch"_s, u"flxCard"_s, u"cmdCard(0)"_s, u"cmdCard(1)"_s,
                         u"cmdToCard"_s, u"cmdPrint"_s, u"CmdHelp1"_s, u"qt_tabwidget_tabbar"_s}));
}

}  // namespace velmora::test
