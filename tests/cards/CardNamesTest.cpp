// SPDX-License-Identifier: MIT
#include "cards/CardNames.h"
#include "frame/Session.h"
#include "tests/support/CardFiles.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

const QString Column = QStringLiteral("Customer name");

class CardNamesTest : public testing::Test {
 protected:
  void AddCards(const QStringList& names) const {
    std::int32_t number = 0;
    for (const QString& name : names) file.AddCard(++number, name);
  }

  CardFile file = ACardFile().Named(Column).With(TextField(u"City"_s)).Make();
};

}  // namespace

TEST_F(CardNamesTest, NameTaken_OwnNameOfTheCurrentCard_IsNotTaken) {
  AddCards({u"Ann"_s, u"Bob"_s});
  Global().CurCard = 1;
  EXPECT_FALSE(NameTaken(u"Ann"_s, Column));
  EXPECT_TRUE(NameTakenNew(u"Ann"_s, Column));
}

TEST_F(CardNamesTest, NameTaken_AnotherCardsName_IsTaken) {
  AddCards({u"Ann"_s, u"Bob"_s, u"Ann"_s});
  Global().CurCard = 1;
  EXPECT_TRUE(NameTaken(u"Bob"_s, Column));
  EXPECT_TRUE(NameTaken(u"Ann"_s, Column));
}

TEST_F(CardNamesTest, NameTaken_CaseAndBlanksAround_DoNotCount) {
  AddCards({u"Ann Lee"_s});
  EXPECT_TRUE(NameTaken(u"  ANN lee "_s, Column));
  EXPECT_TRUE(NameTakenNew(u"ann LEE"_s, Column));
  EXPECT_FALSE(NameTaken(u"Ann"_s, Column));
}

TEST_F(CardNamesTest, NameTaken_NameWithAnApostrophe_IsANameLikeAnother) {
  AddCards({u"Ann's"_s, u"Bob"_s});
  EXPECT_TRUE(NameTaken(u"Ann's"_s, Column));
  EXPECT_TRUE(SimilarName(u"n's"_s, Column));
  EXPECT_FALSE(NameTaken(u"x' OR 'a'='a"_s, Column));
  EXPECT_EQ(FirstCardNamed(u"Ann's"_s, Column), 1);
}

TEST_F(CardNamesTest, NameTaken_FileCannotBeAsked_IsFalse) {
  AddCards({u"Ann"_s});
  EXPECT_FALSE(NameTaken(u"Ann"_s, u"Nothing"_s));
  EXPECT_FALSE(SimilarName(u"Ann"_s, u"Nothing"_s));
  Global().CardDb.reset();
  EXPECT_FALSE(NameTakenNew(u"Ann"_s, Column));
}

TEST_F(CardNamesTest, SimilarName_WordWithinAName_IsFound) {
  AddCards({u"Joanna Roe"_s});
  EXPECT_TRUE(SimilarName(u"Ann"_s, Column));
  EXPECT_FALSE(SimilarName(u"Anne"_s, Column));
}

TEST_F(CardNamesTest, SimilarName_FirstWordAlone_Counts) {
  AddCards({u"Blacksmith Inc"_s});
  EXPECT_TRUE(SimilarName(u"Smith and Sons"_s, Column));
  EXPECT_FALSE(SimilarName(u"Sons Smith"_s, Column));
}

TEST_F(CardNamesTest, SimilarName_BlankInFront_FindsAnyName) {
  AddCards({u"Bob"_s});
  EXPECT_TRUE(SimilarName(u" Ann"_s, Column));
}

TEST_F(CardNamesTest, SimilarName_PatternSign_IsAPatternSign) {
  AddCards({u"Bob"_s});
  EXPECT_TRUE(SimilarName(u"B?b"_s, Column));
}

TEST_F(CardNamesTest, SimilarNameOther_CurrentCardAlone_IsNotFound) {
  AddCards({u"Joanna"_s, u"Bob"_s});
  Global().CurCard = 1;
  EXPECT_FALSE(SimilarNameOther(u"Ann"_s, Column));
  Global().CurCard = 2;
  EXPECT_TRUE(SimilarNameOther(u"Ann"_s, Column));
}

TEST_F(CardNamesTest, FirstCardNamed_IsTheFirstStored) {
  file.AddCard(9, u"Ann"_s);
  file.AddCard(2, u"Ann"_s);
  EXPECT_EQ(FirstCardNamed(u" ann "_s, Column), 9);
  EXPECT_EQ(FirstCardNamed(u"Bob"_s, Column), std::nullopt);
}

TEST_F(CardNamesTest, NameTaken_RealCompanies_AreFoundByTheirOwnNamesAlone) {
  QStringList names;
  for (const QStringList& row : ReadCsv(u"northwind_customers.csv"_s)) names += row.at(1);
  ASSERT_EQ(names.size(), 93);
  AddCards(names);
  for (const QString& name : names) {
    EXPECT_TRUE(NameTakenNew(name.toUpper(), Column)) << name.toStdString();
    EXPECT_TRUE(SimilarName(name, Column)) << name.toStdString();
    EXPECT_EQ(NameTakenNew(name + u"x"_s, Column), names.contains(name + u"x"_s, Qt::CaseInsensitive));
  }
}

TEST(FirstWordTest, FirstWord_EndsAtTheFirstBlank) {
  EXPECT_EQ(FirstWord(u"Ann Lee"_s), u"Ann"_s);
  EXPECT_EQ(FirstWord(u"Ann"_s), u"Ann"_s);
  EXPECT_EQ(FirstWord(u" Ann"_s), QString());
}
