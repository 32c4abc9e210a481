// SPDX-License-Identifier: MIT
#include "forms/FlexGrid.h"
#include "forms/Twips.h"
#include "tests/forms/PlaceSource.h"

#include <QAccessible>
#include <QHeaderView>
#include <QSignalSpy>
#include <QToolTip>
#include <QVBoxLayout>
#include <QtTest>

#include <gtest/gtest.h>

#include <set>

namespace velmora::ui {
namespace {

class FlexGridTest : public ::testing::Test {
 protected:
  FlexGridTest() {
    grid = new FlexGrid(&window);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(grid);
    window.resize(400, 300);
  }
  void Open() {
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    grid->setFocus();
    ASSERT_TRUE(QTest::qWaitFor([this] { return grid->hasFocus(); }));
  }
  void Bind(int rows, std::set<int>* asked = nullptr) {
    grid->SetDataSource(
        std::make_unique<PlaceSource>(rows, QStringList{u"Index@"_s, u"Name"_s, u"City"_s}, asked));
  }
  QPoint Center(int row, int column = 0) const {
    return grid->visualRect(grid->model()->index(row - 1, column)).center();
  }
  void ClickRow(int row, int column = 0) {
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, Center(row, column));
  }
  QPoint BelowLastRow() const { return {10, grid->viewport()->height() - 3}; }

