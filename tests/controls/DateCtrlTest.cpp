// SPDX-License-Identifier: MIT
#include "controls/DateCtrl.h"
#include "forms/ControlArray.h"
#include "forms/Twips.h"
#include "tests/support/TestWindow.h"

#include <QSignalSpy>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class DateCtrlTest : public WindowTest {
 protected:
  void SetUp() override {
    m_date.SetPlace({150, 150, 1815, 285});
    Show();
    m_date.SetFocus();
  }
  ~DateCtrlTest() override { ui::SetProgramScale(1.0); }
  [[nodiscard]] QWidget* Picture() const { return m_date.findChild<QWidget*>(u"Picture1"_s); }
  DateCtrl m_date{&m_window};
  ui::TextBox* m_box = m_date.DateVal();
  QSignalSpy m_change{&m_date, &DateCtrl::Change};
  QSignalSpy m_click{&m_date, &DateCtrl::Click};
};

TEST_F(DateCtrlTest, Text_AnyText_IsTakenAndGivenAsItStands) {
  for (const QString& text : {u"12/31/2026"_s, u" no date "_s, QString()}) {
    m_date.SetText(text);
    EXPECT_EQ(m_date.Text(), text);
    EXPECT_EQ(m_box->Text(), text);
  }
}

TEST_F(DateCtrlTest, SetText_TheSameText_RaisesChangeEachTime) {
  m_date.SetText(u"1/2/2026"_s);
  m_date.SetText(u"1/2/2026"_s);
  EXPECT_EQ(m_change.count(), 2);
}

