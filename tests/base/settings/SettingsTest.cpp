// SPDX-License-Identifier: MIT
#include "base/settings/Settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

class SettingsTest : public testing::Test {
 protected:
  void SetUp() override { QFile::remove(SettingsFile()); }
};

}  // namespace

TEST_F(SettingsTest, SettingsFile_IsInTheUsersConfigFolder) {
  EXPECT_EQ(SettingsFile(), QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")) + u"/Velmora/Velmora.ini"_s);
}

TEST_F(SettingsTest, GetSetting_NeverWritten_IsTheDefault) {
  EXPECT_EQ(GetSetting(u"Init"_s, u"UseBackground"_s, u"1"_s), u"1"_s);
  EXPECT_EQ(GetSetting(u"Init"_s, u"File0"_s), QString());
}

TEST_F(SettingsTest, SaveSetting_EmptyText_IsNotTheDefault) {
  ASSERT_TRUE(SaveSetting(u"Init"_s, u"UseBackground"_s, QString()));
  EXPECT_EQ(GetSetting(u"Init"_s, u"UseBackground"_s, u"1"_s), QString());
}

TEST_F(SettingsTest, SaveSetting_AnyText_ComesBackExactly) {
  const QStringList texts{u" blanks  around "_s,
                          u"a, b;c=d"_s,
                          u"\"quoted\" 'text'"_s,
                          u"@Invalid()"_s,
                          u"C:\\dir\\file"_s,
                          u"/home/Åse/Größe 日本.ddb"_s,
                          u"line\r\nend\ttab"_s,
                          u"%20 100%"_s,
                          u"x\u00e9f\U0001F600"_s,
                          u"#comment"_s,
                          u","_s};
  for (const QString& text : texts) {
    ASSERT_TRUE(SaveSetting(u"Load"_s, u"Path"_s, text));
    EXPECT_EQ(GetSetting(u"Load"_s, u"Path"_s, u"?"_s), text);
  }
}

TEST_F(SettingsTest, GetSetting_OtherCase_IsTheSameKey) {
  ASSERT_TRUE(SaveSetting(u"Init"_s, u"AreaCode"_s, u"030"_s));
  EXPECT_EQ(GetSetting(u"INIT"_s, u"areacode"_s), u"030"_s);
  ASSERT_TRUE(SaveSetting(u"init"_s, u"AREACODE"_s, u"040"_s));
  EXPECT_EQ(GetSetting(u"Init"_s, u"AreaCode"_s), u"040"_s);
  const QSettings stored(SettingsFile(), QSettings::IniFormat);
  EXPECT_EQ(stored.allKeys(), QStringList(u"Init/AreaCode"_s));
}

TEST_F(SettingsTest, GetSetting_SameKeyInAnotherSection_IsAnother) {
  ASSERT_TRUE(SaveSetting(u"ShellApp"_s, u"1"_s, u"/usr/bin/true"_s));
  ASSERT_TRUE(SaveSetting(u"Init"_s, u"1"_s, u"x"_s));
  EXPECT_EQ(GetSetting(u"ShellApp"_s, u"1"_s), u"/usr/bin/true"_s);
  EXPECT_EQ(GetSetting(u"Load"_s, u"1"_s), QString());
}

TEST_F(SettingsTest, SaveSetting_NamesWithSigns_StayApart) {
  ASSERT_TRUE(SaveSetting(u"General"_s, u"a/b"_s, u"1"_s));
  ASSERT_TRUE(SaveSetting(u"General"_s, u"a\\b"_s, u"2"_s));
  ASSERT_TRUE(SaveSetting(u"General"_s, u"a%2Fb"_s, u"3"_s));
  EXPECT_EQ(GetSetting(u"General"_s, u"a/b"_s), u"1"_s);
  EXPECT_EQ(GetSetting(u"General"_s, u"a\\b"_s), u"2"_s);
  EXPECT_EQ(GetSetting(u"General"_s, u"a%2Fb"_s), u"3"_s);
}

TEST_F(SettingsTest, SaveSetting_Returned_FileHoldsIt) {
  ASSERT_TRUE(SaveSetting(u"Init"_s, u"File0"_s, u"/tmp/cards.ddb"_s));
  QFile file(SettingsFile());
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().contains("File0=/tmp/cards.ddb"));
}

TEST_F(SettingsTest, GetSetting_FileChangedByAnotherProgram_IsReadAnew) {
  ASSERT_TRUE(SaveSetting(u"Init"_s, u"File0"_s, u"old"_s));
  QFile file(SettingsFile());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write("[Init]\nFile0=another one\n");
  file.close();
  EXPECT_EQ(GetSetting(u"Init"_s, u"File0"_s), u"another one"_s);
}

TEST_F(SettingsTest, SaveSetting_FileCannotBeWritten_IsFalse) {
  const QByteArray configHome = qgetenv("XDG_CONFIG_HOME");
  qputenv("XDG_CONFIG_HOME", "/proc/nowhere");
  EXPECT_FALSE(SaveSetting(u"Init"_s, u"File0"_s, u"x"_s));
  EXPECT_EQ(GetSetting(u"Init"_s, u"Modem"_s, u"2"_s), u"2"_s);
  qputenv("XDG_CONFIG_HOME", configHome);
}
