// SPDX-License-Identifier: MIT
#include "base/dates/Dates.h"
#include "base/system/Clock.h"
#include "controls/UpDate.h"
#include "forms/Palette.h"
#include "forms/ProgramLook.h"
#include "forms/TextBox.h"
#include "forms/Twips.h"
#include "tests/support/TestWindow.h"

#include <QLocale>
#include <QSignalSpy>
#include <QtTest>

#include <gtest/gtest.h>

#include <stdexcept>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

const QDateTime fixedNow(QDate(2026, 3, 14), QTime(15, 9, 26));

class UpDateTest : public WindowTest {
 protected:
  UpDateTest() {
    Clock::Set([] { return fixedNow; });
  }
  ~UpDateTest() override {
    Clock::Set({});
    ui::SetProgramScale(1.0);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  }
  void SetUp() override { Show(); }

  UpDate& Made() {
    auto* date = new UpDate(&m_window);
    date->show();
    return *date;
  }
  static ui::SSCommand& Button(UpDate& date, const QString& name) {
    auto* button = date.findChild<ui::SSCommand*>(name);
    if (button == nullptr) throw std::runtime_error("no such button");
    return *button;
  }
  static void Press(UpDate& date, const QString& name) {
    QTest::mouseClick(&Button(date, name), Qt::LeftButton);
  }
  static QString Face(UpDate& date) { return Button(date, u"DayM"_s).Caption(); }
  static QString WeekDay(UpDate& date) { return date.findChild<ui::SSPanel*>(u"DayWeek"_s)->Caption(); }
  static QWidget& Temp(UpDate& date) { return *date.findChild<QWidget*>(u"cmdTemp"_s); }
  /// The date after one press of a button.
  QDate After(QDate from, const QString& button) {
    UpDate& date = Made();
    date.SetValue(QDateTime(from, QTime(0, 0)));
    Press(date, button);
    return date.Value().date();
  }
};

TEST_F(UpDateTest, Start_AtOnce_ShowsTodayInItsSize) {
  UpDate& date = Made();
  EXPECT_EQ(date.Value().date(), QDate(2026, 3, 14));
  EXPECT_EQ(date.Width(), 2505);
  EXPECT_EQ(date.Height(), 1425);
  EXPECT_EQ(Face(date), ShortDate(QDate(2026, 3, 14)));
  EXPECT_EQ(WeekDay(date), u"Sat"_s);
}

TEST_F(UpDateTest, Face_ForEachWeekDay_NamesIt) {
  UpDate& date = Made();
  QStringList names;
  for (int day = 15; day <= 21; ++day) {
    date.SetValue(QDateTime(QDate(2026, 3, day), QTime(0, 0)));
    names << WeekDay(date);
  }
  EXPECT_EQ(names, (QStringList{u"Sun"_s, u"Mon"_s, u"Tue"_s, u"Wed"_s, u"Thu"_s, u"Fri"_s, u"Sat"_s}));
}

TEST_F(UpDateTest, DayButtons_AtTheEndsOfTheYear_CrossThem) {
  EXPECT_EQ(After({2026, 12, 31}, u"cmdDayUp"_s), QDate(2027, 1, 1));
  EXPECT_EQ(After({2026, 1, 1}, u"cmdDayDown"_s), QDate(2025, 12, 31));
  EXPECT_EQ(After({2024, 2, 28}, u"cmdDayUp"_s), QDate(2024, 2, 29));
}

TEST_F(UpDateTest, cmdMonthUp_January31_TakesTheLastOfFebruary) {
  EXPECT_EQ(After({2026, 1, 31}, u"cmdMonthUp"_s), QDate(2026, 2, 28));
  EXPECT_EQ(After({2024, 1, 31}, u"cmdMonthUp"_s), QDate(2024, 2, 29));
}

TEST_F(UpDateTest, cmdMonthDown_March31_TakesTheLastOfFebruary) {
  EXPECT_EQ(After({2026, 3, 31}, u"cmdMonthDown"_s), QDate(2026, 2, 28));
  EXPECT_EQ(After({2024, 3, 31}, u"cmdMonthDown"_s), QDate(2024, 2, 29));
}

TEST_F(UpDateTest, cmdYearUp_February29_TakesThe28th) {
  EXPECT_EQ(After({2000, 2, 29}, u"cmdYearUp"_s), QDate(2001, 2, 28));
  EXPECT_EQ(After({2000, 2, 29}, u"cmdYearDown"_s), QDate(1999, 2, 28));
}

