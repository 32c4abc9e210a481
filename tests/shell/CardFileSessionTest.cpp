// SPDX-License-Identifier: MIT
#include "base/settings/Settings.h"
#include "forms/Labels.h"
#include "forms/TextBox.h"
#include "frame/Session.h"
#include "tests/shell/MainFixture.h"
#include "tests/support/Messages.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QtTest>

#include <sys/stat.h>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class CardFileSessionTest : public MainFixture {
 protected:
  QByteArray Bytes(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  /// The disk's own number of the file under that name.
  static ino_t NumberOf(const QString& path) {
    struct stat status {};
    EXPECT_EQ(::stat(QFile::encodeName(path).constData(), &status), 0);
    return status.st_ino;
  }
  static void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
};

TEST_F(CardFileSessionTest, Open_FileWithCards_ShowsCardOne) {
  Main& frame = Start();
  const QString path = MakeFile(u"a.ddb"_s, {1, 2});
  ChooseFiles({path});
  Trigger(u"open_new"_s);
  EXPECT_EQ(m_titles, QStringList{u"Open"_s});
  EXPECT_EQ(frame.windowTitle(), path);
  EXPECT_EQ(Global().NoFile, False);
  EXPECT_EQ(Global().FileTitle, u"a.ddb"_s);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ShowTable"_s}));
  EXPECT_EQ(Find<ui::Label>(u"ClientLab"_s).Caption(), u"Card 1"_s);
}

TEST_F(CardFileSessionTest, Open_FileWithoutCards_OpensNoScreen) {
  Start();
  ChooseFiles({MakeFile(u"a.ddb"_s, {})});
  Trigger(u"open_new"_s);
  EXPECT_EQ(Global().NoFile, False);
  EXPECT_EQ(Global().CurCard, 0);
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
  EXPECT_EQ(Find<ui::Label>(u"ClientLab"_s).Caption(), QString());
}

TEST_F(CardFileSessionTest, Open_NoChoice_EmptiesThePathAndKeepsTheFile) {
  const QString path = MakeFile(u"a.ddb"_s, {1});
  Main& frame = StartOn(path);
  ChooseFiles({u""_s});
  Trigger(u"open_new"_s);
  EXPECT_EQ(Global().FilePath, QString());
  EXPECT_EQ(frame.windowTitle(), path);
  ASSERT_NE(Global().CardDb, nullptr);
  EXPECT_EQ(Global().CardDb->Name(), path);
}

TEST_F(CardFileSessionTest, Open_MissingFile_OnlyChangesThePath) {
  const QString path = MakeFile(u"a.ddb"_s, {1});
  Main& frame = StartOn(path);
  ChooseFiles({PathOf(u"gone.ddb"_s)});
  Trigger(u"open_new"_s);
  EXPECT_EQ(Global().FilePath, PathOf(u"gone.ddb"_s));
  EXPECT_EQ(frame.windowTitle(), path);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ShowTable"_s}));
}

TEST_F(CardFileSessionTest, Open_NoDatabase_KeepsCaptionAndState) {
  const QString path = MakeFile(u"a.ddb"_s, {1});
  Main& frame = StartOn(path);
  Write(PathOf(u"text.ddb"_s), "no database at all, but long enough to look at\n");
  ChooseFiles({PathOf(u"text.ddb"_s)});
  Trigger(u"open_new"_s);
  EXPECT_EQ(frame.windowTitle(), path);
  EXPECT_EQ(Global().NoFile, False);
  EXPECT_EQ(Global().CardDb->Name(), path);
  EXPECT_EQ(Bytes(PathOf(u"text.ddb"_s)), QByteArray("no database at all, but long enough to look at\n"));
}

TEST_F(CardFileSessionTest, Open_FiveFiles_FirstFallsOutOfTheList) {
  Start();
  QStringList paths;
  for (const QString& name : {u"1.ddb"_s, u"2.ddb"_s, u"3.ddb"_s, u"4.ddb"_s, u"5.ddb"_s}) {
    paths << MakeFile(name, {1});
    ChooseFiles({paths.last()});
    Trigger(u"open_new"_s);
  }
  EXPECT_EQ(StoredRecent(), QStringList({paths[4], paths[3], paths[2], paths[1]}));
  EXPECT_TRUE(Entry(u"hShortName(0)"_s).isVisible());
  EXPECT_EQ(Entry(u"hShortName(0)"_s).text(), paths[4]);
  EXPECT_TRUE(Entry(u"hSep"_s).isVisible());
}

