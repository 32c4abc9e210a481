// SPDX-License-Identifier: MIT
#include "engine/sqlite/SqlFunctions.h"

#include "base/dates/Dates.h"
#include "base/text/Numbers.h"
#include "engine/sqlite/SqlFunctionSupport.h"
#include "engine/sqlite/SqliteHandle.h"
#include "engine/sqlite/Storage.h"
#include "engine/text/TextRules.h"

#include <algorithm>
#include <cmath>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

// An error's number travels in front of its text, for want of another way through SQLite.
constexpr auto ErrorMark = "velmora "_L1;

// The schema of a stranger's file can't call these (only statements can), and they change nothing.
constexpr int Flags = SQLITE_UTF8 | SQLITE_INNOCUOUS;

template <typename Work>
void Guarded(sqlite3_context* context, Work work) {
  try {
    work();
  } catch (const Error& error) {
    SetError(context, error);
  } catch (const std::exception& problem) {
    SetError(context, Error(ErrorCode::Internal, QString::fromUtf8(problem.what())));
  }
}

void RunFunction(sqlite3_context* context, int count, sqlite3_value** values) {
  const auto* function = static_cast<const SqlFunction*>(sqlite3_user_data(context));
  const Arguments arguments(values, static_cast<std::size_t>(count));
  if (!function->TakesNull && std::any_of(arguments.begin(), arguments.end(), IsNull)) {
    return sqlite3_result_null(context);
  }
  Guarded(context, [&] { SetResult(context, function->Run(arguments)); });
}

bool Matches(const LikePattern& pattern, sqlite3_value* value) {
  const int type = sqlite3_value_type(value);
  const bool isNumber = type == SQLITE_INTEGER || type == SQLITE_FLOAT;
  return isNumber ? pattern.Matches(TextOf(value).toUtf8()) : pattern.Matches(BytesOf(value));
}

/// like(pattern, value): the pattern is read once for a statement when it stays the same.
void RunLike(sqlite3_context* context, int, sqlite3_value** values) {
  if (IsNull(values[1])) return sqlite3_result_null(context);
  if (const auto* pattern = static_cast<LikePattern*>(sqlite3_get_auxdata(context, 0))) {
    return sqlite3_result_int(context, Matches(*pattern, values[1]));
  }
  if (IsNull(values[0])) return sqlite3_result_null(context);
  Guarded(context, [&] {
    auto pattern = std::make_unique<LikePattern>(TextOf(values[0]));
    sqlite3_result_int(context, Matches(*pattern, values[1]));
    // SQLite frees it at once when the pattern is no constant, so this comes last.
    sqlite3_set_auxdata(context, 0, pattern.release(), [](void* old) {
      const std::unique_ptr<LikePattern> owner(static_cast<LikePattern*>(old));
    });
  });
}

int RunComparison(void*, int leftSize, const void* left, int rightSize, const void* right) {
  return CompareText(QByteArrayView(static_cast<const char*>(left), leftSize),
                     QByteArrayView(static_cast<const char*>(right), rightSize));
}

/// FIRST and LAST: the value of the row that comes first or last among the group's rows.
struct Chosen {
  sqlite3_value* Value;
  sqlite3_int64 Key;
};

void StepChosen(sqlite3_context* context, int, sqlite3_value** values) {
  const bool wantsLast = sqlite3_user_data(context) != nullptr;
  auto* chosen = static_cast<Chosen*>(sqlite3_aggregate_context(context, sizeof(Chosen)));
  if (chosen == nullptr) return sqlite3_result_error_nomem(context);
  const sqlite3_int64 key = sqlite3_value_int64(values[1]);
  const bool isBetter = chosen->Value == nullptr || (wantsLast ? key >= chosen->Key : key < chosen->Key);
  if (!isBetter) return;
  sqlite3_value_free(chosen->Value);
  *chosen = {sqlite3_value_dup(values[0]), key};
}

void FinishChosen(sqlite3_context* context) {
  auto* chosen = static_cast<Chosen*>(sqlite3_aggregate_context(context, 0));
  if (chosen == nullptr || chosen->Value == nullptr) return sqlite3_result_null(context);
  sqlite3_result_value(context, chosen->Value);
  sqlite3_value_free(chosen->Value);
}

}  // namespace

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

std::int64_t WholeOf(sqlite3_value* value) {
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
  if (!moment) throw Error(ErrorCode::TypeMismatchInCondition, u"\"%1\" is no date."_s.arg(TextOf(value)));
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

void SetError(sqlite3_context* context, const Error& error) {
  const QByteArray text = (ErrorMark + QString::number(error.Number()) + ": "_L1 + error.Text()).toUtf8();
  sqlite3_result_error(context, text.constData(), static_cast<int>(text.size()));
}

std::optional<Error> FunctionError(sqlite3* connection) {
  const QString text = QString::fromUtf8(sqlite3_errmsg(connection));
  if (!text.startsWith(ErrorMark)) return std::nullopt;
  const qsizetype end = text.indexOf(": "_L1);
  const int number = QStringView(text).mid(ErrorMark.size(), end - ErrorMark.size()).toInt();
  return Error(static_cast<ErrorCode>(number), text.mid(end + 2));
}

void InstallSqlFunctions(sqlite3* connection) {
  Check(connection,
        sqlite3_create_collation_v2(connection, "NOCASE", SQLITE_UTF8, nullptr, RunComparison, nullptr));
  Check(connection, sqlite3_create_function_v2(connection, "like", 2, Flags | SQLITE_DETERMINISTIC, nullptr,
                                               RunLike, nullptr, nullptr, nullptr));
  for (const auto functions : {TextFunctions(), NumberFunctions(), DateFunctions()}) {
    for (const SqlFunction& function : functions) {
      const int flags = function.IsConstant ? Flags | SQLITE_DETERMINISTIC : Flags;
      Check(connection, sqlite3_create_function_v2(connection, function.Name, function.Count, flags,
                                                   const_cast<SqlFunction*>(&function), RunFunction, nullptr,
                                                   nullptr, nullptr));
    }
  }
  static const int wantsLast = 1;
  const auto addChosen = [&](const char* name, const int* mark) {
    Check(connection, sqlite3_create_function_v2(connection, name, 2, Flags, const_cast<int*>(mark), nullptr,
                                                 StepChosen, FinishChosen, nullptr));
  };
  addChosen("v_first", nullptr);
  addChosen("v_last", &wantsLast);
}

}  // namespace velmora::db
