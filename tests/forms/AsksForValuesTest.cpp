// SPDX-License-Identifier: MIT
#include "forms/AsksForValues.h"
#include "forms/TextBox.h"
#include "tests/support/TestWindow.h"

#include <QTest>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class AsksForValuesTest : public WindowTest {
 protected:
  void SetUp() override {
    WhenAskedForValues(m_box, [this] { ++m_asked; });
    Show();
    m_box.SetFocus();
  }
  TextBox m_box{&m_window};
  int m_asked = 0;
};

TEST_F(AsksForValuesTest, EitherKeyAndADoubleClick_Ask) {
  QTest::keyClick(&m_box, Qt::Key_F4);
  EXPECT_EQ(m_asked, 1);
  QTest::keyClick(&m_box, Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(m_asked, 2);
  QTest::mouseDClick(&m_box, Qt::LeftButton);
  EXPECT_EQ(m_asked, 3);
}

TEST_F(AsksForValuesTest, OtherKeys_AreTheBoxes) {
  QTest::keyClicks(&m_box, u"ab"_s);
  QTest::keyClick(&m_box, Qt::Key_Down);
  QTest::keyClick(&m_box, Qt::Key_F4, Qt::ShiftModifier);
  EXPECT_EQ(m_asked, 0);
  EXPECT_EQ(m_box.Text(), u"ab"_s);
}

}  // namespace
}  // namespace velmora::ui
