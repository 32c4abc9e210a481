// SPDX-License-Identifier: MIT
#include "base/settings/Settings.h"
#include "frame/Session.h"
#include "shell/RecentFiles.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

class RecentFilesTest : public testing::Test {
 protected:
  void SetUp() override {
    QFile::remove(SettingsFile());
    Global() = Session();
  }
  void TearDown() override { Global() = Session(); }

  static void Save(const QString& path) {
    Global().FilePath = path;
    RecentSave();
  }
};

}  // namespace

TEST_F(RecentFilesTest, RecentFiles_NothingStored_IsEmpty) { EXPECT_EQ(RecentFiles(), RecentList()); }

TEST_F(RecentFilesTest, RecentSave_FiveFiles_FirstFallsOut) {
  for (const QString& path : {u"/1.ddb"_s, u"/2.ddb"_s, u"/3.ddb"_s, u"/4.ddb"_s, u"/5.ddb"_s}) Save(path);
  EXPECT_EQ(RecentFiles(), (RecentList{u"/5.ddb"_s, u"/4.ddb"_s, u"/3.ddb"_s, u"/2.ddb"_s}));
}

TEST_F(RecentFilesTest, RecentSave_FileInTheList_StandsFirstOnce) {
  for (const QString& path : {u"/1.ddb"_s, u"/2.ddb"_s, u"/3.ddb"_s, u"/1.ddb"_s}) Save(path);
  EXPECT_EQ(RecentFiles(), (RecentList{u"/1.ddb"_s, u"/3.ddb"_s, u"/2.ddb"_s, QString()}));
}

TEST_F(RecentFilesTest, RecentSave_OtherSpellingOfAPath_GetsAnEntryOfItsOwn) {
  Save(u"/home/cards.ddb"_s);
  Save(u"/home/Cards.ddb"_s);
  EXPECT_EQ(RecentFiles(), (RecentList{u"/home/Cards.ddb"_s, u"/home/cards.ddb"_s, QString(), QString()}));
}

TEST_F(RecentFilesTest, RecentSave_EmptyPath_FreesTheFirstPlaceAndMovesTheOthersOnce) {
  for (const QString& path : {u"/1.ddb"_s, u"/2.ddb"_s}) Save(path);
  Save(QString());
  EXPECT_EQ(RecentFiles(), (RecentList{QString(), u"/2.ddb"_s, u"/1.ddb"_s, QString()}));
  Save(QString());
  EXPECT_EQ(RecentFiles(), (RecentList{QString(), u"/2.ddb"_s, u"/1.ddb"_s, QString()}));
}

TEST_F(RecentFilesTest, RecentSave_EmptyPathAndAFullList_LosesTheLast) {
  for (const QString& path : {u"/1.ddb"_s, u"/2.ddb"_s, u"/3.ddb"_s, u"/4.ddb"_s}) Save(path);
  Save(QString());
  EXPECT_EQ(RecentFiles(), (RecentList{QString(), u"/4.ddb"_s, u"/3.ddb"_s, u"/2.ddb"_s}));
}

TEST_F(RecentFilesTest, RecentSave_KeysAreThoseOfTheList) {
  Save(u"/a, b/Größe.ddb"_s);
  EXPECT_EQ(GetSetting(u"Init"_s, u"File0"_s), u"/a, b/Größe.ddb"_s);
  EXPECT_EQ(GetSetting(u"Init"_s, u"File3"_s, u"never"_s), QString());
}

TEST_F(RecentFilesTest, ForgetRecent_FirstPlaceWithThatPath_IsFreed) {
  for (const QString& path : {u"/1.ddb"_s, u"/2.ddb"_s, u"/3.ddb"_s}) Save(path);
  ForgetRecent(u"/2.ddb"_s);
  EXPECT_EQ(RecentFiles(), (RecentList{u"/3.ddb"_s, QString(), u"/1.ddb"_s, QString()}));
}

TEST_F(RecentFilesTest, ForgetRecent_UnknownPath_ChangesNothing) {
  Save(u"/1.ddb"_s);
  ForgetRecent(u"/1.DDB"_s);
  EXPECT_EQ(RecentFiles()[0], u"/1.ddb"_s);
}

TEST_F(RecentFilesTest, SplitPath_IsTheFolderWithItsSeparator) {
  EXPECT_EQ(SplitPath(u"/home/ann/cards.ddb"_s), u"/home/ann/"_s);
  EXPECT_EQ(SplitPath(u"cards.ddb"_s), QString());
}
