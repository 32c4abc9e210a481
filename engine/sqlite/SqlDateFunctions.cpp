// SPDX-License-Identifier: MIT
#include "base/dates/Dates.h"
#include "base/system/Clock.h"
#include "base/text/Numbers.h"
#include "engine/sqlite/SqlFunctionSupport.h"

#include <array>
#include <cmath>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

constexpr std::int64_t SecondsInDay = 86400;

/// The day that is 0 when dates are numbers.
QDate FirstDay() { return {1899, 12, 30}; }

double SerialOf(const QDateTime& moment) {
  const int seconds = moment.time().msecsSinceStartOfDay() / 1000;
  return static_cast<double>(FirstDay().daysTo(moment.date())) + seconds / static_cast<double>(SecondsInDay);
}

QDateTime MomentOfSerial(double serial) {
  constexpr double farthest = 4'000'000;
  QDateTime nothing;
  if (!(std::abs(serial) < farthest)) return nothing;
  const auto seconds = static_cast<std::int64_t>(RoundHalfEven(serial * static_cast<double>(SecondsInDay)));
  const auto moment = QDateTime(FirstDay(), QTime(0, 0), Qt::UTC).addSecs(seconds);
  return moment.date().year() >= 100 && moment.date().year() <= 9999 ? moment : nothing;
}

Value DateOrError(const QDateTime& moment) {
  if (!moment.isValid()) throw Error(ErrorCode::TypeMismatchInCondition, u"That is not a date."_s);
  return Value(moment);
}

/// Months and days beyond their range carry over: month 13 is January of the next year.
Value DateFromParts(Arguments a) {
  constexpr std::int64_t farthest = 400'000;
  const std::int64_t year = WholeNumberOf(a[0]);
  const std::int64_t month = WholeNumberOf(a[1]);
  const std::int64_t day = WholeNumberOf(a[2]);
  if (year < 0 || year > 9999 || std::abs(month) > farthest || std::abs(day) > farthest)
    return DateOrError({});
  const int whole = static_cast<int>(year < 30 ? year + 2000 : year < 100 ? year + 1900 : year);
  const QDate date = QDate(whole, 1, 1).addMonths(static_cast<int>(month) - 1).addDays(day - 1);
  if (date.year() < 100 || date.year() > 9999) return DateOrError({});
  return Value(date);
}

/// In the short date order; what another tool wrote and is not a date stays what it is.
Value DateText(Arguments a) {
  const QString text = TextOf(a[0]);
  const auto moment = ParseDate(text);
  return Value(moment ? ShortDate(*moment) : text);
}

QDateTime DateAlone(const QDateTime& moment) { return {moment.date(), QTime(0, 0), Qt::UTC}; }

/// Sunday is the first day.
int Weekday(QDate date) { return date.dayOfWeek() % 7 + 1; }

}  // namespace

std::span<const SqlFunction> DateFunctions() {
  static constexpr std::array Functions{
      SqlFunction{"v_date_text", 1, DateText},
      SqlFunction{"v_to_date", 1, [](Arguments a) { return Value(MomentOf(a[0])); }},
      SqlFunction{"v_date_value", 1, [](Arguments a) { return Value(DateAlone(MomentOf(a[0]))); }},
      SqlFunction{"v_serial", 1, [](Arguments a) { return Value(SerialOf(MomentOf(a[0]))); }},
      SqlFunction{"v_from_serial", 1,
                  [](Arguments a) { return DateOrError(MomentOfSerial(NumberOf(a[0]))); }},
      SqlFunction{"v_date_serial", 3, DateFromParts},
      SqlFunction{"v_year", 1, [](Arguments a) { return Value(MomentOf(a[0]).date().year()); }},
      SqlFunction{"v_month", 1, [](Arguments a) { return Value(MomentOf(a[0]).date().month()); }},
      SqlFunction{"v_day", 1, [](Arguments a) { return Value(MomentOf(a[0]).date().day()); }},
      SqlFunction{"v_weekday", 1, [](Arguments a) { return Value(Weekday(MomentOf(a[0]).date())); }},
      SqlFunction{"v_hour", 1, [](Arguments a) { return Value(MomentOf(a[0]).time().hour()); }},
      SqlFunction{"v_minute", 1, [](Arguments a) { return Value(MomentOf(a[0]).time().minute()); }},
      SqlFunction{"v_second", 1, [](Arguments a) { return Value(MomentOf(a[0]).time().second()); }},
      SqlFunction{"v_now", 0, [](Arguments) { return Value(Clock::Now()); }, false, false},
      SqlFunction{"v_today", 0, [](Arguments) { return Value(Clock::Now().date()); }, false, false},
  };
  return Functions;
}

}  // namespace velmora::db
