// SPDX-License-Identifier: MIT
#include "forms/Makers.h"
#include "forms/TextBox.h"
#include "tests/support/TestWindow.h"

#include <QHBoxLayout>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class MakersTest : public WindowTest {};

TEST_F(MakersTest, NewControl_WithWords_BearsThem) {
  const auto* box =
      NewControl<TextBox>(&m_window, u"NameQuery"_s, {.Tip = u"its tip"_s, .Spoken = u"Name"_s});
  EXPECT_EQ(box->parentWidget(), &m_window);
  EXPECT_EQ(box->Name(), u"NameQuery"_s);
  EXPECT_EQ(box->toolTip(), u"its tip"_s);
  EXPECT_EQ(box->accessibleName(), u"Name"_s);
}

TEST_F(MakersTest, NewCommand_Made_HasItsCaptionAndTip) {
  const SSCommand* button = NewCommand(&m_window, u"cmdOK"_s, u"R & D"_s, u"its tip"_s);
  EXPECT_EQ(button->objectName(), u"cmdOK"_s);
  EXPECT_EQ(button->Caption(), u"R & D"_s);
  EXPECT_EQ(button->toolTip(), u"its tip"_s);
}

TEST_F(MakersTest, NewLabel_WithABuddy_NamesIt) {
  TextBox box(&m_window);
  const Label* label = NewLabel(&m_window, u"lblName"_s, u"Name"_s, &box);
  EXPECT_EQ(label->objectName(), u"lblName"_s);
  EXPECT_EQ(label->Caption(), u"Name"_s);
  EXPECT_EQ(label->buddy(), &box);
}

TEST_F(MakersTest, NewButtonRow_WiderThanItsButtons_KeepsThemAtItsEnds) {
  SSCommand* left = NewCommand(&m_window, u"cmdDelete"_s, u"Delete"_s);
  SSCommand* ok = NewCommand(&m_window, u"cmdOK"_s, u"OK"_s);
  SSCommand* cancel = NewCommand(&m_window, u"cmdCancel"_s, u"Cancel"_s);
  m_window.setLayout(NewButtonRow({left}, {ok, cancel}));
  Show();
  EXPECT_LT(left->geometry().right(), m_window.width() / 2);
  EXPECT_GT(ok->geometry().left(), m_window.width() / 2);
  EXPECT_LT(ok->geometry().right(), cancel->geometry().left());
}

}  // namespace
}  // namespace velmora::ui
