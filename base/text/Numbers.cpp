// SPDX-License-Identifier: MIT
#include "base/text/Numbers.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

// A double holds 15 decimal digits for certain; more would show the error of the binary form (0.1 + 0.2).
constexpr int SignificantDigits = 15;

bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }
bool IsBlank(QChar c) { return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r'; }

QStringView WithoutLeadingBlanks(QStringView text) {
  while (!text.isEmpty() && IsBlank(text.front())) text = text.mid(1);
  return text;
}

qsizetype DigitsAt(QStringView text, qsizetype from) {
  qsizetype end = from;
  while (end < text.size() && IsDigit(text[end])) ++end;
  return end - from;
}

bool HasSignAt(QStringView text, qsizetype place) {
  return place < text.size() && (text[place] == u'-' || text[place] == u'+');
}

/// The length of the longest number that the text begins with; 0 when there is none.
qsizetype NumberLength(QStringView text) {
  qsizetype end = HasSignAt(text, 0) ? 1 : 0;
  qsizetype digits = DigitsAt(text, end);
  end += digits;
  if (end < text.size() && text[end] == u'.') {
    const qsizetype decimals = DigitsAt(text, end + 1);
    digits += decimals;
    end += 1 + decimals;
  }
  if (digits == 0) return 0;
  if (end < text.size() && (text[end] == u'e' || text[end] == u'E')) {
    const qsizetype start = end + (HasSignAt(text, end + 1) ? 2 : 1);
    const qsizetype exponent = DigitsAt(text, start);
    if (exponent > 0) end = start + exponent;
  }
  return end;
}

std::int32_t ClampedWhole(QStringView digits, bool negative) {
  constexpr std::int64_t beyond = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
  std::int64_t number = 0;
  for (const QChar digit : digits) number = std::min(number * 10 + (digit.unicode() - u'0'), beyond);
  if (negative) return static_cast<std::int32_t>(-number);
  return static_cast<std::int32_t>(std::min(number, beyond - 1));
}

}  // namespace

QString NumberText(double number) {
  if (!std::isfinite(number) || number == 0) return number == 0 ? u"0"_s : QString::number(number);
  // "d.ddddE+xx": the digits that count and the power of ten of the first of them.
  const QByteArray exact = QByteArray::number(std::abs(number), 'e', SignificantDigits - 1);
  const qsizetype mark = exact.indexOf('e');
  const int power = exact.mid(mark + 1).toInt();
  QByteArray digits = exact.left(mark);
  digits.remove(1, 1);
  while (digits.size() > 1 && digits.endsWith('0')) digits.chop(1);

  const int decimals = static_cast<int>(digits.size()) - 1 - power;
  QByteArray text;
  if (power >= SignificantDigits || decimals > SignificantDigits) {
    if (digits.size() > 1) digits.insert(1, '.');
    text = digits + (power < 0 ? "E-" : "E+") + QByteArray::number(std::abs(power)).rightJustified(2, '0');
  } else if (decimals <= 0) {
    text = digits + QByteArray(-decimals, '0');
  } else if (power >= 0) {
    text = digits.insert(power + 1, '.');
  } else {
    text = "0." + QByteArray(-power - 1, '0') + digits;
  }
  return QString::fromLatin1(number < 0 ? "-" + text : text);
}

QString SignedNumberText(double number) {
  const QString text = NumberText(number);
  return text.startsWith(u'-') ? text : u' ' + text;
}

double LeadingNumber(QStringView text) {
  const QStringView rest = WithoutLeadingBlanks(text);
  return rest.left(NumberLength(rest)).toDouble();
}

std::int32_t LeadingWhole(QStringView text) {
  const QStringView rest = WithoutLeadingBlanks(text);
  return ClampedWhole(rest.left(DigitsAt(rest, 0)), false);
}

std::int32_t AtoLong(QStringView text) {
  const QStringView rest = WithoutLeadingBlanks(text);
  const qsizetype start = HasSignAt(rest, 0) ? 1 : 0;
  return ClampedWhole(rest.mid(start, DigitsAt(rest, start)), rest.startsWith(u'-'));
}

QString CardNumberText(std::int32_t number) {
  if (number == 0) return {};
  QString text = QString::number(std::abs(std::int64_t{number}));
  for (qsizetype place = text.size() - 3; place > 0; place -= 3) text.insert(place, u',');
  return number < 0 ? u'-' + text : text;
}

double RoundHalfEven(double number) { return std::nearbyint(number); }

std::optional<double> ParseNumber(QStringView text) {
  const QStringView trimmed = text.trimmed();
  if (trimmed.isEmpty() || NumberLength(trimmed) != trimmed.size()) return std::nullopt;
  bool isNumber = false;
  const double number = trimmed.toDouble(&isNumber);
  if (!isNumber || !std::isfinite(number)) return std::nullopt;
  return number;
}

}  // namespace velmora
