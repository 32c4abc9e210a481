// SPDX-License-Identifier: MIT
#include "base/text/Numbers.h"
#include "engine/sqlite/SqlFunctionSupport.h"
#include "engine/sqlite/Storage.h"
#include "engine/text/Collation.h"

#include <array>
#include <cmath>
#include <limits>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

bool IsNumeric(sqlite3_value* value) {
  const int type = sqlite3_value_type(value);
  return type == SQLITE_INTEGER || type == SQLITE_FLOAT;
}

Value Kept(sqlite3_value* value, double changed) {
  if (sqlite3_value_type(value) == SQLITE_INTEGER) return Value(std::int64_t{sqlite3_value_int64(value)});
  return Value(changed);
}

Value WholeDivide(Arguments a) {
  const std::int64_t divisor = WholeNumberOf(a[1]);
  if (divisor == 0) return {};
  // The least number has no counterpart above zero.
  if (divisor == -1) return Value(-static_cast<double>(WholeNumberOf(a[0])));
  return Value(WholeNumberOf(a[0]) / divisor);
}

Value Modulo(Arguments a) {
  const std::int64_t divisor = WholeNumberOf(a[1]);
  if (divisor == 0) return {};
  return Value(divisor == -1 ? std::int64_t{0} : WholeNumberOf(a[0]) % divisor);
}

Value Power(Arguments a) {
  const double result = std::pow(NumberOf(a[0]), NumberOf(a[1]));
  return std::isfinite(result) ? Value(result) : Value();
}

Value Number(Arguments a) {
  if (IsNumeric(a[0])) return Kept(a[0], NumberOf(a[0]));
  const auto number = ParseNumber(TextOf(a[0]));
  if (!number)
    throw Error(ErrorCode::TypeMismatchInCondition, u"\"%1\" is not a number."_s.arg(TextOf(a[0])));
  return Value(*number);
}

int Order(sqlite3_value* left, sqlite3_value* right) {
  if (IsNumeric(left) && IsNumeric(right)) {
    const double difference = NumberOf(left) - NumberOf(right);
    return difference < 0 ? -1 : difference > 0 ? 1 : 0;
  }
  return CompareText(BytesOf(left), BytesOf(right));
}

/// Between the bounds in either order. With one bound unknown the outcome is unknown too, for whatever it is,
/// it could let the value in.
Value BetweenBounds(Arguments a) {
  if (IsNull(a[0]) || IsNull(a[1]) || IsNull(a[2])) return {};
  const int low = Order(a[0], a[1]);
  const int high = Order(a[0], a[2]);
  return Value(std::int64_t{(low >= 0 && high <= 0) || (low <= 0 && high >= 0)});
}

Value Round(Arguments a) {
  const std::int64_t decimals = a.size() > 1 ? WholeNumberOf(a[1]) : 0;
  if (decimals < 0 || decimals > std::numeric_limits<double>::max_digits10) return Kept(a[0], NumberOf(a[0]));
  const double scale = std::pow(10.0, static_cast<double>(decimals));
  const double scaled = NumberOf(a[0]) * scale;
  if (!std::isfinite(scaled)) return Value(NumberOf(a[0]));
  return Kept(a[0], RoundHalfEven(scaled) / scale);
}

Value SignOf(Arguments a) {
  const double number = NumberOf(a[0]);
  return Value(number > 0 ? 1 : number < 0 ? -1 : 0);
}

Value Root(Arguments a) { return NumberOf(a[0]) < 0 ? Value() : Value(std::sqrt(NumberOf(a[0]))); }

Value Currency(Arguments a) {
  return Converted({.Name = u"CCur"_s, .Type = FieldType::Currency}, Value(NumberOf(a[0])));
}

/// The value as a column of that kind and size stores it.
Value Store(Arguments a) {
  const Field field{.Name = u"The value"_s,
                    .Type = static_cast<FieldType>(sqlite3_value_int(a[1])),
                    .Size = sqlite3_value_int(a[2])};
  switch (sqlite3_value_type(a[0])) {
    case SQLITE_NULL:
      return Converted(field, Value());
    case SQLITE_INTEGER:
      return Converted(field, Value(std::int64_t{sqlite3_value_int64(a[0])}));
    case SQLITE_FLOAT:
      return Converted(field, Value(sqlite3_value_double(a[0])));
    default:
      return Converted(field, Value(TextOf(a[0])));
  }
}

}  // namespace

std::span<const SqlFunction> NumberFunctions() {
  static constexpr std::array Functions{
      SqlFunction{"v_whole_divide", 2, WholeDivide},
      SqlFunction{"v_modulo", 2, Modulo},
      SqlFunction{"v_power", 2, Power},
      SqlFunction{"v_number", 1, Number},
      SqlFunction{"v_between", 3, BetweenBounds, true},
      SqlFunction{"v_round", 1, Round},
      SqlFunction{"v_round", 2, Round},
      SqlFunction{"v_sign", 1, SignOf},
      SqlFunction{"v_root", 1, Root},
      SqlFunction{"v_currency", 1, Currency},
      SqlFunction{"v_store", 3, Store, true},
      SqlFunction{"v_whole", 1, [](Arguments a) { return Value(WholeNumberOf(a[0])); }},
      SqlFunction{"v_truth", 1, [](Arguments a) { return Value(NumberOf(a[0]) != 0); }},
      SqlFunction{"v_int", 1, [](Arguments a) { return Kept(a[0], std::floor(NumberOf(a[0]))); }},
      SqlFunction{"v_fix", 1, [](Arguments a) { return Kept(a[0], std::trunc(NumberOf(a[0]))); }},
      SqlFunction{"v_val", 1, [](Arguments a) { return Value(LeadingNumber(TextOf(a[0]))); }},
  };
  return Functions;
}

}  // namespace velmora::db
