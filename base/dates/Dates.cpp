// SPDX-License-Identifier: MIT
#include "base/dates/Dates.h"

#include <QLocale>

#include <array>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr int FirstYear = 100;
constexpr int LastYear = 9999;
/// Two-digit years up to this one are of the 2000s.
constexpr int LastShortYearOf2000s = 29;
constexpr int NoonHour = 12;

struct ShortForm {
  DateOrder order = DateOrder::MonthDayYear;
  int monthDigits = 1;
  int dayDigits = 1;
  QString separator = u"/"_s;
};

// Some languages write marks of writing direction between the parts; they are no part of the date.
bool IsDirectionMark(QChar c) { return c == QChar(0x200E) || c == QChar(0x200F) || c == QChar(0x061C); }

QString UsableSeparator(const QString& between) {
  QString separator;
  for (const QChar c : between) {
    if (c.isLetterOrNumber() || c == u':' || c == u'\'') return u"/"_s;
    if (!IsDirectionMark(c)) separator += c;
  }
  return separator.isEmpty() ? u"/"_s : separator;
}

/// Takes the system's format to pieces. The year is four digits whatever the format has.
ShortForm ReadShortForm(const QString& format) {
  ShortForm form;
  QString parts;
  QString between;
  for (qsizetype i = 0; i < format.size();) {
    const QChar letter = format[i];
    qsizetype run = 1;
    while (i + run < format.size() && format[i + run] == letter) ++run;
    if (letter == u'd' || letter == u'M' || letter == u'y') {
      parts += letter;
      if (letter == u'd') form.dayDigits = run == 2 ? 2 : 1;
      if (letter == u'M') form.monthDigits = run == 2 ? 2 : 1;
    } else if (parts.size() == 1) {
      between += format.mid(i, run);
    }
    i += run;
  }
  form.separator = UsableSeparator(between);
  if (parts == "dMy"_L1) form.order = DateOrder::DayMonthYear;
  if (parts == "yMd"_L1) form.order = DateOrder::YearMonthDay;
  return form;
}

ShortForm SystemShortForm() { return ReadShortForm(QLocale().dateFormat(QLocale::ShortFormat)); }

QString Padded(int number, int digits) { return QString::number(number).rightJustified(digits, u'0'); }

QString TimeText(QTime time) {
  return Padded(time.hour(), 2) + u':' + Padded(time.minute(), 2) + u':' + Padded(time.second(), 2);
}

bool IsMidnight(QTime time) { return time.msecsSinceStartOfDay() / 1000 == 0; }

/// Walks a text from left to right, piece by piece.
class Reader final {
 public:
  explicit Reader(QStringView text) : m_text(text) {}

  struct Number {
    int value = 0;
    int digits = 0;
  };

  [[nodiscard]] bool AtEnd() const { return m_place >= m_text.size(); }
  [[nodiscard]] QChar Here() const { return AtEnd() ? QChar() : m_text[m_place]; }

  /// A run of one to four digits, of any script.
  std::optional<Number> TakeNumber() {
    Number number;
    for (; !AtEnd() && Here().digitValue() >= 0; ++m_place) {
      number.value = number.value * 10 + Here().digitValue();
      if (++number.digits > 4) return std::nullopt;
    }
    if (number.digits == 0) return std::nullopt;
    return number;
  }

  /// Passes over what may stand between the parts of a date; false when nothing does.
  bool TakeSeparator() {
    const qsizetype start = m_place;
    while (!AtEnd() && IsSeparator(Here())) ++m_place;
    return m_place > start;
  }

  bool Take(QChar sign) {
    if (Here() != sign) return false;
    ++m_place;
    return true;
  }

  void TakeBlanks() {
    while (!AtEnd() && Here().isSpace()) ++m_place;
  }

  QString TakeRest() { return m_text.mid(std::exchange(m_place, m_text.size())).toString(); }

 private:
  static bool IsSeparator(QChar c) {
    return c.isSpace() || IsDirectionMark(c) || c == u'/' || c == u'-' || c == u'.' || c == u',';
  }

  QStringView m_text;
  qsizetype m_place = 0;
};

using Parts = std::array<Reader::Number, 3>;

std::optional<int> YearOf(Reader::Number part) {
  int year = part.value;
  if (part.digits <= 2) year += year <= LastShortYearOf2000s ? 2000 : 1900;
  if (year < FirstYear || year > LastYear) return std::nullopt;
  return year;
}

