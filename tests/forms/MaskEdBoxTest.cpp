// SPDX-License-Identifier: MIT
#include "forms/MaskEdBox.h"
#include "tests/support/TestWindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class MaskEdBoxTest : public WindowTest {
 protected:
  void SetUp() override {
    m_box.setGeometry(10, 10, 200, 24);
    m_box.SetMask(u"999999999999"_s);
    Show();
    m_box.SetFocus();
  }
  /// Loads a value as a card screen does.
  void Load(const QString& text) {
    m_box.SetMask(QString());
    m_box.SetText(QString());
    m_box.SetText(text);
    m_box.SetMask(u"999999999999"_s);
  }
  void Paste(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(&m_box, Qt::Key_V, Qt::ControlModifier);
  }
  MaskEdBox m_box{&m_window};
  QSignalSpy m_change{&m_box, &TextBox::Change};
};

TEST_F(MaskEdBoxTest, Typing_Digits_GivesThemAsTyped) {
  QTest::keyClicks(&m_box, u"0042"_s);
  EXPECT_EQ(m_box.Text(), u"0042"_s);
  EXPECT_EQ(m_box.displayText(), u"0042"_s);
  EXPECT_EQ(m_change.count(), 4);
}

TEST_F(MaskEdBoxTest, Typing_ABlank_TakesAPlace) {
  QTest::keyClicks(&m_box, u"1 2"_s);
  EXPECT_EQ(m_box.Text(), u"1 2"_s);
}

TEST_F(MaskEdBoxTest, Typing_MoreThanTwelve_StopsAtTheLastPlace) {
  QTest::keyClicks(&m_box, u"1234567890123"_s);
  EXPECT_EQ(m_box.Text(), u"123456789012"_s);
  EXPECT_EQ(m_change.count(), 12);
}

TEST_F(MaskEdBoxTest, Typing_AnotherKey_ChangesNothing) {
  QTest::keyClicks(&m_box, u"12"_s);
  QTest::keyClicks(&m_box, u"a-.,x"_s);
  EXPECT_EQ(m_box.Text(), u"12"_s);
  EXPECT_EQ(m_change.count(), 2);
}

TEST_F(MaskEdBoxTest, Typing_AnotherKeyOverASelection_EmptiesTheSelectionOnly) {
  QTest::keyClicks(&m_box, u"12345"_s);
  m_box.setSelection(1, 2);
  QTest::keyClick(&m_box, Qt::Key_A);
  EXPECT_EQ(m_box.Text(), u"145"_s);
  EXPECT_EQ(m_change.count(), 6);
}

TEST_F(MaskEdBoxTest, Typing_ADigitOverASelection_ReplacesIt) {
  QTest::keyClicks(&m_box, u"123456789012"_s);
  m_box.SelectAll();
  QTest::keyClick(&m_box, Qt::Key_7);
  EXPECT_EQ(m_box.Text(), u"7"_s);
}

TEST_F(MaskEdBoxTest, Leaving_AfterTyping_KeepsTheText) {
  TextBox other(&m_window);
  other.setGeometry(10, 60, 100, 24);
  other.show();
  QTest::keyClicks(&m_box, u"12"_s);
  QTest::keyClick(&m_box, Qt::Key_Tab);
  EXPECT_TRUE(other.hasFocus());
  EXPECT_EQ(m_box.Text(), u"12"_s);
}

TEST_F(MaskEdBoxTest, Entering_ByTab_KeepsTheText) {
  TextBox other(&m_window);
  other.setGeometry(10, 60, 100, 24);
  other.show();
  Load(u"42"_s);
  other.SetFocus();
  QTest::keyClick(&other, Qt::Key_Backtab);
  QTest::keyRelease(&m_box, Qt::Key_Shift);
  ASSERT_TRUE(m_box.hasFocus());
  EXPECT_EQ(m_box.Text(), u"42"_s);
}

