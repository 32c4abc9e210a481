// SPDX-License-Identifier: MIT
#include "forms/ComboBox.h"
#include "forms/ScrollSpin.h"
#include "tests/support/TestWindow.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class ComboBoxTest : public WindowTest {
 protected:
  void SetUp() override {
    m_combo.setGeometry(10, 10, 200, 24);
    Show();
    m_combo.SetFocus();
  }
  ComboBox m_combo{&m_window};
  QSignalSpy m_click{&m_combo, &ComboBox::Click};
  QSignalSpy m_change{&m_combo, &ComboBox::Change};
};

TEST_F(ComboBoxTest, AddItem_ToAnEmptyList_PicksNothing) {
  m_combo.AddItem(u"one"_s);
  m_combo.AddItem(u"two"_s);
  m_combo.InsertItem(0, u"All"_s);
  EXPECT_EQ(m_combo.ListCount(), 3);
  EXPECT_EQ(m_combo.List(0), u"All"_s);
  EXPECT_EQ(m_combo.ListIndex(), -1);
  EXPECT_EQ(m_combo.Text(), QString());
}

TEST_F(ComboBoxTest, AddItem_WithATextInTheBox_KeepsIt) {
  m_combo.SetText(u"Miller"_s);
  m_combo.AddItem(u"one"_s);
  EXPECT_EQ(m_combo.Text(), u"Miller"_s);
}

TEST_F(ComboBoxTest, SetText_AndSetListIndex_AreQuiet) {
  m_combo.AddItem(u"one"_s);
  m_combo.SetText(u"free"_s);
  m_combo.SetListIndex(0);
  EXPECT_EQ(m_combo.Text(), u"one"_s);
  EXPECT_EQ(m_click.count(), 0);
  EXPECT_EQ(m_change.count(), 0);
}

TEST_F(ComboBoxTest, Typing_AFreeText_IsAChangeAndNoEntry) {
  m_combo.AddItem(u"one"_s);
  m_combo.SetListIndex(0);
  QTest::keyClick(m_combo.lineEdit(), Qt::Key_End);
  QTest::keyClick(m_combo.lineEdit(), Qt::Key_X);
  EXPECT_EQ(m_combo.Text(), u"onex"_s);
  EXPECT_EQ(m_combo.ListIndex(), -1);
  EXPECT_EQ(m_change.count(), 1);
  EXPECT_EQ(m_combo.ListCount(), 1);
}

TEST_F(ComboBoxTest, Typing_TheBeginningOfAnEntry_IsNotCompleted) {
  m_combo.AddItem(u"Miller"_s);
  QTest::keyClicks(m_combo.lineEdit(), u"Mi"_s);
  EXPECT_EQ(m_combo.Text(), u"Mi"_s);
}

TEST_F(ComboBoxTest, Keys_Down_PicksAnEntryAndIsTold) {
  m_combo.AddItem(u"one"_s);
  m_combo.AddItem(u"two"_s);
  QTest::keyClick(m_combo.lineEdit(), Qt::Key_Down);
  EXPECT_EQ(m_combo.ListIndex(), 0);
  EXPECT_EQ(m_click.count(), 1);
}

TEST_F(ComboBoxTest, Enter_InEitherMode_IsTold) {
  QSignalSpy enter(&m_combo, &ComboBox::EnterPressed);
  QTest::keyClick(m_combo.lineEdit(), Qt::Key_Return);
  EXPECT_EQ(enter.count(), 1);
  m_combo.SetMode(ComboMode::DropDownList);
  QTest::keyClick(&m_combo, Qt::Key_Enter);
  EXPECT_EQ(enter.count(), 2);
}

TEST_F(ComboBoxTest, Focus_InEitherMode_IsTold) {
  QLineEdit other(&m_window);
  other.setGeometry(10, 50, 100, 24);
  other.show();
  QSignalSpy left(&m_combo, &ComboBox::LostFocus);
  QSignalSpy got(&m_combo, &ComboBox::GotFocus);
  other.setFocus();
  EXPECT_EQ(left.count(), 1);
  m_combo.SetFocus();
  EXPECT_EQ(got.count(), 1);
  m_combo.SetMode(ComboMode::DropDownList);
  other.setFocus();
  m_combo.SetFocus();
  EXPECT_EQ(left.count(), 2);
  EXPECT_EQ(got.count(), 2);
}

TEST_F(ComboBoxTest, DropDownList_SetText_PicksTheFirstEntryOfThatText) {
  m_combo.SetMode(ComboMode::DropDownList);
  m_combo.AddItem(u"one"_s);
  m_combo.AddItem(u"two"_s);
  EXPECT_EQ(m_combo.ListIndex(), -1);
  m_combo.SetText(u"two"_s);
  EXPECT_EQ(m_combo.ListIndex(), 1);
  m_combo.SetText(u"three"_s);
  EXPECT_EQ(m_combo.ListIndex(), -1);
  EXPECT_EQ(m_combo.Text(), QString());
}

TEST_F(ComboBoxTest, Clear_WithText_EmptiesBoth) {
  m_combo.AddItem(u"one"_s);
  m_combo.SetText(u"free"_s);
  m_combo.Clear();
  EXPECT_EQ(m_combo.ListCount(), 0);
  EXPECT_EQ(m_combo.Text(), QString());
}

TEST_F(ComboBoxTest, RemoveItem_ThePickedEntry_LeavesNonePicked) {
  m_combo.SetMode(ComboMode::DropDownList);
  m_combo.AddItem(u"one"_s);
  m_combo.AddItem(u"two"_s);
  m_combo.SetListIndex(0);
  m_combo.RemoveItem(0);
  EXPECT_EQ(m_combo.ListIndex(), -1);
  EXPECT_EQ(m_combo.ListCount(), 1);
}

TEST_F(ComboBoxTest, Wheel_WithoutTheFocus_TurnsNothing) {
  m_combo.SetMode(ComboMode::DropDownList);
  m_combo.AddItem(u"one"_s);
  m_combo.AddItem(u"two"_s);
  m_combo.SetListIndex(0);
  m_combo.clearFocus();
  const auto turn = [&] {
    const QPointF centre(m_combo.rect().center());
    QWheelEvent down(centre, m_combo.mapToGlobal(centre), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&m_combo, &down);
  };
  turn();
  EXPECT_EQ(m_combo.ListIndex(), 0);
  m_combo.SetFocus();
  turn();
  EXPECT_EQ(m_combo.ListIndex(), 1);
}

class ScrollSpinTest : public WindowTest {};

TEST_F(ScrollSpinTest, SetValue_ToAnotherValue_RaisesChangeOnce) {
  ScrollSpin spin(&m_window);
  spin.SetRange(0, 21);
  QSignalSpy change(&spin, &ScrollSpin::Change);
  spin.SetValue(20);
  spin.SetValue(20);
  EXPECT_EQ(spin.Value(), 20);
  EXPECT_EQ(change.count(), 1);
}

TEST_F(ScrollSpinTest, Keys_UpAndDown_StepTheValue) {
  ScrollSpin spin(&m_window);
  spin.setGeometry(10, 10, 20, 100);
  spin.SetRange(0, 21);
  spin.SetValue(20);
  Show();
  spin.SetFocus();
  ASSERT_TRUE(spin.hasFocus());
  QTest::keyClick(&spin, Qt::Key_Up);
  EXPECT_EQ(spin.Value(), 19);
  QTest::keyClick(&spin, Qt::Key_Down);
  QTest::keyClick(&spin, Qt::Key_Down);
  EXPECT_EQ(spin.Value(), 21);
}

}  // namespace
}  // namespace velmora::ui