TEST_F(UpDateTest, Buttons_BeyondTheLastDate_ChangeNothing) {
  EXPECT_EQ(After({9999, 12, 31}, u"cmdDayUp"_s), QDate(9999, 12, 31));
  EXPECT_EQ(After({100, 1, 1}, u"cmdMonthDown"_s), QDate(100, 1, 1));
}

TEST_F(UpDateTest, Value_Stepped_KeepsItsTimeOfDay) {
  UpDate& date = Made();
  date.SetValue(QDateTime(QDate(2026, 5, 5), QTime(10, 20, 30)));
  Press(date, u"cmdMonthUp"_s);
  EXPECT_EQ(date.Value(), QDateTime(QDate(2026, 6, 5), QTime(10, 20, 30)));
}

TEST_F(UpDateTest, SetValue_ADate_ChangesTheFaceAndRaisesNothing) {
  UpDate& date = Made();
  QSignalSpy change(&date, &UpDate::Change);
  date.SetValue(QDateTime(QDate(2027, 1, 2), QTime(0, 0)));
  EXPECT_EQ(Face(date), ShortDate(QDate(2027, 1, 2)));
  EXPECT_EQ(change.count(), 0);
}

TEST_F(UpDateTest, SetValue_AText_IsReadInTheSystemsOrder) {
  UpDate& date = Made();
  date.SetValue(u"4/5/2026"_s);
  EXPECT_EQ(date.Value().date(), QDate(2026, 4, 5));
}

TEST_F(UpDateTest, SetValue_NoDate_IsRefusedAndChangesNothing) {
  UpDate& date = Made();
  EXPECT_FALSE(date.SetValue(u"soon"_s));
  EXPECT_FALSE(date.SetValue(QString()));
  EXPECT_FALSE(date.SetValue(QDateTime()));
  EXPECT_EQ(date.Value().date(), QDate(2026, 3, 14));
}

TEST_F(UpDateTest, Buttons_Clicked_RaiseChangeOnceEach) {
  UpDate& date = Made();
  QSignalSpy change(&date, &UpDate::Change);
  int expected = 0;
  for (const QString& name : {u"cmdDayUp"_s, u"cmdDayDown"_s, u"cmdMonthUp"_s, u"cmdMonthDown"_s,
                              u"cmdYearUp"_s, u"cmdYearDown"_s, u"DayM"_s}) {
    Press(date, name);
    EXPECT_EQ(change.count(), ++expected) << name.toStdString();
  }
}

TEST_F(UpDateTest, DayM_Clicked_GoesBackToToday) {
  UpDate& date = Made();
  date.SetValue(QDateTime(QDate(1999, 9, 9), QTime(0, 0)));
  QSignalSpy change(&date, &UpDate::Change);
  Press(date, u"DayM"_s);
  EXPECT_EQ(date.Value().date(), QDate(2026, 3, 14));
  EXPECT_EQ(Face(date), ShortDate(QDate(2026, 3, 14)));
  EXPECT_EQ(change.count(), 1);
}

TEST_F(UpDateTest, IsAmer_SetBothWays_SwapsDayAndMonthOnly) {
  UpDate& date = Made();
  const int year = Button(date, u"cmdYearUp"_s).Left();
  date.SetIsAmer(true);
  EXPECT_TRUE(date.IsAmer());
  for (const QString& name : {u"cmdDayUp"_s, u"cmdDayDown"_s}) EXPECT_EQ(Button(date, name).Left(), 1310);
  for (const QString& name : {u"cmdMonthUp"_s, u"cmdMonthDown"_s}) EXPECT_EQ(Button(date, name).Left(), 840);
  date.SetIsAmer(false);
  EXPECT_FALSE(date.IsAmer());
  for (const QString& name : {u"cmdDayUp"_s, u"cmdDayDown"_s}) EXPECT_EQ(Button(date, name).Left(), 840);
  for (const QString& name : {u"cmdMonthUp"_s, u"cmdMonthDown"_s}) EXPECT_EQ(Button(date, name).Left(), 1310);
  EXPECT_EQ(Button(date, u"cmdYearUp"_s).Left(), year);
  EXPECT_EQ(Face(date), ShortDate(QDate(2026, 3, 14)));
}

