// SPDX-License-Identifier: MIT
#include "forms/Default.h"
#include "forms/Form.h"
#include "forms/FormManager.h"
#include "forms/Screen.h"
#include "forms/Twips.h"
#include "forms/Waiting.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

QStringList& Log() {
  static QStringList log;
  return log;
}

class Frame final : public QMainWindow, public Screen {
 public:
  Frame() {
    area = new QMdiArea(this);
    setCentralWidget(area);
    resize(800, 600);
    SetFrame(this, this, area);
    show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(this));
    activateWindow();
    Log().clear();
  }
  ~Frame() override { SetFrame(nullptr, nullptr, nullptr); }
  QString ScreenName() const override { return u"Main"_s; }
  bool Unload() override { return false; }
  QMdiArea* area;
};

class Page : public Form {
 public:
  explicit Page(const QString& name = u"Page"_s) : Form(name, name) {
    box = new QLineEdit(this);
    resize(200, 100);
  }
  QLineEdit* box;
  bool refuses = false;
  std::function<void()> whileClosing;

 protected:
  void OnLoad() override { Log() << ScreenName() + u" load"_s; }
  void OnActivate() override { Log() << ScreenName() + u" activate"_s; }
  void OnQueryUnload(bool& cancel) override {
    Log() << ScreenName() + u" query"_s;
    cancel = refuses;
    if (whileClosing) whileClosing();
  }
  void OnUnload() override { Log() << ScreenName() + u" unload"_s; }
};

class First final : public Page {
 public:
  First() : Page(u"First"_s) {}
};

QStringList OpenNames() {
  QStringList names;
  for (const Screen* screen : Forms()) names << screen->ScreenName();
  return names;
}

TEST(Form, Default_Touched_LoadsOnceAndEntersForms) {
  const Frame frame;
  Default<First>();
  Default<First>().Show();
  EXPECT_EQ(Log(), QStringList({u"First load"_s, u"First activate"_s}));
  EXPECT_EQ(OpenNames(), QStringList({u"Main"_s, u"First"_s}));
  Default<First>().Unload();
  EXPECT_EQ(OpenNames(), QStringList({u"Main"_s}));
}

TEST(Form, Unload_DefaultInstance_NextTouchMakesAnother) {
  const Frame frame;
  const QPointer<First> before(&Default<First>());
  before->Show();
  EXPECT_TRUE(before->Unload());
  EXPECT_NE(&Default<First>(), before.data());
  EXPECT_TRUE(QTest::qWaitFor([&] { return before.isNull(); }));
  Default<First>().Unload();
}

TEST(Form, Unload_Refused_StaysOpen) {
  const Frame frame;
  auto* page = new Page;
  page->Show();
  page->refuses = true;
  EXPECT_FALSE(page->Unload());
  EXPECT_TRUE(page->isVisible());
  EXPECT_EQ(OpenNames(), QStringList({u"Main"_s, u"Page"_s}));
  page->refuses = false;
  EXPECT_TRUE(page->Unload());
}

TEST(Form, Unload_InsideItsOwnClosing_GivesTrueAndRunsNothingTwice) {
  const Frame frame;
  auto* page = new Page;
  page->Show();
  bool inner = false;
  page->whileClosing = [&] { inner = page->Unload(); };
  EXPECT_TRUE(page->Unload());
  EXPECT_TRUE(inner);
  EXPECT_EQ(Log().count(u"Page query"_s), 1);
  EXPECT_EQ(Log().count(u"Page unload"_s), 1);
}

TEST(Form, CloseBox_OfChild_ClosesOrRefuses) {
  const Frame frame;
  const QPointer<Page> page(new Page);
  page->Show();
  page->refuses = true;
  EXPECT_FALSE(frame.area->currentSubWindow()->close());
  EXPECT_TRUE(page->isVisible());
  page->refuses = false;
  frame.area->currentSubWindow()->close();
  EXPECT_TRUE(QTest::qWaitFor([&] { return page.isNull(); }));
}

TEST(Form, Handler_ClosingItsOwnScreen_Survives) {
  const Frame frame;
  const QPointer<Page> page(new Page);
  auto* button = new QPushButton(u"Close"_s, page);
  QObject::connect(button, &QPushButton::clicked, page, [page] {
    page->Unload();
    EXPECT_FALSE(page.isNull());
  });
  page->Show();
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return page.isNull(); }));
}

TEST(Form, Escape_InABox_ClosesTheScreen) {
  const Frame frame;
  const QPointer<Page> page(new Page);
  page->Show();
  page->box->setFocus();
  QTest::keyClick(page->box, Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitFor([&] { return page.isNull(); }));
}

TEST(Form, Activation_UserComesBack_RunsTheStepAgain) {
  const Frame frame;
  auto* one = new Page(u"One"_s);
  auto* two = new Page(u"Two"_s);
  one->Show();
  two->Show();
  Log().clear();
  one->BringToFront();
  EXPECT_EQ(Log(), QStringList({u"One activate"_s}));
  one->Unload();
  EXPECT_EQ(Log().last(), u"Two activate"_s);
  two->Unload();
}

TEST(Form, Activation_FrameLosesTheDesktop_ChildStaysActive) {
  Frame frame;
  auto* page = new Page;
  page->Show();
  Log().clear();
  QWidget other;
  other.show();
  other.activateWindow();
  QApplication::setActiveWindow(&other);
  QApplication::processEvents();
  EXPECT_EQ(ActiveChild(), page);
  QApplication::setActiveWindow(&frame);
  QApplication::processEvents();
  EXPECT_TRUE(Log().isEmpty());
  page->Unload();
}

