// SPDX-License-Identifier: MIT
// F1 and what else opens the help, over the real screens.
#include "base/system/Files.h"
#include "base/system/Shell.h"
#include "forms/Default.h"
#include "forms/MsgBox.h"
#include "forms/Notice.h"
#include "queries/QueryN.h"
#include "queries/SelectFields.h"
#include "tests/shell/RealFrame.h"
#include "tests/support/Messages.h"

#include <QAction>
#include <QMenu>
#include <QtTest>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class HelpKeyTest : public RealFrame {
 protected:
  /// What the help viewer was started with beside its file, once for each start.
  [[nodiscard]] QStringList Topics() const {
    QStringList topics;
    for (const ProgramStart& start : m_started) {
      EXPECT_TRUE(start.Program.endsWith(u"/velmora-help"_s));
      EXPECT_EQ(start.Arguments.value(0), ProgramDir() + u"Velmora"_s);
      topics += start.Arguments.size() == 1 ? u"contents"_s : start.Arguments.sliced(1).join(u' ');
    }
    return topics;
  }
  static void PressF1() {
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus != nullptr ? focus : QApplication::activeWindow(), Qt::Key_F1);
  }
};

TEST_F(HelpKeyTest, F1_NoScreen_OpensTheContents) {
  RunAgain();
  PressF1();
  EXPECT_EQ(Topics(), QStringList{u"contents"_s});
}

TEST_F(HelpKeyTest, F1_ScreenWithATopic_OpensThat) {
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  PressF1();
  OpenEditor();
  PressF1();
  Press(u"EditTable"_s, u"CancelData"_s);
  ui::Default<QueryN>().Show();
  PressF1();
  EXPECT_EQ(Topics(), QStringList({u"118"_s, u"118"_s, u"122"_s}));
}

TEST_F(HelpKeyTest, F1_FocusInTheStrip_OpensTheTopicOfTheScreen) {
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  Find<QWidget>(u"txtSeek"_s).setFocus();
  PressF1();
  EXPECT_EQ(Topics(), QStringList{u"118"_s});
}

TEST_F(HelpKeyTest, F1_OverAModalDialog_OpensItsTopic) {
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  InDialog(
      u"SelectFields"_s, [] { ui::Default<SelectFields>().Show(ui::ShowMode::Modal); },
      [] {
        PressF1();
        ui::Default<SelectFields>().Unload();
      });
  EXPECT_EQ(Topics(), QStringList{u"122"_s});
}

TEST_F(HelpKeyTest, F1_OverAMessage_IsNotTaken) {
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  ui::SetMsgBoxResponder({});
  QTimer answering;
  QObject::connect(&answering, &QTimer::timeout, &answering, [&answering] {
    QWidget* box = QApplication::activeModalWidget();
    if (box == nullptr) return;
    answering.stop();
    QTest::keyClick(box, Qt::Key_F1);
    box->close();
  });
  answering.start();
  ui::MsgBox(u"A message"_s);
  FailOnUnexpectedMessages();
  EXPECT_EQ(Topics(), QStringList());
}

TEST_F(HelpKeyTest, HelpTopicsEntry_ScreenWithATopic_OpensTheContentsAllTheSame) {
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  Trigger(u"HelpM"_s);
  EXPECT_EQ(Topics(), QStringList{u"contents"_s});
}

TEST_F(HelpKeyTest, HelpButton_OpensTheTopicOfItsScreen) {
  RunOn(MakeFile(u"a.ddb"_s, {1}));
  Press(u"ShowTable"_s, u"CmdHelp"_s);
  EXPECT_EQ(Topics(), QStringList{u"118"_s});
}

TEST_F(HelpKeyTest, HelpOnImportEntry_OpensItsTopic) {
  Start();
  Trigger(u"hHelpExport"_s);
  EXPECT_EQ(Topics(), QStringList{u"152"_s});
}

TEST_F(HelpKeyTest, F1_NoViewer_IsToldByANotice) {
  RunAgain();
  SetStarter([](const ProgramStart& start) -> ProcessNumber { throw StartFailure(start.Program); });
  PressF1();
  EXPECT_EQ(ui::NoticeInView(), u"The help viewer could not be started."_s);
}

}  // namespace
}  // namespace velmora
