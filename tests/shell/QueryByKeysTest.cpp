// SPDX-License-Identifier: MIT
#include "cards/ShowTable.h"
#include "controls/MyToolBarCtrl.h"
#include "forms/FlexGrid.h"
#include "forms/Screen.h"
#include "forms/TextBox.h"
#include "frame/Session.h"
#include "queries/QueryN.h"
#include "queries/ResultQuery.h"
#include "queries/SelectFields.h"
#include "queries/SelectQ.h"
#include "resources/strings.h"
#include "tests/shell/MainFixture.h"

#include <QtTest>

#include <deque>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

/// A person who has a keyboard and nothing else.
class QueryByKeysTest : public MainFixture {
 protected:
  static void Key(Qt::Key key) {
    ASSERT_NE(QApplication::focusWidget(), nullptr) << "nothing has the focus";
    QTest::keyClick(QApplication::focusWidget(), key);
  }
  static void TypeText(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
  /// Presses a key until a control has the focus.
  static void KeyUntil(Qt::Key key, const std::function<bool(const QWidget&)>& there) {
    for (int steps = 0; steps < 50; ++steps) {
      ASSERT_NE(QApplication::focusWidget(), nullptr) << "nothing has the focus";
      if (there(*QApplication::focusWidget())) return;
      Key(key);
    }
    FAIL() << "not reached; the focus is on " << QApplication::focusWidget()->objectName().toStdString();
  }
  static void TabTo(const QString& control) {
    SCOPED_TRACE(control.toStdString());
    KeyUntil(Qt::Key_Tab, [&control](const QWidget& focused) { return focused.objectName() == control; });
  }
  /// Runs each step when its screen is in front and holds the focus: a dialog's while it is open.
  template <typename Screen>
  void When(const std::function<void()>& step) {
    m_steps.push_back({[] {
                         const QWidget* focused = QApplication::focusWidget();
                         for (ui::Screen* open : ui::Forms()) {
                           const auto* found = dynamic_cast<Screen*>(open);
                           if (found != nullptr && focused != nullptr && found->isAncestorOf(focused))
                             return true;
                         }
                         return false;
                       },
                       step});
  }
  void RunSteps() {
    WaitForStep();
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_done; }, 20000)) << m_steps.size() << " steps left";
  }

 private:
  struct Step {
    std::function<bool()> IsDue;
    std::function<void()> Work;
  };

  /// A timer for each step, as none fires again within its own handler, where a dialog may stay open.
  void WaitForStep() {
    auto* timer = new QTimer(m_main.get());
    QObject::connect(timer, &QTimer::timeout, m_main.get(), [this, timer] {
      // What a window manager does when a dialog has gone.
      if (QApplication::activeWindow() == nullptr) QApplication::setActiveWindow(m_main.get());
      if (!m_steps.front().IsDue()) return;
      timer->deleteLater();
      timer->stop();
      const std::function<void()> work = m_steps.front().Work;
      m_steps.pop_front();
      const bool last = m_steps.empty();
      if (!last) WaitForStep();
      if (!HasFailure()) work();
      m_done = m_done || last;
    });
    timer->start();
  }

  std::deque<Step> m_steps;
  bool m_done = false;
};

TEST_F(QueryByKeysTest, FromTheToolbarToTheCard_NeedsNoMouse) {
  Main& frame = StartOn(MakeFile(u"a.ddb"_s, {1, 2, 5}));
  QApplication::setActiveWindow(&frame);
  When<ShowTable>([] {
    KeyUntil(Qt::Key_F6, [](const QWidget& focused) {
      return focused.parentWidget() != nullptr && focused.parentWidget()->objectName() == u"tool"_s;
    });
    KeyUntil(Qt::Key_Right,
             [](const QWidget& focused) { return focused.toolTip() == strings::tools::Queries.View(); });
    Key(Qt::Key_Return);
  });
  When<QueryN>([] {
    TabTo(u"butField(0)"_s);
    Key(Qt::Key_Space);
  });
  When<SelectQ>([] {
    TabTo(u"txtSelect(0)"_s);
    TypeText(u"d"_s);
    TabTo(u"Command1"_s);
    Key(Qt::Key_Space);
  });
  When<QueryN>([] {
    TabTo(u"EditData"_s);
    Key(Qt::Key_Space);
  });
  When<SelectFields>([] {
    TabTo(u"List1"_s);
    Key(Qt::Key_Down);
    Key(Qt::Key_Space);
    TabTo(u"addItem"_s);
    Key(Qt::Key_Space);
    TabTo(u"NameQuery"_s);
    TypeText(u"By keys"_s);
    TabTo(u"Ok"_s);
    Key(Qt::Key_Space);
  });
  When<ResultQuery>([this] {
    const auto& grid = Find<ui::FlexGrid>(u"MyFlex"_s);
    EXPECT_EQ(grid.Rows(), 4);
    EXPECT_EQ(grid.TextMatrix(0, 2), u"City"_s);
    TabTo(u"lstOrder(0)"_s);
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    TabTo(u"optA"_s);
    Key(Qt::Key_Down);
    TabTo(u"cmdMakeOrder"_s);
    Key(Qt::Key_Space);
    TabTo(u"MyFlex"_s);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.TextMatrix(1, 0), u"5"_s);
    Key(Qt::Key_Return);
  });
  RunSteps();
  EXPECT_EQ(Global().CurCard, 5);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ShowTable"_s}));
  EXPECT_EQ(Find<ui::TextBox>(u"NameRecord"_s).Text(), u"Card 5"_s);
  EXPECT_EQ(frame.LastQuery(), u"By keys&"_s);
}

}  // namespace
}  // namespace velmora
