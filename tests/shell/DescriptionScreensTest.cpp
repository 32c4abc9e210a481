// SPDX-License-Identifier: MIT
// The description of what the program lacks, and what it tells about itself, in the real frame.
#include "base/system/Files.h"
#include "base/system/Shell.h"
#include "engine/LibraryVersion.h"
#include "forms/Notice.h"
#include "forms/Screen.h"
#include "shell/RtfText.h"
#include "tests/shell/RealFrame.h"
#include "tests/support/Messages.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QTextEdit>
#include <QtTest>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class DescriptionScreensTest : public RealFrame {
 protected:
  DescriptionScreensTest() { SetProgramDir(PathOf(u"program/"_s)); }
  ~DescriptionScreensTest() override { SetProgramDir({}); }

  void WriteDescription(const QByteArray& document) const {
    ASSERT_TRUE(QDir().mkpath(ProgramDir()));
    QFile file(ProgramDir() + u"Velmora.rtf"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(document);
  }
  [[nodiscard]] static QByteArray OwnDescription() {
    QFile file(QStringLiteral(VELMORA_TEST_DATA "/../resources/Velmora.rtf"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  /// Opens the description as its first button does.
  void OpenBrowser() const { ClickTool(u"ltTool"_s, 2); }
  [[nodiscard]] static QTextEdit& Text1() { return In<QTextEdit>(u"frmBrowser"_s, u"Text1"_s); }
};

TEST_F(DescriptionScreensTest, Browser_EveryButtonOfALackingFeature_BringsTheSameDocument) {
  WriteDescription("{\\rtf1 What is {\\b not} here\\par}");
  RunAgain();
  for (const auto& [bar, indices] :
       {std::pair{u"ltTool"_s, QList{2, 3, 4, 6, 7, 8, 9, 14, 15, 18, 20, 21, 22, 24}},
        std::pair{u"tool"_s, QList{1, 2, 3, 4, 5, 6, 7, 9, 10, 11, 12}}}) {
    for (const int index : indices) {
      ClickTool(bar, index);
      EXPECT_EQ(Text1().toPlainText(), u"What is not here"_s) << bar.toStdString() << index;
      ui::FindScreen(u"frmBrowser")->Unload();
    }
  }
}

TEST_F(DescriptionScreensTest, Browser_SecondClick_LeavesItAsItIs) {
  WriteDescription(OwnDescription());
  RunAgain();
  OpenBrowser();
  const QWidget* screen = &Screen(u"frmBrowser"_s);
  Text1().verticalScrollBar()->setValue(100);
  const int place = Text1().verticalScrollBar()->value();
  EXPECT_GT(place, 0);
  WriteDescription("{\\rtf1 Another\\par}");
  OpenBrowser();
  EXPECT_EQ(&Screen(u"frmBrowser"_s), screen);
  EXPECT_EQ(Text1().verticalScrollBar()->value(), place);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"frmBrowser"_s}));
}

TEST_F(DescriptionScreensTest, Browser_OwnDescription_IsReadWholeAndNamesEveryButton) {
  WriteDescription(OwnDescription());
  RunAgain();
  OpenBrowser();
  const QString text = Text1().toPlainText();
  for (const auto& [bar, indices] :
       {std::pair{u"ltTool"_s, QList{2, 3, 4, 6, 7, 8, 9, 14, 15, 18, 20, 21, 22}},
        std::pair{u"tool"_s, QList{1, 2, 3, 4, 5, 6, 7, 9, 10, 11}}}) {
    for (const int index : indices) {
      const QString tip = Find<QWidget>(bar).findChild<QWidget*>(u"mPicture(%1)"_s.arg(index))->toolTip();
      EXPECT_TRUE(text.contains(tip, Qt::CaseInsensitive)) << tip.toStdString();
    }
  }
  EXPECT_FALSE(text.contains(u'\\') || text.contains(u'{') || text.contains(u'}'));
  EXPECT_TRUE(text.contains(u"press F1"_s));
}

TEST_F(DescriptionScreensTest, Browser_AtEachResize_TextTakesTheWholeScreen) {
  WriteDescription("{\\rtf1 Text\\par}");
  RunAgain();
  OpenBrowser();
  QWidget& screen = Screen(u"frmBrowser"_s);
  EXPECT_EQ(Text1().geometry(), screen.rect());
  QWidget* carrier = screen.parentWidget();
  carrier->resize(carrier->size() + QSize(40, 60));
  QApplication::processEvents();
  EXPECT_EQ(Text1().geometry(), screen.rect());
}

