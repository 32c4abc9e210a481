// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace velmora {

enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };

/// The order of day, month and year in the system's short date format; month, day, year where it has none.
[[nodiscard]] DateOrder ShortDateOrder();
/// A date in the system's short date order and its separator, the year in four digits always. A time other
/// than midnight follows after a space as HH:MM:SS.
[[nodiscard]] QString ShortDate(const QDateTime& moment);
[[nodiscard]] QString ShortDate(QDate date);
/// Reads a date, with or without a time, in the system's short date order; ISO yyyy-mm-dd is read everywhere.
/// A part that cannot be a month is taken as the day; years 00 to 29 are 2000s, 30 to 99 are 1900s. Nothing
/// when the text is not a date between the years 100 and 9999.
[[nodiscard]] std::optional<QDateTime> ParseDate(QStringView text);
/// The same, month first whatever the system says, as in #m/d/yyyy#.
[[nodiscard]] std::optional<QDateTime> ParseDateMonthFirst(QStringView text);
/// A time of day with its half, "03:09 PM", in the system's words; 24 hours and no word where it has none.
[[nodiscard]] QString MediumTime(QTime time, bool withSeconds);
/// The stored form: YYYY-MM-DD, with " HH:MM:SS" when there is a time.
[[nodiscard]] QString StoredDate(const QDateTime& moment);
/// Calendar steps that keep the day of the month or take the month's last.
[[nodiscard]] QDate AddMonths(QDate date, int months);
[[nodiscard]] QDate AddYears(QDate date, int years);

}  // namespace velmora