TEST_F(MaskEdBoxTest, SetText_ValueTheMaskWouldRefuse_StaysAndShows) {
  for (const QString& value : {u"12.5"_s, u"-3"_s, u"12345678901234567"_s, u"1E+20"_s}) {
    Load(value);
    EXPECT_EQ(m_box.Text(), value);
    EXPECT_EQ(m_box.displayText(), value);
  }
  EXPECT_EQ(m_change.count(), 0);
}

TEST_F(MaskEdBoxTest, Editing_ValueTheMaskWouldRefuse_KeepsItsOtherCharacters) {
  Load(u"12.5"_s);
  QTest::keyClick(&m_box, Qt::Key_End);
  QTest::keyClick(&m_box, Qt::Key_Backspace);
  EXPECT_EQ(m_box.Text(), u"12."_s);
  QTest::keyClick(&m_box, Qt::Key_7);
  EXPECT_EQ(m_box.Text(), u"12.7"_s);
  QTest::keyClick(&m_box, Qt::Key_Home);
  QTest::keyClick(&m_box, Qt::Key_9);
  EXPECT_EQ(m_box.Text(), u"912.7"_s);
}

TEST_F(MaskEdBoxTest, Undo_OfADeletedPoint_BringsItBack) {
  Load(u"12.5"_s);
  m_box.SelectAll();
  QTest::keyClick(&m_box, Qt::Key_Delete);
  EXPECT_EQ(m_box.Text(), QString());
  QTest::keyClick(&m_box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(m_box.Text(), u"12.5"_s);
}

TEST_F(MaskEdBoxTest, Undo_AfterARefusedKey_StillWorks) {
  QTest::keyClicks(&m_box, u"12"_s);
  QTest::keyClick(&m_box, Qt::Key_X);
  QTest::keyClick(&m_box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(m_box.Text(), QString());
}

TEST_F(MaskEdBoxTest, Paste_MixedText_TakesWhatTheMaskTakes) {
  Paste(u"a1b2-3"_s);
  EXPECT_EQ(m_box.Text(), u"123"_s);
  EXPECT_GE(m_change.count(), 1);
}

TEST_F(MaskEdBoxTest, Paste_NothingTheMaskTakes_IsNoChange) {
  QTest::keyClicks(&m_box, u"12"_s);
  Paste(u"abc"_s);
  EXPECT_EQ(m_box.Text(), u"12"_s);
  EXPECT_EQ(m_change.count(), 2);
}

TEST_F(MaskEdBoxTest, Paste_TooLong_FillsTheLastPlaces) {
  QTest::keyClicks(&m_box, u"12345"_s);
  QTest::keyClick(&m_box, Qt::Key_Home);
  Paste(u"99999999999"_s);
  EXPECT_EQ(m_box.Text(), u"999999912345"_s);
}

TEST_F(MaskEdBoxTest, Mask_Off_TakesAnyText) {
  m_box.SetMask(QString());
  QTest::keyClicks(&m_box, u"-1.5x"_s);
  EXPECT_EQ(m_box.Text(), u"-1.5x"_s);
}

TEST_F(MaskEdBoxTest, Mask_SetAtEachCard_LeavesNothingBehind) {
  const qsizetype children = m_box.children().size();
  for (int card = 0; card < 100; ++card) Load(QString::number(card));
  EXPECT_EQ(m_box.children().size(), children);
}

TEST_F(MaskEdBoxTest, Write_WithTheMaskOn_TakesTheTextAsItIs) {
  m_box.Write(u"7.25"_s);
  EXPECT_EQ(m_box.Text(), u"7.25"_s);
  EXPECT_EQ(m_change.count(), 1);
}

TEST_F(MaskEdBoxTest, Enter_Pressed_IsTold) {
  QSignalSpy enter(&m_box, &TextBox::EnterPressed);
  QTest::keyClick(&m_box, Qt::Key_Return);
  EXPECT_EQ(enter.count(), 1);
}

}  // namespace
}  // namespace velmora::ui