TEST_F(DescriptionScreensTest, Browser_Text_CanBeMarkedCopiedAndScrolledByKeysButNotChanged) {
  WriteDescription(OwnDescription());
  RunAgain();
  OpenBrowser();
  QTextEdit& text = Text1();
  ASSERT_TRUE(text.hasFocus());
  const QString before = text.toPlainText();
  QTest::keyClicks(&text, u"x"_s);
  Trigger(u"hPaste"_s);
  EXPECT_EQ(text.toPlainText(), before);
  QTest::keyClick(&text, Qt::Key_PageDown);
  EXPECT_GT(text.verticalScrollBar()->value(), 0);
  Trigger(u"hSelAll"_s);
  Trigger(u"hCopy"_s);
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(u"Features not in this program"_s));
  QTest::keyClick(&text, Qt::Key_Escape);
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
}

TEST_F(DescriptionScreensTest, Browser_FaceAndShape_AreShown) {
  WriteDescription("{\\rtf1\\sa120\\b\\fs48 Title\\par\\pard\\b0\\fs24\\li360 Text\\par}");
  RunAgain();
  OpenBrowser();
  QTextCursor cursor(Text1().document());
  cursor.movePosition(QTextCursor::NextCharacter);
  const double titlePoints = cursor.charFormat().fontPointSize();
  EXPECT_TRUE(cursor.charFormat().font().bold());
  cursor.movePosition(QTextCursor::NextBlock);
  cursor.movePosition(QTextCursor::NextCharacter);
  EXPECT_FALSE(cursor.charFormat().font().bold());
  EXPECT_DOUBLE_EQ(titlePoints, 2 * cursor.charFormat().fontPointSize());
  EXPECT_GT(cursor.blockFormat().leftMargin(), 0);
}

TEST_F(DescriptionScreensTest, Browser_NoDocument_IsEmptyAndTellsByANotice) {
  RunAgain();
  OpenBrowser();
  EXPECT_EQ(Text1().toPlainText(), QString());
  EXPECT_EQ(ui::NoticeInView(),
            u"The description could not be read: the file Velmora.rtf is missing or damaged."_s);
}

TEST_F(DescriptionScreensTest, Browser_DocumentThatIsNone_IsEmptyAndTellsByANotice) {
  WriteDescription("MZ\x90");
  RunAgain();
  OpenBrowser();
  EXPECT_EQ(Text1().toPlainText(), QString());
  EXPECT_NE(ui::NoticeInView(), QString());
}

TEST_F(DescriptionScreensTest, About_Entry_TellsVersionLicenceAndLibraries) {
  RunAgain();
  Trigger(u"About"_s);
  EXPECT_EQ(TextOf(u"frmAbout"_s, u"lblTitle"_s), u"Velmora  Zenlet v" VELMORA_VERSION ""_s);
  EXPECT_TRUE(TextOf(u"frmAbout"_s, u"lblLicence"_s).contains(u"MIT License"_s));
  EXPECT_TRUE(TextOf(u"frmAbout"_s, u"lblLibraries"_s).contains(QString::fromUtf8(qVersion())));
  EXPECT_TRUE(TextOf(u"frmAbout"_s, u"lblLibraries"_s).contains(db::LibraryVersion()));
  EXPECT_EQ(TextOf(u"frmAbout"_s, u"lblAddress"_s), u"https://velmora.example"_s);
}

TEST_F(DescriptionScreensTest, About_IsNotModalAndOkClosesIt) {
  RunAgain();
  Trigger(u"About"_s);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"frmAbout"_s}));
  EXPECT_FALSE(Screen(u"frmAbout"_s).windowIcon().isNull());
  Press(u"frmAbout"_s, u"cmdOK"_s);
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
}

TEST_F(DescriptionScreensTest, SysInfo_Installed_StartsIt) {
  UseOwnDesktop();
  InstallProgram(u"gnome-system-monitor.desktop"_s);
  RunAgain();
  Trigger(u"About"_s);
  EXPECT_EQ(TextOf(u"frmAbout"_s, u"cmdSysInfo"_s), u"&System Info..."_s);
  Press(u"frmAbout"_s, u"cmdSysInfo"_s);
  ASSERT_EQ(m_started.size(), 1);
  EXPECT_EQ(m_started[0].Program, u"gnome-system-monitor"_s);
}

TEST_F(DescriptionScreensTest, SysInfo_NoneInstalled_SaysSo) {
  UseOwnDesktop();
  RunAgain();
  Trigger(u"About"_s);
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  Press(u"frmAbout"_s, u"cmdSysInfo"_s);
  EXPECT_EQ(answers.Asked().value(0).Text, u"The system information is temporarily unavailable."_s);
}

TEST_F(DescriptionScreensTest, SysInfo_CannotStart_TellsByANotice) {
  UseOwnDesktop();
  InstallProgram(u"hardinfo.desktop"_s);
  RunAgain();
  Trigger(u"About"_s);
  SetStarter([](const ProgramStart& start) -> ProcessNumber { throw StartFailure(start.Program); });
  Press(u"frmAbout"_s, u"cmdSysInfo"_s);
  EXPECT_EQ(ui::NoticeInView(), u"hardinfo could not be started."_s);
}

}  // namespace
}  // namespace velmora
