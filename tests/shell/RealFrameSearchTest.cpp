// SPDX-License-Identifier: MIT
// The two search screens in the real frame: how the user comes to them, and from them to a card.
#include "forms/Notice.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "tests/shell/RealFrame.h"
#include "tests/support/Messages.h"

#include <QTabWidget>
#include <QTableView>
#include <QtTest>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

const QString quick = u"fQSearch"_s;
const QString search = u"Search"_s;
constexpr int cardsTab = 2;
constexpr int quickSearchTool = 0;
constexpr int searchTool = 19;

class RealFrameSearchTest : public RealFrame {
 protected:
  /// Four cards: two with a name in common.
  QString MakeCards() {
    return MakeFile(u"cards.ddb"_s, test::ACardFile().With(test::TextField(u"City"_s)),
                    [](const test::CardFile& file) {
                      file.AddCard(1, u"Ann Lee"_s, {{u"City"_s, u"Oslo"_s}});
                      file.AddCard(2, u"Bob"_s);
                      file.AddCard(5, u"Joanna Roe"_s);
                      file.AddCard(9, u"Dora"_s);
                      file.AddContact(5, u"Zoe"_s, {{u"7"_s, u"555-4729"_s}});
                    });
  }
  void OpenQuickSearch() const { ClickTool(u"ltTool"_s, quickSearchTool); }
  void OpenSearch() const { ClickTool(u"ltTool"_s, searchTool); }
  static QTableView& Grid(const QString& screen, const QString& name = u"flxCard"_s) {
    return In<QTableView>(screen, name);
  }
  static int RowsIn(const QString& screen) { return Grid(screen).model()->rowCount(); }
  static QString Cell(const QString& screen, int row, int column) {
    return Grid(screen).model()->index(row, column).data().toString();
  }
  static QPoint CentreOf(const QString& screen, int row) {
    QApplication::processEvents();
    return Grid(screen).visualRect(Grid(screen).model()->index(row, 1)).center();
  }
  void SearchQuickly(const QString& text) const {
    Type(quick, u"txtName"_s, text);
    QTest::keyClick(&In<QWidget>(quick, u"txtName"_s), Qt::Key_Return);
  }
  void ExpectScreens(const QStringList& others) const {
    EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s} + others);
  }
  void ExpectCard(const QString& name) const {
    ExpectScreens({u"ShowTable"_s});
    EXPECT_EQ(TextOf(u"ShowTable"_s, u"NameRecord"_s), name);
    EXPECT_EQ(Strip(u"ClientLab"_s), name);
  }
  /// Leaves the name's box of a card screen for another one.
  void LeaveName(const QString& screen) const { Click(In<QWidget>(screen, u"NameText(0)"_s)); }
};

TEST_F(RealFrameSearchTest, Toolbar_QuickSearch_OpensItOnTheCards) {
  RunOn(MakeCards());
  OpenQuickSearch();
  ExpectScreens({quick});
  EXPECT_EQ(In<QTabWidget>(quick, u"SSTab1"_s).currentIndex(), cardsTab);
  EXPECT_EQ(m_main->GetActive(), ActiveQuickSearch);
  ASSERT_NE(QApplication::focusWidget(), nullptr);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), u"txtName"_s);
}

TEST_F(RealFrameSearchTest, Toolbar_Search_OpensIt) {
  RunOn(MakeCards());
  OpenSearch();
  ExpectScreens({search});
  EXPECT_EQ(m_main->GetActive(), ActiveSearch);
  EXPECT_EQ(QApplication::focusWidget(), &In<QWidget>(search, u"cmdGetDataCard"_s));
}

TEST_F(RealFrameSearchTest, Toolbar_NoFile_OpensNothing) {
  Start();
  for (const int tool : {quickSearchTool, searchTool}) {
    ui::DropNotice();
    ClickTool(u"ltTool"_s, tool);
    EXPECT_EQ(ui::NoticeInView(), u"No card file is open."_s);
  }
  ExpectScreens({});
}

TEST_F(RealFrameSearchTest, Toolbar_NoCards_OpensNothing) {
  RunOn(MakeFile(u"empty.ddb"_s, {}));
  OpenQuickSearch();
  EXPECT_EQ(ui::NoticeInView(), u"The card file that is open has no cards yet."_s);
  OpenSearch();
  EXPECT_EQ(ui::FindScreen(quick), nullptr);
  EXPECT_EQ(ui::FindScreen(search), nullptr);
}

TEST_F(RealFrameSearchTest, NameInTheStrip_DoubleClicked_OpensTheQuickSearch) {
  RunOn(MakeCards());
  QTest::mouseDClick(&Find<QWidget>(u"ClientLab"_s), Qt::LeftButton);
  ExpectScreens({quick});
  EXPECT_EQ(In<QTabWidget>(quick, u"SSTab1"_s).currentIndex(), cardsTab);
}

TEST_F(RealFrameSearchTest, NameInTheStrip_CardThatRefusesToClose_StaysThere) {
  RunOn(MakeCards());
  OpenEditor();
  ChangeCity(u"EditTable"_s, u"Lyon"_s);
  {
    const MessageAnswers answers({ui::MsgAnswer::Ok});
    QTest::mouseDClick(&Find<QWidget>(u"ClientLab"_s), Qt::LeftButton);
    EXPECT_EQ(answers.Asked().value(0).Text, u"Please enter a name for your main field."_s);
  }
  ExpectScreens({u"EditTable"_s});
  Press(u"EditTable"_s, u"CancelData"_s);
}

