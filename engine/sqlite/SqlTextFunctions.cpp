// SPDX-License-Identifier: MIT
#include "engine/sqlite/SqlFunctionSupport.h"

#include <algorithm>
#include <array>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

/// A count of characters given as a number; what is below zero is an invalid use, what is huge means all.
qsizetype CountOf(sqlite3_value* value) {
  constexpr std::int64_t most = 1 << 30;
  const std::int64_t count = WholeNumberOf(value);
  if (count < 0)
    throw Error(ErrorCode::TypeMismatchInCondition, u"A number of characters can't be negative."_s);
  return static_cast<qsizetype>(std::min(count, most));
}

// Only spaces: what else may look empty is kept.
QString WithoutBlanks(const QString& text, bool atStart, bool atEnd) {
  QStringView rest(text);
  while (atStart && rest.startsWith(u' ')) rest = rest.sliced(1);
  while (atEnd && rest.endsWith(u' ')) rest.chop(1);
  return rest.toString();
}

Value Join(Arguments a) {
  QString text;
  for (sqlite3_value* value : a) {
    if (!IsNull(value)) text += TextOf(value);
  }
  return Value(text);
}

Value Middle(Arguments a) {
  const qsizetype start = CountOf(a[1]);
  if (start == 0) throw Error(ErrorCode::TypeMismatchInCondition, u"Characters are counted from 1."_s);
  return Value(TextOf(a[0]).mid(start - 1, a.size() > 2 ? CountOf(a[2]) : -1));
}

Value InText(Arguments a) {
  const qsizetype start = std::max<qsizetype>(CountOf(a[0]), 1);
  const QString text = TextOf(a[1]);
  if (start > text.size()) return Value(0);
  return Value(std::int64_t{text.indexOf(TextOf(a[2]), start - 1, Qt::CaseInsensitive)} + 1);
}

Value Replaced(Arguments a) {
  const QString part = TextOf(a[1]);
  if (part.isEmpty()) return Value(TextOf(a[0]));
  return Value(TextOf(a[0]).replace(part, TextOf(a[2]), Qt::CaseInsensitive));
}

Value Blanks(Arguments a) {
  constexpr qsizetype most = 1 << 20;
  return Value(QString(std::min(CountOf(a[0]), most), u' '));
}

}  // namespace

std::span<const SqlFunction> TextFunctions() {
  static constexpr std::array Functions{
      SqlFunction{"v_join", -1, Join, true},
      SqlFunction{"v_mid", 2, Middle},
      SqlFunction{"v_mid", 3, Middle},
      SqlFunction{"v_in_text", 3, InText},
      SqlFunction{"v_replace", 3, Replaced},
      SqlFunction{"v_space", 1, Blanks},
      SqlFunction{"v_text", 1, [](Arguments a) { return Value(TextOf(a[0])); }},
      SqlFunction{"v_len", 1, [](Arguments a) { return Value(std::int64_t{TextOf(a[0]).size()}); }},
      SqlFunction{"v_left", 2, [](Arguments a) { return Value(TextOf(a[0]).left(CountOf(a[1]))); }},
      SqlFunction{"v_right", 2, [](Arguments a) { return Value(TextOf(a[0]).right(CountOf(a[1]))); }},
      SqlFunction{"v_upper", 1, [](Arguments a) { return Value(TextOf(a[0]).toUpper()); }},
      SqlFunction{"v_lower", 1, [](Arguments a) { return Value(TextOf(a[0]).toLower()); }},
      SqlFunction{"v_trim", 1, [](Arguments a) { return Value(WithoutBlanks(TextOf(a[0]), true, true)); }},
      SqlFunction{"v_ltrim", 1, [](Arguments a) { return Value(WithoutBlanks(TextOf(a[0]), true, false)); }},
      SqlFunction{"v_rtrim", 1, [](Arguments a) { return Value(WithoutBlanks(TextOf(a[0]), false, true)); }},
  };
  return Functions;
}

}  // namespace velmora::db
