// SPDX-License-Identifier: MIT
#include "forms/PageButtons.h"
#include "forms/TextBox.h"
#include "tests/support/TestWindow.h"

#include <QTest>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class PageButtonsTest : public WindowTest {
 protected:
  PageButtonsTest() {
    for (const int index : {2, 3, 7}) m_buttons.Load(index).SetVisible(index != 3);
  }
  ControlArray<SSCommand> m_buttons{&m_window, u"Tab"_s};
};

TEST_F(PageButtonsTest, AddPageKeys_KeysInABox_StepForwardAndBack) {
  TextBox box(&m_window);
  QList<int> steps;
  AddPageKeys(&m_window, [&steps](int direction) { steps += direction; });
  Show();
  box.SetFocus();
  QTest::keyClick(&box, Qt::Key_PageDown, Qt::ControlModifier);
  QTest::keyClick(&box, Qt::Key_PageUp, Qt::ControlModifier);
  QTest::keyClick(&box, Qt::Key_PageUp);
  EXPECT_EQ(steps, QList<int>({1, -1}));
}

TEST_F(PageButtonsTest, NextPageButton_HolesAndAHiddenOne_ArePassedOver) {
  EXPECT_EQ(NextPageButton(m_buttons, 0, 1), 2);
  EXPECT_EQ(NextPageButton(m_buttons, 2, 1), 7);
  EXPECT_EQ(NextPageButton(m_buttons, 7, -1), 2);
  EXPECT_EQ(NextPageButton(m_buttons, 2, -1), 0);
}

TEST_F(PageButtonsTest, NextPageButton_AtEitherEnd_IsNone) {
  EXPECT_EQ(NextPageButton(m_buttons, 7, 1), std::nullopt);
  EXPECT_EQ(NextPageButton(m_buttons, 0, -1), std::nullopt);
}

TEST_F(PageButtonsTest, MarkPageButton_AnotherPage_TakesTheMarkFromTheOthers) {
  MarkPageButton(m_buttons, 2, Role::Blue);
  MarkPageButton(m_buttons, 7, Role::Blue);
  EXPECT_EQ(m_buttons[7].ForeColor(), Role::Red);
  EXPECT_EQ(m_buttons[2].ForeColor(), Role::Blue);
  EXPECT_EQ(m_buttons[0].ForeColor(), Role::Blue);
}

}  // namespace
}  // namespace velmora::ui
