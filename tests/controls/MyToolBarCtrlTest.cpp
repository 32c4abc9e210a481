// SPDX-License-Identifier: MIT
#include "controls/MyToolBarCtrl.h"
#include "forms/LeaveCheck.h"
#include "forms/TextBox.h"
#include "forms/Twips.h"

#include <QAccessible>
#include <QCursor>
#include <QSignalSpy>
#include <QtTest>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

constexpr int size = 20;

ui::ImageList Images(int count) {
  ui::ImageList images;
  for (int i = 0; i < count; ++i) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::gray);
    images.Add(QIcon(pixmap));
  }
  return images;
}

class MyToolBarCtrlTest : public ::testing::Test {
 protected:
  MyToolBarCtrlTest() {
    window.resize(400, 200);
    window.move(100, 100);
    bar = new MyToolBarCtrl(&window);
    bar->SetPlace({.Left = 40 * ui::TwipsPerPixel, .Top = 30 * ui::TwipsPerPixel, .Width = 0, .Height = 0});
  }
  ~MyToolBarCtrlTest() override { ui::SetProgramScale(1.0); }

  void Build(int count) {
    bar->ButtonSize = size;
    bar->SetImages(hover);
    bar->SetImagesNorm(norm);
    bar->SetImagesDown(down);
    bar->SetCount(count);
  }
  void Open() {
    // Off the bar, so that nothing is hot to begin with.
    QCursor::setPos(window.mapToGlobal(QPoint(390, 190)));
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return window.isActiveWindow(); }));
  }
  void OpenWith(int count) {
    Build(count);
    Open();
  }

  QPoint Middle(int index) const { return {index * size + size / 2, size / 2}; }
  /// Moves the real pointer to a place of the bar; buttons under it are told.
  void PointAt(const QPoint& place) const {
    QCursor::setPos(bar->mapToGlobal(place));
    QCoreApplication::processEvents();
  }
  void PointAway() const { PointAt({300, 150}); }
  void Press(int index) const { QTest::mousePress(&bar->mPicture()[index], Qt::LeftButton); }
  void Release(int index) const { QTest::mouseRelease(&bar->mPicture()[index], Qt::LeftButton); }
  bool Shows(int index, const ui::ImageList& images) const {
    return bar->mPicture()[index].Picture().cacheKey() == images.ListImage(index + 1).cacheKey();
  }

  QWidget window;
  MyToolBarCtrl* bar;
  const ui::ImageList norm = Images(4);
  const ui::ImageList hover = Images(4);
  const ui::ImageList down = Images(4);
};

TEST_F(MyToolBarCtrlTest, Start_IsOneButtonAndATimerAtRest) {
  EXPECT_EQ(bar->mPicture().Count(), 1);
  EXPECT_EQ(bar->mPicture()[0].objectName(), u"mPicture(0)"_s);
  EXPECT_EQ(bar->mTimer().interval(), 50);
  EXPECT_FALSE(bar->mTimer().isActive());
  EXPECT_EQ(bar->HotButton, -1);
  EXPECT_EQ(bar->count(), 0);
}

TEST_F(MyToolBarCtrlTest, Timer_RunsWhileTheBarIsShown) {
  OpenWith(2);
  EXPECT_TRUE(bar->mTimer().isActive());
  window.hide();
  EXPECT_FALSE(bar->mTimer().isActive());
}

TEST_F(MyToolBarCtrlTest, Rebuild_SetsButtonsSideBySideAndTheBarsSize) {
  Build(3);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(bar->mPicture()[i].Placed(),
              (ui::Place{.Left = 300 * i, .Top = 0, .Width = 300, .Height = 300}));
    EXPECT_TRUE(Shows(i, norm));
    EXPECT_TRUE(bar->mPicture()[i].Visible());
  }
  EXPECT_EQ(bar->Width(), 900);
  EXPECT_EQ(bar->Height(), 300);
  EXPECT_EQ(bar->size(), QSize(60, 20));
}

TEST_F(MyToolBarCtrlTest, Rebuild_LargerProgramScale_GrowsTheButtons) {
  ui::SetProgramScale(1.5);
  Build(3);
  EXPECT_EQ(bar->mPicture()[1].size(), QSize(30, 30));
  EXPECT_EQ(bar->width(), 90);
}

