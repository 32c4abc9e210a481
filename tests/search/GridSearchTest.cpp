// SPDX-License-Identifier: MIT
#include "search/GridSearch.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

/// Cells that are walked one by one; row 0 is the one of the headings.
class Cells final : public SearchedCells {
 public:
  explicit Cells(std::vector<QStringList> rows) : m_rows(std::move(rows)) {}
  std::optional<int> RowFrom(int row, int column, const QString& text) override {
    for (int r = row; r < static_cast<int>(m_rows.size()); ++r) {
      if (Has(r, column, text)) return r;
    }
    return std::nullopt;
  }
  std::optional<int> RowBefore(int row, int column, const QString& text) override {
    for (int r = row - 1; r >= 1; --r) {
      if (Has(r, column, text)) return r;
    }
    return std::nullopt;
  }

 private:
  [[nodiscard]] bool Has(int row, int column, const QString& text) const {
    return m_rows[static_cast<std::size_t>(row)][column].contains(text, Qt::CaseInsensitive);
  }
  std::vector<QStringList> m_rows;
};

class GridSearchTest : public testing::Test {
 protected:
  Found Next(const QString& text) { return search.Next(cells, text, ColumnOfCards(text)); }
  Found Previous() { return search.Previous(cells); }

  Cells cells{{{u"No."_s, u"Name"_s},
               {u"7"_s, u"Ann"_s},
               {u"12"_s, u"Bob"_s},
               {u"112"_s, u"Joanna"_s},
               {u"40"_s, u"Zero 0"_s},
               {u"312"_s, u"Hanna 12"_s}}};
  GridSearch search;
};

}  // namespace

TEST_F(GridSearchTest, Next_NumberInTheText_FindsCardNumbersByTheirPieces) {
  EXPECT_EQ(Next(u"12"_s), Found::First);
  EXPECT_EQ(search.Row(), 2);
  EXPECT_EQ(search.Column(), 0);
  EXPECT_EQ(Next(u"12"_s), Found::Another);
  EXPECT_EQ(search.Row(), 3);
  EXPECT_EQ(Next(u"12"_s), Found::Another);
  EXPECT_EQ(search.Row(), 5);
}

TEST_F(GridSearchTest, Next_ZeroAsText_SearchesTheNames) {
  EXPECT_EQ(Next(u"0"_s), Found::First);
  EXPECT_EQ(search.Row(), 4);
  EXPECT_EQ(search.Column(), 1);
}

TEST_F(GridSearchTest, Next_NoMoreHits_IsAtEndAndStaysOnTheLast) {
  for (int hit = 0; hit < 3; ++hit) EXPECT_NE(Next(u"ANN"_s), Found::AtEnd);
  EXPECT_EQ(search.Row(), 5);
  EXPECT_EQ(Next(u"ANN"_s), Found::AtEnd);
  EXPECT_EQ(Next(u"ANN"_s), Found::AtEnd);
  EXPECT_EQ(search.Row(), 5);
}

TEST_F(GridSearchTest, Next_TextChangedAfterTheEnd_StartsFromTheTop) {
  while (Next(u"ann"_s) != Found::AtEnd) {
  }
  search.StartOver();
  EXPECT_EQ(Next(u"o"_s), Found::First);
  EXPECT_EQ(search.Row(), 2);
}

TEST_F(GridSearchTest, Next_NewTextThatIsNowhere_IsToldAgainAndAgain) {
  EXPECT_EQ(Next(u"xyz"_s), Found::Nowhere);
  EXPECT_EQ(Next(u"xyz"_s), Found::Nowhere);
  EXPECT_EQ(search.Row(), 0);
  EXPECT_EQ(search.Column(), 0);
}

TEST_F(GridSearchTest, Next_SpacesAlone_SearchesNothing) {
  EXPECT_EQ(Next(u"  "_s), Found::NoText);
  EXPECT_EQ(Next(QString()), Found::NoText);
}

TEST_F(GridSearchTest, Next_SpacesAroundTheText_Count) {
  EXPECT_EQ(Next(u" 0"_s), Found::First);
  EXPECT_EQ(search.Row(), 4);
  search.StartOver();
  EXPECT_EQ(Next(u"ann "_s), Found::Nowhere);
}

TEST_F(GridSearchTest, Next_GoingOn_KeepsTheColumnOfItsStart) {
  EXPECT_EQ(search.Next(cells, u"12"_s, 0), Found::First);
  EXPECT_EQ(search.Next(cells, u"12"_s, 1), Found::Another);
  EXPECT_EQ(search.Row(), 3);
}

TEST_F(GridSearchTest, Previous_BehindTheFirstHit_GoesBackToItAndNotFurther) {
  EXPECT_EQ(Next(u"ann"_s), Found::First);
  EXPECT_EQ(Next(u"ann"_s), Found::Another);
  EXPECT_EQ(Previous(), Found::Another);
  EXPECT_EQ(search.Row(), 1);
  EXPECT_EQ(Previous(), Found::AtBeginning);
  EXPECT_EQ(search.Row(), 1);
  EXPECT_EQ(Next(u"ann"_s), Found::Another);
  EXPECT_EQ(search.Row(), 3);
}

TEST(ColumnOf, CardsAndContacts_FollowTheTextAndTheSortButtons) {
  EXPECT_EQ(ColumnOfCards(u"1"_s), 0);
  EXPECT_EQ(ColumnOfCards(u" 12 Ltd"_s), 0);
  EXPECT_EQ(ColumnOfCards(u"0.5"_s), 1);
  EXPECT_EQ(ColumnOfCards(u"-3"_s), 1);
  EXPECT_EQ(ColumnOfCards(u"A1"_s), 1);
  EXPECT_EQ(ColumnOfContacts(u"7"_s, false, true), 0);
  EXPECT_EQ(ColumnOfContacts(u"Ann"_s, false, false), 1);
  EXPECT_EQ(ColumnOfContacts(u"Ann"_s, true, false), 1);
  EXPECT_EQ(ColumnOfContacts(u"Ann"_s, false, true), 2);
}
