// SPDX-License-Identifier: MIT
#include "base/system/Clock.h"
#include "controls/TCount.h"
#include "controls/TimeSteps.h"
#include "controls/TimeTn.h"
#include "tests/support/TestWindow.h"

#include <QLocale>
#include <QtTest>

#include <gtest/gtest.h>

#include <chrono>
#include <stdexcept>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

const QDateTime fixedNow(QDate(2026, 3, 14), QTime(10, 46, 26));
const QDate someDay(2026, 3, 14);

class TimeEntryTest : public WindowTest {
 protected:
  TimeEntryTest() {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    Clock::Set([] { return fixedNow; });
  }
  ~TimeEntryTest() override { Clock::Set({}); }
  void SetUp() override { Show(); }

  template <typename T>
  T& Made() {
    auto* entry = new T(&m_window);
    entry->show();
    return *entry;
  }
  TimeTn& ATimeAt(int hour, int minute, int second = 0) {
    auto& time = Made<TimeTn>();
    time.SetValue(QDateTime(someDay, QTime(hour, minute, second)));
    return time;
  }
  TCount& ALength(const QString& value) {
    auto& length = Made<TCount>();
    length.SetValue(value);
    return length;
  }

  static ui::SSCommand& Button(TimeFace& entry, const QString& name) {
    auto* button = entry.findChild<ui::SSCommand*>(name);
    if (button == nullptr) throw std::runtime_error("no such button");
    return *button;
  }
  static void Press(TimeFace& entry, const QString& name) {
    QTest::mouseClick(&Button(entry, name), Qt::LeftButton);
  }
  static QString Face(TimeFace& entry) { return Button(entry, u"Minutes"_s).Caption(); }

  /// Holds a button as long as a clock of the test's own says: its timer fires when that clock comes to it.
  static void Hold(TimeFace& entry, const QString& name, std::chrono::milliseconds length) {
    auto* timer = entry.findChild<QTimer*>(u"Timer1"_s);
    ASSERT_NE(timer, nullptr);
    ui::SSCommand& button = Button(entry, name);
    QTest::mousePress(&button, Qt::LeftButton);
    const bool runs = timer->isActive();
    const std::chrono::milliseconds interval = timer->intervalAsDuration();
    timer->setInterval(24h);
    for (auto now = interval; runs && now <= length; now += interval) {
      ASSERT_TRUE(QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection));
    }
    timer->setInterval(interval);
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_FALSE(timer->isActive());
  }
};

TEST(TimeStepsTest, QuarterAbove_EveryMinute_StaysWithinTheHour) {
  for (int minute = 0; minute < 60; ++minute) {
    const int target = minute < 15 ? 15 : minute < 30 ? 30 : minute < 45 ? 45 : 0;
    EXPECT_EQ(QuarterAbove(minute), target) << minute;
  }
}

TEST(TimeStepsTest, QuarterBelow_EveryMinute_HasThreeThatStay) {
  for (int minute = 0; minute < 60; ++minute) {
    int target = 45;
    if (minute == 16 || minute == 31 || minute == 46) {
      target = minute;
    } else if (minute >= 1 && minute <= 15) {
      target = 0;
    } else if (minute >= 17 && minute <= 30) {
      target = 15;
    } else if (minute >= 32 && minute <= 45) {
      target = 30;
    }
    EXPECT_EQ(QuarterBelow(minute), target) << minute;
  }
}

TEST_F(TimeEntryTest, TimeTn_AtTheStart_ShowsThePresentMinuteOfNoDay) {
  auto& time = Made<TimeTn>();
  EXPECT_EQ(time.Value(), QDateTime(QDate(1899, 12, 30), QTime(10, 46)));
  EXPECT_EQ(Face(time), u"10:46"_s);
  EXPECT_FALSE(time.ShowSeconds());
}

