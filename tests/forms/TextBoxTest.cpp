// SPDX-License-Identifier: MIT
#include "forms/TextBox.h"
#include "tests/support/TestWindow.h"

#include <QSignalSpy>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class TextBoxTest : public WindowTest {
 protected:
  void SetUp() override {
    m_box.setGeometry(10, 10, 200, 24);
    Show();
    m_box.SetFocus();
  }
  TextBox m_box{&m_window};
  QSignalSpy m_change{&m_box, &TextBox::Change};
};

TEST_F(TextBoxTest, SetText_ByTheProgram_IsNoChange) {
  m_box.SetText(u"loaded"_s);
  EXPECT_EQ(m_box.Text(), u"loaded"_s);
  EXPECT_EQ(m_change.count(), 0);
}

TEST_F(TextBoxTest, SetText_LongText_ShowsItsBeginning) {
  m_box.SetText(QString(500, u'x'));
  EXPECT_EQ(m_box.cursorPosition(), 0);
}

TEST_F(TextBoxTest, SetText_BeyondAnyUsualLimit_IsKeptWhole) {
  const QString text(70000, u'y');
  m_box.SetText(text);
  EXPECT_EQ(m_box.Text(), text);
}

TEST_F(TextBoxTest, SetText_AfterTyping_LeavesNothingToUndo) {
  QTest::keyClicks(&m_box, u"typed"_s);
  m_box.SetText(u"next card"_s);
  QTest::keyClick(&m_box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(m_box.Text(), u"next card"_s);
}

TEST_F(TextBoxTest, Typing_EachKey_IsAChange) {
  QTest::keyClicks(&m_box, u"abc"_s);
  EXPECT_EQ(m_box.Text(), u"abc"_s);
  EXPECT_EQ(m_change.count(), 3);
  QTest::keyClick(&m_box, Qt::Key_Left);
  EXPECT_EQ(m_change.count(), 3);
}

TEST_F(TextBoxTest, Write_AnyText_IsOneChange) {
  m_box.SetText(u"before"_s);
  m_box.Write(u"after"_s);
  EXPECT_EQ(m_box.Text(), u"after"_s);
  EXPECT_EQ(m_change.count(), 1);
  m_box.Write(QString());
  EXPECT_EQ(m_box.Text(), QString());
  EXPECT_EQ(m_change.count(), 2);
}

TEST_F(TextBoxTest, Write_TheSameText_IsAChangeAllTheSame) {
  m_box.SetText(u"same"_s);
  m_box.Write(u"same"_s);
  EXPECT_EQ(m_change.count(), 1);
  m_box.SetText(QString());
  m_box.Write(QString());
  EXPECT_EQ(m_change.count(), 2);
}

TEST_F(TextBoxTest, Undo_AfterWrite_BringsTheLoadedTextBack) {
  m_box.SetText(u"before"_s);
  m_box.Write(u"after"_s);
  QTest::keyClick(&m_box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(m_box.Text(), u"before"_s);
  EXPECT_EQ(m_change.count(), 2);
}

TEST_F(TextBoxTest, Enter_Pressed_IsToldAndChangesNothing) {
  QSignalSpy enter(&m_box, &TextBox::EnterPressed);
  QSignalSpy press(&m_box, &TextBox::KeyPress);
  QTest::keyClick(&m_box, Qt::Key_Return);
  QTest::keyClick(&m_box, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(enter.count(), 2);
  ASSERT_EQ(press.count(), 2);
  EXPECT_EQ(press.at(0).at(0).toInt(), 13);
  EXPECT_EQ(m_change.count(), 0);
}

TEST_F(TextBoxTest, KeyPress_OfACharacter_ComesBeforeItsEffect) {
  QString seen = u"none"_s;
  QObject::connect(&m_box, &TextBox::KeyPress, &m_box, [&](int key) { seen = m_box.Text() + QChar(key); });
  QTest::keyClick(&m_box, Qt::Key_7);
  EXPECT_EQ(seen, u"7"_s);
}

TEST_F(TextBoxTest, KeyReleased_AfterAKey_TellsItsCode) {
  QSignalSpy released(&m_box, &TextBox::KeyReleased);
  QTest::keyClick(&m_box, Qt::Key_F2);
  ASSERT_EQ(released.count(), 1);
  EXPECT_EQ(released.at(0).at(0).toInt(), static_cast<int>(Qt::Key_F2));
}

TEST_F(TextBoxTest, Mouse_ClickAndDoubleClick_AreTold) {
  QSignalSpy click(&m_box, &TextBox::Click);
  QSignalSpy twice(&m_box, &TextBox::DblClick);
  QTest::mouseClick(&m_box, Qt::LeftButton);
  EXPECT_EQ(click.count(), 1);
  QTest::mouseClick(&m_box, Qt::RightButton);
  EXPECT_EQ(click.count(), 1);
  QTest::mouseDClick(&m_box, Qt::LeftButton);
  EXPECT_EQ(twice.count(), 1);
}

TEST_F(TextBoxTest, Locked_Typing_ChangesNothing) {
  m_box.SetText(u"kept"_s);
  m_box.SetLocked(true);
  QTest::keyClicks(&m_box, u"abc"_s);
  EXPECT_EQ(m_box.Text(), u"kept"_s);
  EXPECT_EQ(m_change.count(), 0);
}

}  // namespace
}  // namespace velmora::ui
