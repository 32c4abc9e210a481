// SPDX-License-Identifier: MIT
// What a user without a card file meets, and the way from there to a file.
#include "base/settings/Settings.h"
#include "base/system/Clock.h"
#include "base/system/Files.h"
#include "forms/Notice.h"
#include "frame/Session.h"
#include "tests/shell/RealFrame.h"
#include "tests/support/Messages.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QtTest>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

const QString welcome = u"frmTut"_s;
const QString samples = u"FHelpSamples"_s;
const QString advice = u"frmHelpCreate"_s;

class RealFrameFirstRunTest : public RealFrame {
 protected:
  RealFrameFirstRunTest() {
    m_turnsWelcomeDown = false;
    qputenv("XDG_DATA_HOME", PathOf(u"data"_s).toLocal8Bit());
    QDir().mkpath(PathOf(u"program/Samples"_s));
    SetProgramDir(PathOf(u"program/"_s));
  }
  ~RealFrameFirstRunTest() override {
    SetProgramDir({});
    qunsetenv("XDG_DATA_HOME");
  }

  /// A first start, and what is done on the welcome.
  void Meet(const std::function<void()>& work) {
    InDialog(
        welcome, [this] { Start(); }, work);
  }
  /// A sample in the program's own folder.
  void MakeSample(const QString& name, const std::vector<int>& cards = {1, 2}) {
    const QString made = MakeFile(name, cards);
    ASSERT_TRUE(QFile::rename(made, PathOf(u"program/Samples/"_s + name)));
  }
  [[nodiscard]] QString OwnSample(const QString& name) const {
    return PathOf(u"data/velmora/Samples/"_s + name);
  }
  /// Menu, Samples, OK.
  void ConfirmSamples() {
    InDialog(
        samples, [this] { Trigger(u"mnuSamples"_s); }, [] { Press(samples, u"cmdOK"_s); });
  }
  /// A key on the control of the screen that has the focus.
  static void Key(const QString& screen, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QApplication::setActiveWindow(&Screen(screen));
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  /// The access key of a button that closes its screen: the press is seen for a moment first.
  static void PressByKey(const QString& screen, Qt::Key letter) {
    Key(screen, letter, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&screen] { return ui::FindScreen(screen) == nullptr; }));
  }
  static QString Shown(const QString& screen, const QString& box) {
    return In<QPlainTextEdit>(screen, box).toPlainText();
  }
};

// The welcome.

TEST_F(RealFrameFirstRunTest, frmTut_Cancel_LeavesAnEmptyFrameAndNothingBringsItBackInThisRun) {
  Meet([] { Press(welcome, u"CancelData"_s); });
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
  EXPECT_EQ(Global().ShowCreateHelp, False);
  for (const Qt::ApplicationState state : {Qt::ApplicationInactive, Qt::ApplicationActive})
    Q_EMIT qApp->applicationStateChanged(state);
  m_main->Activate();
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
}

TEST_F(RealFrameFirstRunTest, frmTut_FileOpen_DoesNotCome) {
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ShowTable"_s}));
}

TEST_F(RealFrameFirstRunTest, frmTut_LastFileMissing_Comes) {
  SaveSetting(u"Load"_s, u"Path"_s, PathOf(u"gone.ddb"_s));
  Meet([] { Press(welcome, u"CancelData"_s); });
}

TEST_F(RealFrameFirstRunTest, frmTut_NextRunWithoutAFile_ComesAgain) {
  Meet([] { Press(welcome, u"CancelData"_s); });
  Meet([] { Press(welcome, u"CancelData"_s); });
}

