// SPDX-License-Identifier: MIT
#include "forms/Buttons.h"
#include "forms/TextBox.h"
#include "tests/support/TestWindow.h"

#include <QDialog>
#include <QSignalSpy>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class ButtonsTest : public WindowTest {};

TEST_F(ButtonsTest, SSCommand_Caption_ShowsAnAmpersandAsItIs) {
  SSCommand button(&m_window);
  button.SetCaption(u"R&D"_s);
  EXPECT_EQ(button.Caption(), u"R&D"_s);
  EXPECT_EQ(button.text(), u"R&&D"_s);
  button.SetCaption(u"&Search"_s, Ampersand::AccessKey);
  EXPECT_EQ(button.Caption(), u"&Search"_s);
  EXPECT_EQ(button.text(), u"&Search"_s);
}

TEST_F(ButtonsTest, SSCommand_InADialog_IsNoDefault) {
  QDialog dialog;
  SSCommand button(&dialog);
  EXPECT_FALSE(button.autoDefault());
  EXPECT_FALSE(button.isDefault());
}

TEST_F(ButtonsTest, SSCommand_MouseBlankAndEnter_ClickOnceEach) {
  SSCommand button(&m_window);
  button.resize(80, 24);
  Show();
  QSignalSpy click(&button, &SSCommand::Click);
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(click.count(), 1);
  button.SetFocus();
  QTest::keyClick(&button, Qt::Key_Space);
  EXPECT_EQ(click.count(), 2);
  QTest::keyClick(&button, Qt::Key_Return);
  EXPECT_EQ(click.count(), 3);
}

TEST_F(ButtonsTest, SSRibbon_Click_ChangesItsStateAndIsTold) {
  SSRibbon ribbon(&m_window);
  ribbon.resize(80, 24);
  Show();
  QSignalSpy click(&ribbon, &SSCommand::Click);
  QTest::mouseClick(&ribbon, Qt::LeftButton);
  EXPECT_TRUE(ribbon.Value());
  QTest::mouseClick(&ribbon, Qt::LeftButton);
  EXPECT_FALSE(ribbon.Value());
  EXPECT_EQ(click.count(), 2);
}

TEST_F(ButtonsTest, SSRibbon_SetValue_IsNoClick) {
  SSRibbon ribbon(&m_window);
  QSignalSpy click(&ribbon, &SSCommand::Click);
  ribbon.SetValue(true);
  EXPECT_TRUE(ribbon.Value());
  EXPECT_EQ(click.count(), 0);
}

TEST_F(ButtonsTest, SSRibbon_PressedInItsGroup_ReleasesTheOthers) {
  SSRibbon first(&m_window);
  SSRibbon second(&m_window);
  SSRibbon third(&m_window);
  SSRibbon stranger(&m_window);
  SSRibbon::Group({&first, &second, &third});
  second.setGeometry(0, 50, 80, 24);
  Show();
  first.SetValue(true);
  stranger.SetValue(true);
  QSignalSpy click(&first, &SSCommand::Click);
  QTest::mouseClick(&second, Qt::LeftButton);
  EXPECT_FALSE(first.Value());
  EXPECT_TRUE(second.Value());
  EXPECT_TRUE(stranger.Value());
  EXPECT_EQ(click.count(), 0);
  third.SetValue(true);
  EXPECT_FALSE(second.Value());
}

TEST_F(ButtonsTest, SSRibbon_MateDestroyed_DoesNoHarm) {
  SSRibbon first(&m_window);
  {
    SSRibbon second(&m_window);
    SSRibbon::Group({&first, &second});
  }
  first.SetValue(true);
  EXPECT_TRUE(first.Value());
}

class CheckBoxTest : public WindowTest {
 protected:
  void SetUp() override {
    m_check.SetPlace({150, 150, 190, 225});
    Show();
  }
  CheckBox m_check{&m_window};
  QSignalSpy m_click{&m_check, &CheckBox::Click};
};

TEST_F(CheckBoxTest, SetValue_ByTheProgram_IsNoClick) {
  m_check.SetValue(1);
  EXPECT_EQ(m_check.Value(), 1);
  m_check.SetValue(0);
  EXPECT_EQ(m_check.Value(), 0);
  EXPECT_EQ(m_click.count(), 0);
}

TEST_F(CheckBoxTest, Mouse_ClickAnywhereInItsSmallPlace_ChangesIt) {
  QTest::mouseClick(&m_check, Qt::LeftButton, {}, QPoint(0, m_check.height() - 1));
  EXPECT_EQ(m_check.Value(), 1);
  EXPECT_EQ(m_click.count(), 1);
}

TEST_F(CheckBoxTest, BlankKey_Pressed_ChangesIt) {
  m_check.SetFocus();
  QTest::keyClick(&m_check, Qt::Key_Space);
  EXPECT_EQ(m_check.Value(), 1);
  EXPECT_EQ(m_click.count(), 1);
}

TEST_F(CheckBoxTest, Enter_Pressed_IsToldAndChangesNothing) {
  QSignalSpy enter(&m_check, &CheckBox::EnterPressed);
  m_check.SetFocus();
  QTest::keyClick(&m_check, Qt::Key_Return);
  EXPECT_EQ(enter.count(), 1);
  EXPECT_EQ(m_check.Value(), 0);
  EXPECT_EQ(m_click.count(), 0);
}

TEST_F(ButtonsTest, OptionButton_Chosen_ReleasesItsSiblings) {
  OptionButton first(&m_window);
  OptionButton second(&m_window);
  second.setGeometry(0, 40, 100, 24);
  Show();
  first.SetValue(true);
  QSignalSpy click(&second, &OptionButton::Click);
  QTest::mouseClick(&second, Qt::LeftButton, {}, QPoint(8, 12));
  EXPECT_TRUE(second.Value());
  EXPECT_FALSE(first.Value());
  EXPECT_EQ(click.count(), 1);
}

TEST_F(ButtonsTest, OptionButton_ChosenByTheProgram_IsTheOneThatTabReaches) {
  TextBox before(&m_window);
  OptionButton first(&m_window);
  OptionButton second(&m_window);
  second.setGeometry(0, 40, 100, 24);
  second.SetValue(true);
  Show();
  before.SetFocus();
  QTest::keyClick(&before, Qt::Key_Tab);
  EXPECT_TRUE(second.hasFocus());
  QTest::keyClick(&second, Qt::Key_Up);
  EXPECT_TRUE(first.hasFocus());
  EXPECT_TRUE(first.Value());
}

}  // namespace
}  // namespace velmora::ui
