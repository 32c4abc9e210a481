// SPDX-License-Identifier: MIT
#include "forms/ControlArray.h"
#include "forms/TabChain.h"
#include "forms/TextBox.h"
#include "tests/support/Dialogs.h"
#include "tests/support/TestWindow.h"

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class TabChainTest : public WindowTest {};

TEST_F(TabChainTest, ChainTabStops_AnotherOrderThanMade_IsWalkedByTab) {
  TextBox first(&m_window);
  first.SetName(u"first"_s);
  ControlArray<TextBox> boxes(&m_window, u"boxes"_s);
  boxes.Load(1).SetVisible(true);
  TextBox last(&m_window);
  last.SetName(u"last"_s);
  ChainTabStops(QList<QWidget*>{&last} + boxes.Widgets() + QList<QWidget*>{&first});
  Show();
  last.SetFocus();
  EXPECT_EQ(test::TabStops(), QStringList({u"last"_s, u"boxes(0)"_s, u"boxes(1)"_s, u"first"_s}));
}

}  // namespace
}  // namespace velmora::ui
