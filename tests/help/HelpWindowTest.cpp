// SPDX-License-Identifier: MIT
#include "help/HelpPage.h"
#include "help/HelpPanel.h"
#include "help/HelpWindow.h"
#include "tests/help/HelpFixture.h"

#include <QAction>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QtTest>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class HelpWindowTest : public HelpFixture {
 protected:
  template <typename Control>
  [[nodiscard]] Control& Find(const QString& name) const {
    return *m_window->findChild<Control*>(name);
  }
  [[nodiscard]] bool ShowOther(const QString& file, QString& why) const {
    return m_window->ShowTopic({.File = file, .Topic = {}, .ActivationToken = {}}, why);
  }
  /// Types words into the search and waits for its answer.
  void SearchFor(const QString& words) const {
    Trigger(u"ShowSearch"_s);
    auto& box = Find<QLineEdit>(u"SearchWords"_s);
    ASSERT_TRUE(box.hasFocus());
    box.clear();
    QTest::keyClicks(&box, words);
    QTest::keyClick(&box, Qt::Key_Return);
    const auto& told = Find<QLabel>(u"Told"_s);
    ASSERT_TRUE(QTest::qWaitFor([&told] {
      return told.text().contains(u"found"_s) || told.text().contains(u"No page"_s);
    })) << told.text().toStdString();
  }
  [[nodiscard]] QStringList Found() const {
    const auto& results = Find<QListWidget>(u"Results"_s);
    QStringList titles;
    for (int row = 0; row < results.count(); ++row) titles.append(results.item(row)->text());
    return titles;
  }
};

TEST_F(HelpWindowTest, ShowTopic_None_ShowsTheContents) {
  const HelpWindow& window = Show();
  EXPECT_EQ(PageName(), u"index.html"_s);
  EXPECT_EQ(window.windowTitle(), u"Velmora: your customers on cards - Velmora Help"_s);
  EXPECT_EQ(NoticeText(), QString());
}

TEST_F(HelpWindowTest, ShowTopic_Another_ShowsItInTheSameWindow) {
  Show(u"113"_s);
  EXPECT_EQ(PageName(), u"design.html"_s);
  Show(u"152"_s);
  EXPECT_EQ(PageName(), u"import-export.html"_s);
  EXPECT_EQ(m_window->windowTitle(), u"Import and export - Velmora Help"_s);
}

TEST_F(HelpWindowTest, ShowTopic_Unknown_ShowsTheContentsWithASign) {
  Show(u"118"_s);
  Show(u"4711"_s);
  EXPECT_EQ(PageName(), u"index.html"_s);
  EXPECT_EQ(NoticeText(), u"The help has no topic “4711”. These are its contents."_s);
  QTest::keyClick(&Page(), Qt::Key_Down);
  EXPECT_EQ(NoticeText(), QString());
}

TEST_F(HelpWindowTest, ShowTopic_KnownAfterUnknown_TakesTheSignAway) {
  Show(u"4711"_s);
  Show(u"118"_s);
  EXPECT_EQ(NoticeText(), QString());
}

TEST_F(HelpWindowTest, ShowTopic_FileThatCannotBeOpened_KeepsThePage) {
  Show(u"118"_s);
  QString why;
  EXPECT_FALSE(ShowOther(PathOf(u"nowhere.qch"_s), why));
  EXPECT_FALSE(why.isEmpty());
  EXPECT_EQ(PageName(), u"cards.html"_s);
  EXPECT_FALSE(Page().toPlainText().isEmpty());
}

TEST_F(HelpWindowTest, ShowTopic_OtherFile_ShowsThatOne) {
  Show(u"118"_s);
  const QString other = CopyOfManual(u"Other.qch"_s);
  QString why;
  EXPECT_TRUE(ShowOther(other, why)) << why.toStdString();
  EXPECT_EQ(PageName(), u"index.html"_s);
  EXPECT_FALSE(m_window->findChild<QAction*>(u"Back"_s)->isEnabled());
  Show(u"113"_s);
  EXPECT_EQ(PageName(), u"design.html"_s);
}

TEST_F(HelpWindowTest, ComeToFront_Minimized_ComesUp) {
  HelpWindow& window = Show();
  window.showMinimized();
  window.ComeToFront({});
  EXPECT_FALSE(window.isMinimized());
  EXPECT_TRUE(window.isVisible());
}

