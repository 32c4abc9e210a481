// SPDX-License-Identifier: MIT
#include "forms/Control.h"
#include "forms/Labels.h"
#include "forms/TextBox.h"
#include "forms/Twips.h"
#include "tests/support/TestWindow.h"

#include <QMenuBar>
#include <QSignalSpy>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class ControlTest : public WindowTest {
 protected:
  ~ControlTest() override { SetProgramScale(1.0); }
};

TEST_F(ControlTest, SetPlace_AtAnyScale_ReadsBackItsExactTwips) {
  for (const double scale : {1.0, 1.105, 1.37, 2.0}) {
    SetProgramScale(scale);
    TextBox box(&m_window);
    box.SetPlace({1215, 961, 1817, 283});
    EXPECT_EQ(box.Left(), 1215);
    EXPECT_EQ(box.Top(), 961);
    EXPECT_EQ(box.Width(), 1817);
    EXPECT_EQ(box.Height(), 283);
    EXPECT_EQ(box.geometry().left(), Pixels(1215));
  }
}

TEST_F(ControlTest, SetLeft_Alone_KeepsTheRestOfThePlace) {
  TextBox box(&m_window);
  box.SetPlace({10, 20, 300, 400});
  box.SetLeft(-7);
  box.SetTop(1);
  box.SetWidth(333);
  box.SetHeight(444);
  EXPECT_EQ(box.Placed(), (Place{-7, 1, 333, 444}));
}

TEST_F(ControlTest, SetPlace_NeighboursInTwips_TouchInPixels) {
  SetProgramScale(1.105);
  for (int left = 0; left < 3000; left += 335) {
    Label first(&m_window);
    Label second(&m_window);
    first.SetPlace({left, 0, 335, 285});
    second.SetPlace({left + 335, 0, 335, 285});
    EXPECT_EQ(first.geometry().right() + 1, second.geometry().left()) << left;
  }
}

TEST_F(ControlTest, SetName_OfAnElement_CarriesItsNumber) {
  TextBox box(&m_window);
  box.SetName(u"NameText"_s, 0);
  EXPECT_EQ(box.objectName(), u"NameText(0)"_s);
  EXPECT_EQ(box.Name(), u"NameText"_s);
  EXPECT_EQ(box.Index(), 0);
}

TEST_F(ControlTest, Visible_OnAHiddenScreen_TellsWhatWasSet) {
  TextBox box(&m_window);
  box.SetVisible(true);
  EXPECT_TRUE(box.Visible());
  EXPECT_FALSE(box.isVisible());
  box.SetVisible(false);
  EXPECT_FALSE(box.Visible());
}

TEST_F(ControlTest, Unload_StandingAlone_DoesNothing) {
  TextBox box(&m_window);
  box.Unload();
  EXPECT_TRUE(box.Visible());
}

class FocusTest : public ControlTest {
 protected:
  FocusTest() {
    m_first.setGeometry(0, 0, 100, 20);
    m_second.setGeometry(0, 40, 100, 20);
  }
  TextBox m_first{&m_window};
  TextBox m_second{&m_window};
};

TEST_F(FocusTest, GotFocus_MoveByKeys_ToldOnceEach) {
  Show();
  m_first.SetFocus();
  QSignalSpy left(&m_first, &TextBox::LostFocus);
  QSignalSpy got(&m_second, &TextBox::GotFocus);
  QTest::keyClick(&m_first, Qt::Key_Tab);
  EXPECT_TRUE(m_second.hasFocus());
  EXPECT_EQ(left.count(), 1);
  EXPECT_EQ(got.count(), 1);
}

TEST_F(FocusTest, LostFocus_DialogOverTheScreen_NotTold) {
  Show();
  m_first.SetFocus();
  QSignalSpy left(&m_first, &TextBox::LostFocus);
  QSignalSpy got(&m_first, &TextBox::GotFocus);
  {
    QDialog dialog(&m_window);
    QLineEdit inside(&dialog);
    dialog.show();
    dialog.activateWindow();
    inside.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return inside.hasFocus(); }));
  }
  m_window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
  EXPECT_TRUE(QTest::qWaitFor([&] { return m_first.hasFocus(); }));
  EXPECT_EQ(left.count(), 0);
  EXPECT_EQ(got.count(), 0);
}

TEST_F(FocusTest, LostFocus_FocusMovedWhileADialogStood_ToldAfterwards) {
  Show();
  m_first.SetFocus();
  QSignalSpy left(&m_first, &TextBox::LostFocus);
  QSignalSpy got(&m_second, &TextBox::GotFocus);
  {
    QDialog dialog(&m_window);
    QLineEdit inside(&dialog);
    dialog.show();
    dialog.activateWindow();
    inside.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return inside.hasFocus(); }));
    m_second.SetFocus();
  }
  m_window.activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([&] { return m_second.hasFocus(); }));
  EXPECT_EQ(left.count(), 1);
  EXPECT_EQ(got.count(), 1);
}

TEST_F(FocusTest, GotFocus_HandlerOfLostFocusMovesOn_NotToldToTheOneInBetween) {
  Show();
  TextBox third(&m_window);
  third.setGeometry(0, 80, 100, 20);
  third.show();
  m_first.SetFocus();
  QObject::connect(&m_first, &TextBox::LostFocus, &third, [&] { third.SetFocus(); });
  QSignalSpy between(&m_second, &TextBox::GotFocus);
  QSignalSpy got(&third, &TextBox::GotFocus);
  m_second.SetFocus();
  EXPECT_TRUE(third.hasFocus());
  EXPECT_EQ(between.count(), 0);
  EXPECT_EQ(got.count(), 1);
}

TEST_F(FocusTest, LostFocus_ControlDestroyedWithTheFocus_ToldToNobody) {
  Show();
  auto* doomed = new TextBox(&m_window);
  doomed->setGeometry(0, 80, 100, 20);
  doomed->show();
  doomed->SetFocus();
  ASSERT_TRUE(doomed->hasFocus());
  doomed->deleteLater();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QSignalSpy got(&m_second, &TextBox::GotFocus);
  m_second.SetFocus();
  EXPECT_EQ(got.count(), 1);
}

}  // namespace
}  // namespace velmora::ui