TEST_F(CardFileSessionTest, RecentList_EntryGoneEmpty_KeepsItsCaptionUntilRestart) {
  Start();
  QStringList paths;
  for (const QString& name : {u"1.ddb"_s, u"2.ddb"_s}) {
    paths << MakeFile(name, {1});
    ChooseFiles({paths.last()});
    Trigger(u"open_new"_s);
  }
  SaveSetting(u"Init"_s, u"File1"_s, u""_s);
  ChooseFiles({paths[1]});
  Trigger(u"open_new"_s);
  EXPECT_EQ(Entry(u"hShortName(1)"_s).text(), paths[0]);
  EXPECT_TRUE(Entry(u"hShortName(1)"_s).isVisible());
  Start();
  EXPECT_FALSE(Entry(u"hShortName(1)"_s).isVisible());
}

TEST_F(CardFileSessionTest, RecentEntry_FileThere_OpensItStoresItAndLeavesTheMenu) {
  const QString first = MakeFile(u"1.ddb"_s, {1});
  const QString second = MakeFile(u"2.ddb"_s, {1});
  SaveSetting(u"Init"_s, u"File0"_s, first);
  SaveSetting(u"Init"_s, u"File1"_s, second);
  Main& frame = Start();
  Trigger(u"hShortName(1)"_s);
  EXPECT_EQ(frame.windowTitle(), second);
  EXPECT_EQ(Entry(u"hShortName(0)"_s).text(), first);
  EXPECT_EQ(Entry(u"hShortName(1)"_s).text(), second);
  EXPECT_EQ(StoredRecent(), QStringList({second, first, u""_s, u""_s}));
}

TEST_F(CardFileSessionTest, RecentEntry_FileGone_TellsHidesAndForgets) {
  SaveSetting(u"Init"_s, u"File0"_s, PathOf(u"gone.ddb"_s));
  Start();
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  Trigger(u"hShortName(0)"_s);
  EXPECT_EQ(answers.Asked().value(0).Text, u"This file does not exist!"_s);
  EXPECT_FALSE(Entry(u"hShortName(0)"_s).isVisible());
  EXPECT_EQ(StoredRecent().first(), QString());
}

TEST_F(CardFileSessionTest, RecentEntry_AmpersandInItsPath_ShowsAndOpens) {
  const QString path = MakeFile(u"Müller & Söhne.ddb"_s, {1});
  SaveSetting(u"Init"_s, u"File0"_s, path);
  Main& frame = Start();
  EXPECT_TRUE(Entry(u"hShortName(0)"_s).text().contains(u"&&"_s));
  Trigger(u"hShortName(0)"_s);
  EXPECT_EQ(frame.windowTitle(), path);
}

TEST_F(CardFileSessionTest, Quit_OpenFileInTheList_StandsFirstOnce) {
  const QString first = MakeFile(u"1.ddb"_s, {1});
  const QString second = MakeFile(u"2.ddb"_s, {1});
  SaveSetting(u"Init"_s, u"File0"_s, first);
  SaveSetting(u"Init"_s, u"File1"_s, second);
  StartOn(second);
  Trigger(u"exit"_s);
  EXPECT_EQ(m_ends, 1);
  EXPECT_EQ(StoredRecent(), QStringList({second, first, u""_s, u""_s}));
}

TEST_F(CardFileSessionTest, Quit_EmptyPath_MovesTheListDownAndEnds) {
  const QString path = MakeFile(u"a.ddb"_s, {1});
  SaveSetting(u"Init"_s, u"File0"_s, path);
  StartOn(path);
  ChooseFiles({u""_s});
  Trigger(u"open_new"_s);
  Trigger(u"exit"_s);
  EXPECT_EQ(m_ends, 1);
  EXPECT_EQ(StoredRecent(), QStringList({u""_s, path, u""_s, u""_s}));
  EXPECT_EQ(Stored(u"Load"_s, u"Path"_s), QString());
  EXPECT_TRUE(QFile::exists(path));
}

