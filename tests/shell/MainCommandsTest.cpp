// SPDX-License-Identifier: MIT
#include "controls/MyToolBarCtrl.h"
#include "forms/Screen.h"
#include "forms/TextBox.h"
#include "frame/Session.h"
#include "tests/shell/MainFixture.h"
#include "tests/support/Messages.h"

#include <QAction>
#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QtTest>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

struct ExpectedEntry {
  const char16_t* Name;
  const char16_t* Caption;
  const char16_t* Shortcut = u"";
  bool Enabled = true;
  bool Visible = true;
};

QString Str(const char16_t* text) { return QString::fromUtf16(text); }

class MainCommandsTest : public MainFixture {
 protected:
  /// A menu's entries from the first on are those told, in that order; "-" is a separator.
  void ExpectMenu(const QString& name, const QString& caption, const std::vector<ExpectedEntry>& expected) {
    const auto& menu = Find<QMenu>(name);
    EXPECT_EQ(menu.title(), caption);
    ASSERT_GE(menu.actions().size(), static_cast<qsizetype>(expected.size()));
    for (std::size_t i = 0; i < expected.size(); ++i) {
      const QAction& entry = *menu.actions().at(static_cast<qsizetype>(i));
      SCOPED_TRACE(Str(expected[i].Name).toStdString());
      EXPECT_EQ(entry.objectName(), Str(expected[i].Name));
      EXPECT_EQ(entry.isSeparator(), Str(expected[i].Caption) == u"-"_s);
      EXPECT_EQ(entry.isSeparator() ? u"-"_s : entry.text(), Str(expected[i].Caption));
      EXPECT_EQ(entry.shortcut(), QKeySequence(Str(expected[i].Shortcut)));
      // Qt counts what is hidden as disabled.
      EXPECT_EQ(entry.isEnabled(), expected[i].Enabled && expected[i].Visible);
      EXPECT_EQ(entry.isVisible(), expected[i].Visible);
    }
  }
  void ClickTool(const QString& bar, int index) const {
    QWidget* button =
        m_main->findChild<MyToolBarCtrl*>(bar)->findChild<QWidget*>(u"mPicture(%1)"_s.arg(index));
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
  }
  [[nodiscard]] QString TipOf(const QString& bar, int index) const {
    return m_main->findChild<MyToolBarCtrl*>(bar)
        ->findChild<QWidget*>(u"mPicture(%1)"_s.arg(index))
        ->toolTip();
  }
  /// Types into a field of the card in front, so that it holds unsaved changes.
  void EditCity(const QString& text) {
    QApplication::setActiveWindow(m_main.get());
    auto* city = m_main->findChild<QWidget*>(u"EditTable"_s)->findChild<ui::TextBox*>(u"NameText(0)"_s);
    city->setFocus();
    QTest::keyClicks(city, text);
  }
};

TEST_F(MainCommandsTest, FileMenu_AtStart_HoldsItsEntriesInOrder) {
  Start();
  ExpectMenu(u"file"_s, u"&File"_s,
             {{u"open_new", u"Open", u"Ctrl+O"},
              {u"file_new", u"New", u"Ctrl+N"},
              {u"mPrint", u"Print", u"", true, false},
              {u"mnuMakeReplica", u"Make Replica...", u"Ctrl+R", false},
              {u"mnuSynchronize", u"Synchronization...", u"", false},
              {u"mnuResolveConflicts", u"Resolve Conflicts...", u"", false},
              {u"mnuImportFile", u"Import Data from file...", u"Ctrl+I", false},
              {u"Repair", u"Repair File"},
              {u"DelCard", u"Delete Card", u"Ctrl+D"},
              {u"aa", u"-"},
              {u"exit", u"Quit", u"Ctrl+Q"},
              {u"hSep", u"-", u"", true, false},
              {u"hShortName(0)", u"", u"", true, false},
              {u"hShortName(1)", u"", u"", true, false},
              {u"hShortName(2)", u"", u"", true, false},
              {u"hShortName(3)", u"", u"", true, false}});
}

