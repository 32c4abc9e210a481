// SPDX-License-Identifier: MIT
// What the commands start, from the toolbars and the menu of the real frame, on a desktop made of files.
#include "base/settings/Settings.h"
#include "base/system/Shell.h"
#include "forms/Notice.h"
#include "forms/Twips.h"
#include "tests/shell/RealFrame.h"
#include "tests/support/Messages.h"

#include <QAction>
#include <QProcess>
#include <QtTest>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

constexpr int program3 = 10;
constexpr int program2 = 11;
constexpr int program1 = 12;
constexpr int calculator = 13;

class ProgramsTest : public RealFrame {
 protected:
  ProgramsTest() {
    UseOwnDesktop();
    RunAgain();
  }

  /// The tool button of a program.
  void ClickProgram(int index) const { ClickTool(u"ltTool"_s, index); }
  [[nodiscard]] QStringList Started() const {
    QStringList started;
    for (const ProgramStart& start : m_started)
      started += (start.Program + u' ' + start.Arguments.join(u' ')).trimmed();
    return started;
  }
  /// Lets no program start any more.
  static void FailToStart() {
    SetStarter([](const ProgramStart& start) -> ProcessNumber { throw StartFailure(start.Program); });
  }
};

TEST_F(ProgramsTest, ProgramButtons_StartTheProgramsInReverse) {
  for (int number = 1; number <= 3; ++number) {
    SaveSetting(u"ShellApp"_s, QString::number(number), u"/opt/program %1"_s.arg(number));
  }
  ClickProgram(program3);
  ClickProgram(program1);
  ClickProgram(program2);
  EXPECT_EQ(Started(), QStringList({u"/opt/program 3"_s, u"/opt/program 1"_s, u"/opt/program 2"_s}));
  EXPECT_TRUE(m_started.value(0).Arguments.isEmpty());
}

TEST_F(ProgramsTest, ProgramButtons_NothingChosen_StartTheDesktopsPrograms) {
  InstallProgram(u"editor.desktop"_s, "MimeType=text/plain;\n");
  InstallProgram(u"painter.desktop"_s, "MimeType=image/png;\n");
  InstallProgram(u"files.desktop"_s, "MimeType=inode/directory;\n");
  for (const int button : {program1, program2, program3}) ClickProgram(button);
  EXPECT_EQ(Started(), QStringList({u"editor --new"_s, u"painter --new"_s, u"files --new"_s}));
}

TEST_F(ProgramsTest, ProgramButtons_NothingInstalled_TellByANotice) {
  const QStringList told{u"No program for text files is installed."_s,
                         u"No program for pictures is installed."_s,
                         u"No program for folders is installed."_s};
  QStringList notices;
  for (const int button : {program1, program2, program3}) {
    ClickProgram(button);
    notices += ui::NoticeInView();
  }
  EXPECT_EQ(notices, told);
  EXPECT_EQ(Started(), QStringList());
  EXPECT_FALSE(m_main->isMinimized());
}

TEST_F(ProgramsTest, RunProgram_Started_MinimisesTheFrameAndTheNextActivationSetsNoSize) {
  SaveSetting(u"ShellApp"_s, u"1"_s, u"/opt/program"_s);
  m_main->resize(ui::Pixels(12000), ui::Pixels(9000));
  const QSize size = m_main->size();
  ClickProgram(program1);
  ASSERT_EQ(Started(), QStringList{u"/opt/program"_s});
  EXPECT_TRUE(m_main->isMinimized());
  m_main->Activate();
  EXPECT_EQ(m_main->size(), size);
  m_main->showNormal();
  m_main->Activate();
  EXPECT_NE(m_main->size(), size);
}

TEST_F(ProgramsTest, RunProgram_CannotStart_LeavesTheFrameAndTellsByANotice) {
  SaveSetting(u"ShellApp"_s, u"1"_s, u"/opt/program"_s);
  FailToStart();
  ClickProgram(program1);
  EXPECT_FALSE(m_main->isMinimized());
  EXPECT_EQ(ui::NoticeInView(), u"/opt/program could not be started."_s);
}

TEST_F(ProgramsTest, RunProgram_DesktopEntryChosen_StartsItsCommand) {
  InstallProgram(u"editor.desktop"_s);
  SaveSetting(u"ShellApp"_s, u"1"_s, PathOf(u"desktop/applications/editor.desktop"_s));
  ClickProgram(program1);
  EXPECT_EQ(Started(), QStringList{u"editor --new"_s});
}