  QWidget window;
  FlexGrid* grid;
};
TEST_F(FlexGridTest, Start_IsAHeaderRowAlone) {
  EXPECT_EQ(grid->Rows(), 1);
  EXPECT_EQ(grid->Cols(), 0);
  EXPECT_EQ(grid->Row(), 0);
  EXPECT_EQ(grid->TextMatrix(0, 0), QString());
  EXPECT_EQ(grid->Text(), QString());
}

TEST_F(FlexGridTest, DataSource_Bound_ShowsItsRowsBelowItsHeadings) {
  Bind(2);
  EXPECT_EQ(grid->Rows(), 3);
  EXPECT_EQ(grid->Cols(), 3);
  EXPECT_EQ(grid->TextMatrix(0, 1), u"Name"_s);
  EXPECT_EQ(grid->TextMatrix(1, 0), u"0/0"_s);
  EXPECT_EQ(grid->TextMatrix(2, 2), u"1/2"_s);
  EXPECT_EQ(grid->TextMatrix(3, 0), QString());
  EXPECT_EQ(grid->TextMatrix(1, 3), QString());
  EXPECT_EQ(grid->Row(), 0);
}

TEST_F(FlexGridTest, DataSource_WithoutRows_IsAHeaderRowOnly) {
  Bind(0);
  EXPECT_EQ(grid->Rows(), 1);
  EXPECT_EQ(grid->TextMatrix(0, 2), u"City"_s);
  EXPECT_EQ(grid->Row(), 0);
}

TEST_F(FlexGridTest, DataSource_LetGo_KeepsTheHeadings) {
  Bind(2);
  grid->SetDataSource(nullptr);
  EXPECT_EQ(grid->Rows(), 1);
  EXPECT_EQ(grid->TextMatrix(0, 2), u"City"_s);
}

TEST_F(FlexGridTest, DataSource_Replaced_TakesTheCurrentRowBackAndKeepsWidths) {
  Bind(5);
  grid->SetColWidth(1, 2345);
  grid->SetColAlignment(1, ColAlign::Right);
  grid->SetRow(3);
  Bind(5);
  EXPECT_EQ(grid->Row(), 0);
  EXPECT_EQ(grid->ColWidth(1), 2345);
  EXPECT_EQ(grid->columnWidth(1), Pixels(2345));
  EXPECT_EQ(grid->ColAlignment(1), ColAlign::Right);
}

TEST_F(FlexGridTest, DataSource_AMillionRows_IsAskedForTheRowsInViewOnly) {
  std::set<int> asked;
  Bind(1'000'000, &asked);
  Open();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !asked.empty(); }));
  EXPECT_LT(*asked.rbegin(), 60);
  asked.clear();
  grid->SetTopRow(700'001);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !asked.empty(); }));
  EXPECT_EQ(grid->TopRow(), 700'001);
  EXPECT_GE(*asked.begin(), 699'999);
  EXPECT_LT(*asked.rbegin(), 700'060);
}

TEST_F(FlexGridTest, SetTextMatrix_OnABoundCell_OverwritesItAlone) {
  Bind(2);
  grid->SetTextMatrix(1, 1, u"x"_s);
  grid->SetTextMatrix(0, 0, u"Number"_s);
  grid->SetTextMatrix(9, 9, u"nowhere"_s);
  EXPECT_EQ(grid->TextMatrix(1, 1), u"x"_s);
  EXPECT_EQ(grid->TextMatrix(2, 1), u"1/1"_s);
  EXPECT_EQ(grid->TextMatrix(0, 0), u"Number"_s);
  Bind(2);
  EXPECT_EQ(grid->TextMatrix(1, 1), u"0/1"_s);
  EXPECT_EQ(grid->TextMatrix(0, 0), u"Index@"_s);
}

TEST_F(FlexGridTest, Converter_OfAColumn_TurnsOnlyTheRowsThatAreShown) {
  std::set<int> asked;
  Bind(1'000'000, &asked);
  grid->SetConverter(2, [](const QString& text) { return u"<"_s + text + u">"_s; });
  EXPECT_TRUE(asked.empty());
  EXPECT_EQ(grid->TextMatrix(500'000, 2), u"<499999/2>"_s);
  EXPECT_EQ(grid->TextMatrix(500'000, 1), u"499999/1"_s);
  grid->SetTextMatrix(7, 2, u"written"_s);
  EXPECT_EQ(grid->TextMatrix(7, 2), u"written"_s);
}

TEST_F(FlexGridTest, Converter_SourceReplaced_IsGone) {
  Bind(1);
  grid->SetConverter(0, [](const QString&) { return u"Yes"_s; });
  Bind(1);
  EXPECT_EQ(grid->TextMatrix(1, 0), u"0/0"_s);
}

TEST_F(FlexGridTest, Rows_FilledCellByCell_ShowWhatWasWritten) {
  grid->SetFormatString(u"No. |Name "_s);
  grid->SetRows(1);
  grid->SetRows(grid->Rows() + 1);
  grid->SetTextMatrix(1, 0, u"7"_s);
  grid->AddItem({u"8"_s, u"Eve"_s});
  EXPECT_EQ(grid->Rows(), 3);
  EXPECT_EQ(grid->TextMatrix(1, 0), u"7"_s);
  EXPECT_EQ(grid->TextMatrix(1, 1), QString());
  EXPECT_EQ(grid->TextMatrix(2, 1), u"Eve"_s);
  grid->SetRows(1);
  EXPECT_EQ(grid->Rows(), 1);
  grid->SetRows(2);
  EXPECT_EQ(grid->TextMatrix(1, 0), QString());
}

TEST_F(FlexGridTest, Rows_SetOnABoundGrid_LetsTheSourceGo) {
  Bind(5);
  grid->SetRows(2);
  EXPECT_EQ(grid->Rows(), 2);
  EXPECT_EQ(grid->TextMatrix(1, 0), QString());
  EXPECT_EQ(grid->DataSource(), nullptr);
}

TEST_F(FlexGridTest, FormatString_NamesColumnsAsGiven) {
  grid->SetFormatString(u"No. |Card Name |Fax"_s);
  EXPECT_EQ(grid->Cols(), 3);
  EXPECT_EQ(grid->TextMatrix(0, 0), u"No. "_s);
  EXPECT_EQ(grid->TextMatrix(0, 1), u"Card Name "_s);
  EXPECT_EQ(grid->TextMatrix(0, 2), u"Fax"_s);
  EXPECT_EQ(grid->FormatString(), u"No. |Card Name |Fax"_s);
}

TEST_F(FlexGridTest, FormatString_FewerThanColumns_LeavesTheOthersTheirNames) {
  Bind(1);
  grid->SetFormatString(u"No.|Customer"_s);
  EXPECT_EQ(grid->Cols(), 3);
  EXPECT_EQ(grid->TextMatrix(0, 1), u"Customer"_s);
  EXPECT_EQ(grid->TextMatrix(0, 2), u"City"_s);
}

TEST_F(FlexGridTest, FormatString_TrimmedHeadings_AreTheColumnsNames) {
  Bind(1);
  grid->SetTrimsHeadings(true);
  grid->SetFormatString(u" |Name |City"_s);
  EXPECT_EQ(grid->TextMatrix(0, 0), QString());
  EXPECT_EQ(grid->TextMatrix(0, 1), u"Name"_s);
}

TEST_F(FlexGridTest, FormatString_AlignmentSigns_PlaceTheirColumns) {
  grid->SetFormatString(u"<No.|^Name|>Sum|Fax"_s);
  EXPECT_EQ(grid->TextMatrix(0, 1), u"Name"_s);
  EXPECT_EQ(grid->ColAlignment(0), ColAlign::Left);
  EXPECT_EQ(grid->ColAlignment(1), ColAlign::Center);
  EXPECT_EQ(grid->ColAlignment(2), ColAlign::Right);
  EXPECT_EQ(grid->ColAlignment(3), ColAlign::Left);
}

TEST_F(FlexGridTest, Cols_Lowered_TakesTheLastOut) {
  Bind(1);
  grid->SetCols(2);
  EXPECT_EQ(grid->Cols(), 2);
  EXPECT_EQ(grid->TextMatrix(1, 2), QString());
  grid->SetCols(4);
  EXPECT_EQ(grid->TextMatrix(1, 1), u"0/1"_s);
  EXPECT_EQ(grid->TextMatrix(1, 3), QString());
}

TEST_F(FlexGridTest, ColWidth_ReadsBackToTheTwip) {
  Bind(1);
  grid->SetColWidth(0, 683);
  EXPECT_EQ(grid->ColWidth(0), 683);
  EXPECT_EQ(grid->columnWidth(0), Pixels(683));
  EXPECT_EQ(grid->ColWidth(7), 0);
}

TEST_F(FlexGridTest, ColWidth_DrawnByTheUser_Follows) {
  Bind(1);
  grid->horizontalHeader()->resizeSection(1, 200);
  EXPECT_EQ(grid->ColWidth(1), TwipsOf(200));
}

TEST_F(FlexGridTest, SetRow_MakesARowCurrentAndChoosesIt) {
  Bind(5);
  const QSignalSpy changed(grid, &FlexGrid::RowChanged);
  grid->SetCol(2);
  grid->SetRow(4);
  EXPECT_EQ(grid->Row(), 4);
  EXPECT_EQ(grid->Col(), 2);
  EXPECT_EQ(grid->RowSel(), 4);
  EXPECT_EQ(grid->ColSel(), 2);
  EXPECT_EQ(grid->Text(), u"3/2"_s);
  grid->SetCol(0);
  EXPECT_EQ(grid->Text(), u"3/0"_s);
  EXPECT_TRUE(grid->selectionModel()->isRowSelected(3));
  grid->SetRow(9);
  EXPECT_EQ(grid->Row(), 4);
  grid->SetRow(0);
  EXPECT_EQ(grid->Row(), 0);
  EXPECT_FALSE(grid->selectionModel()->hasSelection());
  EXPECT_EQ(changed.count(), 2);
}

TEST_F(FlexGridTest, SetRowSel_ChoosesAllRowsBetween) {
  Bind(5);
  grid->SetRow(4);
  grid->SetRowSel(2);
  EXPECT_EQ(grid->RowSel(), 2);
  EXPECT_EQ(grid->Row(), 4);
  EXPECT_EQ(grid->selectionModel()->selectedRows().size(), 3);
  grid->SetRow(1);
  EXPECT_EQ(grid->RowSel(), 1);
  EXPECT_EQ(grid->selectionModel()->selectedRows().size(), 1);
}

TEST_F(FlexGridTest, Focus_WithoutAPick_MakesNoRowCurrent) {
  Bind(5);
  Open();
  EXPECT_EQ(grid->Row(), 0);
}

TEST_F(FlexGridTest, Click_OnARow_PicksIt) {
  Bind(5);
  Open();
  const QSignalSpy clicks(grid, &FlexGrid::Click);
  ClickRow(2, 1);
  EXPECT_EQ(grid->Row(), 2);
  EXPECT_EQ(grid->Col(), 1);
  EXPECT_EQ(clicks.count(), 1);
}

TEST_F(FlexGridTest, Click_BelowTheLastRow_ChangesNothing) {
  Bind(2);
  Open();
  ClickRow(2);
  const QSignalSpy clicks(grid, &FlexGrid::Click);
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, BelowLastRow());
  QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, BelowLastRow());
  EXPECT_EQ(grid->Row(), 2);
  EXPECT_TRUE(grid->selectionModel()->isRowSelected(1));
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(FlexGridTest, DblClick_OnARowOrByEnter_IsTold) {
  Bind(5);
  Open();
  const QSignalSpy opened(grid, &FlexGrid::DblClick);
  QTest::keyClick(grid, Qt::Key_Return);
  EXPECT_EQ(opened.count(), 0);
  ClickRow(3);
  QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, Center(3));
  EXPECT_EQ(opened.count(), 1);
  QTest::keyClick(grid, Qt::Key_Return);
  QTest::keyClick(grid, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(opened.count(), 3);
}

TEST_F(FlexGridTest, Keys_MoveTheCurrentRow) {
  Bind(1000);
  Open();
  const auto press = [this](Qt::Key key) {
    QTest::keyClick(grid, key);
    return grid->Row();
  };
  EXPECT_EQ(press(Qt::Key_Down), 1);
  EXPECT_EQ(press(Qt::Key_Down), 2);
  EXPECT_EQ(press(Qt::Key_Up), 1);
  EXPECT_EQ(press(Qt::Key_End), 1000);
  EXPECT_LT(press(Qt::Key_PageUp), 1000);
  EXPECT_EQ(press(Qt::Key_Home), 1);
  EXPECT_GT(press(Qt::Key_PageDown), 5);
  press(Qt::Key_Home);
  EXPECT_EQ(press(Qt::Key_Right), 1);
  EXPECT_EQ(grid->Col(), 1);
  EXPECT_EQ(grid->TopRow(), 1);
}

TEST_F(FlexGridTest, Keys_Letters_ReadNoRows) {
  std::set<int> asked;
  Bind(1'000'000, &asked);
  Open();
  QTest::keyClick(grid, Qt::Key_Down);
  asked.clear();
  QTest::keyClicks(grid, u"zz"_s);
  EXPECT_LT(asked.size(), 100U);
  EXPECT_EQ(grid->Row(), 1);
}

TEST_F(FlexGridTest, Keys_Tab_LeavesTheGrid) {
  auto* next = new QWidget(&window);
  next->setFocusPolicy(Qt::StrongFocus);
  window.layout()->addWidget(next);
  Bind(3);
  Open();
  QTest::keyClick(grid, Qt::Key_Tab);
  EXPECT_TRUE(next->hasFocus());
}

TEST_F(FlexGridTest, ToolTip_OnACutCell_TellsItWhole) {
  grid->SetFormatString(u"A|B"_s);
  const QString text = u"<b>A text that is far too long for its narrow column</b>"_s;
  grid->AddItem({text, u"b"_s});
  Open();
  const auto ask = [this](const QPoint& place) {
    QHelpEvent help(QEvent::ToolTip, place, grid->viewport()->mapToGlobal(place));
    QApplication::sendEvent(grid->viewport(), &help);
  };
  ask(Center(1, 0));
  EXPECT_TRUE(QToolTip::text().contains(text.toHtmlEscaped()));
  QToolTip::hideText();
  ASSERT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
  ask(Center(1, 1));
  EXPECT_FALSE(QToolTip::isVisible());
}

TEST_F(FlexGridTest, Accessible_CellsAndHeadings_CanBeRead) {
  Bind(3);
  Open();
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(grid);
  ASSERT_NE(accessible, nullptr);
  QAccessibleTableInterface* table = accessible->tableInterface();
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->columnDescription(1), u"Name"_s);
  EXPECT_EQ(table->cellAt(2, 1)->text(QAccessible::Name), u"2/1"_s);
}

}  // namespace
}  // namespace velmora::ui
