// SPDX-License-Identifier: MIT
#include "base/settings/Settings.h"
#include "frame/Session.h"
#include "shell/OptionValues.h"
#include "tests/support/CardFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

class OptionValuesTest : public testing::Test {
 protected:
  OptionValuesTest() { StartAnew(); }
  ~OptionValuesTest() override { StartAnew(); }

  static void StartAnew() {
    QFile::remove(SettingsFile());
    Global() = Session();
  }
  static QString Stored(const QString& key) { return GetSetting(u"Init"_s, key, u"(never)"_s); }
  static void Store(const QString& key, const QString& value) { SaveSetting(u"Init"_s, key, value); }
};

class FieldOptionsTest : public testing::Test {
 protected:
  CardFile file = ACardFile().With(TextField(u"Tel"_s)).With(NumberField(u"Fax"_s)).Make();
};

}  // namespace

TEST_F(OptionValuesTest, ReadOptions_NothingStored_GivesEmptyTextsAndThisRunsPort) {
  const OptionValues values = ReadOptions();
  EXPECT_EQ(values.Tax, QString());
  EXPECT_EQ(values.Browser, QString());
  EXPECT_EQ(values.ModemPort, 2);
  EXPECT_FALSE(values.InsideUsa);
  EXPECT_EQ(values.WordProcessor, -1);
}

TEST_F(OptionValuesTest, StoreOptions_AllGiven_StandUnderTheirKeys) {
  EXPECT_TRUE(StoreOptions({.Tax = u"21"_s,
                            .OutsideLine = u"0"_s,
                            .AreaCode = u"030"_s,
                            .ModemPort = 4,
                            .MailServer = u"mail.example"_s,
                            .EmailAddress = u"a@b.example"_s,
                            .InsideUsa = true,
                            .Browser = u"/bin/true"_s,
                            .WordProcessor = 1}));
  const std::pair<QString, QString> expected[]{
      {u"MAAM"_s, u"21"_s},      {u"Outline"_s, u"0"_s},         {u"AreaCode"_s, u"030"_s},
      {u"Modem"_s, u"4"_s},      {u"USA"_s, u"TRUE"_s},          {u"MailServer"_s, u"mail.example"_s},
      {u"TextEditor"_s, u"1"_s}, {u"EMail"_s, u"a@b.example"_s}, {u"Browser"_s, u"/bin/true"_s}};
  for (const auto& [key, value] : expected) EXPECT_EQ(Stored(key), value) << key.toStdString();
  EXPECT_EQ(Global().ModemPort, 4);
  EXPECT_EQ(Global().IsUsa, True);
  const OptionValues read = ReadOptions();
  EXPECT_EQ(read.Tax, u"21"_s);
  EXPECT_EQ(read.EmailAddress, u"a@b.example"_s);
  EXPECT_EQ(read.WordProcessor, 1);
}

TEST_F(OptionValuesTest, StoreOptions_Tax_LeavesTheOneOfThisRun) {
  EXPECT_TRUE(StoreOptions({.Tax = u"21"_s}));
  EXPECT_EQ(Global().TaxPercent, 17);
}

TEST_F(OptionValuesTest, StoreOptions_EmptyBoxes_KeepTaxServerAndAddressButNotTheRest) {
  const QStringList keys{u"MAAM"_s,     u"MailServer"_s, u"EMail"_s, u"Outline"_s,
                         u"AreaCode"_s, u"Browser"_s,    u"USA"_s};
  for (const QString& key : keys) Store(key, u"old"_s);
  Global().IsUsa = True;
  const OptionValues empty{.Tax = u"  "_s};
  EXPECT_TRUE(LeavesStoredText(empty));
  EXPECT_TRUE(StoreOptions(empty));
  for (const QString& key : keys.first(3)) EXPECT_EQ(Stored(key), u"old"_s) << key.toStdString();
  for (const QString& key : keys.sliced(3)) EXPECT_EQ(Stored(key), QString()) << key.toStdString();
  EXPECT_EQ(Global().IsUsa, False);
  EXPECT_EQ(Stored(u"TextEditor"_s), u"-1"_s);
}

TEST_F(OptionValuesTest, LeavesStoredText_NothingStoredOrAllGiven_IsFalse) {
  EXPECT_FALSE(LeavesStoredText({}));
  Store(u"EMail"_s, u"old"_s);
  EXPECT_FALSE(LeavesStoredText({.EmailAddress = u"new"_s}));
  EXPECT_TRUE(LeavesStoredText({}));
}

TEST_F(OptionValuesTest, StoreOptions_NoPort_KeepsModemPort) {
  Global().ModemPort = 3;
  EXPECT_TRUE(StoreOptions({.ModemPort = 0}));
  EXPECT_EQ(Global().ModemPort, 3);
  EXPECT_EQ(Stored(u"Modem"_s), u"(never)"_s);
}