/// Puts the three numbers in their places: a number of three or four digits is the year, the others stand in
/// the given order, and one that cannot be a month is the day.
std::optional<QDate> DateOf(const Parts& parts, DateOrder order) {
  const bool yearFirst = parts[0].digits > 2 || (order == DateOrder::YearMonthDay && parts[2].digits <= 2);
  const auto& year = yearFirst ? parts[0] : parts[2];
  const auto& first = yearFirst ? parts[1] : parts[0];
  const auto& second = yearFirst ? parts[2] : parts[1];
  if (first.digits > 2 || second.digits > 2) return std::nullopt;
  const bool dayFirst = !yearFirst && order == DateOrder::DayMonthYear;
  int month = dayFirst ? second.value : first.value;
  int day = dayFirst ? first.value : second.value;
  if (month > 12) std::swap(month, day);
  const auto wholeYear = YearOf(year);
  if (!wholeYear || !QDate::isValid(*wholeYear, month, day)) return std::nullopt;
  return QDate(*wholeYear, month, day);
}

/// H:MM or H:MM:SS, with AM or PM behind it or not.
std::optional<QTime> TakeTime(Reader& reader) {
  const auto hour = reader.TakeNumber();
  if (!hour || !reader.Take(u':')) return std::nullopt;
  const auto minute = reader.TakeNumber();
  if (!minute) return std::nullopt;
  int seconds = 0;
  if (reader.Take(u':')) {
    const auto second = reader.TakeNumber();
    if (!second) return std::nullopt;
    seconds = second->value;
  }
  reader.TakeBlanks();
  const QString half = reader.TakeRest().trimmed().toUpper();
  int hours = hour->value;
  if (!half.isEmpty()) {
    if ((half != "AM"_L1 && half != "PM"_L1) || hours < 1 || hours > 12) return std::nullopt;
    hours = hours % 12 + (half == "PM"_L1 ? 12 : 0);
  }
  if (!QTime::isValid(hours, minute->value, seconds)) return std::nullopt;
  return QTime(hours, minute->value, seconds);
}

std::optional<QDateTime> ParseInOrder(QStringView text, DateOrder order) {
  Reader reader(text.trimmed());
  Parts parts;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0 && !reader.TakeSeparator()) return std::nullopt;
    const auto number = reader.TakeNumber();
    if (!number) return std::nullopt;
    parts[i] = *number;
  }
  const auto date = DateOf(parts, order);
  if (!date) return std::nullopt;
  const bool dateEnds = reader.TakeSeparator() || reader.Take(u'T');
  QTime time(0, 0);
  if (!reader.AtEnd()) {
    if (!dateEnds) return std::nullopt;
    const auto read = TakeTime(reader);
    if (!read) return std::nullopt;
    time = *read;
  }
  return QDateTime(*date, time, Qt::UTC);
}

}  // namespace

DateOrder ShortDateOrder() { return SystemShortForm().order; }

QString ShortDate(QDate date) {
  if (!date.isValid()) return {};
  const ShortForm form = SystemShortForm();
  const QString day = Padded(date.day(), form.dayDigits);
  const QString month = Padded(date.month(), form.monthDigits);
  const QString year = Padded(date.year(), 4);
  switch (form.order) {
    case DateOrder::MonthDayYear:
      return month + form.separator + day + form.separator + year;
    case DateOrder::DayMonthYear:
      return day + form.separator + month + form.separator + year;
    case DateOrder::YearMonthDay:
      return year + form.separator + month + form.separator + day;
  }
  return {};
}

QString ShortDate(const QDateTime& moment) {
  if (!moment.isValid()) return {};
  const QString date = ShortDate(moment.date());
  return IsMidnight(moment.time()) ? date : date + u' ' + TimeText(moment.time());
}

std::optional<QDateTime> ParseDate(QStringView text) { return ParseInOrder(text, ShortDateOrder()); }

std::optional<QDateTime> ParseDateMonthFirst(QStringView text) {
  return ParseInOrder(text, DateOrder::MonthDayYear);
}

QString MediumTime(QTime time, bool withSeconds) {
  const QLocale locale;
  const QString half = time.hour() < NoonHour ? locale.amText() : locale.pmText();
  const QString behindHour = time.toString(withSeconds ? u":mm:ss"_s : u":mm"_s);
  if (half.isEmpty()) return time.toString(u"hh"_s) + behindHour;
  const int hour = time.hour() % NoonHour == 0 ? NoonHour : time.hour() % NoonHour;
  return QString::number(hour).rightJustified(2, u'0') + behindHour + u' ' + half;
}

QString StoredDate(const QDateTime& moment) {
  if (!moment.isValid()) return {};
  const QDate date = moment.date();
  QString text = Padded(date.year(), 4) + u'-' + Padded(date.month(), 2) + u'-' + Padded(date.day(), 2);
  if (!IsMidnight(moment.time())) text += u' ' + TimeText(moment.time());
  return text;
}

QDate AddMonths(QDate date, int months) { return date.addMonths(months); }

QDate AddYears(QDate date, int years) { return date.addYears(years); }

}  // namespace velmora
