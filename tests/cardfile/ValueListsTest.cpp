// SPDX-License-Identifier: MIT
#include "cardfile/ValueLists.h"
#include "tests/support/CardFiles.h"
#include "tests/support/TestDatabase.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

class ValueListsTest : public testing::Test {
 protected:
  void Keep(const QStringList& texts) const {
    for (const QString& text : texts) values.Add(u"City"_s, text);
  }

  CardFile file = ACardFile().With(TextField(u"City"_s)).With(TextField(u"Trade"_s)).Make();
  ValueLists values{file.Database()};
};

}  // namespace

TEST_F(ValueListsTest, ValuesOf_Rows_StandInTheOrderOfStoringWithoutNulls) {
  Keep({u"Rome"_s, u"Bern"_s});
  file.AddRow(u"CityT"_s, {{u"City"_s, db::Value::Null()}});
  Keep({u"Rome"_s});
  EXPECT_EQ(values.ValuesOf(u"City"_s), QStringList({u"Rome"_s, u"Bern"_s, u"Rome"_s}));
  EXPECT_EQ(values.RowsOf(u"City"_s).at(2), std::nullopt);
  EXPECT_EQ(values.RowsOf(u"City"_s).size(), 4U);
  EXPECT_TRUE(values.ValuesOf(u"Trade"_s).isEmpty());
}

TEST_F(ValueListsTest, Has_OtherCaseOrSpacesAtTheEnd_FindsTheValue) {
  Keep({u"Rome"_s});
  EXPECT_TRUE(values.Has(u"City"_s, u"ROME "_s));
  EXPECT_FALSE(values.Has(u"City"_s, u" Rome"_s));
  EXPECT_FALSE(values.Has(u"Trade"_s, u"Rome"_s));
}

TEST_F(ValueListsTest, AnyValue_Apostrophes_AreText) {
  Keep({u"Rome"_s, u"x' OR 'a'='a"_s, u"L'Aquila"_s});
  EXPECT_FALSE(values.Has(u"City"_s, u"y' OR 'a'='a"_s));
  EXPECT_TRUE(values.Has(u"City"_s, u"l'aquila"_s));
  values.Delete(u"City"_s, u"x' OR 'a'='a"_s);
  EXPECT_EQ(values.ValuesOf(u"City"_s), QStringList({u"Rome"_s, u"L'Aquila"_s}));
}

TEST_F(ValueListsTest, Delete_EqualRows_AllGo) {
  Keep({u"Rome"_s, u"Oslo"_s, u"ROME"_s});
  values.Delete(u"City"_s, u"Rome"_s);
  EXPECT_EQ(values.ValuesOf(u"City"_s), QStringList(u"Oslo"_s));
}

TEST_F(ValueListsTest, AnyOperation_FieldWithoutAList_Fails) {
  EXPECT_EQ(ErrorNumberOf([&] { std::ignore = values.ValuesOf(u"Due"_s); }), 3078);
  EXPECT_EQ(ErrorNumberOf([&] { values.Add(u"Due"_s, u"x"_s); }), 3078);
  EXPECT_EQ(ErrorNumberOf([&] { values.Delete(u"Due"_s, u"x"_s); }), 3078);
}