TEST_F(RealFrameFirstRunTest, frmTut_ItsTexts_KeepTheMissingBlankAndTheLineBreaks) {
  Meet([] {
    EXPECT_EQ(Screen(welcome).windowTitle(), u"Velmora"_s);
    EXPECT_EQ(TextOf(welcome, u"lblWelcome"_s), u"Welcome toVelmora!"_s);
    EXPECT_EQ(Shown(welcome, u"txtMessage"_s),
              u"Velmora works with database files.\n"
              "You may now create different files suitable for various needs.\n"
              "Please choose from the two options below: \n"_s);
    EXPECT_EQ(TextOf(welcome, u"fraSamplesText"_s),
              u"\nOpen a sample file which has \nbeen prepared to make your \nfirst steps easier.\n\n"
              "In order to view the sample \nfiles click \"Samples\".\n"_s);
    EXPECT_EQ(
        TextOf(welcome, u"fraNewText"_s),
        u"\nCreate a new file and \nname it.\n\n\nIn order to create your new \nfile click \"OK\".\n"_s);
    EXPECT_EQ(TextOf(welcome, u"cmdSamples"_s), u"&Samples"_s);
    EXPECT_EQ(TextOf(welcome, u"EditData"_s), u"OK"_s);
    EXPECT_EQ(TextOf(welcome, u"CancelData"_s), u"&Cancel"_s);
    Press(welcome, u"CancelData"_s);
  });
}

TEST_F(RealFrameFirstRunTest, frmTut_EnterOnItsOk_AsksForAFileAndShowsTheAdviceOverTheWizard) {
  const QString path = PathOf(u"first.ddb"_s);
  ChooseFiles({path});
  bool toldOverTheWizard = false;
  Meet([&] {
    InDialog(
        advice, [] { Key(welcome, Qt::Key_Return); },
        [&] {
          toldOverTheWizard = OpenScreens() == QStringList({u"Main"_s, u"CreatTable"_s, advice});
          Key(advice, Qt::Key_Return);
        });
  });
  EXPECT_TRUE(toldOverTheWizard);
  EXPECT_EQ(m_titles, QStringList{u"New"_s});
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"CreatTable"_s}));
  EXPECT_EQ(Global().ShowCreateHelp, True);
}

TEST_F(RealFrameFirstRunTest, frmTut_AltC_CancelsIt) {
  Meet([] { PressByKey(welcome, Qt::Key_C); });
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
}

// The samples.

TEST_F(RealFrameFirstRunTest, FHelpSamples_CancelledAfterTheWelcome_NextNewShowsTheHelp) {
  Meet([this] {
    InDialog(
        samples, [] { PressByKey(welcome, Qt::Key_S); }, [] { PressByKey(samples, Qt::Key_C); });
    EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
  });
  EXPECT_EQ(Global().ShowCreateHelp, True);
  ChooseFiles({PathOf(u"first.ddb"_s)});
  InDialog(
      advice, [this] { Trigger(u"file_new"_s); }, [] { Press(advice, u"EditData"_s); });
}

TEST_F(RealFrameFirstRunTest, FHelpSamples_NothingTurnedDown_NextNewShowsNoHelp) {
  Meet([] { Press(welcome, u"CancelData"_s); });
  ChooseFiles({PathOf(u"first.ddb"_s)});
  Trigger(u"file_new"_s);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"CreatTable"_s}));
}

TEST_F(RealFrameFirstRunTest, FHelpSamples_ItsText_IsAsWritten) {
  Meet([] { Press(welcome, u"CancelData"_s); });
  InDialog(
      samples, [this] { Trigger(u"mnuSamples"_s); },
      [] {
        EXPECT_EQ(Screen(samples).windowTitle(), u"Open Samples"_s);
        EXPECT_EQ(Shown(samples, u"Text1"_s),
                  u"You may select one of the sample files which have been \n"
                  "prepared to make your first steps easier.\n\n"
                  "You may add or delete fields in these files according to your \nown specifications.\n\n"
                  "We have entered sample data in these files. \n"
                  "You may delete cards and tailor the file to meet your own \nneeds.\n\n"
                  "You may view these files again at any time by selecting \n"
                  "\"Help\" from the menu and clicking \"Samples\".\n\n"
                  "You may always open and plan new files according to your own specifications.\n"_s);
        EXPECT_EQ(TextOf(samples, u"cmdCancel"_s), u"&Cancel"_s);
        Press(samples, u"cmdCancel"_s);
      });
}

