// SPDX-License-Identifier: MIT
#include "base/system/Clock.h"
#include "forms/Notice.h"
#include "forms/Screen.h"
#include "forms/TextBox.h"
#include "tests/support/TestWindow.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace velmora::ui {
namespace {

using namespace Qt::StringLiterals;

class NoticeTest : public WindowTest {
 protected:
  NoticeTest() {
    Clock::Set([this] { return m_now; });
  }
  ~NoticeTest() override {
    DropNotice();
    SetNoticeStrip(nullptr);
    Clock::Set({});
  }
  void SetUp() override {
    m_box->setGeometry(40, 100, 200, 24);
    Show();
    m_box->SetFocus();
  }
  /// The label of the notice in view; null when there is none.
  [[nodiscard]] static QLabel* LabelOn(const QWidget& window) {
    for (auto* label : window.findChildren<QLabel*>(u"Notice"_s)) {
      if (label->isVisible()) return label;
    }
    return nullptr;
  }
  void NotifyAndSettle(const QString& text, NoticeLife life = NoticeLife::Seconds) {
    Notify(m_box, text, life);
    QApplication::processEvents();
  }
  /// Waits for the next look at the notice that stands or waits.
  [[nodiscard]] static bool IsLookedAt() {
    return QSignalSpy(qApp->findChild<QTimer*>(u"NoticeLooks"_s), &QTimer::timeout).wait();
  }
  [[nodiscard]] static bool Goes() {
    return QTest::qWaitFor([] { return NoticeInView().isEmpty(); });
  }

  QDateTime m_now{QDate(2026, 3, 14), QTime(10, 0)};
  TextBox* m_box = new TextBox(&m_window);
};

TEST_F(NoticeTest, Notify_AboutABox_StandsBesideItInItsWindow) {
  Notify(m_box, u"The 30th of February is no date."_s);
  const QLabel* label = LabelOn(m_window);
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->text(), u"The 30th of February is no date."_s);
  EXPECT_EQ(NoticeInView(), label->text());
  EXPECT_TRUE(m_window.rect().contains(label->geometry()));
  EXPECT_FALSE(label->geometry().intersects(m_box->geometry()));
  EXPECT_LE(label->y() - m_box->geometry().bottom(), 10);
}

TEST_F(NoticeTest, Notify_LongTextInANarrowWindow_IsBrokenIntoLinesThatAllShow) {
  m_window.resize(260, 300);
  Notify(m_box, u"The name is longer than the sixty characters that the column of this field can hold."_s);
  const QLabel* label = LabelOn(m_window);
  ASSERT_NE(label, nullptr);
  EXPECT_TRUE(m_window.rect().contains(label->geometry()));
  EXPECT_GE(label->height(), label->heightForWidth(label->width()));
}

TEST_F(NoticeTest, Notify_ScreenReachesBeyondItsWindow_StandsWhereItIsSeen) {
  class Page final : public QWidget, public Screen {
   public:
    using QWidget::QWidget;
    QString ScreenName() const override { return u"Page"_s; }
    bool Unload() override { return false; }
  };
  Page page(&m_window);
  page.setGeometry(300, 50, 900, 900);
  TextBox box(&page);
  box.setGeometry(200, 200, 300, 24);
  page.show();
  Notify(&box, u"The name is longer than the sixty characters that the column of this field can hold."_s);
  const QLabel* label = LabelOn(page);
  ASSERT_NE(label, nullptr);
  const QRect onWindow(label->mapTo(&m_window, QPoint()), label->size());
  EXPECT_TRUE(m_window.rect().contains(onWindow));
}

TEST_F(NoticeTest, Notify_WhileTyping_TakesNoFocusAndNoKey) {
  NotifyAndSettle(u"Digits only."_s);
  EXPECT_TRUE(m_box->hasFocus());
  QTest::keyClick(m_box, Qt::Key_7);
  EXPECT_EQ(m_box->Text(), u"7"_s);
  EXPECT_EQ(LabelOn(m_window), nullptr);
}

TEST_F(NoticeTest, Notify_RepeatsAndModifiers_DoNotEndIt) {
  NotifyAndSettle(u"Digits only."_s);
  QKeyEvent repeat(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, u"a"_s, true);
  QApplication::sendEvent(m_box, &repeat);
  QTest::keyPress(m_box, Qt::Key_Shift);
  EXPECT_EQ(NoticeInView(), u"Digits only."_s);
}

TEST_F(NoticeTest, Notify_BroughtByAKey_OutlivesThatKey) {
  // The box leaves the key to its window, and the filter of notices sees it once more on its way up.
  QObject::connect(m_box, &TextBox::KeyPress, m_box, [this] { Notify(m_box, u"No letters."_s); });
  m_box->SetLocked(true);
  QTest::keyClick(m_box, Qt::Key_A);
  EXPECT_EQ(NoticeInView(), u"No letters."_s);
}

TEST_F(NoticeTest, Notify_Click_GoesThroughIt) {
  TextBox below(&m_window);
  below.setGeometry(40, 126, 200, 24);
  below.show();
  NotifyAndSettle(u"Digits only."_s);
  ASSERT_TRUE(LabelOn(m_window)->geometry().contains(50, 138));
  QTest::mouseClick(m_window.windowHandle(), Qt::LeftButton, {}, QPoint(50, 138));
  EXPECT_TRUE(below.hasFocus());
  EXPECT_EQ(NoticeInView(), u"Digits only."_s);
}

