// SPDX-License-Identifier: MIT
#include "controls/TCount.h"

#include "controls/TimeSteps.h"
#include "resources/strings.h"

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

const QTime none(0, 0);
constexpr int MinuteSeconds = 60;
constexpr int HourSeconds = 3600;

QTime Read(const QString& text) {
  const QString trimmed = text.trimmed();
  const QTime time = QTime::fromString(trimmed, u"h:m"_s);
  return time.isValid() ? time : QTime::fromString(trimmed, u"h:m:s"_s);
}

}  // namespace

TCount::TCount(QWidget* parent) : TimeFace(parent, strings::time::NoTime) { Set(none); }

QString TCount::Value() const { return m_value.toString(u"hh:mm"_s); }

bool TCount::SetValue(const QString& value) {
  const QTime time = Read(value);
  if (!time.isValid()) return false;
  Set(QTime(time.hour(), time.minute()));
  return true;
}

bool TCount::Step(Stride stride, int count) {
  if (stride == Quarter) {
    const int minute = count > 0 ? QuarterAbove(m_value.minute()) : QuarterBelow(m_value.minute());
    Set(QTime(m_value.hour(), minute));
    return true;
  }
  if (count < 0 && m_value == none) return false;
  Set(m_value.addSecs(count * (stride == Hour ? HourSeconds : MinuteSeconds)));
  return true;
}

void TCount::Reset() { Set(none); }

void TCount::Set(QTime value) {
  m_value = value;
  ShowFace(Value());
}

}  // namespace velmora
