// SPDX-License-Identifier: MIT
#include "base/system/Files.h"
#include "base/system/Flag.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

class FilesTest : public testing::Test {
 protected:
  [[nodiscard]] QString Make(const QString& name) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return file.fileName();
  }
  [[nodiscard]] QString Path(const QString& name) const { return m_dir.filePath(name); }

  QTemporaryDir m_dir;
};

}  // namespace

TEST_F(FilesTest, ExistFile_File_IsOne) {
  EXPECT_EQ(ExistFile(Make(u"Größe cards.ddb"_s)), 1);
  ASSERT_TRUE(QFile::link(Path(u"Größe cards.ddb"_s), Path(u"link.ddb"_s)));
  EXPECT_EQ(ExistFile(Path(u"link.ddb"_s)), 1);
}

TEST_F(FilesTest, ExistFile_AnythingElse_IsZero) {
  EXPECT_EQ(ExistFile(QString()), 0);
  EXPECT_EQ(ExistFile(Path(u"missing.ddb"_s)), 0);
  EXPECT_EQ(ExistFile(m_dir.path()), 0);
  ASSERT_TRUE(QFile::link(Path(u"missing.ddb"_s), Path(u"dangling.ddb"_s)));
  EXPECT_EQ(ExistFile(Path(u"dangling.ddb"_s)), 0);
}

TEST_F(FilesTest, PathOfFile_EndsWithTheLastSeparator) {
  EXPECT_EQ(PathOfFile(u"/home/ann/cards.ddb"_s), u"/home/ann/"_s);
  EXPECT_EQ(PathOfFile(u"/cards.ddb"_s), u"/"_s);
  EXPECT_EQ(PathOfFile(u"/home/ann/"_s), u"/home/ann/"_s);
}

TEST_F(FilesTest, PathOfFile_NoSeparator_IsEmpty) {
  EXPECT_EQ(PathOfFile(QString()), QString());
  EXPECT_EQ(PathOfFile(u"cards.ddb"_s), QString());
  EXPECT_EQ(PathOfFile(u" "_s), QString());
}

TEST_F(FilesTest, ProgramDir_EndsWithASeparatorAndHoldsTheProgram) {
  EXPECT_TRUE(ProgramDir().endsWith(u'/'));
  EXPECT_EQ(ProgramDir() + QCoreApplication::applicationFilePath().section(u'/', -1),
            QCoreApplication::applicationFilePath());
}

TEST_F(FilesTest, ProgramDir_InstalledProgram_IsItsShare) {
  ASSERT_TRUE(QDir(m_dir.path()).mkpath(u"bin"_s));
  EXPECT_EQ(ProgramDirOf(Path(u"bin/velmora"_s)), Path(u"bin/"_s));
  ASSERT_TRUE(QDir(m_dir.path()).mkpath(u"share/velmora"_s));
  EXPECT_EQ(ProgramDirOf(Path(u"bin/velmora"_s)), Path(u"share/velmora/"_s));
}

TEST_F(FilesTest, SetProgramDir_EmptyPath_BringsTheRealPlaceBack) {
  const QString real = ProgramDir();
  SetProgramDir(Path(u"data/"_s));
  EXPECT_EQ(ProgramDir(), Path(u"data/"_s));
  SetProgramDir({});
  EXPECT_EQ(ProgramDir(), real);
}

TEST_F(FilesTest, FilesIn_ListsVisibleFilesByName) {
  for (const QString& name : {u"b.ddb"_s, u"a.txt"_s, u".hidden"_s}) std::ignore = Make(name);
  ASSERT_TRUE(QDir(m_dir.path()).mkdir(u"folder"_s));
  EXPECT_EQ(FilesIn(m_dir.path()), QStringList({u"a.txt"_s, u"b.ddb"_s}));
  EXPECT_TRUE(FilesIn(Path(u"nowhere"_s)).isEmpty());
}

TEST(FlagTest, ToFlag_TruthIsMinusOne) {
  EXPECT_EQ(ToFlag(true), -1);
  EXPECT_EQ(ToFlag(false), 0);
}