TEST_F(DateCtrlTest, SetText_OfAnotherCard_LeavesNothingToUndo) {
  m_date.SetText(u"1/2/2026"_s);
  m_date.SetText(u"3/4/2026"_s);
  QTest::keyClick(m_box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(m_date.Text(), u"3/4/2026"_s);
}

TEST_F(DateCtrlTest, Typing_AKey_RaisesKeyPressThenChange) {
  QStringList log;
  QObject::connect(&m_date, &DateCtrl::KeyPress, &m_date, [&](int key) { log << QString::number(key); });
  QObject::connect(&m_date, &DateCtrl::Change, &m_date, [&] { log << m_date.Text(); });
  QTest::keyClick(m_box, Qt::Key_7);
  EXPECT_EQ(log, (QStringList{u"55"_s, u"7"_s}));
}

TEST_F(DateCtrlTest, Enter_Pressed_IsKeyPress13) {
  QSignalSpy press(&m_date, &DateCtrl::KeyPress);
  QSignalSpy enter(&m_date, &DateCtrl::EnterPressed);
  QTest::keyClick(m_box, Qt::Key_Return);
  ASSERT_EQ(press.count(), 1);
  EXPECT_EQ(press.at(0).at(0).toInt(), 13);
  EXPECT_EQ(enter.count(), 1);
  EXPECT_EQ(m_change.count(), 0);
}

TEST_F(DateCtrlTest, SetFocus_OfTheControl_GoesToTheBox) {
  EXPECT_TRUE(m_box->hasFocus());
  EXPECT_TRUE(m_date.hasFocus());
}

TEST_F(DateCtrlTest, IsActive_TrueThenFalse_GivesTheBoxTheWholeWidthAtOnce) {
  m_date.SetIsActive(true);
  EXPECT_TRUE(m_date.IsActive());
  EXPECT_TRUE(Picture()->isVisible());
  EXPECT_EQ(Picture()->x(), 0);
  EXPECT_EQ(m_box->Left(), 510);
  EXPECT_EQ(m_box->Width(), 1815 - 510);
  m_date.SetIsActive(false);
  EXPECT_FALSE(Picture()->isVisible());
  EXPECT_EQ(m_box->Left(), 0);
  EXPECT_EQ(m_box->Width(), 1815);
  EXPECT_EQ(m_box->geometry(), m_date.rect());
}

TEST_F(DateCtrlTest, Resize_WithTheMark_KeepsTheLayout) {
  m_date.SetIsActive(true);
  m_date.SetWidth(3000);
  EXPECT_EQ(m_box->Left(), 510);
  EXPECT_EQ(m_box->Width(), 2490);
  m_date.resize(300, 30);
  EXPECT_EQ(m_box->Left(), 510);
  EXPECT_EQ(m_box->geometry().right(), m_date.rect().right());
  EXPECT_EQ(m_box->height(), 30);
}

TEST_F(DateCtrlTest, Resize_WhileHidden_KeepsTheLayout) {
  DateCtrl hidden(&m_window);
  hidden.SetVisible(false);
  hidden.SetPlace({0, 0, 1500, 285});
  hidden.SetWidth(1815);
  hidden.SetIsActive(true);
  EXPECT_EQ(hidden.DateVal()->Width(), 1305);
}

TEST_F(DateCtrlTest, Layout_AtAnyScale_LeavesNoStripe) {
  for (const double scale : {1.0, 1.105, 1.37}) {
    ui::SetProgramScale(scale);
    for (int left = 0; left < 60; left += 7) {
      m_date.SetPlace({left, left, 1815, 285});
      EXPECT_EQ(m_box->geometry(), m_date.rect());
      EXPECT_EQ(m_box->Width(), 1815);
    }
  }
}

TEST_F(DateCtrlTest, Click_OnTheBox_IsRaised) {
  QTest::mouseClick(m_box, Qt::LeftButton);
  EXPECT_EQ(m_click.count(), 1);
}

TEST_F(DateCtrlTest, Click_OnTheMark_IsRaisedByTheControl) {
  m_date.SetIsActive(true);
  QWidget* under = m_window.childAt(m_date.pos() + QPoint(5, 5));
  ASSERT_EQ(under, &m_date);
  QTest::mouseClick(under, Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_EQ(m_click.count(), 1);
}

TEST_F(DateCtrlTest, DblClick_OnBoxAndSurface_IsRaised) {
  QSignalSpy twice(&m_date, &DateCtrl::DblClick);
  QTest::mouseDClick(m_box, Qt::LeftButton);
  EXPECT_EQ(twice.count(), 1);
  m_date.SetIsActive(true);
  QTest::mouseDClick(&m_date, Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_EQ(twice.count(), 2);
}

TEST_F(DateCtrlTest, Keys_F4AndAltDown_DoWhatAClickDoes) {
  QTest::keyClick(m_box, Qt::Key_F4);
  EXPECT_EQ(m_click.count(), 1);
  QTest::keyClick(m_box, Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(m_click.count(), 2);
  QTest::keyClick(m_box, Qt::Key_Space);
  EXPECT_EQ(m_click.count(), 2);
  EXPECT_EQ(m_date.Text(), u" "_s);
}

TEST_F(DateCtrlTest, Locked_Set_PassesToTheBox) {
  m_date.SetLocked(true);
  EXPECT_TRUE(m_date.Locked());
  QTest::keyClick(m_box, Qt::Key_7);
  EXPECT_EQ(m_date.Text(), QString());
}

TEST_F(DateCtrlTest, Colours_Set_PassToTheBox) {
  m_date.SetBackGround();
  EXPECT_EQ(m_box->BackColor(), ui::Role::ButtonFace);
  EXPECT_EQ(m_date.BackColor(), ui::Role::ButtonFace);
  m_date.SetBackColor(ui::Role::White);
  EXPECT_EQ(m_box->BackColor(), ui::Role::White);
  m_date.SetForeColor();
  EXPECT_EQ(m_box->ForeColor(), ui::Role::Ink);
}

TEST_F(DateCtrlTest, AccessibleNames_OfBoxAndMark_TellFieldAndReminder) {
  m_date.setAccessibleName(u"Birthday"_s);
  EXPECT_EQ(m_box->accessibleName(), u"Birthday"_s);
  EXPECT_EQ(Picture()->accessibleName(), u"Reminder"_s);
  m_date.SetIsActive(true);
  EXPECT_EQ(m_box->accessibleDescription(), u"Reminder"_s);
  m_date.SetIsActive(false);
  EXPECT_EQ(m_box->accessibleDescription(), QString());
}

TEST_F(DateCtrlTest, Focus_GotAndLost_IsToldByTheControl) {
  ui::TextBox other(&m_window);
  other.show();
  QSignalSpy left(&m_date, &DateCtrl::LostFocus);
  QSignalSpy got(&m_date, &DateCtrl::GotFocus);
  other.SetFocus();
  m_date.SetFocus();
  EXPECT_EQ(left.count(), 1);
  EXPECT_EQ(got.count(), 1);
}

TEST_F(DateCtrlTest, ControlArray_OfDates_LoadsAndUnloads) {
  ui::ControlArray<DateCtrl> dates(&m_window, u"NameDate"_s);
  dates[0].SetPlace({0, 0, 1500, 285});
  DateCtrl& third = dates.Load(3);
  EXPECT_EQ(third.objectName(), u"NameDate(3)"_s);
  EXPECT_EQ(third.Name(), u"NameDate"_s);
  EXPECT_EQ(third.DateVal()->Width(), 1500);
  third.strAgents = u"Ann,Bob"_s;
  EXPECT_EQ(dates[3].strAgents, u"Ann,Bob"_s);
  dates[3].Unload();
  EXPECT_FALSE(dates.Has(3));
}

TEST_F(DateCtrlTest, Mark_Painted_ShowsOnItsGround) {
  m_date.SetIsActive(true);
  const QImage mark = Picture()->grab().toImage();
  EXPECT_NE(mark.pixelColor(mark.rect().center()), mark.pixelColor(0, 0));
}

}  // namespace
}  // namespace velmora