TEST_F(RealFrameFirstRunTest, OpenSampleList_FirstTime_OpensTheUsersOwnCopy) {
  MakeSample(u"Shops.ddb"_s);
  ChooseFiles({OwnSample(u"Shops.ddb"_s)});
  Meet([this] {
    InDialog(
        samples, [] { Press(welcome, u"cmdSamples"_s); }, [] { Press(samples, u"cmdOK"_s); });
  });
  EXPECT_EQ(m_titles, QStringList{u"Open Sample"_s});
  EXPECT_EQ(m_folders, QStringList{PathOf(u"data/velmora/Samples"_s)});
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ShowTable"_s}));
  EXPECT_EQ(m_main->windowTitle(), OwnSample(u"Shops.ddb"_s));
  EXPECT_EQ(Global().FilePath, OwnSample(u"Shops.ddb"_s));
  EXPECT_EQ(Global().FileTitle, u"Shops.ddb"_s);
  EXPECT_EQ(Global().NoFile, False);
  EXPECT_EQ(Strip(u"ClientLab"_s), u"Card 1"_s);
  EXPECT_EQ(StoredRecent().first(), OwnSample(u"Shops.ddb"_s));
  EXPECT_EQ(Entry(u"hShortName(0)"_s).text(), OwnSample(u"Shops.ddb"_s));
}

TEST_F(RealFrameFirstRunTest, OpenSample_WithoutCards_OpensNoScreen) {
  MakeSample(u"Empty.ddb"_s, {});
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  ChooseFiles({OwnSample(u"Empty.ddb"_s)});
  ConfirmSamples();
  EXPECT_EQ(m_main->windowTitle(), OwnSample(u"Empty.ddb"_s));
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
  EXPECT_EQ(Global().CurCard, 0);
}

TEST_F(RealFrameFirstRunTest, OpenSample_NoChoice_ClosesTheScreensAndChangesNothingElse) {
  MakeSample(u"Shops.ddb"_s);
  const QString path = MakeFile(u"a.ddb"_s, {1});
  RunOn(path);
  ChooseFiles({u""_s});
  ConfirmSamples();
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
  EXPECT_EQ(Global().FilePath, path);
  EXPECT_EQ(m_main->windowTitle(), path);
  EXPECT_EQ(Global().CardDb->Name(), path);
  EXPECT_EQ(ui::NoticeInView(), QString());
}

TEST_F(RealFrameFirstRunTest, OpenSample_NoChoiceAfterAnOpenWithoutOne_LeavesTheRecentList) {
  MakeSample(u"Shops.ddb"_s);
  SaveSetting(u"Init"_s, u"File3"_s, u"/last.ddb"_s);
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  ChooseFiles({u""_s, u""_s});
  Trigger(u"open_new"_s);
  const QString first = GetSetting(u"Init"_s, u"File0"_s);
  const QString last = GetSetting(u"Init"_s, u"File3"_s);
  ConfirmSamples();
  EXPECT_EQ(GetSetting(u"Init"_s, u"File0"_s), first);
  EXPECT_EQ(GetSetting(u"Init"_s, u"File3"_s), last);
}

TEST_F(RealFrameFirstRunTest, Samples_TurnedDownOverAChangedCard_LeaveItChanged) {
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  OpenEditor();
  ChangeCity(u"EditTable"_s, u"Lyon"_s);
  InDialog(
      samples, [this] { Trigger(u"mnuSamples"_s); }, [] { Press(samples, u"cmdCancel"_s); });
  EXPECT_EQ(TextOf(u"EditTable"_s, u"NameText(0)"_s), u"Lyon"_s);
  EXPECT_EQ(Global().CardChanged, True);
  Press(u"EditTable"_s, u"CancelData"_s);
}

