// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace velmora {

/// A fixture with an empty window for the controls under test. Show brings it up and makes it the active one,
/// so that controls can have the focus.
class WindowTest : public ::testing::Test {
 protected:
  WindowTest() { m_window.resize(600, 400); }
  void Show() {
    m_window.show();
    m_window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
  }
  QWidget m_window;
};

}  // namespace velmora
