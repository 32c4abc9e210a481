// SPDX-License-Identifier: MIT
#include "forms/Form.h"
#include "forms/LeaveCheck.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

/// A window with a checked box, another box, a button, a button that takes no focus and a shortcut.
class LeaveCheckTest : public ::testing::Test {
 protected:
  LeaveCheckTest() {
    auto* inner = new QWidget(&window);
    auto* rows = new QVBoxLayout(inner);
    box = new QLineEdit(inner);
    other = new QLineEdit(inner);
    button = new QPushButton(u"OK"_s, inner);
    tool = new QPushButton(u"Tool"_s, inner);
    tool->setFocusPolicy(Qt::NoFocus);
    text = new QLabel(u"Text"_s, inner);
    for (QWidget* widget :
         {static_cast<QWidget*>(box), static_cast<QWidget*>(other), static_cast<QWidget*>(button),
          static_cast<QWidget*>(tool), static_cast<QWidget*>(text)}) {
      rows->addWidget(widget);
    }
    window.setCentralWidget(inner);
    menu = window.menuBar()->addMenu(u"&File"_s);
    action = menu->addAction(u"New"_s);
    action->setShortcut(QKeySequence(u"Ctrl+N"_s));
    QObject::connect(action, &QAction::triggered, [this] { ++commands; });
    QObject::connect(button, &QPushButton::clicked, [this] { ++clicks; });
    QObject::connect(tool, &QPushButton::clicked, [this] { ++toolClicks; });
    CheckOnLeave(box, [this]() -> QWidget* {
      ++checks;
      return refused ? target : nullptr;
    });
    target = box;
    window.show();
    window.activateWindow();
    QApplication::setActiveWindow(&window);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    box->setFocus();
  }

  QMainWindow window;
  QLineEdit* box;
  QLineEdit* other;
  QPushButton* button;
  QPushButton* tool;
  QLabel* text;
  QMenu* menu;
  QAction* action;
  QWidget* target;
  bool refused = false;
  int checks = 0;
  int clicks = 0;
  int toolClicks = 0;
  int commands = 0;
};

TEST_F(LeaveCheckTest, Click_EntryAccepted_ChecksOnceAndClicks) {
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(button->hasFocus());
}

TEST_F(LeaveCheckTest, Click_EntryRefused_SwallowsTheClickAndKeepsTheFocus) {
  refused = true;
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(clicks, 0);
  EXPECT_FALSE(button->isDown());
  EXPECT_TRUE(box->hasFocus());
  refused = false;
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
}

TEST_F(LeaveCheckTest, ToolbarButton_EntryRefused_IsNotClicked) {
  refused = true;
  QTest::mouseClick(tool, Qt::LeftButton);
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(toolClicks, 0);
  EXPECT_FALSE(tool->isDown());
}

TEST_F(LeaveCheckTest, ToolbarButton_EntryAccepted_LeavesALaterTabItsOwnCheck) {
  QTest::mouseClick(tool, Qt::LeftButton);
  EXPECT_EQ(toolClicks, 1);
  EXPECT_TRUE(box->hasFocus());
  QCoreApplication::processEvents();
  QTest::keyClick(box, Qt::Key_Tab);
  EXPECT_EQ(checks, 2);
}

TEST_F(LeaveCheckTest, MarkedWidget_Clicked_RunsTheCheck) {
  MarkAsCommand(text);
  QTest::mouseClick(text, Qt::LeftButton);
  EXPECT_EQ(checks, 1);
}

TEST_F(LeaveCheckTest, PlainText_Clicked_RunsNoCheck) {
  QTest::mouseClick(text, Qt::LeftButton);
  EXPECT_EQ(checks, 0);
}

TEST_F(LeaveCheckTest, Tab_EntryRefused_KeepsTheFocus) {
  refused = true;
  QTest::keyClick(box, Qt::Key_Tab);
  EXPECT_EQ(checks, 1);
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(LeaveCheckTest, Tab_CheckSendsElsewhere_FocusGoesThere) {
  refused = true;
  target = button;
  QTest::keyClick(box, Qt::Key_Tab);
  EXPECT_EQ(checks, 1);
  EXPECT_TRUE(button->hasFocus());
}

TEST_F(LeaveCheckTest, Tab_RefusedIntoABoxWithACheck_RunsOnlyTheFirst) {
  int otherChecks = 0;
  CheckOnLeave(other, [&]() -> QWidget* {
    ++otherChecks;
    return other;
  });
  refused = true;
  QTest::keyClick(box, Qt::Key_Tab);
  EXPECT_TRUE(box->hasFocus());
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(otherChecks, 0);
}

TEST_F(LeaveCheckTest, Shortcut_EntryRefused_RunsNoCommand) {
  refused = true;
  QTest::keyClick(box, Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(commands, 0);
  refused = false;
  QTest::keyClick(box, Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(commands, 1);
}

TEST_F(LeaveCheckTest, MenuBar_Opened_RunsNoCheck) {
  refused = true;
  QTest::mouseClick(window.menuBar(), Qt::LeftButton, {},
                    window.menuBar()->actionGeometry(menu->menuAction()).center());
  EXPECT_EQ(checks, 0);
  menu->close();
}

TEST_F(LeaveCheckTest, OtherWindow_TakesTheFocus_RunsNoCheck) {
  refused = true;
  QLineEdit elsewhere;
  elsewhere.show();
  QApplication::setActiveWindow(&elsewhere);
  elsewhere.setFocus();
  EXPECT_EQ(checks, 0);
}

TEST_F(LeaveCheckTest, HiddenBox_LosesTheFocus_RunsNoCheck) {
  refused = true;
  box->hide();
  EXPECT_EQ(checks, 0);
}

TEST_F(LeaveCheckTest, ClosingForm_LosesTheFocus_RunsNoCheck) {
  refused = true;
  auto* form = new Form(u"Page"_s, u"Page"_s);
  auto* inner = new QLineEdit(form);
  int innerChecks = 0;
  CheckOnLeave(inner, [&]() -> QWidget* {
    ++innerChecks;
    return inner;
  });
  form->Show();
  QApplication::setActiveWindow(form);
  inner->setFocus();
  form->Unload();
  EXPECT_EQ(innerChecks, 0);
}

TEST_F(LeaveCheckTest, DestroyedBox_LeavesNoCheckBehind) {
  auto* passing = new QLineEdit(window.centralWidget());
  CheckOnLeave(passing, [passing]() -> QWidget* { return passing; });
  delete passing;
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Tab);
  EXPECT_EQ(checks, 1);
}

}  // namespace
}  // namespace velmora::ui