TEST_F(RealFrameFirstRunTest, OpenSample_NoCardFileChosen_ChangesNothingAndTellsSo) {
  MakeSample(u"Shops.ddb"_s);
  const QString path = MakeFile(u"a.ddb"_s, {1});
  QFile text(PathOf(u"text.ddb"_s));
  ASSERT_TRUE(text.open(QIODevice::WriteOnly));
  text.write("a shopping list and no database\n");
  text.close();
  RunOn(path);
  ChooseFiles({text.fileName()});
  ConfirmSamples();
  EXPECT_EQ(Global().FilePath, path);
  EXPECT_EQ(Global().CardDb->Name(), path);
  EXPECT_TRUE(ui::NoticeInView().startsWith(text.fileName())) << ui::NoticeInView().toStdString();
}

TEST_F(RealFrameFirstRunTest, OpenSampleList_CardStaysOpenUnsaved_OpensNothing) {
  MakeSample(u"Shops.ddb"_s);
  const QString path = MakeFile(u"a.ddb"_s, {1, 2});
  RunOn(path);
  Type(u"ShowTable"_s, u"NameRecord"_s, u"Card 2"_s);
  ChooseFiles({OwnSample(u"Shops.ddb"_s)});
  {
    // The save is refused: the name is another card's.
    const MessageAnswers answers({ui::MsgAnswer::Yes, ui::MsgAnswer::Ok});
    ConfirmSamples();
  }
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ShowTable"_s}));
  EXPECT_EQ(Global().FilePath, path);
  EXPECT_EQ(m_main->windowTitle(), path);
  const MessageAnswers dropped({ui::MsgAnswer::No});
  m_main->UnloadOtherForms();
}

TEST_F(RealFrameFirstRunTest, OpenSampleList_CopyingFails_StartsInTheProgramsOwnFolderAndTellsSo) {
  MakeSample(u"Shops.ddb"_s);
  QFile inTheWay(PathOf(u"data"_s));
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  ChooseFiles({PathOf(u"program/Samples/Shops.ddb"_s)});
  ConfirmSamples();
  EXPECT_EQ(m_folders, QStringList{PathOf(u"program/Samples"_s)});
  EXPECT_EQ(m_main->windowTitle(), PathOf(u"program/Samples/Shops.ddb"_s));
  EXPECT_TRUE(QTest::qWaitFor([] { return ui::NoticeInView().contains(u"could not be copied"_s); }));
}

TEST_F(RealFrameFirstRunTest, frmHelpCreate_ItsTexts_KeepTheDoubledBlanks) {
  Meet([] { Press(welcome, u"CancelData"_s); });
  Global().ShowCreateHelp = True;
  ChooseFiles({PathOf(u"first.ddb"_s)});
  InDialog(
      advice, [this] { Trigger(u"file_new"_s); },
      [] {
        EXPECT_EQ(Screen(advice).windowTitle(), u"Velmora"_s);
        EXPECT_EQ(TextOf(advice, u"lblLimits"_s),
                  u"You can open up to 100 categories, divided into 10 pages of information. "_s);
        EXPECT_EQ(
            TextOf(advice, u"lblMessage"_s),
            u"Each category has three types of fields: text, number, yes/no.\n"
            "Your database has a direct effect on your future queries.\n\n"
            "Always use text fields  for texts and for numbers (such as telephone numbers etc.)\n"
            "Use number fields only if you wish to use the parameters of  <,>,= in your queries.\n"
            "Use yes/no fields for yes/no queries.\n\n"
            "Determine the number of fields per page.\nEnter categories.\nDetermine fields.\n"
            "Select new page.\n\nClick OK after completing your selections for all the pages.\n\n"
            "After creating a file, select Options from the main screen menu and enter your\nsettings."_s);
        Press(advice, u"EditData"_s);
      });
}

// A file named on the command line.

