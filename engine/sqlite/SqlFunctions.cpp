// SPDX-License-Identifier: MIT
#include "engine/sqlite/SqlFunctions.h"

#include "engine/sqlite/FunctionError.h"
#include "engine/sqlite/SqlFunctionSupport.h"
#include "engine/sqlite/SqliteHandle.h"
#include "engine/text/Collation.h"
#include "engine/text/LikePattern.h"

#include <algorithm>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

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
