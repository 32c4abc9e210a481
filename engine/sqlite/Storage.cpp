// SPDX-License-Identifier: MIT
#include "engine/sqlite/Storage.h"

#include "base/dates/Dates.h"
#include "base/text/Numbers.h"

#include <array>
#include <cmath>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

constexpr double CurrencyUnits = 10000;
constexpr double LargestCurrency = 922337203685477.5807;
/// Above this a double has no room for a fraction of a currency unit.
constexpr double ExactCurrency = 9007199254740992.0 / CurrencyUnits;

struct TypeWord {
  QLatin1StringView Word;
  FieldType Type;
};

/// Looked for in the declared type from the first to the last: the longer word stands before the one it
/// holds.
constexpr std::array TypeWords{
    TypeWord{"LONGTEXT"_L1, FieldType::Memo},     TypeWord{"MEMO"_L1, FieldType::Memo},
    TypeWord{"CLOB"_L1, FieldType::Memo},         TypeWord{"CHAR"_L1, FieldType::Text},
    TypeWord{"TEXT"_L1, FieldType::Text},         TypeWord{"YESNO"_L1, FieldType::YesNo},
    TypeWord{"BOOL"_L1, FieldType::YesNo},        TypeWord{"BIT"_L1, FieldType::YesNo},
    TypeWord{"CURRENCY"_L1, FieldType::Currency}, TypeWord{"MONEY"_L1, FieldType::Currency},
    TypeWord{"DATE"_L1, FieldType::Date},         TypeWord{"TIME"_L1, FieldType::Date},
    TypeWord{"INT"_L1, FieldType::Long},          TypeWord{"LONG"_L1, FieldType::Long},
    TypeWord{"DOUBLE"_L1, FieldType::Double},     TypeWord{"REAL"_L1, FieldType::Double},
    TypeWord{"FLOA"_L1, FieldType::Double},       TypeWord{"NUM"_L1, FieldType::Double},
    TypeWord{"DEC"_L1, FieldType::Double},
};

/// The number in the brackets of "TEXT(50)"; nothing when there is none.
std::optional<int> SizeIn(QStringView declaredType) {
  const qsizetype open = declaredType.indexOf(u'(');
  const qsizetype close = declaredType.indexOf(u')', open + 1);
  if (open < 0 || close < 0) return std::nullopt;
  bool ok = false;
  const int size = declaredType.sliced(open + 1, close - open - 1).trimmed().toInt(&ok);
  return ok && size > 0 ? std::optional(size) : std::nullopt;
}

qsizetype CharactersIn(const QString& text) {
  const auto halves =
      std::count_if(text.begin(), text.end(), [](QChar sign) { return sign.isLowSurrogate(); });
  return text.size() - halves;
}

Value TextFor(const Field& field, const Value& value) {
  QString text = value.Text();
  if (field.Type == FieldType::Text && text.size() > field.Size && CharactersIn(text) > field.Size) {
    throw Error(
        ErrorCode::TextTooLong,
        u"The text has %1 characters; there is room for %2."_s.arg(CharactersIn(text)).arg(field.Size));
  }
  return Value(std::move(text));
}

Value DoubleFor(const Value& value) {
  const double number = value.Number();
  if (!std::isfinite(number)) throw Error(ErrorCode::NumberOutOfRange, u"The number is too large."_s);
  return Value(number);
}

/// Rounds to four decimals, halves to even. A half that only the binary form has moved aside still counts as
/// one.
Value CurrencyFor(const Value& value) {
  const double number = value.Number();
  if (!(std::abs(number) <= LargestCurrency)) {
    throw Error(ErrorCode::NumberOutOfRange,
                u"%1 is beyond the range of amounts of money."_s.arg(value.Text()));
  }
  if (std::abs(number) >= ExactCurrency) return Value(number);
  const double units = number * CurrencyUnits;
  const double below = std::floor(units);
  const double slack = std::abs(units) * 0x1p-51;
  const bool isHalf = std::abs(units - below - 0.5) <= slack;
  return Value((isHalf ? RoundHalfEven(below + 0.5) : std::round(units)) / CurrencyUnits);
}

Value ConvertedUnnamed(const Field& field, const Value& value) {
  if (value.IsNull()) return field.Type == FieldType::YesNo ? Value(false) : Value();
  switch (field.Type) {
    case FieldType::Text:
    case FieldType::Memo:
      return TextFor(field, value);
    case FieldType::Long:
      return Value(value.Long());
    case FieldType::Double:
      return DoubleFor(value);
    case FieldType::Currency:
      return CurrencyFor(value);
    case FieldType::YesNo:
      return Value(value.Truth());
    case FieldType::Date:
      return Value(value.DateTime());
  }
  return {};
}