TEST_F(HelpWindowTest, BackAndForward_OverTwoPages_ShowThem) {
  Show();
  EXPECT_FALSE(m_window->findChild<QAction*>(u"Back"_s)->isEnabled());
  Show(u"113"_s);
  Show(u"147"_s);
  Trigger(u"Back"_s);
  EXPECT_EQ(PageName(), u"design.html"_s);
  Trigger(u"Back"_s);
  EXPECT_EQ(PageName(), u"index.html"_s);
  Trigger(u"Forward"_s);
  EXPECT_EQ(PageName(), u"design.html"_s);
  QTest::keyClick(&Page(), Qt::Key_Backspace);
  EXPECT_EQ(PageName(), u"index.html"_s);
  QTest::keyClick(&Page(), Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(PageName(), u"design.html"_s);
}

TEST_F(HelpWindowTest, FirstPage_FromAnyPage_ShowsTheContents) {
  Show(u"113"_s);
  Trigger(u"FirstPage"_s);
  EXPECT_EQ(PageName(), u"index.html"_s);
}

TEST_F(HelpWindowTest, NextAndPreviousTopic_FollowTheContents) {
  Show();
  auto& contents = Find<QHelpContentWidget>(u"Contents"_s);
  ASSERT_TRUE(QTest::qWaitFor([&contents] { return contents.currentIndex().isValid(); }));
  Trigger(u"NextTopic"_s);
  EXPECT_EQ(PageName(), u"first-file.html"_s);
  Trigger(u"NextTopic"_s);
  EXPECT_EQ(PageName(), u"window.html"_s);
  Trigger(u"PreviousTopic"_s);
  EXPECT_EQ(PageName(), u"first-file.html"_s);
  EXPECT_EQ(contents.currentIndex().data().toString(), u"Your first file"_s);
  Trigger(u"PreviousTopic"_s);
  Trigger(u"PreviousTopic"_s);
  EXPECT_EQ(PageName(), u"index.html"_s);
}

TEST_F(HelpWindowTest, Contents_LineChosenByKeys_ShowsItsPage) {
  Show();
  auto& contents = Find<QHelpContentWidget>(u"Contents"_s);
  ASSERT_TRUE(QTest::qWaitFor([&contents] { return contents.currentIndex().isValid(); }));
  Trigger(u"ShowContents"_s);
  EXPECT_TRUE(contents.hasFocus());
  QTest::keyClick(&contents, Qt::Key_Down);
  QTest::keyClick(&contents, Qt::Key_Down);
  QTest::keyClick(&contents, Qt::Key_Return);
  EXPECT_EQ(PageName(), u"window.html"_s);
}

TEST_F(HelpWindowTest, Index_WordTyped_FindsItsKeyword) {
  Show();
  Trigger(u"ShowIndex"_s);
  auto& keywords = Find<QHelpIndexWidget>(u"Keywords"_s);
  ASSERT_TRUE(QTest::qWaitFor([&keywords] { return keywords.model()->rowCount() > 0; }));
  auto& box = Find<QLineEdit>(u"IndexWord"_s);
  ASSERT_TRUE(box.hasFocus());
  QTest::keyClicks(&box, u"apost"_s);
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_EQ(PageName(), u"limits.html"_s);
}

TEST_F(HelpWindowTest, Index_ArrowFromTheBox_GoesIntoTheList) {
  Show();
  Trigger(u"ShowIndex"_s);
  auto& keywords = Find<QHelpIndexWidget>(u"Keywords"_s);
  ASSERT_TRUE(QTest::qWaitFor([&keywords] { return keywords.model()->rowCount() > 0; }));
  QTest::keyClick(&Find<QLineEdit>(u"IndexWord"_s), Qt::Key_Down);
  EXPECT_TRUE(keywords.hasFocus());
  QTest::keyClick(&keywords, Qt::Key_Return);
  EXPECT_NE(PageName(), u"index.html"_s);
}

TEST_F(HelpWindowTest, Search_WordOfOnePage_FindsItAndMarksIt) {
  Show();
  SearchFor(u"apostrophe neill"_s);
  EXPECT_EQ(Found(), QStringList{u"Limits"_s});
  EXPECT_EQ(Find<QLabel>(u"Told"_s).text(), u"One page found."_s);
  auto& results = Find<QListWidget>(u"Results"_s);
  EXPECT_TRUE(results.hasFocus());
  QTest::keyClick(&results, Qt::Key_Return);
  EXPECT_EQ(PageName(), u"limits.html"_s);
  EXPECT_FALSE(Page().extraSelections().isEmpty());
}

TEST_F(HelpWindowTest, Search_BeginningOfAWord_IsEnough) {
  Show();
  SearchFor(u"CALCUL"_s);
  EXPECT_TRUE(Found().contains(u"Other programs"_s)) << Found().join(u", "_s).toStdString();
}

TEST_F(HelpWindowTest, Search_SignsOfTheIndexTyped_AreNoSigns) {
  Show();
  SearchFor(u"\"apostrophe) AND* (neill"_s);
  EXPECT_EQ(Found(), QStringList{u"Limits"_s});
}

TEST_F(HelpWindowTest, Search_NothingFits_SaysSo) {
  Show();
  SearchFor(u"xylophone"_s);
  EXPECT_TRUE(Found().isEmpty());
  EXPECT_EQ(Find<QLabel>(u"Told"_s).text(), u"No page holds all of these words."_s);
  EXPECT_TRUE(Find<QLineEdit>(u"SearchWords"_s).hasFocus());
}

TEST_F(HelpWindowTest, Search_NoWord_AsksForOne) {
  Show();
  Trigger(u"ShowSearch"_s);
  QTest::keyClicks(&Find<QLineEdit>(u"SearchWords"_s), u" ' "_s);
  QTest::keyClick(&Find<QLineEdit>(u"SearchWords"_s), Qt::Key_Return);
  EXPECT_EQ(Find<QLabel>(u"Told"_s).text(), u"Enter a word to find."_s);
}

TEST_F(HelpWindowTest, Search_SecondRun_FindsByTheIndexOfTheFirst) {
  Show();
  SearchFor(u"xylophone"_s);
  CloseWindow();
  Show();
  SearchFor(u"apostrophe neill"_s);
  EXPECT_EQ(Found(), QStringList{u"Limits"_s});
}

TEST_F(HelpWindowTest, F6_GoesFromThePageToThePanelAndBack) {
  Show();
  EXPECT_TRUE(Page().hasFocus());
  QTest::keyClick(&Page(), Qt::Key_F6);
  EXPECT_TRUE(Find<QHelpContentWidget>(u"Contents"_s).hasFocus());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
  EXPECT_TRUE(Page().hasFocus());
}

}  // namespace
}  // namespace velmora