TEST_F(MyToolBarCtrlTest, Rebuild_OneButton_SetsItAndTheBarsSize) {
  Build(1);
  EXPECT_EQ(bar->mPicture().Count(), 1);
  EXPECT_EQ(bar->Width(), 300);
  EXPECT_EQ(bar->Height(), 300);
}

TEST_F(MyToolBarCtrlTest, Rebuild_CountReduced_ExtraButtonsStayAsTheyAre) {
  Build(4);
  const PictureBox* extra = &bar->mPicture()[3];
  bar->SetCount(2);
  EXPECT_EQ(bar->mPicture().Count(), 4);
  EXPECT_EQ(&bar->mPicture()[3], extra);
  EXPECT_EQ(bar->mPicture()[3].Left(), 900);
  EXPECT_EQ(bar->Width(), 600);
}

TEST_F(MyToolBarCtrlTest, Rebuild_MissingImage_LeavesTheOldPicture) {
  Build(5);
  EXPECT_EQ(bar->mPicture().Count(), 5);
  EXPECT_TRUE(bar->mPicture()[4].Picture().isNull());
  bar->SetImagesNorm(ui::ImageList());
  bar->SetImageList(hover);
  EXPECT_TRUE(Shows(0, norm));
}

TEST_F(MyToolBarCtrlTest, Rebuild_MoreButtonsThanSupported_DoesNotFail) {
  Build(103);
  EXPECT_EQ(bar->mPicture().Count(), 103);
  bar->SetHot(102);
  bar->SetHot(-1);
  EXPECT_EQ(bar->HotButton, 102);
}

TEST_F(MyToolBarCtrlTest, SetImageList_MakesTheButtonsAnew) {
  Build(3);
  const ui::ImageList other = Images(4);
  bar->SetImagesNorm(other);
  EXPECT_TRUE(Shows(2, norm));
  bar->SetImageList(hover);
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(Shows(i, other)) << i;
}

TEST_F(MyToolBarCtrlTest, SetToolTipText_EndsWithTheTextsOrTheButtons) {
  Build(3);
  bar->SetToolTipText({u"One"_s, u"Two"_s});
  EXPECT_EQ(bar->mPicture()[0].toolTip(), u"One"_s);
  EXPECT_EQ(bar->mPicture()[1].accessibleName(), u"Two"_s);
  EXPECT_EQ(bar->mPicture()[2].toolTip(), QString());
  bar->SetToolTipText({u"A"_s, u"B"_s, u"C"_s, u"D"_s});
  EXPECT_EQ(bar->mPicture()[2].toolTip(), u"C"_s);
}

TEST_F(MyToolBarCtrlTest, SetToolTipText_ButtonsMadeAnew_KeepTheirTips) {
  Build(2);
  bar->SetToolTipText({u"One"_s, u"Two"_s});
  bar->SetImageList(hover);
  EXPECT_EQ(bar->mPicture()[1].toolTip(), u"Two"_s);
}

TEST_F(MyToolBarCtrlTest, SetHot_AnotherButton_TakesTheMarkFromTheFirst) {
  Build(3);
  bar->SetHot(1);
  EXPECT_TRUE(Shows(1, hover));
  EXPECT_TRUE(bar->HotFlags[1]);
  bar->SetHot(2);
  EXPECT_TRUE(Shows(1, norm));
  EXPECT_FALSE(bar->HotFlags[1]);
  EXPECT_TRUE(Shows(2, hover));
  EXPECT_EQ(bar->HotButton, 2);
}

TEST_F(MyToolBarCtrlTest, SetHot_None_TakesTheMarkAndLeavesHotButton) {
  Build(3);
  bar->SetHot(1);
  bar->SetHot(-1);
  EXPECT_TRUE(Shows(1, norm));
  EXPECT_FALSE(bar->HotFlags[1]);
  EXPECT_EQ(bar->HotButton, 1);
  bar->SetHot(1);
  EXPECT_TRUE(Shows(1, norm));
}

TEST_F(MyToolBarCtrlTest, SetHot_FlagAlreadySet_Stops) {
  Build(3);
  bar->HotFlags[2] = true;
  bar->SetHot(2);
  EXPECT_EQ(bar->HotButton, -1);
  EXPECT_TRUE(Shows(2, norm));
}