/// Shows a dialog and closes it from within.
void ShowAndClose(Page* dialog, OpenedBy opener) {
  QTimer::singleShot(0, dialog, [dialog] { dialog->Unload(); });
  dialog->Show(ShowMode::Modal, opener);
}

TEST(Form, Activation_DialogOfTheScreenItselfCloses_RunsNothing) {
  const Frame frame;
  auto* page = new Page;
  page->Show();
  Log().clear();
  ShowAndClose(new Page(u"Dialog"_s), OpenedBy::ActiveScreen);
  EXPECT_FALSE(Log().contains(u"Page activate"_s));
  page->Unload();
}

TEST(Form, Activation_DialogOfTheFrameCloses_RunsTheStep) {
  const Frame frame;
  auto* page = new Page;
  page->Show();
  Log().clear();
  ShowAndClose(new Page(u"Dialog"_s), OpenedBy::Frame);
  EXPECT_EQ(Log().last(), u"Page activate"_s);
  page->Unload();
}

TEST(Form, Activation_DialogOfTheFrameShowsAScreen_ActivatesItOnce) {
  const Frame frame;
  auto* page = new Page;
  auto* dialog = new Page(u"Dialog"_s);
  QTimer::singleShot(0, dialog, [=] {
    dialog->Unload();
    page->Show();
  });
  dialog->Show(ShowMode::Modal, OpenedBy::Frame);
  EXPECT_EQ(Log().count(u"Page activate"_s), 1);
  page->Unload();
}

TEST(Form, ShowModal_DialogInADialog_ReturnsInOrder) {
  const Frame frame;
  auto* outer = new Page(u"Outer"_s);
  QTimer::singleShot(0, outer, [outer] {
    ShowAndClose(new Page(u"Inner"_s), OpenedBy::ActiveScreen);
    Log() << u"inner returned"_s;
    outer->Unload();
  });
  outer->Show(ShowMode::Modal);
  const QStringList expected{u"Outer load"_s,     u"Outer activate"_s, u"Inner load"_s,
                             u"Inner activate"_s, u"Inner query"_s,    u"Inner unload"_s,
                             u"inner returned"_s, u"Outer query"_s,    u"Outer unload"_s};
  EXPECT_EQ(Log(), expected);
}

TEST(Form, ShowModal_ClosedInItsActivation_Returns) {
  const Frame frame;
  class Hasty final : public Form {
   public:
    Hasty() : Form(u"Hasty"_s, u"Hasty"_s) {}

   protected:
    void OnActivate() override { Unload(); }
  };
  const QPointer<Form> hasty(new Hasty);
  hasty->Show(ShowMode::Modal);
  EXPECT_TRUE(QTest::qWaitFor([&] { return hasty.isNull(); }));
  EXPECT_EQ(OpenNames(), QStringList({u"Main"_s}));
}

TEST(Form, Show_FocusElsewhere_GoesToTheFirstBox) {
  Frame frame;
  QLineEdit outside(&frame);
  outside.show();
  outside.setFocus();
  auto* page = new Page;
  page->Show();
  EXPECT_TRUE(page->box->hasFocus());
  page->Unload();
}

TEST(Form, SetInnerSize_LayoutWantsMore_KeepsTheSizeGiven) {
  const Frame frame;
  auto* page = new Page;
  auto* rows = new QVBoxLayout(page);
  auto* wide = new QPlainTextEdit(page);
  rows->addWidget(wide);
  page->SetInnerSize(3000, 1500);
  page->Show();
  EXPECT_EQ(page->size(), QSize(Pixels(3000), Pixels(1500)));
  page->Unload();
}

TEST(Form, LetRepaint_WindowUncovered_PaintsItAndClosesNothing) {
  class Painted final : public QWidget {
   public:
    int paints = 0;

   protected:
    void paintEvent(QPaintEvent* /*event*/) override { ++paints; }
  };
  const Frame frame;
  auto* page = new Page;
  page->Show();
  Painted painted;
  painted.show();
  EXPECT_TRUE(QTest::qWaitFor([&] { return painted.paints > 0; }));
  const int before = painted.paints;
  painted.update();
  bool closed = true;
  QTimer::singleShot(0, page, [&] { closed = frame.area->currentSubWindow()->close(); });
  // As long work does: again and again, until the platform has sent the paint.
  QElapsedTimer waited;
  for (waited.start(); painted.paints == before && waited.elapsed() < 5000;) LetRepaint();
  EXPECT_GT(painted.paints, before);
  EXPECT_FALSE(closed);
  EXPECT_TRUE(page->isVisible());
  EXPECT_FALSE(IsRepainting());
  page->Unload();
}

TEST(Form, PlaceInFrame_BelowTheEdge_IsKeptInside) {
  const Frame frame;
  auto* page = new Page;
  page->SetInnerSize(3000, 1500);
  page->PlaceInFrame(0, 90000);
  page->Show();
  const QRect room = frame.area->viewport()->rect();
  EXPECT_TRUE(room.contains(frame.area->currentSubWindow()->geometry()));
  page->Unload();
}

}  // namespace
}  // namespace velmora::ui