TEST_F(ProgramsTest, RunCalculator_SecondClick_BringsItBackAndStartsNoSecondCopy) {
  InstallProgram(u"reckoner.desktop"_s, "Categories=Utility;Calculator;\n");
  QProcess running;
  running.start(u"sleep"_s, {u"1000"_s});
  ASSERT_TRUE(running.waitForStarted());
  SetStarter([&](const ProgramStart& start) {
    m_started += start;
    return ProcessNumber(running.processId());
  });
  ClickProgram(calculator);
  EXPECT_EQ(ui::NoticeInView(), QString());
  ClickProgram(calculator);
  EXPECT_EQ(Started(), QStringList{u"reckoner --new"_s});
  // Here no window system can be asked to bring it to the front.
  EXPECT_EQ(ui::NoticeInView(), u"The calculator is already running."_s);
  running.kill();
  running.waitForFinished();
}

TEST_F(ProgramsTest, RunCalculator_AfterItsEnd_StartsItAnew) {
  InstallProgram(u"reckoner.desktop"_s, "Categories=Utility;Calculator;\n");
  QProcess running;
  running.start(u"sleep"_s, {u"1000"_s});
  ASSERT_TRUE(running.waitForStarted());
  SetStarter([&](const ProgramStart& start) {
    m_started += start;
    return ProcessNumber(running.processId());
  });
  ClickProgram(calculator);
  running.kill();
  running.waitForFinished();
  ClickProgram(calculator);
  EXPECT_EQ(Started(), QStringList({u"reckoner --new"_s, u"reckoner --new"_s}));
}

TEST_F(ProgramsTest, RunCalculator_DoesNotMinimiseTheFrame) {
  InstallProgram(u"reckoner.desktop"_s, "Categories=Utility;Calculator;\n");
  ClickProgram(calculator);
  EXPECT_EQ(Started(), QStringList{u"reckoner --new"_s});
  EXPECT_FALSE(m_main->isMinimized());
}

TEST_F(ProgramsTest, RunCalculator_NoneInstalled_TellsByANotice) {
  InstallProgram(u"reckoner.desktop"_s, "Categories=Calculator;\nTerminal=true\n");
  ClickProgram(calculator);
  EXPECT_EQ(Started(), QStringList());
  EXPECT_EQ(ui::NoticeInView(), u"No calculator is installed."_s);
}

TEST_F(ProgramsTest, Internet_NoBrowser_MessageComesFirstAndTheLaunchIsTriedAnyway) {
  QStringList order;
  SetStarter([&order](const ProgramStart& start) -> ProcessNumber {
    order += u"start [%1] [%2]"_s.arg(start.Program, start.Arguments.join(u' '));
    throw StartFailure(start.Program);
  });
  ui::SetMsgBoxResponder([&order](const ui::Message& message) {
    order += message.Text;
    return ui::MsgAnswer::Ok;
  });
  SaveSetting(u"Init"_s, u"Browser"_s, u"  "_s);
  Trigger(u"mInternet"_s);
  FailOnUnexpectedMessages();
  EXPECT_EQ(order,
            QStringList({u"Please  make  sure  your web  browser is installed correctly and  that you have\n"
                         u"specified the path to your browser in the Options -> Options -> Internet menu"_s,
                         u"start [] [https://velmora.example]"_s}));
}

TEST_F(ProgramsTest, Internet_BrowserSet_GetsTheAddressAsItsOneArgument) {
  SaveSetting(u"Init"_s, u"Browser"_s, u"/opt/my browser"_s);
  Trigger(u"mInternet"_s);
  ASSERT_EQ(m_started.size(), 1);
  EXPECT_EQ(m_started[0].Program, u"/opt/my browser"_s);
  EXPECT_EQ(m_started[0].Arguments, QStringList{u"https://velmora.example"_s});
  EXPECT_FALSE(m_main->isMinimized());
}

TEST_F(ProgramsTest, Internet_BrowserCannotStart_TellsByANotice) {
  SaveSetting(u"Init"_s, u"Browser"_s, u"/opt/browser"_s);
  FailToStart();
  Trigger(u"mInternet"_s);
  EXPECT_EQ(ui::NoticeInView(), u"/opt/browser could not be started."_s);
}

TEST_F(ProgramsTest, VideoHelp_NoDisc_DoesNothingAtAll) {
  Trigger(u"hVideoHelp"_s);
  EXPECT_EQ(Started(), QStringList());
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
  EXPECT_EQ(ui::NoticeInView(), QString());
}

}  // namespace
}  // namespace velmora