TEST_F(MainCommandsTest, OtherMenus_AtStart_HoldTheirEntriesInOrder) {
  Start();
  ExpectMenu(u"hEdit"_s, u"&Edit"_s,
             {{u"hCancel", u"Undo"},
              {u"qweqew", u"-"},
              {u"hCut", u"Cut", u"Ctrl+X"},
              {u"hCopy", u"Copy", u"Ctrl+C"},
              {u"hPaste", u"Paste", u"Ctrl+V"},
              {u"hDel", u"Delete", u"Del"},
              {u"asdfsdff", u"-"},
              {u"hSelAll", u"Select All"},
              {u"kljh", u"-"},
              {u"hCopyAgent", u"Copy Contact", u"", false},
              {u"hPasteAgent", u"Paste Contact", u"", false}});
  ExpectMenu(u"Tools"_s, u"&Tools"_s,
             {{u"ImportExcel", u"Import Data from EXCEL", u"", false},
              {u"ExportNames", u"Export Field Names to EXCEL", u"", false},
              {u"adasdad", u"-"},
              {u"hImpProd", u"Import Product Data from EXCEL", u"", false},
              {u"hImpFields", u"Export Product Field Names to EXCEL", u"", false},
              {u"jhg", u"-"},
              {u"hHelpExport", u"Help on Import Data"}});
  ExpectMenu(u"Options"_s, u"&Options"_s, {{u"mnuOptions", u"Options"}});
  ExpectMenu(u"About1"_s, u"&Help"_s,
             {{u"HelpM", u"Help Topics", u"F1"},
              {u"hVideoHelp", u"&Video Help"},
              {u"mnuSamples", u"&Samples"},
              {u"mInternet", u"https://velmora.example"},
              {u"mnuEmailUs", u"&E-mail Us..."},
              {u"gfhgh", u"-"},
              {u"About", u"About Velmora"}});
}

TEST_F(MainCommandsTest, Toolbars_AtStart_HaveOneButtonBeyondTheirTips) {
  Start();
  EXPECT_EQ(Find<MyToolBarCtrl>(u"tool"_s).count(), 13);
  EXPECT_EQ(Find<MyToolBarCtrl>(u"ltTool"_s).count(), 25);
  EXPECT_EQ(TipOf(u"tool"_s, 0), u"Customer Card"_s);
  EXPECT_EQ(TipOf(u"tool"_s, 11), u"Call Waiting List"_s);
  EXPECT_EQ(TipOf(u"tool"_s, 12), QString());
  EXPECT_EQ(TipOf(u"ltTool"_s, 0), u"Quick Search: Cards/Contacts/Telephone"_s);
  EXPECT_EQ(TipOf(u"ltTool"_s, 23), u"Exit"_s);
  EXPECT_EQ(TipOf(u"ltTool"_s, 24), QString());
}

TEST_F(MainCommandsTest, LongBar_CreateNewCard_ClosesTheViewerAndOpensTheEditor) {
  StartOn(MakeFile(u"a.ddb"_s, {1}));
  ClickTool(u"ltTool"_s, 1);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"EditTable"_s}));
}

TEST_F(MainCommandsTest, GuardedButton_EditorRefuses_DoesNotRun) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  ClickTool(u"ltTool"_s, 1);
  EditCity(u"Lyon"_s);
  const MessageAnswers answers({ui::MsgAnswer::Ok});
  ClickTool(u"tool"_s, 0);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"EditTable"_s}));
  EXPECT_EQ(Global().CardChanged, True);
  QTest::mouseClick(frame.findChild<QWidget*>(u"CancelData"_s), Qt::LeftButton);
}

TEST_F(MainCommandsTest, UnguardedButtonsOfTheShortBar_LeaveTheScreensOpen) {
  StartOn(MakeFile(u"a.ddb"_s, {1}));
  for (const int index : {9, 10}) {
    ClickTool(u"tool"_s, index);
    EXPECT_EQ(OpenScreens().value(1), u"ShowTable"_s) << index;
  }
  ClickTool(u"tool"_s, 11);
  EXPECT_NE(OpenScreens().value(1), u"ShowTable"_s);
}

TEST_F(MainCommandsTest, GuardedButtonsOfTheLongBar_CloseTheScreens) {
  for (const int index : {0, 3, 5, 9, 19}) {
    StartOn(MakeFile(u"guarded%1.ddb"_s.arg(index), {1}));
    ClickTool(u"ltTool"_s, index);
    EXPECT_FALSE(OpenScreens().contains(u"ShowTable"_s)) << index;
  }
}

TEST_F(MainCommandsTest, UnguardedButtonsOfTheLongBar_LeaveTheScreensOpen) {
  StartOn(MakeFile(u"a.ddb"_s, {1}));
  for (const int index : {2, 4, 6, 7, 8, 10, 11, 12, 13, 14, 15, 17, 18, 20, 21, 22, 24}) {
    ClickTool(u"ltTool"_s, index);
    EXPECT_TRUE(OpenScreens().contains(u"ShowTable"_s)) << index;
  }
}

TEST_F(MainCommandsTest, QueriesButton_FileWithCards_ShowsTheQueryScreen) {
  StartOn(MakeFile(u"a.ddb"_s, {1}));
  ClickTool(u"tool"_s, 8);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"QueryN"_s}));
}

TEST_F(MainCommandsTest, QueriesAndListOfQueries_NoFileOrNoCards_DoNothing) {
  Start();
  ClickTool(u"tool"_s, 8);
  ClickTool(u"ltTool"_s, 16);
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
  StartOn(MakeFile(u"a.ddb"_s, {}), 0);
  ClickTool(u"tool"_s, 8);
  ClickTool(u"ltTool"_s, 16);
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
}

