// SPDX-License-Identifier: MIT
#include "controls/UpDate.h"

#include "base/dates/Dates.h"
#include "base/system/Clock.h"
#include "resources/strings.h"

#include <array>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr ui::Place ControlPlace{0, 0, 2505, 1425};
constexpr ui::Place WeekDayPlace{75, 510, 690, 405};
constexpr ui::Place FacePlace{840, 510, 1590, 405};
constexpr int UpTop = 75;
constexpr int DownTop = 990;
constexpr int ButtonHeight = 360;
constexpr int ButtonWidth = 440;
constexpr int FirstColumn = 840;
constexpr int SecondColumn = 1310;
constexpr int YearColumn = 1780;
constexpr int YearWidth = 650;

bool CanBeShown(QDate date) { return date.isValid() && date.year() >= 100 && date.year() <= 9999; }

}  // namespace

struct UpDate::StepButton {
  ui::SSCommand* UpDate::*Button;
  const char16_t* Name;
  strings::Text AccessibleName;
  Stride Of;
  int Count;
};

UpDate::UpDate(QWidget* parent) : SpinFace(parent, ControlPlace) {
  SetupFace();
  static constexpr std::array<StepButton, 6> steps{{
      {&UpDate::m_dayUp, u"cmdDayUp", strings::date::DayUp, Day, 1},
      {&UpDate::m_dayDown, u"cmdDayDown", strings::date::DayDown, Day, -1},
      {&UpDate::m_monthUp, u"cmdMonthUp", strings::date::MonthUp, Month, 1},
      {&UpDate::m_monthDown, u"cmdMonthDown", strings::date::MonthDown, Month, -1},
      {&UpDate::m_yearUp, u"cmdYearUp", strings::date::YearUp, Year, 1},
      {&UpDate::m_yearDown, u"cmdYearDown", strings::date::YearDown, Year, -1},
  }};
  for (const StepButton& step : steps) SetupButton(step);
  SetIsAmer(ShortDateOrder() != DateOrder::DayMonthYear);
  SetValue(QDateTime(Clock::Today(), QTime(0, 0)));
}

void UpDate::SetupFace() {
  m_dayM = AddButton(u"DayM"_s, FacePlace);
  connect(m_dayM, &ui::SSCommand::Click, this, &UpDate::Reset);

  m_dayWeek = new ui::SSPanel(this);
  m_dayWeek->SetName(u"DayWeek"_s);
  m_dayWeek->setAlignment(Qt::AlignCenter);
  m_dayWeek->SetPlace(WeekDayPlace);
}

void UpDate::SetupButton(const StepButton& step) {
  const bool year = step.Of == Year;
  ui::SSCommand* const button = AddArrow(
      QString::fromUtf16(step.Name), step.AccessibleName, step.Count > 0 ? Qt::UpArrow : Qt::DownArrow,
      {YearColumn, step.Count > 0 ? UpTop : DownTop, year ? YearWidth : ButtonWidth, ButtonHeight});
  this->*step.Button = button;
  connect(button, &ui::SSCommand::Click, this,
          [this, stride = step.Of, count = step.Count] { Step(stride, count); });
}

bool UpDate::SetValue(const QDateTime& value) {
  if (!CanBeShown(value.date())) return false;
  m_date = value.date();
  m_time = QTime(value.time().hour(), value.time().minute(), value.time().second());
  Refresh();
  return true;
}

bool UpDate::SetValue(const QString& text) {
  const std::optional<QDateTime> value = ParseDate(text);
  return value && SetValue(*value);
}

void UpDate::SetIsAmer(bool monthFirst) {
  m_isAmer = monthFirst;
  const int day = monthFirst ? SecondColumn : FirstColumn;
  const int month = monthFirst ? FirstColumn : SecondColumn;
  m_dayUp->SetLeft(day);
  m_dayDown->SetLeft(day);
  m_monthUp->SetLeft(month);
  m_monthDown->SetLeft(month);
}

bool UpDate::Step(Stride stride, int count) {
  const QDate then = stride == Day     ? m_date.addDays(count)
                     : stride == Month ? AddMonths(m_date, count)
                                       : AddYears(m_date, count);
  if (!CanBeShown(then)) return false;
  m_date = then;
  Refresh();
  Q_EMIT Change();
  return true;
}

void UpDate::Reset() {
  m_date = Clock::Today();
  m_time = QTime(0, 0);
  Refresh();
  Q_EMIT Change();
}

void UpDate::Refresh() {
  m_dayM->SetCaption(ShortDate(m_date));
  m_dayWeek->SetCaption(strings::date::WeekDays[static_cast<std::size_t>(m_date.dayOfWeek() % 7)]);
  SetSpoken(u"%1 %2"_s.arg(m_dayWeek->Caption(), m_dayM->Caption()));
}

}  // namespace velmora
