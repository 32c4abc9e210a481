// SPDX-License-Identifier: MIT
// What the window of the help owes its users, as every screen of the program does.
#include "help/HelpPanel.h"
#include "help/HelpWindow.h"
#include "tests/help/HelpFixture.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QToolBar>
#include <QtTest>

#include <map>
#include <set>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class HelpConformanceTest : public HelpFixture, public testing::WithParamInterface<int> {
 protected:
  HelpConformanceTest() {
    Show();
    m_window->findChild<HelpPanel*>()->GoTo(static_cast<HelpPanel::Tab>(GetParam()));
  }
  [[nodiscard]] bool TakesFocus(const QWidget& widget, Qt::FocusPolicy policy) const {
    return (widget.focusPolicy() & policy) == policy && widget.focusProxy() == nullptr &&
           !widget.isWindow() && widget.isVisibleTo(m_window.get()) && widget.isEnabled();
  }
  static void Enter(std::map<QString, std::vector<QString>>& owners, const QKeySequence& keys,
                    const QString& owner) {
    if (!keys.isEmpty()) owners[keys.toString()].push_back(owner);
  }
};

TEST_P(HelpConformanceTest, Controls_ThatTakeTheFocus_HaveASpokenName) {
  int named = 0;
  for (QWidget* widget : m_window->findChildren<QWidget*>()) {
    if (!TakesFocus(*widget, Qt::TabFocus)) continue;
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(spoken, nullptr);
    // The bar of the tabs is spoken tab by tab.
    if (qobject_cast<QTabBar*>(widget) != nullptr) continue;
    EXPECT_FALSE(spoken->text(QAccessible::Name).trimmed().isEmpty())
        << widget->metaObject()->className() << " " << widget->objectName().toStdString();
    ++named;
  }
  EXPECT_GE(named, 2);
}

TEST_P(HelpConformanceTest, Tab_FromThePanel_ReachesEachAndEndsInThePage) {
  std::set<QWidget*> expected;
  for (QWidget* widget : m_window->findChildren<QWidget*>())
    if (TakesFocus(*widget, Qt::TabFocus)) expected.insert(widget);
  m_window->findChild<QTabBar*>()->setFocus();
  std::set<QWidget*> reached;
  std::string order;
  // In the page the key goes from link to link.
  while (QApplication::focusWidget() != nullptr && reached.insert(QApplication::focusWidget()).second) {
    order += QApplication::focusWidget()->objectName().toStdString() + " ";
    if (QApplication::focusWidget()->objectName() == u"Page"_s) break;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(reached, expected) << order;
}

TEST_P(HelpConformanceTest, AccessKeysAndShortcuts_AreUnique) {
  std::map<QString, std::vector<QString>> owners;
  for (const QAction* menu : m_window->menuBar()->actions()) {
    Enter(owners, QKeySequence::mnemonic(menu->text()), menu->text());
    std::map<QString, std::vector<QString>> inMenu;
    for (const QAction* entry : menu->menu()->actions()) {
      Enter(inMenu, QKeySequence::mnemonic(entry->text()), entry->text());
      for (const QKeySequence& keys : entry->shortcuts()) Enter(owners, keys, entry->text());
      EXPECT_TRUE(entry->isSeparator() || entry->text().contains(u'&')) << entry->text().toStdString();
    }
    for (const auto& [keys, holders] : inMenu)
      EXPECT_EQ(holders.size(), 1U) << keys.toStdString() << " in " << menu->text().toStdString();
  }
  const auto* tabs = m_window->findChild<QTabBar*>();
  for (int i = 0; i < tabs->count(); ++i)
    Enter(owners, QKeySequence::mnemonic(tabs->tabText(i)), tabs->tabText(i));
  for (const QLabel* label : m_window->findChildren<QLabel*>())
    if (label->isVisibleTo(m_window.get()) && label->buddy() != nullptr)
      Enter(owners, QKeySequence::mnemonic(label->text()), label->text());
  for (const QAbstractButton* button : m_window->findChildren<QAbstractButton*>())
    if (button->isVisibleTo(m_window.get())) Enter(owners, button->shortcut(), button->text());
  EXPECT_GE(owners.size(), 15U);
  for (const auto& [keys, holders] : owners)
    EXPECT_EQ(holders.size(), 1U) << keys.toStdString() << ": " << holders.front().toStdString();
}

TEST_P(HelpConformanceTest, Escape_ClosesTheWindow) {
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(m_window->isVisible());
}

INSTANTIATE_TEST_SUITE_P(Tabs, HelpConformanceTest,
                         testing::Values(HelpPanel::ContentsTab, HelpPanel::IndexTab,
                                         HelpPanel::SearchingTab));

}  // namespace
}  // namespace velmora
