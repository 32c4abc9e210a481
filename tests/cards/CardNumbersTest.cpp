// SPDX-License-Identifier: MIT
#include "cards/CardNumbers.h"
#include "frame/Session.h"
#include "tests/support/CardFiles.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <set>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

constexpr std::int32_t Largest = std::numeric_limits<std::int32_t>::max();

class CardNumbersTest : public testing::Test {
 protected:
  void AddCards(std::initializer_list<std::int32_t> numbers) const {
    for (const std::int32_t number : numbers) file.AddCard(number, u"Card "_s + QString::number(number));
  }
  /// Fills the table in one statement for each doubling: numbers 1 to count.
  void FillWith(int count) const {
    file.AddCard(1, u"x"_s);
    for (int have = 1; have < count; have *= 2) {
      file.Database().Execute(
          u"Insert Into MainData ([Index@]) Select [Index@] + %1 From MainData Where [Index@] <= %2"_s
              .arg(have)
              .arg(count - have));
    }
  }

  CardFile file = ACardFile().With(TextField(u"City"_s)).Make();
};

}  // namespace

TEST_F(CardNumbersTest, NextCardNumber_IsAboveTheHighest) {
  AddCards({5, 1, 2});
  EXPECT_EQ(NextCardNumber(), 6);
}

TEST_F(CardNumbersTest, LowestFreeNumber_Gap_IsItsFirstNumber) {
  AddCards({5, 1, 2});
  EXPECT_EQ(LowestFreeNumber(), 3);
}

TEST_F(CardNumbersTest, Numbers_EmptyTable_AreOne) {
  EXPECT_EQ(NextCardNumber(), 1);
  EXPECT_EQ(LowestFreeNumber(), 1);
}

TEST_F(CardNumbersTest, Numbers_NoFile_AreZero) {
  Global().CardDb.reset();
  EXPECT_EQ(NextCardNumber(), 0);
  EXPECT_EQ(LowestFreeNumber(), 0);
  EXPECT_FALSE(CardExists(1));
  EXPECT_EQ(CardName(1), QString());
}

TEST_F(CardNumbersTest, NextCardNumber_LargestIsTaken_IsZero) {
  AddCards({Largest});
  EXPECT_EQ(NextCardNumber(), 0);
  EXPECT_EQ(LowestFreeNumber(), 1);
}

TEST_F(CardNumbersTest, LowestFreeNumber_NoGap_IsAboveTheHighest) {
  AddCards({1, 2, 3});
  EXPECT_EQ(LowestFreeNumber(), 4);
}

TEST_F(CardNumbersTest, LowestFreeNumber_NumbersBelowOne_DoNotCount) {
  AddCards({-3, 0, 1});
  EXPECT_EQ(LowestFreeNumber(), 2);
}

TEST_F(CardNumbersTest, LowestFreeNumber_AnyGapInManyCards_IsFound) {
  constexpr int count = 5000;
  FillWith(count);
  EXPECT_EQ(LowestFreeNumber(), count + 1);
  for (const std::int32_t gap : {5000, 4999, 3073, 3072, 1025, 1024, 1023, 513, 2, 1}) {
    file.Database().Execute(u"Delete * from MainData where [Index@] = "_s + QString::number(gap));
    EXPECT_EQ(LowestFreeNumber(), gap);
  }
}

TEST_F(CardNumbersTest, LowestFreeNumber_RandomCards_IsThatOfAPlainScan) {
  std::mt19937 random(7);
  for (int round = 0; round < 20; ++round) {
    file.Database().Execute(u"Delete * from MainData");
    std::set<std::int32_t> numbers;
    const int range = 1 << (round % 6 + 1);
    for (int i = 0; i < range; ++i) {
      const auto number = static_cast<std::int32_t>(random() % static_cast<unsigned>(range) + 1);
      if (numbers.insert(number).second) file.AddCard(number, u"x"_s);
    }
    std::int32_t expected = 1;
    while (numbers.contains(expected)) ++expected;
    EXPECT_EQ(LowestFreeNumber(), expected);
  }
}

TEST_F(CardNumbersTest, CardExists_KnowsStoredCards) {
  AddCards({12});
  EXPECT_TRUE(CardExists(12));
  EXPECT_FALSE(CardExists(1));
}

