// SPDX-License-Identifier: MIT
#include "search/SearchRows.h"
#include "tests/support/CardFiles.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

/// Cards and contacts whose names look like patterns, and a main field of two words.
class SearchRowsTest : public testing::Test {
 protected:
  SearchRowsTest() {
    file.AddCard(5, u"Łódź Films"_s, {{u"City"_s, u"555-12"_s}});
    file.AddCard(2, u"a*b"_s);
    file.AddCard(9, u"A#1 [Best]"_s, {{u"City"_s, u"555-34"_s}});
    file.AddCard(1, u"Zürich"_s);
    file.AddRow(u"MainData"_s, {{u"Index@"_s, 3}});
    file.AddContact(5, u"Bea"_s, {{u"1"_s, u"Young"_s}, {u"7"_s, u"030-1234"_s}});
    file.AddContact(2, u"Ann"_s, {{u"1"_s, u"Zorn"_s}, {u"8"_s, u"(171) 555-4729"_s}});
    file.AddContact(9, u"Joanna"_s, {{u"1"_s, u"Abel"_s}, {u"9"_s, u"0621 / 08460"_s}, {u"10"_s, u"4729"_s}});
  }
  /// The rows, their columns joined by '|'.
  static QStringList Lines(db::Recordset found) {
    QStringList lines;
    for (; !found.AtEnd(); found.MoveNext()) {
      QStringList cells;
      for (int column = 0; column < found.FieldCount(); ++column) cells += found.At(column).TextOr({});
      lines += cells.join(u'|');
    }
    return lines;
  }
  [[nodiscard]] QStringList Cards(const QString& typed) const { return Lines(rows.CardsNamed(main, typed)); }
  [[nodiscard]] QStringList Contacts(ContactName which, const QString& typed) const {
    return Lines(rows.Contacts(SearchRows::ContactsNamed(which, typed)));
  }

  const QString main = u"Full name"_s;
  CardFile file = ACardFile().Named(main).With(TextField(u"City"_s)).Make();
  SearchRows rows{file.Database()};
};

}  // namespace

TEST_F(SearchRowsTest, CardsNamed_PieceOfAName_FindsItWhateverItsCase) {
  EXPECT_EQ(Cards(u"ŁÓD"_s), QStringList{u"5|Łódź Films"_s});
  EXPECT_EQ(Cards(u"  zür "_s), QStringList{u"1|Zürich"_s});
}

TEST_F(SearchRowsTest, CardsNamed_NoText_FindsEveryCardWithAName) {
  EXPECT_EQ(Cards({}).size(), 4);
  EXPECT_EQ(Cards(u"  "_s).size(), 4);
}

TEST_F(SearchRowsTest, CardsNamed_SignsOfPatterns_KeepTheirMeaning) {
  EXPECT_EQ(Cards(u"a*b"_s), QStringList({u"2|a*b"_s, u"9|A#1 [Best]"_s}));
  EXPECT_EQ(Cards(u"a?b"_s), QStringList{u"2|a*b"_s});
  EXPECT_EQ(Cards(u"#"_s), QStringList{u"9|A#1 [Best]"_s});
  EXPECT_EQ(Cards(u"[xz]ü"_s), QStringList{u"1|Zürich"_s});
  EXPECT_EQ(Cards(u"[[]b"_s), QStringList{u"9|A#1 [Best]"_s});
  EXPECT_EQ(Cards(u"[b"_s), QStringList());
}

TEST_F(SearchRowsTest, CardsNamed_Sorted_HasAllColumnsInTheOrder) {
  const db::Recordset byName = rows.CardsNamed(main, u"b"_s, CardOrder::Name);
  EXPECT_EQ(byName.FieldCount(), 4);
  EXPECT_EQ(byName.FieldAt(0).Name, u"Index@"_s);
  EXPECT_EQ(byName.FieldAt(1).Name, main);
  EXPECT_EQ(byName[main].Text(), u"A#1 [Best]"_s);
  EXPECT_EQ(rows.CardsNamed(main, u"b"_s, CardOrder::Number)[u"Index@"].Long(), 2);
  EXPECT_EQ(rows.CardsNamed(main, {}, CardOrder::Number)[u"Index@"].Long(), 1);
}

TEST_F(SearchRowsTest, ContactsNamed_FirstOrLastName_SearchesThatColumn) {
  EXPECT_EQ(Contacts(ContactName::First, u"ann"_s), QStringList({u"2|Ann|Zorn"_s, u"9|Joanna|Abel"_s}));
  EXPECT_EQ(Contacts(ContactName::Last, u"o"_s), QStringList({u"5|Bea|Young"_s, u"2|Ann|Zorn"_s}));
  EXPECT_EQ(Contacts(ContactName::Last, u"ann"_s), QStringList());
}

TEST_F(SearchRowsTest, Contacts_InAnOrder_AreThoseOfTheSearch) {
  const ContactSearch search = SearchRows::ContactsNamed(ContactName::Last, u"o"_s);
  EXPECT_EQ(Lines(rows.Contacts(search, ContactOrder::Number)).value(0), u"2|Ann|Zorn"_s);
  EXPECT_EQ(Lines(rows.Contacts(search, ContactOrder::FirstName)).value(0), u"2|Ann|Zorn"_s);
  EXPECT_EQ(Lines(rows.Contacts(search, ContactOrder::LastName)),
            QStringList({u"5|Bea|Young"_s, u"2|Ann|Zorn"_s}));
  EXPECT_TRUE(ContactSearch().IsEmpty());
  EXPECT_FALSE(search.IsEmpty());
}

TEST_F(SearchRowsTest, ContactsWithNumber_EachOfTheFourNumbers_IsSearchedAsItStands) {
  EXPECT_EQ(Lines(rows.ContactsWithNumber(u"1234"_s)), QStringList{u"5|Bea|Young|030-1234|||"_s});
  EXPECT_EQ(Lines(rows.ContactsWithNumber(u" 4729 "_s)).size(), 2);
  EXPECT_EQ(Lines(rows.ContactsWithNumber(u"5554729"_s)), QStringList());
  EXPECT_EQ(Lines(rows.ContactsWithNumber(u"/ 084"_s)).size(), 1);
}

TEST_F(SearchRowsTest, CardsWithNumber_Column_GivesNumberNameAndIt) {
  EXPECT_EQ(Lines(rows.CardsWithNumber(main, u"City"_s, u"555-"_s)),
            QStringList({u"5|Łódź Films|555-12"_s, u"9|A#1 [Best]|555-34"_s}));
}

TEST_F(SearchRowsTest, AllCardsAndContacts_InEachOrder_AreAllOfThem) {
  EXPECT_EQ(Lines(rows.AllCards(main)).size(), 5);
  EXPECT_EQ(Lines(rows.AllCards(main)).value(0), u"5|Łódź Films"_s);
  EXPECT_EQ(Lines(rows.AllCards(main, CardOrder::Number)).value(0), u"1|Zürich"_s);
  EXPECT_EQ(Lines(rows.AllCards(main, CardOrder::Name)).value(4), u"1|Zürich"_s);
  EXPECT_EQ(Lines(rows.AllContacts()).value(0), u"5|Bea|Young"_s);
  EXPECT_EQ(Lines(rows.AllContacts(ContactOrder::Number)).value(0), u"2|Ann|Zorn"_s);
  EXPECT_EQ(Lines(rows.AllContacts(ContactOrder::FirstName)).value(1), u"5|Bea|Young"_s);
  EXPECT_EQ(Lines(rows.AllContacts(ContactOrder::LastName)).value(0), u"9|Joanna|Abel"_s);
}