TEST_F(MyToolBarCtrlTest, SetHot_ListsNotSet_DoesNothing) {
  bar->ButtonSize = size;
  bar->SetImages(hover);
  bar->SetCount(2);
  bar->SetHot(1);
  EXPECT_EQ(bar->HotButton, -1);
}

TEST_F(MyToolBarCtrlTest, Pointer_OverAButton_MarksIt) {
  OpenWith(3);
  PointAt(Middle(1));
  EXPECT_EQ(bar->HotButton, 1);
  EXPECT_TRUE(Shows(1, hover));
  PointAt(Middle(2));
  EXPECT_EQ(bar->HotButton, 2);
  EXPECT_TRUE(Shows(1, norm));
}

TEST_F(MyToolBarCtrlTest, Pointer_LeavesTheBarAtSpeed_TheMarkGoesWithTheTimer) {
  OpenWith(3);
  PointAt(Middle(1));
  PointAway();
  EXPECT_EQ(bar->HotButton, 1);
  ASSERT_TRUE(QTest::qWaitFor([this] { return bar->HotButton == -1; }));
  EXPECT_TRUE(Shows(1, norm));
  EXPECT_FALSE(bar->HotFlags[1]);
}

TEST_F(MyToolBarCtrlTest, Pointer_InTheBandOfThreePixels_CountsAsOff) {
  OpenWith(3);
  for (const QPoint& place : {QPoint(30, 2), QPoint(2, 10)}) {
    PointAt(place);
    ASSERT_TRUE(QTest::qWaitFor([this] { return bar->HotButton == -1; })) << place.x();
  }
  PointAt({3, 3});
  const QSignalSpy ticks(&bar->mTimer(), &QTimer::timeout);
  ASSERT_TRUE(QTest::qWaitFor([&] { return ticks.count() >= 2; }));
  EXPECT_EQ(bar->HotButton, 0);
}

TEST_F(MyToolBarCtrlTest, Pointer_OverTheBarBesideTheButtons_TakesTheMark) {
  Build(3);
  bar->SetWidth(1800);
  Open();
  PointAt(Middle(1));
  PointAt({100, 10});
  EXPECT_EQ(bar->HotButton, -1);
  EXPECT_TRUE(Shows(1, norm));
  EXPECT_FALSE(bar->HotFlags[1]);
}

TEST_F(MyToolBarCtrlTest, Press_ShowsTheThirdImage_ReleaseTheSecond) {
  OpenWith(3);
  PointAt(Middle(1));
  Press(1);
  EXPECT_TRUE(Shows(1, down));
  Release(1);
  EXPECT_TRUE(Shows(1, hover));
}

TEST_F(MyToolBarCtrlTest, Press_HoverListNotSet_DoesNothing) {
  bar->ButtonSize = size;
  bar->SetImagesNorm(norm);
  bar->SetImagesDown(down);
  bar->SetCount(2);
  Open();
  PointAt(Middle(1));
  Press(1);
  EXPECT_TRUE(Shows(1, norm));
  Release(1);
  EXPECT_TRUE(Shows(1, norm));
}

TEST_F(MyToolBarCtrlTest, Release_OffTheBar_TakesTheMarkAndLeavesHotButtonToTheTimer) {
  OpenWith(3);
  PointAt(Middle(1));
  Press(1);
  QCursor::setPos(bar->mapToGlobal(QPoint(300, 150)));
  QTest::mouseRelease(&bar->mPicture()[1], Qt::LeftButton, {}, QPoint(280, 150));
  EXPECT_TRUE(Shows(1, norm));
  EXPECT_EQ(bar->HotButton, 1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return bar->HotButton == -1; }));
}

TEST_F(MyToolBarCtrlTest, Release_OnAnotherButton_PressedOneShowsItsHoverImageUntilTheNextMove) {
  OpenWith(3);
  const QSignalSpy clicks(bar, &MyToolBarCtrl::Click);
  PointAt(Middle(1));
  Press(1);
  QCursor::setPos(bar->mapToGlobal(Middle(2)));
  QTest::mouseRelease(&bar->mPicture()[1], Qt::LeftButton, {}, QPoint(size + size / 2, size / 2));
  EXPECT_TRUE(Shows(1, hover));
  EXPECT_EQ(clicks.count(), 0);
  PointAt(Middle(2) + QPoint(1, 0));
  EXPECT_TRUE(Shows(1, norm));
  EXPECT_EQ(bar->HotButton, 2);
}

