// SPDX-License-Identifier: MIT
#include "forms/ListBox.h"
#include "forms/ListModel.h"
#include "forms/TextBox.h"
#include "tests/support/TestWindow.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class ListBoxTest : public WindowTest {
 protected:
  void SetUp() override {
    m_list.setGeometry(10, 40, 200, 150);
    m_before.setGeometry(10, 5, 100, 24);
    Show();
    m_before.SetFocus();
  }
  QPoint At(int row) { return m_list.visualRect(m_list.model()->index(row, 0)).center(); }
  void ClickOn(int row) { QTest::mouseClick(m_list.viewport(), Qt::LeftButton, {}, At(row)); }
  TextBox m_before{&m_window};
  ListBox m_list{&m_window};
  QSignalSpy m_click{&m_list, &ListBox::Click};
};

TEST_F(ListBoxTest, Filling_AnEmptyList_PicksNothing) {
  m_list.AddItem(u"one"_s);
  m_list.AddItems({u"two"_s, u"three"_s});
  m_list.InsertItem(0, u"zero"_s);
  EXPECT_EQ(m_list.ListCount(), 4);
  EXPECT_EQ(m_list.List(0), u"zero"_s);
  EXPECT_EQ(m_list.List(3), u"three"_s);
  EXPECT_EQ(m_list.List(4), QString());
  EXPECT_EQ(m_list.ListIndex(), -1);
  EXPECT_EQ(m_list.Text(), QString());
}

TEST_F(ListBoxTest, SelectedLines_SomeChosen_AreThoseFromTopToBottom) {
  m_list.SetMode(ListChoice::Multiple);
  m_list.AddItems({u"one"_s, u"two"_s, u"three"_s});
  m_list.SetSelected(2, true);
  m_list.SetSelected(0, true);
  EXPECT_EQ(m_list.Lines(), QStringList({u"one"_s, u"two"_s, u"three"_s}));
  EXPECT_EQ(m_list.SelectedLines(), QStringList({u"one"_s, u"three"_s}));
}

TEST_F(ListBoxTest, Focus_ByTab_PicksNothing) {
  m_list.AddItems({u"one"_s, u"two"_s});
  QTest::keyClick(&m_before, Qt::Key_Tab);
  ASSERT_TRUE(m_list.hasFocus());
  EXPECT_EQ(m_list.ListIndex(), -1);
  EXPECT_FALSE(m_list.Selected(0));
  EXPECT_EQ(m_click.count(), 0);
}

TEST_F(ListBoxTest, Keys_Down_PicksAndIsTold) {
  m_list.AddItems({u"one"_s, u"two"_s});
  m_list.SetFocus();
  QTest::keyClick(&m_list, Qt::Key_Down);
  EXPECT_EQ(m_list.ListIndex(), 0);
  EXPECT_TRUE(m_list.Selected(0));
  QTest::keyClick(&m_list, Qt::Key_Down);
  EXPECT_EQ(m_list.Text(), u"two"_s);
  QTest::keyClick(&m_list, Qt::Key_Down);
  EXPECT_EQ(m_click.count(), 2);
}

TEST_F(ListBoxTest, Mouse_ClickOnALine_PicksAndIsTold) {
  m_list.AddItems({u"one"_s, u"two"_s});
  ClickOn(1);
  EXPECT_EQ(m_list.ListIndex(), 1);
  EXPECT_TRUE(m_list.Selected(1));
  EXPECT_EQ(m_click.count(), 1);
}

TEST_F(ListBoxTest, Mouse_ClickBelowTheLines_KeepsThePick) {
  m_list.AddItems({u"one"_s, u"two"_s});
  m_list.SetListIndex(0);
  QTest::mouseClick(m_list.viewport(), Qt::LeftButton, {},
                    m_list.viewport()->rect().bottomLeft() + QPoint(5, -5));
  EXPECT_EQ(m_list.ListIndex(), 0);
  EXPECT_TRUE(m_list.Selected(0));
  EXPECT_EQ(m_click.count(), 0);
}

TEST_F(ListBoxTest, Mouse_DoubleClick_IsTold) {
  m_list.AddItems({u"one"_s, u"two"_s});
  QSignalSpy twice(&m_list, &ListBox::DblClick);
  ClickOn(1);
  QTest::mouseDClick(m_list.viewport(), Qt::LeftButton, {}, At(1));
  EXPECT_EQ(twice.count(), 1);
}

TEST_F(ListBoxTest, Enter_Pressed_IsTold) {
  m_list.AddItems({u"one"_s});
  QSignalSpy enter(&m_list, &ListBox::EnterPressed);
  m_list.SetFocus();
  QTest::keyClick(&m_list, Qt::Key_Return);
  EXPECT_EQ(enter.count(), 1);
  EXPECT_EQ(m_list.ListIndex(), -1);
}