TEST_F(UpDateTest, Columns_AtTheStart_FollowTheSystemsOrder) {
  EXPECT_TRUE(Made().IsAmer());
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  UpDate& german = Made();
  EXPECT_FALSE(german.IsAmer());
  EXPECT_EQ(Face(german), u"14.03.2026"_s);
}

TEST_F(UpDateTest, Focus_OfAnyButton_GoesToTheEmptyControl) {
  UpDate& date = Made();
  for (const QString& name : {u"cmdDayUp"_s, u"cmdDayDown"_s, u"cmdMonthUp"_s, u"cmdMonthDown"_s,
                              u"cmdYearUp"_s, u"cmdYearDown"_s, u"DayM"_s}) {
    m_window.setFocus();
    Press(date, name);
    EXPECT_EQ(QApplication::focusWidget(), &Temp(date)) << name.toStdString();
    Temp(date).clearFocus();
    Button(date, name).setFocus();
    EXPECT_EQ(QApplication::focusWidget(), &Temp(date)) << name.toStdString();
  }
}

TEST_F(UpDateTest, Tab_ThroughTheScreen_StopsAtItOnce) {
  ui::TextBox before(&m_window);
  UpDate& date = Made();
  ui::TextBox after(&m_window);
  before.show();
  after.show();
  before.SetFocus();
  QTest::keyClick(&before, Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &Temp(date));
  QTest::keyClick(&Temp(date), Qt::Key_Tab);
  EXPECT_TRUE(after.hasFocus());
}

TEST_F(UpDateTest, Keys_ArrowsAndPages_StepDayMonthAndYear) {
  UpDate& date = Made();
  date.SetFocus();
  QSignalSpy change(&date, &UpDate::Change);
  QWidget& temp = Temp(date);
  const auto after = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    date.SetValue(QDateTime(QDate(2026, 3, 31), QTime(0, 0)));
    QTest::keyClick(&temp, key, modifiers);
    return date.Value().date();
  };
  EXPECT_EQ(after(Qt::Key_Up), QDate(2026, 4, 1));
  EXPECT_EQ(after(Qt::Key_Right), QDate(2026, 4, 1));
  EXPECT_EQ(after(Qt::Key_Down), QDate(2026, 3, 30));
  EXPECT_EQ(after(Qt::Key_Left), QDate(2026, 3, 30));
  EXPECT_EQ(after(Qt::Key_Up, Qt::ControlModifier), QDate(2026, 4, 30));
  EXPECT_EQ(after(Qt::Key_Down, Qt::ControlModifier), QDate(2026, 2, 28));
  EXPECT_EQ(after(Qt::Key_PageUp), QDate(2027, 3, 31));
  EXPECT_EQ(after(Qt::Key_PageDown), QDate(2025, 3, 31));
  EXPECT_EQ(after(Qt::Key_Home), QDate(2026, 3, 14));
  EXPECT_EQ(change.count(), 9);
}

TEST_F(UpDateTest, Focus_OnTheEmptyControl_ShowsOnTheWholeControl) {
  ui::ApplyProgramLook(*qApp);
  UpDate& date = Made();
  Temp(date).clearFocus();
  const QImage before = date.grab().toImage();
  date.SetFocus();
  const QImage after = date.grab().toImage();
  const QColor mark = date.palette().color(QPalette::Highlight);
  const QPoint corners[] = {{0, 0}, {after.width() - 1, 0}, {0, after.height() - 1}};
  for (const QPoint& corner : corners) {
    EXPECT_EQ(after.pixelColor(corner), mark);
    EXPECT_NE(before.pixelColor(corner), mark);
  }
  // No button looks like the one to press.
  const QRect inside = after.rect().adjusted(1, 1, -1, -1);
  EXPECT_EQ(after.copy(inside), before.copy(inside));
}

TEST_F(UpDateTest, AccessibleNames_OfAllParts_TellWhatTheyDo) {
  UpDate& date = Made();
  EXPECT_EQ(Button(date, u"cmdDayUp"_s).accessibleName(), u"Next day"_s);
  EXPECT_EQ(Button(date, u"cmdYearDown"_s).accessibleName(), u"Previous year"_s);
  EXPECT_EQ(Temp(date).accessibleName(), u"Sat "_s + ShortDate(QDate(2026, 3, 14)));
}

}  // namespace
}  // namespace velmora