/// "YYYY-MM-DD" with or without " HH:MM:SS"; a "T" between them and parts of seconds are taken from other
/// tools.
std::optional<QDateTime> ReadStoredDate(QStringView text) {
  constexpr qsizetype dateLength = 10;
  constexpr qsizetype timeLength = 8;
  if (text.size() < dateLength) return std::nullopt;
  const auto number = [&](qsizetype from, qsizetype length) {
    int sum = 0;
    for (const QChar sign : text.sliced(from, length)) {
      if (sign < u'0' || sign > u'9') return -1;
      sum = sum * 10 + (sign.unicode() - u'0');
    }
    return sum;
  };
  if (text[4] != u'-' || text[7] != u'-') return std::nullopt;
  const QDate date(number(0, 4), number(5, 2), number(8, 2));
  if (!date.isValid()) return std::nullopt;
  if (text.size() == dateLength) return QDateTime(date, QTime(0, 0), Qt::UTC);
  if (text.size() < dateLength + 1 + timeLength || text[13] != u':' || text[16] != u':') return std::nullopt;
  const QTime time(number(11, 2), number(14, 2), number(17, 2));
  if (!time.isValid()) return std::nullopt;
  return QDateTime(date, time, Qt::UTC);
}

Value ReadWhole(std::int64_t number, FieldType type) {
  switch (type) {
    case FieldType::YesNo:
      return Value(number != 0);
    case FieldType::Double:
    case FieldType::Currency:
      return Value(static_cast<double>(number));
    case FieldType::Text:
    case FieldType::Memo:
      return Value(QString::number(number));
    case FieldType::Long:
    case FieldType::Date:
      break;
  }
  return Value(number);
}

Value ReadReal(double number, FieldType type) {
  switch (type) {
    case FieldType::YesNo:
      return Value(number != 0);
    case FieldType::Text:
    case FieldType::Memo:
      return Value(NumberText(number));
    case FieldType::Long:
      if (number == std::trunc(number) && std::abs(number) < 0x1p53)
        return Value(static_cast<std::int64_t>(number));
      break;
    default:
      break;
  }
  return Value(number);
}

Value ReadText(QString text, FieldType type) {
  if (type == FieldType::Date) {
    if (const auto moment = ReadStoredDate(text)) return Value(*moment);
  }
  if (type == FieldType::YesNo) {
    return Value(LeadingNumber(text) != 0 || text.compare("true"_L1, Qt::CaseInsensitive) == 0 ||
                 text.compare("yes"_L1, Qt::CaseInsensitive) == 0);
  }
  return Value(std::move(text));
}

}  // namespace

QString DeclarationOf(const Field& field) {
  switch (field.Type) {
    case FieldType::Text:
      return u"TEXT(%1) COLLATE NOCASE"_s.arg(field.Size);
    case FieldType::Memo:
      return u"LONGTEXT COLLATE NOCASE"_s;
    case FieldType::Long:
      return u"INTEGER"_s;
    case FieldType::Double:
      return u"DOUBLE"_s;
    case FieldType::Currency:
      return u"CURRENCY"_s;
    case FieldType::YesNo:
      return u"YESNO NOT NULL DEFAULT 0"_s;
    case FieldType::Date:
      return u"DATE"_s;
  }
  return {};
}

Field FieldOfDeclaration(const QString& name, QStringView declaredType) {
  const auto word = std::find_if(TypeWords.begin(), TypeWords.end(), [&](const TypeWord& candidate) {
    return declaredType.contains(candidate.Word, Qt::CaseInsensitive);
  });
  if (word == TypeWords.end()) return {name, FieldType::Memo, DefaultTextSize};
  if (word->Type != FieldType::Text) return {name, word->Type, DefaultTextSize};
  // Elsewhere a text without a size has no limit.
  const auto size = SizeIn(declaredType);
  return size ? Field{name, FieldType::Text, *size} : Field{name, FieldType::Memo, DefaultTextSize};
}

Value Converted(const Field& field, const Value& value) {
  try {
    return ConvertedUnnamed(field, value);
  } catch (const Error& error) {
    throw Error(error.Code(), u"%1: %2"_s.arg(field.Name, error.Text()));
  }
}

void Bind(sqlite3_stmt* statement, int parameter, const Value& value) {
  sqlite3* const connection = sqlite3_db_handle(statement);
  const auto bindText = [&](const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return sqlite3_bind_text64(statement, parameter, bytes.constData(),
                               static_cast<sqlite3_uint64>(bytes.size()), SQLITE_TRANSIENT, SQLITE_UTF8);
  };
  if (value.IsNull()) return Check(connection, sqlite3_bind_null(statement, parameter));
  if (value.IsTruth())
    return Check(connection, sqlite3_bind_int(statement, parameter, value.Truth() ? -1 : 0));
  if (value.IsDate()) return Check(connection, bindText(StoredDate(value.DateTime())));
  if (value.IsText()) return Check(connection, bindText(value.Text()));
  if (value.IsWhole()) return Check(connection, sqlite3_bind_int64(statement, parameter, value.Whole()));
  Check(connection, sqlite3_bind_double(statement, parameter, value.Number()));
}

Value ReadValue(sqlite3_stmt* statement, int column, FieldType type) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
      return type == FieldType::YesNo ? Value(false) : Value();
    case SQLITE_INTEGER:
      return ReadWhole(sqlite3_column_int64(statement, column), type);
    case SQLITE_FLOAT:
      return ReadReal(sqlite3_column_double(statement, column), type);
    default:
      return ReadText(ColumnText(statement, column), type);
  }
}

}  // namespace velmora::db