TEST_F(ListBoxTest, SetListIndex_ByTheProgram_PicksQuietly) {
  m_list.AddItems({u"one"_s, u"two"_s});
  m_list.SetListIndex(1);
  EXPECT_EQ(m_list.ListIndex(), 1);
  EXPECT_TRUE(m_list.Selected(1));
  m_list.SetListIndex(-1);
  EXPECT_EQ(m_list.ListIndex(), -1);
  EXPECT_FALSE(m_list.Selected(1));
  EXPECT_EQ(m_click.count(), 0);
}

TEST_F(ListBoxTest, RemoveItem_TheCurrentLine_LeavesNoneCurrent) {
  m_list.AddItems({u"one"_s, u"two"_s, u"three"_s});
  m_list.SetListIndex(1);
  m_list.RemoveItem(1);
  EXPECT_EQ(m_list.ListIndex(), -1);
  EXPECT_EQ(m_list.ListCount(), 2);
  EXPECT_FALSE(m_list.Selected(0));
  EXPECT_FALSE(m_list.Selected(1));
}

TEST_F(ListBoxTest, RemoveItem_AnotherLine_KeepsTheCurrentOne) {
  m_list.AddItems({u"one"_s, u"two"_s, u"three"_s});
  m_list.SetListIndex(2);
  m_list.RemoveItem(0);
  EXPECT_EQ(m_list.Text(), u"three"_s);
  m_list.RemoveItem(99);
  EXPECT_EQ(m_list.ListCount(), 2);
}

TEST_F(ListBoxTest, Clear_WithAPick_LeavesNothing) {
  m_list.AddItems({u"one"_s});
  m_list.SetListIndex(0);
  m_list.Clear();
  EXPECT_EQ(m_list.ListCount(), 0);
  EXPECT_EQ(m_list.ListIndex(), -1);
}

TEST_F(ListBoxTest, Multiple_Clicks_ChooseAndTakeBack) {
  m_list.SetMode(ListChoice::Multiple);
  m_list.AddItems({u"one"_s, u"two"_s, u"three"_s});
  ClickOn(0);
  ClickOn(2);
  EXPECT_TRUE(m_list.Selected(0));
  EXPECT_FALSE(m_list.Selected(1));
  EXPECT_TRUE(m_list.Selected(2));
  EXPECT_EQ(m_list.ListIndex(), 2);
  ClickOn(0);
  EXPECT_FALSE(m_list.Selected(0));
  EXPECT_EQ(m_click.count(), 3);
}

TEST_F(ListBoxTest, Multiple_BlankKey_ChoosesTheCurrentLine) {
  m_list.SetMode(ListChoice::Multiple);
  m_list.AddItems({u"one"_s, u"two"_s});
  m_list.SetFocus();
  QTest::keyClick(&m_list, Qt::Key_Down);
  EXPECT_EQ(m_list.ListIndex(), 0);
  EXPECT_FALSE(m_list.Selected(0));
  QTest::keyClick(&m_list, Qt::Key_Space);
  EXPECT_TRUE(m_list.Selected(0));
  QTest::keyClick(&m_list, Qt::Key_Space);
  EXPECT_FALSE(m_list.Selected(0));
}

TEST_F(ListBoxTest, Multiple_SetListIndex_LeavesTheChoiceAlone) {
  m_list.SetMode(ListChoice::Multiple);
  m_list.AddItems({u"one"_s, u"two"_s});
  m_list.SetSelected(0, true);
  m_list.SetListIndex(1);
  EXPECT_TRUE(m_list.Selected(0));
  EXPECT_FALSE(m_list.Selected(1));
  m_list.SetSelected(0, false);
  EXPECT_FALSE(m_list.Selected(0));
}

TEST_F(ListBoxTest, TopIndex_Set_BringsTheLineToTheTop) {
  for (int i = 0; i < 200; ++i) m_list.AddItem(QString::number(i));
  m_list.SetTopIndex(57);
  EXPECT_EQ(m_list.TopIndex(), 57);
  m_list.SetTopIndex(0);
  EXPECT_EQ(m_list.TopIndex(), 0);
}

TEST_F(ListBoxTest, AddItem_AHundredThousandLines_StaysQuick) {
  QElapsedTimer watch;
  watch.start();
  for (int i = 0; i < 100000; ++i) m_list.AddItem(QString::number(i));
  m_list.SetListIndex(99500);
  m_list.SetTopIndex(99000);
  EXPECT_EQ(m_list.TopIndex(), 99000);
  EXPECT_EQ(m_list.ListIndex(), 99500);
  EXPECT_EQ(m_list.ListCount(), 100000);
  // Far below a second on an idle machine; work that grows with the square of the lines would take minutes.
  EXPECT_LT(watch.elapsed(), 10000);
}

TEST(ListModelTest, Changes_OfEveryKind_KeepTheRulesOfModels) {
  ListModel model;
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  model.Insert(0, {u"b"_s, u"d"_s});
  model.Insert(1, {u"c"_s});
  model.Insert(0, {u"a"_s});
  model.Insert(4, {});
  model.Remove(1);
  EXPECT_EQ(model.rowCount(), 3);
  EXPECT_EQ(model.At(1), u"c"_s);
  model.Clear();
  EXPECT_EQ(model.rowCount(), 0);
}

}  // namespace
}  // namespace velmora::ui