TEST_F(NoticeTest, Notify_AfterSomeSecondsByTheClock_Goes) {
  NotifyAndSettle(u"Digits only."_s);
  m_now = m_now.addSecs(4);
  EXPECT_TRUE(IsLookedAt());
  EXPECT_EQ(NoticeInView(), u"Digits only."_s);
  m_now = m_now.addSecs(5);
  EXPECT_TRUE(Goes());
}

TEST_F(NoticeTest, Notify_UntilKey_OutlivesTheSeconds) {
  NotifyAndSettle(u"There is no such file."_s, NoticeLife::UntilKey);
  m_now = m_now.addSecs(3600);
  EXPECT_TRUE(IsLookedAt());
  EXPECT_EQ(NoticeInView(), u"There is no such file."_s);
  QTest::keyClick(m_box, Qt::Key_7);
  EXPECT_EQ(NoticeInView(), QString());
}

TEST_F(NoticeTest, Notify_ANewerOne_TakesItsPlace) {
  Notify(m_box, u"one"_s);
  Notify(m_box, u"two"_s);
  EXPECT_EQ(NoticeInView(), u"two"_s);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(m_window.findChildren<QLabel*>(u"Notice"_s).size(), 1);
}

TEST_F(NoticeTest, Notify_UnderAModalDialog_WaitsUntilItIsGone) {
  auto dialog = std::make_unique<QDialog>(&m_window);
  dialog->setModal(true);
  dialog->open();
  Notify(m_box, u"Digits only."_s);
  EXPECT_EQ(NoticeInView(), QString());
  QTest::keyClick(dialog.get(), Qt::Key_A);
  m_now = m_now.addSecs(60);
  EXPECT_TRUE(IsLookedAt());
  EXPECT_EQ(NoticeInView(), QString());
  dialog.reset();
  EXPECT_TRUE(QTest::qWaitFor([] { return NoticeInView() == u"Digits only."_s; }));
}

TEST_F(NoticeTest, Notify_ModalDialogComesOverIt_WaitsAgain) {
  NotifyAndSettle(u"Digits only."_s);
  auto dialog = std::make_unique<QDialog>(&m_window);
  dialog->setModal(true);
  dialog->open();
  EXPECT_TRUE(Goes());
  dialog.reset();
  EXPECT_TRUE(QTest::qWaitFor([] { return NoticeInView() == u"Digits only."_s; }));
}

TEST_F(NoticeTest, Notify_AboutABoxOfTheDialog_ShowsAtOnce) {
  QDialog dialog(&m_window);
  TextBox box(&dialog);
  dialog.setModal(true);
  dialog.open();
  Notify(&box, u"Digits only."_s);
  EXPECT_NE(LabelOn(dialog), nullptr);
}

TEST_F(NoticeTest, Notify_ItsControlIsHiddenOrFreed_Goes) {
  NotifyAndSettle(u"Digits only."_s);
  m_box->hide();
  EXPECT_EQ(NoticeInView(), QString());
  m_box->show();
  NotifyAndSettle(u"Digits only."_s);
  delete m_box;
  EXPECT_EQ(NoticeInView(), QString());
}

TEST_F(NoticeTest, Notify_AboutABoxOutOfSight_StandsAtTheFootOfItsScreen) {
  m_box->hide();
  Notify(m_box, u"Digits only."_s);
  const QLabel* label = LabelOn(m_window);
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->geometry().bottom(), m_window.rect().bottom());
}

TEST_F(NoticeTest, Notify_AboutNothing_StandsInTheStrip) {
  QWidget strip(&m_window);
  strip.setGeometry(0, 0, 600, 60);
  strip.show();
  SetNoticeStrip(&strip);
  Notify(u"There is no file open."_s);
  const QLabel* label = LabelOn(strip);
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->geometry().bottom(), strip.rect().bottom());
}

TEST_F(NoticeTest, SetNoticeStrip_TheFrameGoes_TakesTheNoticeAlong) {
  QWidget strip(&m_window);
  strip.show();
  SetNoticeStrip(&strip);
  Notify(u"There is no file open."_s);
  ASSERT_FALSE(NoticeInView().isEmpty());
  SetNoticeStrip(nullptr);
  EXPECT_EQ(NoticeInView(), QString());
}

TEST_F(NoticeTest, Notify_AboutNothingWithoutAStrip_ShowsNothing) {
  Notify(u"There is no file open."_s);
  EXPECT_EQ(NoticeInView(), QString());
}

/// Reads what a notice says at the moment in which it is shown.
class AtItsShow final : public QObject {
 public:
  AtItsShow() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* target, QEvent* event) override {
    const auto* label = qobject_cast<QLabel*>(target);
    if (event->type() == QEvent::Show && label != nullptr && label->objectName() == u"Notice"_s)
      Said = label->accessibleName() + label->text();
    return false;
  }
  std::optional<QString> Said;
};

TEST_F(NoticeTest, Notify_HeardNotSeen_IsAnAlertThatGetsItsWordsWhenItIsThere) {
  const AtItsShow atItsShow;
  Notify(m_box, u"Digits only."_s);
  EXPECT_EQ(atItsShow.Said, QString());
  QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(LabelOn(m_window));
  ASSERT_NE(heard, nullptr);
  EXPECT_EQ(heard->role(), QAccessible::AlertMessage);
  EXPECT_EQ(heard->text(QAccessible::Name), u"Digits only."_s);
}

}  // namespace
}  // namespace velmora::ui