TEST_F(RealFrameFirstRunTest, Load_FileNamed_StartsOnItsFirstCardAndStoresIt) {
  const QString last = MakeFile(u"last.ddb"_s, {1});
  const QString named = MakeFile(u"named.ddb"_s, {3, 4});
  SaveSetting(u"Load"_s, u"Path"_s, last);
  SaveSetting(u"Load"_s, u"Index"_s, u"4"_s);
  StartWith(named);
  EXPECT_EQ(m_main->windowTitle(), named);
  EXPECT_EQ(Strip(u"ClientLab"_s), u"Card 3"_s);
  EXPECT_EQ(Stored(u"Load"_s, u"Path"_s), named);
  EXPECT_EQ(Stored(u"Load"_s, u"Name"_s), u"named.ddb"_s);
  EXPECT_EQ(Stored(u"Load"_s, u"Index"_s), u"3"_s);
  EXPECT_EQ(StoredRecent().first(), named);
}

TEST_F(RealFrameFirstRunTest, Load_NamedFileMissing_TellsItUntilAKeyAfterTheWelcome) {
  const QString last = MakeFile(u"last.ddb"_s, {1});
  SaveSetting(u"Load"_s, u"Path"_s, last);
  const QString missing = PathOf(u"gone.ddb"_s);
  InDialog(
      welcome, [&] { StartWith(missing); }, [] { Key(welcome, Qt::Key_Escape); });
  EXPECT_EQ(Stored(u"Load"_s, u"Path"_s), last);
  ASSERT_TRUE(QTest::qWaitFor([] { return !ui::NoticeInView().isEmpty(); }));
  EXPECT_EQ(ui::NoticeInView(), u"There is no file %1."_s.arg(missing));
  // Time alone does not end it.
  Clock::Set([] { return QDateTime::currentDateTime().addSecs(60); });
  EXPECT_FALSE(QTest::qWaitFor([] { return ui::NoticeInView().isEmpty(); }, 500));
  Clock::Set({});
  QTest::keyClick(m_main.get(), Qt::Key_F6);
  EXPECT_EQ(ui::NoticeInView(), QString());
}

TEST_F(RealFrameFirstRunTest, Load_LastFileNoCardFile_TellsSo) {
  QFile text(PathOf(u"text.ddb"_s));
  ASSERT_TRUE(text.open(QIODevice::WriteOnly));
  text.write("a shopping list and no database\n");
  text.close();
  RunOn(text.fileName());
  EXPECT_TRUE(ui::NoticeInView().startsWith(text.fileName())) << ui::NoticeInView().toStdString();
}

// What a start after a power cut comes up with.

TEST_F(RealFrameFirstRunTest, Open_WithoutAnEndOfTheRun_NextStartComesUpWithTheFile) {
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  const QString opened = MakeFile(u"b.ddb"_s, {1});
  ChooseFiles({opened});
  Trigger(u"open_new"_s);
  RunAgain();
  EXPECT_EQ(m_main->windowTitle(), opened);
}

TEST_F(RealFrameFirstRunTest, New_FileMade_IsStoredAndTheMenuWaits) {
  const QString first = MakeFile(u"a.ddb"_s, {1});
  const QString made = PathOf(u"made.ddb"_s);
  RunOn(first);
  ChooseFiles({made});
  Trigger(u"file_new"_s);
  Type(u"CreatTable"_s, u"MainName"_s, u"Shop"_s);
  Type(u"CreatTable"_s, u"TextIn(0)"_s, u"City"_s);
  Press(u"CreatTable"_s, u"CreateData"_s);
  EXPECT_EQ(m_main->windowTitle(), made);
  EXPECT_EQ(Stored(u"Load"_s, u"Path"_s), made);
  EXPECT_EQ(Stored(u"Load"_s, u"Name"_s), u"made.ddb"_s);
  EXPECT_EQ(StoredRecent(), QStringList({made, first, u""_s, u""_s}));
  EXPECT_EQ(Entry(u"hShortName(0)"_s).text(), first);
  RunAgain();
  EXPECT_EQ(m_main->windowTitle(), made);
}

}  // namespace
}  // namespace velmora
