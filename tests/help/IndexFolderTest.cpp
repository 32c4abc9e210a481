// SPDX-License-Identifier: MIT
#include "help/IndexFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class IndexFolderTest : public testing::Test {
 protected:
  IndexFolderTest() { qputenv("XDG_CACHE_HOME", Cache().toLocal8Bit()); }
  ~IndexFolderTest() override { qunsetenv("XDG_CACHE_HOME"); }

  [[nodiscard]] QString Cache() const { return m_folder.path() + u"/cache"_s; }
  [[nodiscard]] QString HelpFile() const { return m_folder.path() + u"/Some.qch"_s; }
  static void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  [[nodiscard]] QStringList Folders() const {
    return QDir(Cache() + u"/velmora"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  }

  QTemporaryDir m_folder;
};

TEST_F(IndexFolderTest, Folder_SameFileAgain_IsTheSame) {
  Write(HelpFile(), "one");
  QString first;
  {
    const IndexFolder folder(HelpFile());
    first = folder.Collection();
    EXPECT_FALSE(folder.IsTemporary());
  }
  EXPECT_TRUE(first.startsWith(Cache() + u"/velmora/"_s)) << first.toStdString();
  EXPECT_EQ(IndexFolder(HelpFile()).Collection(), first);
}

TEST_F(IndexFolderTest, Folder_FileChanged_IsAnotherAndTheOldOneGoes) {
  Write(HelpFile(), "one");
  const QString first = IndexFolder(HelpFile()).Collection();
  Write(first, "left over");
  Write(HelpFile(), "another");
  const IndexFolder folder(HelpFile());
  EXPECT_NE(folder.Collection(), first);
  EXPECT_FALSE(QFileInfo::exists(first));
  EXPECT_EQ(Folders().size(), 1);
}

TEST_F(IndexFolderTest, Folder_InUse_IsLeftAloneByOthers) {
  Write(HelpFile(), "one");
  const IndexFolder first(HelpFile());
  const IndexFolder second(HelpFile());
  EXPECT_TRUE(second.IsTemporary());
  EXPECT_NE(second.Collection(), first.Collection());
  Write(HelpFile(), "another");
  const IndexFolder third(HelpFile());
  EXPECT_FALSE(third.IsTemporary());
  EXPECT_TRUE(QFileInfo::exists(QFileInfo(first.Collection()).path()));
}

TEST_F(IndexFolderTest, Folder_OtherThingsInTheCache_Stay) {
  Write(HelpFile(), "one");
  QDir().mkpath(Cache() + u"/velmora/mine"_s);
  const IndexFolder folder(HelpFile());
  EXPECT_TRUE(Folders().contains(u"mine"_s));
}

TEST_F(IndexFolderTest, Folder_CacheThatCannotBeWritten_IsTemporaryAndGoes) {
  Write(HelpFile(), "one");
  // A file in the place of the folder: not even an administrator gets past it.
  Write(Cache(), "");
  QString place;
  {
    const IndexFolder folder(HelpFile());
    EXPECT_TRUE(folder.IsTemporary());
    place = QFileInfo(folder.Collection()).path();
    EXPECT_TRUE(QFileInfo(place).isDir());
  }
  EXPECT_FALSE(QFileInfo::exists(place));
}

TEST_F(IndexFolderTest, Empty_TakesAwayAllButTheLock) {
  Write(HelpFile(), "one");
  const IndexFolder folder(HelpFile());
  const QDir place = QFileInfo(folder.Collection()).dir();
  Write(folder.Collection(), "spoilt");
  place.mkdir(u".manual"_s);
  Write(place.filePath(u".manual/fts"_s), "spoilt");
  folder.Empty();
  EXPECT_EQ(place.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList{u"lock"_s});
}

}  // namespace
}  // namespace velmora