TEST_F(CardFileSessionTest, Quit_FileOpen_SavesTheSessionAndCompacts) {
  const QString path = MakeFile(u"a.ddb"_s, {1, 2});
  StartOn(path, 2);
  // Room that compaction gives back.
  Global().File().Execute(u"INSERT INTO Captions (Caption) VALUES ('x')");
  for (int i = 0; i < 12; ++i)
    Global().File().Execute(u"INSERT INTO Captions (Caption) SELECT Caption FROM Captions");
  Global().File().Execute(u"DELETE * FROM Captions");
  const qint64 before = QFileInfo(path).size();
  Trigger(u"exit"_s);
  EXPECT_EQ(m_ends, 1);
  EXPECT_LT(QFileInfo(path).size(), before);
  EXPECT_FALSE(QFile::exists(PathOf(u"temp~.ddb"_s)));
  EXPECT_EQ(Stored(u"Load"_s, u"Path"_s), path);
  EXPECT_EQ(Stored(u"Load"_s, u"Index"_s), u"2"_s);
  EXPECT_FALSE(m_main->isVisible());
  StartOn(path, 2);
  EXPECT_EQ(Global().CurCard, 2);
}

TEST_F(CardFileSessionTest, Quit_FileUnchangedSinceItsCompaction_IsNotCompactedAgain) {
  const QString path = MakeFile(u"a.ddb"_s, {1});
  StartOn(path);
  Trigger(u"exit"_s);
  // A compaction puts another file under the name.
  const ino_t compacted = NumberOf(path);
  StartOn(path);
  Trigger(u"exit"_s);
  EXPECT_EQ(NumberOf(path), compacted);
  StartOn(path);
  Global().File().Execute(u"INSERT INTO Captions (Caption) VALUES ('x')");
  Trigger(u"exit"_s);
  EXPECT_NE(NumberOf(path), compacted);
  EXPECT_EQ(m_ends, 3);
}

TEST_F(CardFileSessionTest, Quit_LeftOverCopy_KeepsTheFileAsItWas) {
  const QString path = MakeFile(u"a.ddb"_s, {1});
  Write(PathOf(u"temp~.ddb"_s), "left over");
  StartOn(path);
  const QByteArray before = Bytes(path);
  Trigger(u"exit"_s);
  EXPECT_EQ(m_ends, 1);
  EXPECT_EQ(Bytes(path), before);
  EXPECT_EQ(Bytes(PathOf(u"temp~.ddb"_s)), QByteArray("left over"));
  EXPECT_EQ(StoredRecent().first(), path);
}

TEST_F(CardFileSessionTest, Quit_NoFile_Ends) {
  Start();
  Trigger(u"exit"_s);
  EXPECT_EQ(m_ends, 1);
}

TEST_F(CardFileSessionTest, Quit_FileHeldByAnother_KeepsItAsItWas) {
  const QString path = MakeFile(u"a.ddb"_s, {1});
  StartOn(path);
  const auto other = db::DBEngine().OpenDatabase(path);
  Trigger(u"exit"_s);
  EXPECT_EQ(m_ends, 1);
  EXPECT_EQ(other->OpenRecordset(u"MainData").RecordCount(), 1);
  EXPECT_FALSE(QFile::exists(PathOf(u"temp~.ddb"_s)));
}

TEST_F(CardFileSessionTest, Quit_CardEdited_AsksAndSavesBeforeTheEnd) {
  const QString path = MakeFile(u"a.ddb"_s, {1});
  Main& frame = StartOn(path);
  frame.activateWindow();
  QApplication::setActiveWindow(&frame);
  auto& city = Find<ui::TextBox>(u"NameText(0)"_s);
  city.setFocus();
  city.selectAll();
  QTest::keyClicks(&city, u"Lyon"_s);
  const MessageAnswers answers({ui::MsgAnswer::Yes});
  Trigger(u"exit"_s);
  EXPECT_EQ(answers.Asked().value(0).Text, u"Do you wish to save changes?"_s);
  EXPECT_EQ(m_ends, 1);
  const auto saved = db::DBEngine().OpenDatabase(path);
  EXPECT_EQ(saved->OpenRecordset(u"MainData")[u"City"].Text(), u"Lyon"_s);
}