TEST_F(MainCommandsTest, ListOfQueries_FileWithCards_ComesUpAsADialog) {
  StartOn(MakeFile(u"a.ddb"_s, {1}));
  QStringList seen;
  QTimer waiting;
  QObject::connect(&waiting, &QTimer::timeout, &waiting, [&] {
    ui::Screen* list = ui::FindScreen(u"SelectNameQuery");
    if (list == nullptr) return;
    waiting.stop();
    seen = OpenScreens();
    list->Unload();
  });
  waiting.start(0);
  ClickTool(u"ltTool"_s, 16);
  EXPECT_EQ(seen, QStringList({u"Main"_s, u"SelectNameQuery"_s}));
}

TEST_F(MainCommandsTest, LongBarExit_Clicked_EndsTheRun) {
  StartOn(MakeFile(u"a.ddb"_s, {1}));
  ClickTool(u"ltTool"_s, 23);
  EXPECT_EQ(m_ends, 1);
}

TEST_F(MainCommandsTest, CustomerCard_NoFile_DoesNothing) {
  Start();
  ClickTool(u"tool"_s, 0);
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
}

TEST_F(MainCommandsTest, EditEntries_FocusInTheStrip_WorkThere) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1, 12}));
  QApplication::setActiveWindow(&frame);
  auto& seek = Find<ui::TextBox>(u"txtSeek"_s);
  seek.setFocus();
  QTest::keyClicks(&seek, u"12"_s);
  Trigger(u"hSelAll"_s);
  EXPECT_EQ(seek.selectedText(), u"12"_s);
  Trigger(u"hCut"_s);
  EXPECT_EQ(seek.Text(), QString());
  EXPECT_EQ(QGuiApplication::clipboard()->text(), u"12"_s);
  Trigger(u"hCancel"_s);
  EXPECT_EQ(seek.Text(), u"12"_s);
  Trigger(u"hSelAll"_s);
  Trigger(u"hDel"_s);
  EXPECT_EQ(seek.Text(), QString());
  Trigger(u"hPaste"_s);
  EXPECT_EQ(seek.Text(), u"12"_s);
}

TEST_F(MainCommandsTest, EditEntries_FocusOnACard_WorkInItsBoxesAndComments) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  QApplication::setActiveWindow(&frame);
  auto& city = Find<ui::TextBox>(u"NameText(0)"_s);
  city.setFocus();
  Trigger(u"hSelAll"_s);
  Trigger(u"hCopy"_s);
  auto& comments = Find<QPlainTextEdit>(u"DescrText"_s);
  comments.setFocus();
  Trigger(u"hSelAll"_s);
  Trigger(u"hPaste"_s);
  EXPECT_EQ(comments.toPlainText(), city.Text());
  Trigger(u"hSelAll"_s);
  Trigger(u"hDel"_s);
  EXPECT_EQ(comments.toPlainText(), QString());
  Trigger(u"hCancel"_s);
  EXPECT_EQ(comments.toPlainText(), city.Text());
  const MessageAnswers answers({ui::MsgAnswer::No});
  frame.UnloadOtherForms();
}

TEST_F(MainCommandsTest, ContactEntries_WithACardInFront_StayDisabled) {
  StartOn(MakeFile(u"a.ddb"_s, {1}));
  EXPECT_FALSE(Entry(u"hCopyAgent"_s).isEnabled());
  EXPECT_FALSE(Entry(u"hPasteAgent"_s).isEnabled());
}

TEST_F(MainCommandsTest, F6_FourTimes_GoesRoundScreenStripAndBars) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1}));
  QApplication::setActiveWindow(&frame);
  auto& name = Find<ui::TextBox>(u"NameRecord"_s);
  name.setFocus();
  QTest::keyClick(&frame, Qt::Key_F6);
  EXPECT_TRUE(Find<ui::TextBox>(u"txtSeek"_s).hasFocus());
  QTest::keyClick(&frame, Qt::Key_F6);
  EXPECT_TRUE(Find<MyToolBarCtrl>(u"tool"_s).isAncestorOf(frame.focusWidget()));
  QTest::keyClick(&frame, Qt::Key_F6);
  EXPECT_TRUE(Find<MyToolBarCtrl>(u"ltTool"_s).isAncestorOf(frame.focusWidget()));
  QTest::keyClick(&frame, Qt::Key_F6);
  EXPECT_TRUE(name.hasFocus());
  QTest::keyClick(&frame, Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_TRUE(Find<MyToolBarCtrl>(u"ltTool"_s).isAncestorOf(frame.focusWidget()));
}

}  // namespace
}  // namespace velmora
