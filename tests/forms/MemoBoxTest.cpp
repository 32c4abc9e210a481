// SPDX-License-Identifier: MIT
#include "forms/MemoBox.h"
#include "forms/TextBox.h"
#include "tests/support/TestWindow.h"

#include <QSignalSpy>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class MemoBoxTest : public WindowTest {
 protected:
  void SetUp() override {
    m_box.setGeometry(10, 10, 200, 80);
    Show();
    m_box.SetFocus();
  }
  MemoBox m_box{&m_window};
  QSignalSpy m_change{&m_box, &MemoBox::Change};
};

TEST_F(MemoBoxTest, SetText_ByTheProgram_IsNoChange) {
  m_box.SetText(u"one\ntwo"_s);
  EXPECT_EQ(m_change.count(), 0);
  EXPECT_EQ(m_box.Text(), u"one\ntwo"_s);
}

TEST_F(MemoBoxTest, Text_NotEdited_IsToTheLetterWhatWasLoaded) {
  const QString loaded = u"one\r\ntwo\u00a0three\ttab "_s;
  m_box.SetText(loaded);
  EXPECT_EQ(m_box.Text(), loaded);
}

TEST_F(MemoBoxTest, Text_Edited_KeepsLinesAndNoBreakBlanks) {
  m_box.SetText(u"one\r\ntwo\u00a0three"_s);
  QTest::keyClick(&m_box, Qt::Key_End, Qt::ControlModifier);
  QTest::keyClick(&m_box, Qt::Key_X);
  EXPECT_EQ(m_box.Text(), u"one\ntwo\u00a0threex"_s);
}

TEST_F(MemoBoxTest, Typing_EachKey_IsAChange) {
  QTest::keyClicks(&m_box, u"ab"_s);
  QTest::keyClick(&m_box, Qt::Key_Return);
  EXPECT_EQ(m_change.count(), 3);
  EXPECT_EQ(m_box.Text(), u"ab\n"_s);
}

TEST_F(MemoBoxTest, Write_TheSameText_IsOneChange) {
  m_box.SetText(u"same"_s);
  m_box.Write(u"same"_s);
  EXPECT_EQ(m_change.count(), 1);
  EXPECT_EQ(m_box.Text(), u"same"_s);
}

TEST_F(MemoBoxTest, Undo_AfterWrite_BringsTheLoadedTextBack) {
  m_box.SetText(u"before"_s);
  m_box.Write(u"after"_s);
  EXPECT_EQ(m_box.Text(), u"after"_s);
  QTest::keyClick(&m_box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(m_box.Text(), u"before"_s);
}

TEST_F(MemoBoxTest, Tab_Pressed_LeavesTheBox) {
  TextBox next(&m_window);
  next.setGeometry(10, 120, 100, 24);
  next.show();
  QTest::keyClick(&m_box, Qt::Key_Tab);
  EXPECT_TRUE(next.hasFocus());
  EXPECT_EQ(m_box.Text(), QString());
}

}  // namespace
}  // namespace velmora::ui