TEST_F(TimeEntryTest, TimeTn_cmdQuDownAt1046_Stays) {
  TimeTn& time = ATimeAt(10, 46);
  Press(time, u"cmdQuDown"_s);
  EXPECT_EQ(Face(time), u"10:46"_s);
}

TEST_F(TimeEntryTest, TimeTn_cmdQuDown_LeadsBelowAndRound) {
  for (const int minute : {47, 0}) {
    TimeTn& time = ATimeAt(10, minute);
    Press(time, u"cmdQuDown"_s);
    EXPECT_EQ(Face(time), u"10:45"_s);
  }
}

TEST_F(TimeEntryTest, TimeTn_cmdQuUpAt2350_GoesBackToTheFullHourOfTheSameDay) {
  TimeTn& time = ATimeAt(23, 50, 12);
  Press(time, u"cmdQuUp"_s);
  EXPECT_EQ(time.Value(), QDateTime(someDay, QTime(23, 0, 12)));
}

TEST_F(TimeEntryTest, TimeTn_MinutesAndHours_CarryIntoTheDate) {
  TimeTn& time = ATimeAt(23, 59);
  Press(time, u"cmdMinUp"_s);
  EXPECT_EQ(time.Value(), QDateTime(someDay.addDays(1), QTime(0, 0)));
  EXPECT_EQ(Face(time), u"00:00"_s);
  Press(time, u"cmdHoDown"_s);
  EXPECT_EQ(time.Value(), QDateTime(someDay, QTime(23, 0)));
  Press(time, u"cmdHoUp"_s);
  Press(time, u"cmdMinDown"_s);
  EXPECT_EQ(time.Value(), QDateTime(someDay, QTime(23, 59)));
}

TEST_F(TimeEntryTest, TimeTn_HourButtonClicked_MakesOneStep) {
  TimeTn& time = ATimeAt(10, 0);
  Press(time, u"cmdHoUp"_s);
  EXPECT_EQ(Face(time), u"11:00"_s);
  EXPECT_FALSE(time.Repeated());
  EXPECT_TRUE(time.RepeatUp());
}

TEST_F(TimeEntryTest, TimeTn_HourButtonHeldFor400Milliseconds_MakesTwoStepsAndNoneByTheClick) {
  TimeTn& time = ATimeAt(10, 0);
  Hold(time, u"cmdHoUp"_s, 400ms);
  EXPECT_EQ(Face(time), u"12:00"_s);
  EXPECT_FALSE(time.Repeated());
  Hold(time, u"cmdHoDown"_s, 400ms);
  EXPECT_EQ(Face(time), u"10:00"_s);
  EXPECT_FALSE(time.RepeatUp());
  Hold(time, u"cmdHoDown"_s, 100ms);
  EXPECT_EQ(Face(time), u"09:00"_s);
}

TEST_F(TimeEntryTest, Timer1_ReallyHeld_TicksEvery150Milliseconds) {
  TimeTn& time = ATimeAt(10, 0);
  auto* timer = time.findChild<QTimer*>(u"Timer1"_s);
  EXPECT_EQ(timer->interval(), 150);
  EXPECT_FALSE(timer->isActive());
  QTest::mousePress(&Button(time, u"cmdHoUp"_s), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&time] { return time.Repeated(); }));
  QTest::mouseRelease(&Button(time, u"cmdHoUp"_s), Qt::LeftButton);
  EXPECT_FALSE(timer->isActive());
}

TEST_F(TimeEntryTest, TimeTn_MinuteAndQuarterButtonsHeld_DoNotRepeat) {
  for (const auto& name : {u"cmdMinUp"_s, u"cmdMinDown"_s, u"cmdQuUp"_s, u"cmdQuDown"_s}) {
    TimeTn& time = ATimeAt(10, 30);
    QTest::mousePress(&Button(time, name), Qt::LeftButton);
    EXPECT_FALSE(time.findChild<QTimer*>(u"Timer1"_s)->isActive());
    QTest::mouseRelease(&Button(time, name), Qt::LeftButton);
  }
}

