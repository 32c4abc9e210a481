// SPDX-License-Identifier: MIT
#include "engine/sqlite/LongWork.h"

#include "engine/values/Error.h"

#include <QString>

#include <sqlite3.h>

#include <chrono>
#include <exception>
#include <utility>

namespace velmora::db {

using namespace Qt::StringLiterals;
using std::chrono::steady_clock;

namespace {

// Some milliseconds of SQLite's work.
constexpr int stepsBetweenLooks = 100000;
/// Work that is done within this time needs no repainting; longer than that between two looks, it is other
/// work.
constexpr std::chrono::milliseconds patience{200};
constexpr std::chrono::milliseconds betweenCalls{50};

struct Watch {
  std::function<void()> Hook;
  /// What the hook has thrown: it can't pass through SQLite.
  std::exception_ptr Failure;
  steady_clock::time_point Begun;
  steady_clock::time_point LastLook;
  steady_clock::time_point LastCall;
  bool IsWithin = false;
};

Watch& TheWatch() {
  static Watch watch;
  return watch;
}

/// Whether the statement goes on.
bool CallHook(Watch& watch) noexcept {
  watch.IsWithin = true;
  watch.Failure = nullptr;
  try {
    watch.Hook();
  } catch (...) {
    watch.Failure = std::current_exception();
  }
  watch.IsWithin = false;
  return watch.Failure == nullptr;
}

int Look(void* /*unused*/) noexcept {
  Watch& watch = TheWatch();
  if (!watch.Hook || watch.IsWithin) return 0;
  const auto now = steady_clock::now();
  if (now - watch.LastLook > patience) watch.Begun = now;
  watch.LastLook = now;
  if (now - watch.Begun < patience || now - watch.LastCall < betweenCalls) return 0;
  const bool goesOn = CallHook(watch);
  watch.LastCall = watch.LastLook = steady_clock::now();
  return goesOn ? 0 : 1;
}

}  // namespace

void SetLongWorkHook(std::function<void()> hook) { TheWatch().Hook = std::move(hook); }

void WatchLongWork(sqlite3* connection) {
  if (TheWatch().Hook) sqlite3_progress_handler(connection, stepsBetweenLooks, Look, nullptr);
}

void RefuseWithinHook() {
  if (TheWatch().IsWithin) throw Error(ErrorCode::FileInUse, u"The file is at work."_s);
}

void RethrowFromHook() {
  if (const auto failure = std::exchange(TheWatch().Failure, nullptr)) std::rethrow_exception(failure);
}

}  // namespace velmora::db
