// SPDX-License-Identifier: MIT
#include "forms/SSTab.h"
#include "forms/TextBox.h"
#include "tests/support/TestWindow.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTabBar>
#include <QVBoxLayout>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class SSTabTest : public WindowTest {
 protected:
  void SetUp() override {
    m_tabs->SetName(u"SSTab1"_s);
    auto* column = new QVBoxLayout(&m_window);
    column->addWidget(m_tabs);
    column->addWidget(m_outside);
    for (const QString& caption : {u"R&D"_s, u"&Contacts"_s, u"Cards"_s}) {
      const Ampersand ampersand = caption.startsWith(u'&') ? Ampersand::AccessKey : Ampersand::Plain;
      QWidget* page = m_tabs->AddPage(caption, ampersand);
      m_boxes += new TextBox(page);
      (new QVBoxLayout(page))->addWidget(m_boxes.last());
    }
    m_click.clear();
  }
  /// The tabs that were left, in order.
  QList<int> Left() const {
    QList<int> tabs;
    for (const QList<QVariant>& told : m_click) tabs += told.first().toInt();
    return tabs;
  }
  SSTab* m_tabs = new SSTab(&m_window);
  TextBox* m_outside = new TextBox(&m_window);
  QList<TextBox*> m_boxes;
  QSignalSpy m_click{m_tabs, &SSTab::Click};
};

TEST_F(SSTabTest, AddPage_First_IsInViewAndNotTold) {
  SSTab tabs(&m_window);
  QSignalSpy click(&tabs, &SSTab::Click);
  EXPECT_EQ(tabs.Tab(), -1);
  EXPECT_NE(tabs.AddPage(u"Cards"_s), nullptr);
  EXPECT_EQ(tabs.Tab(), 0);
  EXPECT_TRUE(click.isEmpty());
}

TEST_F(SSTabTest, AddPage_Captions_ReadBackAsGivenAndShowTheirAmpersands) {
  EXPECT_EQ(m_tabs->Tabs(), 3);
  EXPECT_EQ(m_tabs->TabCaption(0), u"R&D"_s);
  EXPECT_EQ(m_tabs->tabText(0), u"R&&D"_s);
  EXPECT_EQ(m_tabs->tabText(1), u"&Contacts"_s);
  EXPECT_EQ(m_tabs->TabCaption(3), QString());
  EXPECT_EQ(m_tabs->widget(1)->objectName(), u"SSTab1(1)"_s);
}

TEST_F(SSTabTest, SetTab_AnotherPage_IsInViewAndTellsTheOneBefore) {
  m_tabs->SetTab(2);
  EXPECT_EQ(m_tabs->Tab(), 2);
  m_tabs->SetTab(2);
  m_tabs->SetTab(1);
  EXPECT_EQ(Left(), QList({0, 2}));
}

TEST_F(SSTabTest, SetTab_NoSuchPage_ChangesNothing) {
  m_tabs->SetTab(1);
  m_tabs->SetTab(3);
  m_tabs->SetTab(-1);
  EXPECT_EQ(m_tabs->Tab(), 1);
  EXPECT_EQ(Left(), QList({0}));
}

TEST_F(SSTabTest, Mouse_ClickOnATab_BringsItsPageUp) {
  Show();
  QTest::mouseClick(m_tabs->tabBar(), Qt::LeftButton, {}, m_tabs->tabBar()->tabRect(2).center());
  EXPECT_EQ(m_tabs->Tab(), 2);
  EXPECT_TRUE(m_boxes[2]->isVisible());
  EXPECT_FALSE(m_boxes[0]->isVisible());
  EXPECT_EQ(Left(), QList({0}));
}

TEST_F(SSTabTest, PageKeys_FromInsideAndFromBesideThePages_TurnThemAndStopAtTheEnds) {
  Show();
  m_boxes[0]->SetFocus();
  QTest::keyClick(m_boxes[0], Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(m_tabs->Tab(), 1);
  m_outside->SetFocus();
  QTest::keyClick(m_outside, Qt::Key_PageDown, Qt::ControlModifier);
  QTest::keyClick(m_outside, Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(m_tabs->Tab(), 2);
  for (int i = 0; i < 3; ++i) QTest::keyClick(m_outside, Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(m_tabs->Tab(), 0);
}

TEST_F(SSTabTest, ArrowKeys_OnTheTabs_TurnThePages) {
  Show();
  m_tabs->SetFocus();
  ASSERT_EQ(QApplication::focusWidget(), m_tabs->tabBar());
  QTest::keyClick(m_tabs->tabBar(), Qt::Key_Right);
  EXPECT_EQ(m_tabs->Tab(), 1);
}

TEST_F(SSTabTest, AccessKey_OfACaption_BringsItsPageUp) {
  Show();
  m_boxes[0]->SetFocus();
  QTest::keyClick(m_boxes[0], Qt::Key_C, Qt::AltModifier);
  EXPECT_EQ(m_tabs->Tab(), 1);
}

TEST_F(SSTabTest, Click_HandlerGivesTheFocus_KeepsItThere) {
  QObject::connect(m_tabs, &SSTab::Click, m_tabs, [this] { m_boxes[m_tabs->Tab()]->SetFocus(); });
  Show();
  m_outside->SetFocus();
  m_tabs->SetTab(1);
  EXPECT_EQ(QApplication::focusWidget(), m_boxes[1]);
}

TEST_F(SSTabTest, Accessibility_Tabs_AreNamedByTheirCaptions) {
  Show();
  QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(m_tabs->tabBar());
  ASSERT_NE(bar, nullptr);
  EXPECT_EQ(bar->role(), QAccessible::PageTabList);
  EXPECT_EQ(bar->child(2)->text(QAccessible::Name), u"Cards"_s);
  EXPECT_EQ(m_tabs->widget(1)->accessibleName(), u"Contacts"_s);
}

}  // namespace
}  // namespace velmora::ui
