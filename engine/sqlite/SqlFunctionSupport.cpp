// SPDX-License-Identifier: MIT
#include "engine/sqlite/SqlFunctionSupport.h"

#include "base/dates/Dates.h"
#include "base/text/Numbers.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

bool IsNull(sqlite3_value* value) { return sqlite3_value_type(value) == SQLITE_NULL; }

QByteArrayView BytesOf(sqlite3_value* value) {
  // Of a text this gives the bytes as they lie in the page; sqlite3_value_text would copy them to end them
  // with a zero byte.
  if (sqlite3_value_type(value) == SQLITE_TEXT) {
    const int size = sqlite3_value_bytes(value);
    return {static_cast<const char*>(sqlite3_value_blob(value)), size};
  }
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return {text, sqlite3_value_bytes(value)};
}

QString TextOf(sqlite3_value* value) {
  switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
      return QString::number(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
      return NumberText(sqlite3_value_double(value));
    default:
      return QString::fromUtf8(BytesOf(value));
  }
}

double NumberOf(sqlite3_value* value) { return sqlite3_value_double(value); }

std::int64_t WholeNumberOf(sqlite3_value* value) {
  if (sqlite3_value_type(value) == SQLITE_INTEGER) return sqlite3_value_int64(value);
  const double number = RoundHalfEven(sqlite3_value_double(value));
  constexpr double beyond = 0x1p63;
  if (!(number >= -beyond && number < beyond)) {
    throw Error(ErrorCode::NumberOutOfRange, u"%1 is beyond the range of whole numbers."_s.arg(number));
  }
  return static_cast<std::int64_t>(number);
}

QDateTime MomentOf(sqlite3_value* value) {
  const auto moment = ParseDate(TextOf(value));
  if (!moment) throw Error(ErrorCode::TypeMismatchInCondition, u"\"%1\" is not a date."_s.arg(TextOf(value)));
  return *moment;
}

void SetResult(sqlite3_context* context, const Value& value) {
  if (value.IsNull()) return sqlite3_result_null(context);
  if (value.IsTruth()) return sqlite3_result_int(context, value.Truth() ? -1 : 0);
  if (value.IsWhole()) return sqlite3_result_int64(context, value.Whole());
  if (value.IsNumber()) return sqlite3_result_double(context, value.Number());
  const QByteArray text = (value.IsDate() ? StoredDate(value.DateTime()) : value.Text()).toUtf8();
  sqlite3_result_text64(context, text.constData(), static_cast<sqlite3_uint64>(text.size()), SQLITE_TRANSIENT,
                        SQLITE_UTF8);
}

}  // namespace velmora::db
