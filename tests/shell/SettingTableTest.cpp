// SPDX-License-Identifier: MIT
#include "base/settings/Settings.h"
#include "shell/SettingTable.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

class SettingTableTest : public testing::Test {
 protected:
  void SetUp() override { QFile::remove(SettingsFile()); }
  void TearDown() override { QFile::remove(SettingsFile()); }

  static void Store(const QString& key, const QString& value) { SaveSetting(u"Init"_s, key, value); }
};

}  // namespace

TEST_F(SettingTableTest, Read_NeverWritten_GivesTheDefaults) {
  EXPECT_EQ(Read(settings::ModemPort), 2);
  EXPECT_EQ(Read(settings::TaxPercent), 17);
  EXPECT_EQ(Read(settings::LastCard), 0);
  EXPECT_TRUE(Read(settings::UseBackground));
  EXPECT_FALSE(Read(settings::InsideUsa));
  EXPECT_EQ(Read(settings::Wallpaper), QString());
  EXPECT_EQ(Read(settings::RecentFiles[3]), QString());
}

TEST_F(SettingTableTest, ReadNumber_Text_GivesItsLeadingDigitsAndTheDefaultWhenEmpty) {
  Store(u"MAAM"_s, u"21.5"_s);
  EXPECT_EQ(Read(settings::TaxPercent), 21);
  Store(u"MAAM"_s, u""_s);
  EXPECT_EQ(Read(settings::TaxPercent), 17);
  Store(u"MAAM"_s, u"none"_s);
  EXPECT_EQ(Read(settings::TaxPercent), 0);
}

TEST_F(SettingTableTest, ReadSwitch_EmptyText_IsOff) {
  Store(u"UseBackground"_s, u"0"_s);
  EXPECT_FALSE(Read(settings::UseBackground));
  Store(u"UseBackground"_s, u""_s);
  EXPECT_FALSE(Read(settings::UseBackground));
  Store(u"UseBackground"_s, u"1"_s);
  EXPECT_TRUE(Read(settings::UseBackground));
}

TEST_F(SettingTableTest, ReadMark_AnyTextThatIsNotBlank_IsOn) {
  Store(u"USA"_s, u"no"_s);
  EXPECT_TRUE(Read(settings::InsideUsa));
  Store(u"USA"_s, u"  "_s);
  EXPECT_FALSE(Read(settings::InsideUsa));
}

TEST_F(SettingTableTest, Write_TextAndNumber_StandUnderTheirKeys) {
  Write(settings::LastPath, u"/a/b.ddb"_s);
  Write(settings::LastCard, 12);
  Write(settings::RecentFiles[2], u"/c.ddb"_s);
  EXPECT_EQ(GetSetting(u"Load"_s, u"Path"_s), u"/a/b.ddb"_s);
  EXPECT_EQ(GetSetting(u"Load"_s, u"Index"_s), u"12"_s);
  EXPECT_EQ(GetSetting(u"Init"_s, u"File2"_s), u"/c.ddb"_s);
  EXPECT_EQ(Read(settings::LastCard), 12);
}

TEST_F(SettingTableTest, Write_SwitchAndMark_StandInTheirOwnWords) {
  EXPECT_TRUE(Write(settings::UseBackground, false));
  EXPECT_TRUE(Write(settings::InsideUsa, true));
  EXPECT_EQ(GetSetting(u"Init"_s, u"UseBackground"_s), u"0"_s);
  EXPECT_EQ(GetSetting(u"Init"_s, u"USA"_s), u"TRUE"_s);
  EXPECT_TRUE(Write(settings::UseBackground, true));
  EXPECT_TRUE(Write(settings::InsideUsa, false));
  EXPECT_EQ(GetSetting(u"Init"_s, u"UseBackground"_s), u"1"_s);
  EXPECT_EQ(GetSetting(u"Init"_s, u"USA"_s, u"never"_s), QString());
}
