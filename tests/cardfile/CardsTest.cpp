// SPDX-License-Identifier: MIT
#include "cardfile/Cards.h"
#include "tests/support/CardFiles.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

class CardsTest : public testing::Test {
 protected:
  void AddCards(std::initializer_list<std::int32_t> numbers) const {
    for (const std::int32_t number : numbers) file.AddCard(number, u"Card %1"_s.arg(number));
  }
  static QStringList NumbersOf(db::Recordset rows) {
    QStringList numbers;
    for (; !rows.AtEnd(); rows.MoveNext()) numbers += rows[u"Index@"].Text();
    return numbers;
  }

  CardFile file = ACardFile().With(TextField(u"City"_s)).Make();
  Cards cards{file.Database()};
};

}  // namespace

TEST_F(CardsTest, IsEmpty_TellsWhetherThereIsACard) {
  EXPECT_TRUE(cards.IsEmpty());
  AddCards({7});
  EXPECT_FALSE(cards.IsEmpty());
}

TEST_F(CardsTest, CardOf_Number_IsItsRowOrTheEnd) {
  AddCards({7, 3});
  EXPECT_EQ(cards.CardOf(3)[u"Name"].Text(), u"Card 3"_s);
  EXPECT_TRUE(cards.CardOf(4).AtEnd());
  EXPECT_TRUE(cards.Has(7));
  EXPECT_FALSE(cards.Has(4));
}

TEST_F(CardsTest, ForNewCard_AddNew_StoresACard) {
  AddCards({1});
  db::Recordset rows = cards.ForNewCard();
  EXPECT_TRUE(rows.AtEnd());
  rows.AddNew();
  rows.Set(u"Index@", 9);
  rows.Update();
  EXPECT_TRUE(cards.Has(9));
}

TEST_F(CardsTest, Numbers_RowsInAnyOrder_AreFoundByNumberAndByStoring) {
  AddCards({5, 9, 2});
  EXPECT_EQ(cards.FirstStored(), 5);
  EXPECT_EQ(cards.Highest(), 9);
  EXPECT_EQ(cards.NearestAbove(2), 5);
  EXPECT_EQ(cards.NearestBelow(9), 5);
  EXPECT_EQ(cards.NearestAbove(9), std::nullopt);
  EXPECT_EQ(cards.NearestBelow(2), std::nullopt);
  EXPECT_EQ(cards.CountIn(2, 9), 2);
}

TEST_F(CardsTest, Numbers_EmptyFile_AreNone) {
  EXPECT_EQ(cards.FirstStored(), std::nullopt);
  EXPECT_EQ(cards.Highest(), std::nullopt);
  EXPECT_EQ(cards.CountIn(0, 100), 0);
}

TEST_F(CardsTest, With_TextInAnyCase_FindsInTheOrderOfStoring) {
  file.AddCard(9, u"Ann"_s);
  file.AddCard(2, u"ANN"_s);
  file.AddCard(3, u"Anna"_s);
  EXPECT_EQ(NumbersOf(cards.With(u"Name"_s, u"ann"_s)), QStringList({u"9"_s, u"2"_s}));
}

TEST_F(CardsTest, With_Apostrophe_IsAText) {
  file.AddCard(1, u"L'Aquila"_s);
  file.AddCard(2, u"x"_s);
  EXPECT_EQ(NumbersOf(cards.With(u"Name"_s, u"L'Aquila"_s)), QStringList(u"1"_s));
  EXPECT_TRUE(cards.With(u"Name"_s, u"y' OR 'a'='a"_s).AtEnd());
}

TEST_F(CardsTest, Containing_Pattern_IsFoundAnywhere) {
  file.AddCard(1, u"Joanna's"_s);
  file.AddCard(2, u"Bob"_s);
  EXPECT_EQ(NumbersOf(cards.Containing(u"Name"_s, u"ann"_s)), QStringList(u"1"_s));
  EXPECT_EQ(NumbersOf(cards.Containing(u"Name"_s, u"a's"_s)), QStringList(u"1"_s));
  EXPECT_EQ(NumbersOf(cards.Containing(u"Name"_s, u"b?b"_s)), QStringList(u"2"_s));
}

TEST_F(CardsTest, Delete_TakesThatCardAlone) {
  AddCards({1, 2});
  file.AddRow(u"Telefon"_s, {{u"Index"_s, 1}});
  cards.Delete(1);
  EXPECT_EQ(file.Rows(u"Select [Index@] from MainData"_s), QStringList(u"2"_s));
  EXPECT_EQ(file.Rows(u"Telefon"_s).size(), 1);
}

TEST_F(CardsTest, DeleteCallsAndPrices_TakesThoseOfThatCardAlone) {
  for (const QString& table : {u"Telefon"_s, u"PriceList"_s}) {
    file.AddRow(table, {{u"Index"_s, 1}});
    file.AddRow(table, {{u"Index"_s, 2}});
  }
  cards.DeleteCallsAndPrices(1);
  EXPECT_EQ(file.Rows(u"Select Index from Telefon"_s), QStringList(u"2"_s));
  EXPECT_EQ(file.Rows(u"Select Index from PriceList"_s), QStringList(u"2"_s));
}