TEST_F(RealFrameSearchTest, QuickSearch_DoubleClickOnAHit_ShowsThatCard) {
  RunOn(MakeCards());
  OpenQuickSearch();
  SearchQuickly(u"ann"_s);
  ASSERT_EQ(RowsIn(quick), 2);
  QTest::mouseDClick(Grid(quick).viewport(), Qt::LeftButton, {}, CentreOf(quick, 1));
  ExpectCard(u"Joanna Roe"_s);
  EXPECT_EQ(Global().CurCard, 5);
}

TEST_F(RealFrameSearchTest, QuickSearch_CardButton_ShowsTheChosenCardAndEmptiesTheSeekBox) {
  RunOn(MakeCards());
  OpenQuickSearch();
  SearchQuickly(u"dora"_s);
  QTest::keyClicks(&Find<QWidget>(u"txtSeek"_s), u"2"_s);
  ASSERT_EQ(Strip(u"ClientLab"_s), u"Bob"_s);
  ExpectScreens({quick});
  QTest::mouseClick(Grid(quick).viewport(), Qt::LeftButton, {}, CentreOf(quick, 0));
  Press(quick, u"cmdToCard"_s);
  ExpectCard(u"Dora"_s);
  EXPECT_EQ(Strip(u"txtSeek"_s), QString());
}

TEST_F(RealFrameSearchTest, Search_DataFindAndCard_LeadToTheCard) {
  RunOn(MakeCards());
  OpenSearch();
  Press(search, u"cmdGetDataCard"_s);
  ASSERT_EQ(RowsIn(search), 4);
  Type(search, u"txtName"_s, u"ann"_s);
  Press(search, u"cmdSearch"_s);
  Press(search, u"cmdSearch"_s);
  EXPECT_EQ(Grid(search).currentIndex().row(), 2);
  Press(search, u"cmdToCard"_s);
  ExpectCard(u"Joanna Roe"_s);
}

TEST_F(RealFrameSearchTest, StripArrow_OverASearch_LeavesItOpen) {
  RunOn(MakeCards());
  OpenQuickSearch();
  PressInStrip(u"cmdUp"_s);
  ExpectScreens({quick});
  EXPECT_EQ(Strip(u"ClientLab"_s), u"Bob"_s);
}

TEST_F(RealFrameSearchTest, NameCheck_InTheViewer_OpensTheSearchDoneAndClosesTheViewer) {
  const QString path = MakeCards();
  RunOn(path, 9);
  Type(u"ShowTable"_s, u"NameRecord"_s, u"Ann Other"_s);
  {
    // The card is saved on its way out.
    const MessageAnswers answers({ui::MsgAnswer::Ok, ui::MsgAnswer::Yes});
    LeaveName(u"ShowTable"_s);
    EXPECT_EQ(answers.Asked().value(0).Title, u"Check name of card"_s);
    EXPECT_EQ(answers.Asked().value(1).Text, u"Do you wish to save changes?"_s);
  }
  ExpectScreens({quick});
  EXPECT_EQ(In<QTabWidget>(quick, u"SSTab1"_s).currentIndex(), cardsTab);
  EXPECT_EQ(TextOf(quick, u"txtName"_s), u"Ann"_s);
  EXPECT_EQ(Cell(quick, 0, 1), u"Ann Lee"_s);
  EXPECT_EQ(Cell(quick, 1, 1), u"Joanna Roe"_s);
  EXPECT_TRUE(Screen(quick).isVisible());
  EXPECT_EQ(RowsOf(path, u"Select [Name] from MainData Where [Index@] = 9"_s), QStringList{u"Ann Other"_s});
}

TEST_F(RealFrameSearchTest, NameCheck_InTheEditorAnsweredNo_OpensTheSearchAndStoresNothing) {
  const QString path = MakeCards();
  RunOn(path);
  OpenEditor();
  Type(u"EditTable"_s, u"NameRecord"_s, u"Dora"_s + u" Two"_s);
  {
    const MessageAnswers answers({ui::MsgAnswer::Ok, ui::MsgAnswer::No});
    LeaveName(u"EditTable"_s);
    EXPECT_EQ(answers.Asked().value(0).Title, u"Check names"_s);
  }
  ExpectScreens({quick});
  EXPECT_EQ(RowsIn(quick), 1);
  EXPECT_EQ(Cell(quick, 0, 1), u"Dora"_s);
  EXPECT_EQ(RowsOf(path, u"Select [Name] from MainData"_s).size(), 4);
}

TEST_F(RealFrameSearchTest, NameCheck_Cancelled_StaysInTheCard) {
  RunOn(MakeCards(), 9);
  Type(u"ShowTable"_s, u"NameRecord"_s, u"Ann Other"_s);
  {
    const MessageAnswers answers({ui::MsgAnswer::Cancel});
    LeaveName(u"ShowTable"_s);
  }
  ExpectScreens({u"ShowTable"_s});
  const MessageAnswers answers({ui::MsgAnswer::No});
  m_main->UnloadOtherForms();
}

TEST_F(RealFrameSearchTest, NameCheck_CardThatCannotBeSaved_StopsTheJumpAndUnloadsTheSearch) {
  RunOn(MakeCards());
  OpenEditor();
  Type(u"EditTable"_s, u"IndexText"_s, QString());
  Type(u"EditTable"_s, u"NameRecord"_s, u"Ann Other"_s);
  {
    // Without a number nothing is stored, whatever the answer.
    const MessageAnswers answers({ui::MsgAnswer::Ok, ui::MsgAnswer::Yes});
    LeaveName(u"EditTable"_s);
  }
  ExpectScreens({u"EditTable"_s});
  EXPECT_EQ(TextOf(u"EditTable"_s, u"NameRecord"_s), u"Ann Other"_s);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), u"IndexText"_s);
  const MessageAnswers answers({ui::MsgAnswer::No});
  m_main->UnloadOtherForms();
}

}  // namespace
}  // namespace velmora