TEST_F(CardFileSessionTest, Quit_EditorRefuses_DoesNotEnd) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {}), 0);
  frame.activateWindow();
  QApplication::setActiveWindow(&frame);
  auto& city = Find<ui::TextBox>(u"NameText(0)"_s);
  city.setFocus();
  QTest::keyClicks(&city, u"Lyon"_s);
  {
    const MessageAnswers answers({ui::MsgAnswer::Ok});
    frame.close();
    EXPECT_EQ(answers.Asked().value(0).Text, u"Please enter a name for your main field."_s);
  }
  EXPECT_EQ(m_ends, 0);
  EXPECT_TRUE(frame.isVisible());
  QTest::mouseClick(&Find<QWidget>(u"CancelData"_s), Qt::LeftButton);
}

TEST_F(CardFileSessionTest, New_NameDiffersOnlyInCase_AsksAgain) {
  MakeFile(u"Cards.ddb"_s, {});
  Start();
  ChooseFiles({PathOf(u"cards.DDB"_s), PathOf(u"fresh.ddb"_s)});
  Trigger(u"file_new"_s);
  EXPECT_EQ(m_titles, QStringList({u"New"_s, u"New"_s}));
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"CreatTable"_s}));
}

TEST_F(CardFileSessionTest, New_OpenFilesNameInAnotherCase_AsksAgain) {
  StartOn(MakeFile(u"Cards.ddb"_s, {1}));
  ChooseFiles({PathOf(u"CARDS.ddb"_s), u""_s});
  Trigger(u"file_new"_s);
  EXPECT_EQ(m_titles.size(), 2);
}

TEST_F(CardFileSessionTest, New_NoChoice_LeavesEverything) {
  StartOn(MakeFile(u"a.ddb"_s, {1}));
  ChooseFiles({u""_s});
  Trigger(u"file_new"_s);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ShowTable"_s}));
  EXPECT_EQ(Find<ui::Label>(u"ClientLab"_s).Caption(), u"Card 1"_s);
}

TEST_F(CardFileSessionTest, New_WizardShown_SavesTheListWithTheOldFile) {
  const QString path = MakeFile(u"a.ddb"_s, {1});
  StartOn(path);
  ChooseFiles({PathOf(u"fresh.ddb"_s)});
  Trigger(u"file_new"_s);
  EXPECT_EQ(StoredRecent().first(), path);
  EXPECT_EQ(Find<ui::Label>(u"ClientLab"_s).Caption(), QString());
  EXPECT_FALSE(QFile::exists(PathOf(u"fresh.ddb"_s)));
}

TEST_F(CardFileSessionTest, Repair_OpenFile_DoesNothing) {
  const QString path = MakeFile(u"a.ddb"_s, {1});
  StartOn(path);
  const QByteArray before = Bytes(path);
  ChooseFiles({path});
  Trigger(u"Repair"_s);
  EXPECT_EQ(Bytes(path), before);
  EXPECT_EQ(Global().File().OpenRecordset(u"MainData").RecordCount(), 1);
}

TEST_F(CardFileSessionTest, Repair_OtherFile_SavesItsCardsUnderTheLastTitle) {
  const QString damaged = MakeFile(u"b.ddb"_s, {1, 2, 3});
  StartOn(MakeFile(u"a.ddb"_s, {1}));
  ChooseFiles({u""_s, damaged});
  Trigger(u"open_new"_s);
  Trigger(u"Repair"_s);
  EXPECT_EQ(m_titles, QStringList({u"Open"_s, u"Open"_s}));
  EXPECT_EQ(db::DBEngine().OpenDatabase(damaged)->OpenRecordset(u"MainData").RecordCount(), 3);
}

TEST_F(CardFileSessionTest, Repair_FileGone_SaysNothing) {
  Start();
  ChooseFiles({PathOf(u"gone.ddb"_s)});
  Trigger(u"Repair"_s);
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
}

}  // namespace
}  // namespace velmora
