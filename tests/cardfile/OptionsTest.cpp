// SPDX-License-Identifier: MIT
#include "cardfile/Options.h"
#include "tests/support/CardFiles.h"
#include "tests/support/TestDatabase.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

class OptionsTest : public testing::Test {
 protected:
  void Keep(const QString& key, const QString& value) const {
    file.AddRow(u"tOptions"_s, {{u"txtKey"_s, key}, {u"tVal"_s, value}});
  }

  CardFile file = ACardFile().With(TextField(u"Telephone"_s)).With(NumberField(u"Fax"_s)).Make();
  Options options{file.Database()};
};

}  // namespace

TEST_F(OptionsTest, Fields_NewFile_AreNotSet) {
  EXPECT_EQ(options.TelephoneField(), std::nullopt);
  EXPECT_EQ(options.FaxField(), std::nullopt);
  EXPECT_EQ(options.TelephoneColumn(), QString());
}

TEST_F(OptionsTest, SetFields_Twice_LeavesOneRowForEach) {
  options.SetTelephoneField(u"Name"_s);
  options.SetFaxField(u"Name"_s);
  options.SetTelephoneField(u"Telephone"_s);
  options.SetFaxField(u"Fax"_s);
  EXPECT_EQ(file.Rows(u"tOptions"_s), QStringList({u"FieldDial|Telephone"_s, u"FieldFax|Fax"_s}));
  EXPECT_EQ(options.TelephoneField(), u"Telephone"_s);
  EXPECT_EQ(options.FaxField(), u"Fax"_s);
}

TEST_F(OptionsTest, FaxField_EitherSpellingOfTheKey_ReachesTheOneRow) {
  Keep(u"Fieldfax"_s, u"Telephone"_s);
  EXPECT_EQ(options.FaxField(), u"Telephone"_s);
  options.SetFaxField(u"Fax"_s);
  EXPECT_EQ(file.Rows(u"tOptions"_s), QStringList(u"Fieldfax|Fax"_s));
}

TEST_F(OptionsTest, Field_TwoRowsOfOneKey_IsNotSetButBothAreWritten) {
  Keep(u"FieldDial"_s, u"Telephone"_s);
  Keep(u"FieldDial"_s, u"Fax"_s);
  EXPECT_EQ(options.TelephoneField(), std::nullopt);
  EXPECT_EQ(options.TelephoneColumn(), u"Telephone"_s);
  options.SetTelephoneField(u"Name"_s);
  EXPECT_EQ(file.Rows(u"tOptions"_s), QStringList({u"FieldDial|Name"_s, u"FieldDial|Name"_s}));
}

TEST_F(OptionsTest, Field_NullValue_IsAnEmptyName) {
  file.AddRow(u"tOptions"_s, {{u"txtKey"_s, u"FieldDial"_s}});
  EXPECT_EQ(options.TelephoneField(), QString());
  EXPECT_EQ(options.TelephoneColumn(), QString());
}

TEST_F(OptionsTest, SetField_ApostropheOverARow_BreaksTheUpdateAndLeavesTheRow) {
  options.SetTelephoneField(u"Owner's number"_s);
  ASSERT_EQ(options.TelephoneField(), u"Owner's number"_s);
  EXPECT_NE(ErrorNumberOf([&] { options.SetTelephoneField(u"Wife's number"_s); }), 0);
  EXPECT_EQ(options.TelephoneField(), u"Owner's number"_s);
}

TEST_F(OptionsTest, SetField_NameLongerThanTheColumn_FailsWithOrWithoutARow) {
  const QString longest(40, u'n');
  EXPECT_EQ(ErrorNumberOf([&] { options.SetTelephoneField(longest + u'n'); }), 3163);
  EXPECT_TRUE(file.Rows(u"tOptions"_s).isEmpty());
  options.SetTelephoneField(longest);
  EXPECT_EQ(ErrorNumberOf([&] { options.SetTelephoneField(longest + u'n'); }), 3163);
  EXPECT_EQ(options.TelephoneField(), longest);
}

TEST_F(OptionsTest, TelephoneColumn_ColumnOfThatExactName_IsGiven) {
  options.SetTelephoneField(u"Telephone"_s);
  EXPECT_EQ(options.TelephoneColumn(), u"Telephone"_s);
  options.SetTelephoneField(u"TELEPHONE"_s);
  EXPECT_EQ(options.TelephoneColumn(), QString());
}

TEST_F(OptionsTest, TelephoneColumn_FieldDeletedSince_IsEmpty) {
  options.SetTelephoneField(u"Telephone"_s);
  file.Database().DeleteField(u"MainData", u"Telephone");
  EXPECT_EQ(options.TelephoneColumn(), QString());
  EXPECT_EQ(options.TelephoneField(), u"Telephone"_s);
}

TEST_F(OptionsTest, AnyOperation_FileWithoutTheTable_Fails) {
  file.Database().DeleteTableDef(u"tOptions");
  EXPECT_EQ(ErrorNumberOf([&] { std::ignore = options.TelephoneField(); }), 3078);
  EXPECT_EQ(ErrorNumberOf([&] { std::ignore = options.TelephoneColumn(); }), 3078);
  EXPECT_EQ(ErrorNumberOf([&] { options.SetFaxField(u"Fax"_s); }), 3078);
}