TEST_F(MyToolBarCtrlTest, Click_IsPressAndReleaseOnOneButton) {
  OpenWith(3);
  const QSignalSpy clicks(bar, &MyToolBarCtrl::Click);
  QTest::mouseClick(&bar->mPicture()[2], Qt::LeftButton);
  QTest::mouseClick(&bar->mPicture()[0], Qt::RightButton);
  ASSERT_EQ(clicks.count(), 1);
  EXPECT_EQ(clicks.at(0).at(0).toInt(), 2);
}

TEST_F(MyToolBarCtrlTest, Click_TakesNoFocus) {
  auto* box = new ui::TextBox(&window);
  box->SetPlace({.Left = 0, .Top = 1500, .Width = 1500, .Height = 285});
  OpenWith(3);
  box->setFocus();
  QTest::mouseClick(&bar->mPicture()[2], Qt::LeftButton);
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(MyToolBarCtrlTest, Click_BoxThatRefusesToBeLeft_SwallowsIt) {
  auto* box = new ui::TextBox(&window);
  box->SetPlace({.Left = 0, .Top = 1500, .Width = 1500, .Height = 285});
  ui::CheckOnLeave(box, [box] { return box; });
  OpenWith(3);
  box->setFocus();
  const QSignalSpy clicks(bar, &MyToolBarCtrl::Click);
  QTest::mouseClick(&bar->mPicture()[2], Qt::LeftButton);
  EXPECT_EQ(clicks.count(), 0);
  EXPECT_FALSE(Shows(2, down));
}

TEST_F(MyToolBarCtrlTest, Keys_WalkTheButtonsAndChooseOne) {
  OpenWith(3);
  const QSignalSpy clicks(bar, &MyToolBarCtrl::Click);
  bar->SetFocus();
  const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
  const auto focused = [] { return QApplication::focusWidget()->objectName(); };
  EXPECT_EQ(focused(), u"mPicture(0)"_s);
  press(Qt::Key_Right);
  EXPECT_EQ(focused(), u"mPicture(1)"_s);
  press(Qt::Key_End);
  EXPECT_EQ(focused(), u"mPicture(2)"_s);
  press(Qt::Key_Right);
  EXPECT_EQ(focused(), u"mPicture(0)"_s);
  press(Qt::Key_Left);
  press(Qt::Key_Return);
  press(Qt::Key_Home);
  press(Qt::Key_Space);
  ASSERT_EQ(clicks.count(), 2);
  EXPECT_EQ(clicks.at(0).at(0).toInt(), 2);
  EXPECT_EQ(clicks.at(1).at(0).toInt(), 0);
}

TEST_F(MyToolBarCtrlTest, Keys_FocusComesBack_ToTheButtonThatHadIt) {
  auto* box = new ui::TextBox(&window);
  OpenWith(3);
  bar->SetFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
  box->setFocus();
  bar->SetFocus();
  EXPECT_EQ(QApplication::focusWidget(), &bar->mPicture()[2]);
}

TEST_F(MyToolBarCtrlTest, Focus_IsVisible) {
  OpenWith(2);
  const QImage without = bar->mPicture()[0].grab().toImage();
  bar->SetFocus();
  EXPECT_NE(bar->mPicture()[0].grab().toImage(), without);
}

TEST_F(MyToolBarCtrlTest, Accessible_IsABarOfNamedButtons) {
  OpenWith(2);
  bar->SetToolTipText({u"One"_s, u"Two"_s});
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(bar);
  ASSERT_NE(spoken, nullptr);
  EXPECT_EQ(spoken->role(), QAccessible::ToolBar);
  ASSERT_EQ(spoken->childCount(), 2);
  QAccessibleInterface* button = spoken->child(1);
  EXPECT_EQ(button->role(), QAccessible::Button);
  EXPECT_EQ(button->text(QAccessible::Name), u"Two"_s);
  const QSignalSpy clicks(bar, &MyToolBarCtrl::Click);
  ASSERT_NE(button->actionInterface(), nullptr);
  button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(QTest::qWaitFor([&] { return clicks.count() == 1; }));
}

}  // namespace