TEST_F(CardNumbersTest, CardName_IsTheMainField) {
  file.AddCard(3, u"Ann O"_s);
  EXPECT_EQ(CardName(3), u"Ann O"_s);
  EXPECT_EQ(CardName(4), QString());
}

TEST_F(CardNumbersTest, CardName_NullName_IsEmpty) {
  file.AddRow(u"MainData"_s, {{u"Index@"_s, 3}});
  EXPECT_EQ(CardName(3), QString());
}

TEST_F(CardNumbersTest, NearestCard_StepUpIntoAGap_GoesToTheNextCard) {
  AddCards({1, 5, 2});
  EXPECT_EQ(NearestCard(3, 2), 5);
}

TEST_F(CardNumbersTest, NearestCard_StepAboveTheHighest_StaysThere) {
  AddCards({1, 5, 2});
  EXPECT_EQ(NearestCard(6, 5), 5);
}

TEST_F(CardNumbersTest, NearestCard_StepDownIntoAGap_GoesToTheNearestBelow) {
  AddCards({2, 1, 5});
  EXPECT_EQ(NearestCard(4, 5), 2);
}

TEST_F(CardNumbersTest, NearestCard_StepBelowTheLowest_StaysThere) {
  AddCards({7, 3, 5});
  EXPECT_EQ(NearestCard(2, 3), 3);
}

TEST_F(CardNumbersTest, NearestCard_CardExists_IsThatCard) {
  AddCards({1, 5, 2});
  EXPECT_EQ(NearestCard(2, 5), 2);
  EXPECT_EQ(NearestCard(2, 2), 2);
}

TEST_F(CardNumbersTest, NearestCard_RowsInAnyOrder_IsTheNearestByNumber) {
  AddCards({90, 20, 50, 10, 70});
  EXPECT_EQ(NearestCard(30, 1), 50);
  EXPECT_EQ(NearestCard(60, 99), 50);
}

TEST_F(CardNumbersTest, NearestCard_CurrentCardIsGone_IsNothing) {
  AddCards({1, 5});
  EXPECT_EQ(NearestCard(2, 2), std::nullopt);
}

TEST_F(CardNumbersTest, NearestCard_EmptyTable_IsNothing) {
  EXPECT_EQ(NearestCard(2, 1), std::nullopt);
  EXPECT_EQ(NearestCard(1, 2), std::nullopt);
}

TEST_F(CardNumbersTest, CardToShow_CurrentCardIsGone_IsTheFirstStored) {
  AddCards({5, 1, 9});
  EXPECT_EQ(CardToShow(2, 2), 5);
}

TEST_F(CardNumbersTest, CardToShow_FirstCardDeleted_IsTheNextInTheOrderOfStoring) {
  AddCards({5, 1, 9});
  DeleteCard(5);
  EXPECT_EQ(CardToShow(5, 5), 1);
}

TEST_F(CardNumbersTest, CardToShow_EmptyTable_IsNothing) { EXPECT_EQ(CardToShow(1, 1), std::nullopt); }

TEST_F(CardNumbersTest, DeleteCard_TakesItsContactsCallsAndPrices) {
  AddCards({1, 2});
  for (const std::int32_t card : {1, 2}) {
    file.AddContact(card, u"Ann"_s);
    file.AddRow(u"Telefon"_s, {{u"Index"_s, card}});
    file.AddRow(u"PriceList"_s, {{u"Index"_s, card}});
    file.AddRow(u"TableDatesRemainder"_s, {{u"Index"_s, card}});
  }
  DeleteCard(1);
  EXPECT_EQ(file.Rows(u"Select [Index@] from MainData"_s), QStringList(u"2"_s));
  EXPECT_EQ(file.Rows(u"Select [Index] from Agent"_s), QStringList(u"2"_s));
  EXPECT_EQ(file.Rows(u"Select [Index] from Telefon"_s), QStringList(u"2"_s));
  EXPECT_EQ(file.Rows(u"Select [Index] from PriceList"_s), QStringList(u"2"_s));
}

TEST_F(CardNumbersTest, DeleteCard_LeavesItsReminders) {
  AddCards({1});
  file.AddRow(u"TableDatesRemainder"_s, {{u"Index"_s, 1}});
  DeleteCard(1);
  EXPECT_EQ(file.Rows(u"TableDatesRemainder"_s), QStringList(u"1"_s));
}
