// SPDX-License-Identifier: MIT
#include "engine/values/Value.h"

#include "base/dates/Dates.h"
#include "base/text/Numbers.h"
#include "engine/values/Error.h"

#include <array>
#include <cmath>
#include <limits>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

constexpr int SecondsOfDay = 24 * 60 * 60;

/// Day 0 of a date that is reckoned as a number.
QDate FirstDay() { return {1899, 12, 30}; }

template <typename... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

Error NullUsed() { return {ErrorCode::InvalidUseOfNull, u"There is no value here (Null)."_s}; }

Error NoNumber(const QString& text) {
  return {ErrorCode::TypeConversion, u"\"%1\" is not a number."_s.arg(text)};
}

/// The hours of a date before day 0 count forward too, so its fraction is added to the size of the number.
double NumberOfDate(const QDateTime& moment) {
  const auto days = static_cast<double>(FirstDay().daysTo(moment.date()));
  const double time = moment.time().msecsSinceStartOfDay() / 1000.0 / SecondsOfDay;
  return days < 0 ? days - time : days + time;
}

QDateTime DateOfNumber(double number) {
  static const double lowest = static_cast<double>(FirstDay().daysTo(QDate(100, 1, 1)));
  static const double behind = static_cast<double>(FirstDay().daysTo(QDate(9999, 12, 31))) + 1;
  if (!(number > lowest - 1 && number < behind)) {
    throw Error(ErrorCode::TypeConversion, u"%1 is not a date."_s.arg(NumberText(number)));
  }
  const double days = std::trunc(number);
  const auto seconds = static_cast<int>(std::lround(std::abs(number - days) * SecondsOfDay));
  const QDateTime midnight(FirstDay().addDays(static_cast<qint64>(days)), QTime(0, 0), Qt::UTC);
  return midnight.addSecs(seconds);
}

bool TruthOfText(const QString& text) {
  struct Word {
    QLatin1StringView Text;
    bool Truth;
  };
  static constexpr std::array<Word, 6> words{{{"true"_L1, true},
                                              {"false"_L1, false},
                                              {"yes"_L1, true},
                                              {"no"_L1, false},
                                              {"on"_L1, true},
                                              {"off"_L1, false}}};
  const QStringView trimmed = QStringView(text).trimmed();
  for (const Word& word : words) {
    if (trimmed.compare(word.Text, Qt::CaseInsensitive) == 0) return word.Truth;
  }
  if (const auto number = ParseNumber(trimmed)) return *number != 0;
  throw Error(ErrorCode::TypeConversion, u"\"%1\" is neither yes nor no."_s.arg(text));
}

}  // namespace

Value::Value(const QDateTime& moment)
    : m_data(QDateTime(moment.date(),
                       QTime(moment.time().hour(), moment.time().minute(), moment.time().second()),
                       Qt::UTC)) {}

QString Value::Text() const {
  return std::visit(
      Overloaded{[](std::monostate) -> QString { throw NullUsed(); },
                 [](bool truth) { return truth ? u"-1"_s : u"0"_s; },
                 [](std::int64_t number) { return QString::number(number); },
                 [](double number) { return NumberText(number); }, [](const QString& text) { return text; },
                 [](const QDateTime& moment) { return ShortDate(moment); }},
      m_data);
}

std::int32_t Value::Long() const {
  if (const auto* whole = std::get_if<std::int64_t>(&m_data)) {
    if (*whole == static_cast<std::int32_t>(*whole)) return static_cast<std::int32_t>(*whole);
  }
  const double number = RoundHalfEven(Number());
  if (!(number >= std::numeric_limits<std::int32_t>::min() &&
        number <= std::numeric_limits<std::int32_t>::max())) {
    throw Error(ErrorCode::NumberOutOfRange, u"%1 is beyond the range of whole numbers."_s.arg(Text()));
  }
  return static_cast<std::int32_t>(number);
}

double Value::Number() const {
  return std::visit(Overloaded{[](std::monostate) -> double { throw NullUsed(); },
                               [](bool truth) { return truth ? -1.0 : 0.0; },
                               [](std::int64_t number) { return static_cast<double>(number); },
                               [](double number) { return number; },
                               [](const QString& text) {
                                 const auto number = ParseNumber(text);
                                 if (!number) throw NoNumber(text);
                                 return *number;
                               },
                               [](const QDateTime& moment) { return NumberOfDate(moment); }},
                    m_data);
}

bool Value::Truth() const {
  if (const auto* text = std::get_if<QString>(&m_data)) return TruthOfText(*text);
  return Number() != 0;
}

QDateTime Value::DateTime() const {
  if (const auto* moment = std::get_if<QDateTime>(&m_data)) return *moment;
  if (const auto* text = std::get_if<QString>(&m_data)) {
    const auto moment = ParseDate(*text);
    if (!moment) throw Error(ErrorCode::TypeConversion, u"\"%1\" is not a date."_s.arg(*text));
    return Value(*moment).DateTime();
  }
  return DateOfNumber(Number());
}

}  // namespace velmora::db
