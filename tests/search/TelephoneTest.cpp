// SPDX-License-Identifier: MIT
// The quick search for telephone numbers.
#include "cardfile/Options.h"
#include "search/fQSearch.h"
#include "tests/search/SearchScreens.h"

namespace velmora::test {
namespace {

class TelephoneTest : public SearchScreensTest {
 protected:
  TelephoneTest() {
    Show<fQSearch>();
    Tabs().SetTab(0);
    QApplication::processEvents();
  }
  void SearchNumber(const QString& text) const {
    TypeInto(u"txtTeleph"_s, text);
    PressButton(u"cmdFindNumber"_s);
  }
  void SearchInVain(const QString& text) const {
    ExpectMessage(u"Number not found."_s, ui::MsgIcon::Exclamation, [&] { SearchNumber(text); });
  }
  void ChooseField(const QString& name) const { Options(file.Database()).SetTelephoneField(name); }
};

}  // namespace

TEST_F(TelephoneTest, Load_EveryControl_HasItsCaptionAndTip) {
  ExpectWords({
      {u"txtTeleph"_s, {}, u"Enter Telephone Number or Part  of Number and Click Here"_s},
      {u"cmdFindNumber"_s, {}, u"First Enter Number and Click to Search"_s},
      {u"cmdCardTeleph"_s, {}, u"Choose Item and Click to View Card"_s},
      {u"OPTcARD"_s, {}, u"Click to Receive Telephone Numbers from Card Fields"_s},
      {u"OPTaG"_s, u"Contact  List"_s, u"Print Telephone Numbers from Contact Fields"_s},
      {u"cmdPrtAll"_s, {}, u"First Choose Telephone List and Click to View Print Options"_s},
      {u"CmdHelp2"_s, u"Help"_s, u"Click for Help"_s},
  });
  EXPECT_EQ(In<ui::Label>(u"lblTeleph"_s).Caption(), u"Requested Tel. No."_s);
  EXPECT_EQ(In<ui::Label>(u"lblNumber"_s).Caption(), u"Telephone from Contact  List"_s);
  EXPECT_EQ(In<ui::Label>(u"lblFTel"_s).Caption(), u"Telephone from Cards"_s);
}

TEST_F(TelephoneTest, Grids_HeadingsAndWidths_AreTheirOwn) {
  EXPECT_EQ(RowText(u"gridNumber"_s, 0),
            u"No. |Card Name |Name |Last Name |Telephone 1 |Telephone 2 |Cellular |Fax"_s);
  EXPECT_EQ(RowText(u"gridFTel"_s, 0), u"No. |Card Name |Telephone "_s);
  const ui::FlexGrid& numbers = Grid(u"gridNumber"_s);
  const int beforeASearch = numbers.ColWidth(1);
  SearchNumber(u"0074321"_s);
  EXPECT_EQ(numbers.ColWidth(1), beforeASearch);
  const QList<int> told{600, (ui::TwipsOf(numbers.width()) - 600) / 4 - 50, 1400, 1400, 1200, 1400, 1400,
                        1400};
  for (int column = 0; column < told.size(); ++column) {
    EXPECT_EQ(numbers.ColWidth(column), told[column]) << column;
    EXPECT_EQ(numbers.ColAlignment(column), ui::ColAlign::Left);
  }
  EXPECT_GT(numbers.ColWidth(1), 1000);
  const QList<int> cards{600, 3135, 1200};
  for (int column = 0; column < cards.size(); ++column)
    EXPECT_EQ(Grid(u"gridFTel"_s).ColWidth(column), cards[column]);
}

TEST_F(TelephoneTest, FindNumber_ContactsHit_AreShownWithTheNameOfTheirCard) {
  SearchNumber(u"555-"_s);
  EXPECT_EQ(Grid(u"gridNumber"_s).Rows(), 3);
  EXPECT_EQ(RowText(u"gridNumber"_s, 1), u"7|Łódź Foto|Zoé|Moreno|(5) 555-3932|||"_s);
  EXPECT_EQ(RowText(u"gridNumber"_s, 2), u"12|Bólido Comidas|Ana|Trujillo|(5) 555-4729|||12 34"_s);
  SearchNumber(u"0074321"_s);
  EXPECT_EQ(Column(u"gridNumber"_s), u"312"_s);
}

TEST_F(TelephoneTest, FindNumber_ContactOfADeletedCard_HasAnEmptyCardName) {
  SearchNumber(u"123456"_s);
  EXPECT_EQ(RowText(u"gridNumber"_s, 1), u"99||Nobody|Else|123456|||"_s);
}

TEST_F(TelephoneTest, FindNumber_ThreeCharacters_AreRefused) {
  ExpectMessage(u"Enter at least 4 digits."_s, ui::MsgIcon::None, [this] { SearchNumber(u"123"_s); });
  EXPECT_EQ(Grid(u"gridNumber"_s).Rows(), 1);
}

TEST_F(TelephoneTest, FindNumber_FourCharactersWithASpace_AreSearchedAsTheyStand) {
  SearchNumber(u"12 3"_s);
  EXPECT_EQ(Column(u"gridNumber"_s), u"12"_s);
}

TEST_F(TelephoneTest, FindNumber_ThreeDigitsBetweenSpaces_PassAndAreSearchedTrimmed) {
  SearchNumber(u" 123 "_s);
  EXPECT_EQ(Column(u"gridNumber"_s), u"99"_s);
}

TEST_F(TelephoneTest, FindNumber_Nowhere_SaysSoAndEmptiesTheContacts) {
  SearchNumber(u"0074321"_s);
  SearchInVain(u"98765"_s);
  EXPECT_EQ(Grid(u"gridNumber"_s).Rows(), 1);
  EXPECT_EQ(RowText(u"gridNumber"_s, 0),
            u"No. |Card Name |Name |Last Name |Telephone 1 |Telephone 2 |Cellular |Fax"_s);
}

TEST_F(TelephoneTest, FindNumber_Apostrophe_IsRefused) {
  ExpectMessage(strings::NoApostrophe, ui::MsgIcon::None, [this] { SearchNumber(u"12'34"_s); });
  EXPECT_EQ(Box(u"txtTeleph"_s).selectedText(), u"12'34"_s);
  // The apostrophe comes first.
  ExpectMessage(strings::NoApostrophe, ui::MsgIcon::None, [this] { SearchNumber(u"'"_s); });
}

TEST_F(TelephoneTest, FindNumber_Enter_RunsIt) {
  TypeInto(u"txtTeleph"_s, u"555-"_s);
  QTest::keyClick(&Box(u"txtTeleph"_s), Qt::Key_Return);
  EXPECT_EQ(Column(u"gridNumber"_s), u"7,12"_s);
}

TEST_F(TelephoneTest, FindNumber_FieldChosen_SearchesTheCardsToo) {
  ChooseField(u"Phone"_s);
  SearchNumber(u"0074321"_s);
  EXPECT_EQ(RowText(u"gridFTel"_s, 0), u"No. |Card Name |Telephone "_s);
  EXPECT_EQ(RowText(u"gridFTel"_s, 1), u"7|Łódź Foto|030-0074321"_s);
  // Found in a card alone is found.
  SearchNumber(u"555 22"_s);
  EXPECT_EQ(Column(u"gridFTel"_s), u"12"_s);
  EXPECT_EQ(Grid(u"gridNumber"_s).Rows(), 1);
  SearchInVain(u"98765"_s);
  EXPECT_EQ(Grid(u"gridFTel"_s).Rows(), 1);
}

TEST_F(TelephoneTest, FindNumber_NoFieldOrOneThatIsGone_LeavesTheCardsAsTheyWere) {
  ChooseField(u"Phone"_s);
  SearchNumber(u"0074321"_s);
  ChooseField(u"Gone"_s);
  SearchNumber(u"555-"_s);
  EXPECT_EQ(Column(u"gridFTel"_s), u"7"_s);
  // The name has to be exact.
  ChooseField(u"phone"_s);
  SearchInVain(u"98765"_s);
  EXPECT_EQ(Column(u"gridFTel"_s), u"7"_s);
  file.Database().Execute(u"Delete * from tOptions");
  SearchNumber(u"555-"_s);
  EXPECT_EQ(Column(u"gridFTel"_s), u"7"_s);
}

TEST_F(TelephoneTest, Grids_DoubleClicked_HandNothingOver) {
  SearchNumber(u"555-"_s);
  DoubleClickRow(u"gridNumber"_s, 1);
  EXPECT_TRUE(frame->Calls.isEmpty());
  EXPECT_EQ(ui::NoticeInView(), strings::search::NoCardFromHere.View());
}

TEST_F(TelephoneTest, ButtonsWithoutAFeature_Pressed_SaySoInANotice) {
  PressButton(u"cmdPrtAll"_s);
  EXPECT_EQ(ui::NoticeInView(), strings::search::NoPrinting.View());
  PressButton(u"cmdCardTeleph"_s);
  EXPECT_EQ(ui::NoticeInView(), strings::search::NoCardFromHere.View());
  EXPECT_TRUE(frame->Calls.isEmpty());
}

TEST_F(TelephoneTest, Numbers_AsCustomersWriteThem_AreFoundByTheirPieces) {
  int number = 1000;
  for (const QStringList& customer : ReadCsv(u"northwind_customers.csv"_s)) {
    constexpr int contact = 2;
    constexpr int phone = 9;
    file.AddCard(++number, customer.value(1).remove(u'\''));
    file.AddContact(number, customer.value(contact), {{u"7"_s, customer.value(phone)}});
  }
  SearchNumber(u"(171)"_s);
  ASSERT_GT(Grid(u"gridNumber"_s).Rows(), 3);
  for (int row = 1; row < Grid(u"gridNumber"_s).Rows(); ++row)
    EXPECT_TRUE(Grid(u"gridNumber"_s).TextMatrix(row, 4).startsWith(u"(171)"_s));
  SearchNumber(u"0621-08460"_s);
  EXPECT_EQ(Column(u"gridNumber"_s, 1), u"Blauer See Delikatessen"_s);
}

}  // namespace velmora::test
