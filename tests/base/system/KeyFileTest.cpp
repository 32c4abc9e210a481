// SPDX-License-Identifier: MIT
#include "base/system/KeyFile.h"

#include <QFile>
#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

TEST(KeyFileTest, Parse_GroupsAndKeys_BlanksAroundAreDropped) {
  const KeyFile file = KeyFile::Parse("# a note\n\n[One]\nName = Editor \nx=1=2\n[Two]\nName=Other\n");
  EXPECT_TRUE(file.HasGroup(u"One"_s));
  EXPECT_FALSE(file.HasGroup(u"Three"_s));
  EXPECT_EQ(file.Text(u"One"_s, u"Name"_s), u"Editor"_s);
  EXPECT_EQ(file.Text(u"One"_s, u"x"_s), u"1=2"_s);
  EXPECT_EQ(file.Text(u"Two"_s, u"Name"_s), u"Other"_s);
  EXPECT_EQ(file.Text(u"Two"_s, u"x"_s), QString());
}

TEST(KeyFileTest, Parse_WhatIsNoLine_IsPassedOver) {
  const KeyFile file =
      KeyFile::Parse("stray=1\n[One\n=2\nnothing\n[One]\na=1\n[One]\na=2\n\xff\xfe=3\r\nb=4\r\n");
  EXPECT_EQ(file.Text(u"One"_s, u"a"_s), u"1"_s);
  EXPECT_EQ(file.Text(u"One"_s, u"b"_s), QString());
  EXPECT_EQ(file.Text(QString(), u"stray"_s), QString());
}

TEST(KeyFileTest, Text_Escapes_AreResolved) {
  const KeyFile file = KeyFile::Parse("[One]\na=x\\sy\\n\\t\\\\z\\\n");
  EXPECT_EQ(file.Text(u"One"_s, u"a"_s), u"x y\n\t\\z\\"_s);
  EXPECT_EQ(file.Raw(u"One"_s, u"a"_s), uR"(x\sy\n\t\\z\)"_s);
}

TEST(KeyFileTest, List_Semicolons_PartUnlessEscaped) {
  const KeyFile file = KeyFile::Parse("[One]\na=x;y\\;z;;w;\n");
  EXPECT_EQ(file.List(u"One"_s, u"a"_s), QStringList({u"x"_s, u"y;z"_s, u"w"_s}));
  EXPECT_EQ(file.List(u"One"_s, u"b"_s), QStringList());
}

TEST(KeyFileTest, IsTrue_OnlyTheWordItself) {
  const KeyFile file = KeyFile::Parse("[One]\na=true\nb=1\nc=false\n");
  EXPECT_TRUE(file.IsTrue(u"One"_s, u"a"_s));
  EXPECT_FALSE(file.IsTrue(u"One"_s, u"b"_s));
  EXPECT_FALSE(file.IsTrue(u"One"_s, u"c"_s));
  EXPECT_FALSE(file.IsTrue(u"One"_s, u"d"_s));
}

TEST(KeyFileTest, LocalText_UsersLanguage_ElseThePlainOne) {
  const KeyFile file = KeyFile::Parse("[One]\nName=Reckoner\nName[de]=Rechner\nName[de_AT]=Rechner!\n");
  const QLocale before;
  QLocale::setDefault(QLocale(u"de_AT"_s));
  EXPECT_EQ(file.LocalText(u"One"_s, u"Name"_s), u"Rechner!"_s);
  QLocale::setDefault(QLocale(u"de_DE"_s));
  EXPECT_EQ(file.LocalText(u"One"_s, u"Name"_s), u"Rechner"_s);
  QLocale::setDefault(QLocale(u"fr_FR"_s));
  EXPECT_EQ(file.LocalText(u"One"_s, u"Name"_s), u"Reckoner"_s);
  QLocale::setDefault(before);
}

TEST(KeyFileTest, Read_MissingOrFarTooLargeFile_IsNothing) {
  const QTemporaryDir dir;
  EXPECT_FALSE(KeyFile::Read(dir.filePath(u"missing"_s)));
  EXPECT_FALSE(KeyFile::Read(dir.path()));
  QFile large(dir.filePath(u"large"_s));
  ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(2 << 20));
  EXPECT_FALSE(KeyFile::Read(large.fileName()));
}

}  // namespace
}  // namespace velmora