TEST_F(OptionValuesTest, ReadOptions_WordProcessor_OnlyTheTwoKnownOnesAreAChoice) {
  const std::pair<QString, int> cases[]{{u""_s, -1}, {u"0"_s, 0}, {u"1"_s, 1}, {u"-1"_s, -1}};
  for (const auto& [text, place] : cases) {
    Store(u"TextEditor"_s, text);
    EXPECT_EQ(ReadOptions().WordProcessor, place) << text.toStdString();
  }
}

TEST_F(OptionValuesTest, StoreOptions_SettingsThatCannotBeWritten_GivesFalse) {
  // A folder in the place of the settings' file.
  ASSERT_TRUE(QDir().mkpath(SettingsFile()));
  EXPECT_FALSE(StoreOptions({.Tax = u"21"_s}));
  ASSERT_TRUE(QDir().rmdir(SettingsFile()));
  // What could not be written waits in memory; it must not come up in another test.
  EXPECT_TRUE(SaveSetting(u"Init"_s, u"MAAM"_s, {}));
}

TEST_F(OptionValuesTest, IsTax_NumberBelowAHundredOrBlank_Fits) {
  for (const QString& text : {u""_s, u"  "_s, u"0"_s, u"17"_s, u"99"_s, u"99.9"_s, u"x"_s}) {
    EXPECT_TRUE(IsTax(text)) << text.toStdString();
  }
  for (const QString& text : {u"100"_s, u"171"_s, u" 100"_s}) EXPECT_FALSE(IsTax(text)) << text.toStdString();
}

TEST_F(OptionValuesTest, NumberFields_Catalogue_GivesTextsAndNumbersInItsOrder) {
  const std::vector<CatalogueRow> catalogue{
      {.Name = u"Company"_s, .Tab = 0, .Type = 0}, {.Name = u"Page"_s, .Tab = 1, .Type = 1},
      {.Name = u"Tel"_s, .Tab = 1, .Type = 2},     {.Name = u"Active"_s, .Tab = 1, .Type = 4},
      {.Name = u"Fax"_s, .Tab = 1, .Type = 3},     {.Name = std::nullopt, .Tab = 1, .Type = 2},
      {.Name = u"Due"_s, .Tab = 1, .Type = 5}};
  EXPECT_EQ(NumberFields(catalogue), QStringList({u"Tel"_s, u"Fax"_s}));
}

TEST_F(OptionValuesTest, PlaceOfField_StoredName_IsFoundWithoutCaseAndSpaces) {
  const QStringList fields{u"Tel"_s, u"Fax"_s, u"TEL"_s};
  EXPECT_EQ(PlaceOfField(fields, u" tel "_s), 0);
  EXPECT_EQ(PlaceOfField(fields, u"FAX"_s), 1);
  EXPECT_EQ(PlaceOfField(fields, u"Cell"_s), -1);
  EXPECT_EQ(PlaceOfField(fields, std::nullopt), -1);
}

TEST_F(FieldOptionsTest, StoreFields_NoneChosen_LeavesTheRows) {
  EXPECT_EQ(StoreFields(u"Tel"_s, u"Fax"_s), std::nullopt);
  EXPECT_EQ(StoreFields(std::nullopt, std::nullopt), std::nullopt);
  EXPECT_EQ(StoreFields(std::nullopt, u"Tel"_s), std::nullopt);
  EXPECT_EQ(file.Rows(u"tOptions"_s), QStringList({u"FieldDial|Tel"_s, u"FieldFax|Tel"_s}));
}

TEST_F(FieldOptionsTest, StoreFields_ApostropheInAStoredName_BreaksTheUpdateAndSkipsTheFax) {
  ASSERT_EQ(StoreFields(u"Tel"_s, u"Fax"_s), std::nullopt);
  const auto fault = StoreFields(u"Owner's"_s, u"Tel"_s);
  ASSERT_TRUE(fault);
  EXPECT_EQ(fault->Field, FieldNotStored::Which::Telephone);
  EXPECT_TRUE(fault->Notice.startsWith(u"The field \"Owner's\" was not stored. "_s))
      << fault->Notice.toStdString();
  EXPECT_EQ(file.Rows(u"tOptions"_s), QStringList({u"FieldDial|Tel"_s, u"FieldFax|Fax"_s}));
}

TEST_F(FieldOptionsTest, StoreFields_NameLongerThanItsColumn_IsTold) {
  const QString name(41, u'n');
  const auto fault = StoreFields(u"Tel"_s, name);
  ASSERT_TRUE(fault);
  EXPECT_EQ(fault->Field, FieldNotStored::Which::Fax);
  EXPECT_EQ(fault->Notice,
            u"The field \"%1\" was not stored: its name has more than 40 characters."_s.arg(name));
  EXPECT_EQ(file.Rows(u"tOptions"_s), QStringList(u"FieldDial|Tel"_s));
}

TEST_F(OptionValuesTest, StoreFields_NoFileAndNoneChosen_IsNoFault) {
  EXPECT_EQ(StoreFields(std::nullopt, std::nullopt), std::nullopt);
  EXPECT_TRUE(StoreFields(u"Tel"_s, std::nullopt));
}