TEST_F(TimeEntryTest, TimeTn_ReleasedBesideTheButton_LeavesTheNextClickItsStep) {
  TimeTn& time = ATimeAt(10, 0);
  ui::SSCommand& button = Button(time, u"cmdHoUp"_s);
  QTest::mousePress(&button, Qt::LeftButton);
  QMetaObject::invokeMethod(time.findChild<QTimer*>(u"Timer1"_s), "timeout", Qt::DirectConnection);
  const QPoint beside(-20, -20);
  QMouseEvent move(QEvent::MouseMove, beside, button.mapToGlobal(beside), Qt::NoButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(&button, &move);
  QTest::mouseRelease(&button, Qt::LeftButton, {}, beside);
  EXPECT_EQ(Face(time), u"11:00"_s);
  EXPECT_FALSE(time.findChild<QTimer*>(u"Timer1"_s)->isActive());
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(Face(time), u"12:00"_s);
}

TEST_F(TimeEntryTest, TimeTn_FaceClicked_ShowsAndHidesSeconds) {
  TimeTn& time = ATimeAt(15, 9, 26);
  Press(time, u"Minutes"_s);
  EXPECT_TRUE(time.ShowSeconds());
  EXPECT_EQ(Face(time), u"03:09:26 PM"_s);
  Press(time, u"cmdMinUp"_s);
  EXPECT_EQ(Face(time), u"03:10:26 PM"_s);
  Press(time, u"Minutes"_s);
  EXPECT_EQ(Face(time), u"15:10"_s);
}

TEST_F(TimeEntryTest, TimeTn_ValueSet_ShowsHoursAndMinutesWhateverTheFace) {
  TimeTn& time = ATimeAt(15, 9, 26);
  Press(time, u"Minutes"_s);
  time.SetValue(QDateTime(someDay, QTime(8, 7, 6)));
  EXPECT_EQ(Face(time), u"08:07"_s);
  EXPECT_TRUE(time.ShowSeconds());
  EXPECT_EQ(time.Value(), QDateTime(someDay, QTime(8, 7, 6)));
}

TEST_F(TimeEntryTest, TimeTn_cmdNull_TakesThePresentMomentWithSeconds) {
  TimeTn& time = ATimeAt(1, 2);
  Press(time, u"cmdNull"_s);
  EXPECT_EQ(time.Value(), fixedNow);
  EXPECT_EQ(Face(time), u"10:46"_s);
}

TEST_F(TimeEntryTest, TCount_AtTheStart_IsNothing) {
  auto& length = Made<TCount>();
  EXPECT_EQ(length.Value(), u"00:00"_s);
  EXPECT_EQ(Face(length), u"00:00"_s);
}

TEST_F(TimeEntryTest, TCount_cmdHoDownHeldAtNothing_ChangesNothing) {
  TCount& length = ALength(u"00:00"_s);
  Hold(length, u"cmdHoDown"_s, 400ms);
  EXPECT_EQ(length.Value(), u"00:00"_s);
  EXPECT_FALSE(length.Repeated());
  Press(length, u"cmdMinDown"_s);
  EXPECT_EQ(length.Value(), u"00:00"_s);
}

TEST_F(TimeEntryTest, TCount_TickDownAtNothing_DoesNotCountAsARepeat) {
  TCount& length = ALength(u"00:00"_s);
  QTest::mousePress(&Button(length, u"cmdHoDown"_s), Qt::LeftButton);
  QMetaObject::invokeMethod(length.findChild<QTimer*>(u"Timer1"_s), "timeout", Qt::DirectConnection);
  EXPECT_FALSE(length.Repeated());
  QTest::mouseRelease(&Button(length, u"cmdHoDown"_s), Qt::LeftButton);
}

TEST_F(TimeEntryTest, TCount_cmdHoDownAtHalfAnHour_GoesRound) {
  TCount& length = ALength(u"00:30"_s);
  Press(length, u"cmdHoDown"_s);
  EXPECT_EQ(length.Value(), u"23:30"_s);
}

TEST_F(TimeEntryTest, TCount_cmdHoDownHeldFrom0200_StopsAtNothing) {
  TCount& length = ALength(u"02:00"_s);
  Hold(length, u"cmdHoDown"_s, 1000ms);
  EXPECT_EQ(length.Value(), u"00:00"_s);
}

TEST_F(TimeEntryTest, TCount_cmdMinUpAt2359_GoesRound) {
  TCount& length = ALength(u"23:59"_s);
  Press(length, u"cmdMinUp"_s);
  EXPECT_EQ(length.Value(), u"00:00"_s);
}

TEST_F(TimeEntryTest, TCount_Quarters_GoByTheSameTables) {
  TCount& length = ALength(u"00:00"_s);
  Press(length, u"cmdQuDown"_s);
  EXPECT_EQ(length.Value(), u"00:45"_s);
  Press(length, u"cmdQuUp"_s);
  EXPECT_EQ(length.Value(), u"00:00"_s);
  length.SetValue(u"05:16"_s);
  Press(length, u"cmdQuDown"_s);
  EXPECT_EQ(length.Value(), u"05:16"_s);
}

TEST_F(TimeEntryTest, TCount_FaceClickedOrReset_KeepsItsFormAndTakesNothing) {
  TCount& length = ALength(u"05:16"_s);
  Press(length, u"Minutes"_s);
  EXPECT_EQ(Face(length), u"05:16"_s);
  Press(length, u"cmdNull"_s);
  EXPECT_EQ(length.Value(), u"00:00"_s);
}

TEST_F(TimeEntryTest, TCount_ValueSet_PassesThroughHoursAndMinutes) {
  TCount& length = ALength(u"7:5"_s);
  EXPECT_EQ(length.Value(), u"07:05"_s);
  length.SetValue(u"12:34:56"_s);
  EXPECT_EQ(length.Value(), u"12:34"_s);
  EXPECT_FALSE(length.SetValue(u"25:00"_s));
  EXPECT_EQ(length.Value(), u"12:34"_s);
}

TEST_F(TimeEntryTest, Keys_ArrowsPagesAndHome_StepAsTheButtonsDo) {
  TimeTn& time = ATimeAt(10, 30);
  time.SetFocus();
  auto* focus = time.findChild<QWidget*>(u"cmdTemp"_s);
  ASSERT_TRUE(focus->hasFocus());
  QTest::keyClick(focus, Qt::Key_Up);
  EXPECT_EQ(Face(time), u"10:31"_s);
  QTest::keyClick(focus, Qt::Key_Down);
  QTest::keyClick(focus, Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(Face(time), u"10:45"_s);
  QTest::keyClick(focus, Qt::Key_PageUp);
  EXPECT_EQ(Face(time), u"11:45"_s);
  QTest::keyClick(focus, Qt::Key_PageDown);
  QTest::keyClick(focus, Qt::Key_Space);
  EXPECT_EQ(Face(time), u"10:45:00 AM"_s);
  QTest::keyClick(focus, Qt::Key_Home);
  EXPECT_EQ(time.Value(), fixedNow);
}

TEST_F(TimeEntryTest, Focus_OfAnyButton_GoesToTheEmptyControlThatTellsTheTime) {
  TimeTn& time = ATimeAt(10, 30);
  auto* focus = time.findChild<QWidget*>(u"cmdTemp"_s);
  for (ui::SSCommand* button : time.findChildren<ui::SSCommand*>()) {
    focus->clearFocus();
    button->setFocus();
    EXPECT_TRUE(focus->hasFocus()) << button->objectName().toStdString();
    EXPECT_FALSE(button->accessibleName().isEmpty() && button->Caption().isEmpty());
  }
  Press(time, u"cmdMinUp"_s);
  EXPECT_EQ(focus->accessibleName(), Face(time));
}

}  // namespace
}  // namespace velmora
