// SPDX-License-Identifier: MIT
#include "controls/TimeTn.h"

#include "base/dates/Dates.h"
#include "base/system/Clock.h"
#include "controls/TimeSteps.h"
#include "resources/strings.h"

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

/// The day of a time that came without one.
constexpr QDate NoDay = QDate::fromJulianDay(2415019);
constexpr qint64 MinuteSeconds = 60;
constexpr qint64 HourSeconds = 3600;

QString HoursAndMinutes(QTime time) { return time.toString(u"hh:mm"_s); }

}  // namespace

TimeTn::TimeTn(QWidget* parent) : TimeFace(parent, strings::time::Now), m_date(NoDay) {
  const QTime now = Clock::Now().time();
  m_time = QTime(now.hour(), now.minute());
  Refresh();
}

void TimeTn::SetValue(const QDateTime& value) {
  m_date = value.date();
  m_time = QTime(value.time().hour(), value.time().minute(), value.time().second());
  ShowFace(HoursAndMinutes(m_time));
}

bool TimeTn::Step(Stride stride, int count) {
  if (stride == Quarter) {
    const int minute = count > 0 ? QuarterAbove(m_time.minute()) : QuarterBelow(m_time.minute());
    m_time = QTime(m_time.hour(), minute, m_time.second());
  } else {
    const QDateTime then =
        QDateTime(m_date, m_time, Qt::UTC).addSecs(count * (stride == Hour ? HourSeconds : MinuteSeconds));
    m_date = then.date();
    m_time = then.time();
  }
  Refresh();
  return true;
}

void TimeTn::Reset() {
  const QDateTime now = Clock::Now();
  m_date = now.date();
  m_time = QTime(now.time().hour(), now.time().minute(), now.time().second());
  Refresh();
}

void TimeTn::FaceClicked() {
  m_showSeconds = !m_showSeconds;
  Refresh();
}

void TimeTn::Refresh() { ShowFace(m_showSeconds ? MediumTime(m_time, true) : HoursAndMinutes(m_time)); }

}  // namespace velmora
