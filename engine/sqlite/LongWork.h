// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

struct sqlite3;

namespace velmora::db {

/// Is called now and then while a statement runs for long, on the thread that waits for it, so that windows
/// can repaint. Within it every use of an open file fails with 3045. Files that are opened from now on call
/// it. An empty function takes it back. What the hook throws ends the statement and comes out of it.
void SetLongWorkHook(std::function<void()> hook);

/// Lets a connection's statements call the hook, if there is one.
void WatchLongWork(sqlite3* connection);
/// Throws 3045 within the hook: SQLite must not be entered again from there.
void RefuseWithinHook();
/// Throws what the hook has thrown, if it was that which ended a statement.
void RethrowFromHook();

}  // namespace velmora::db
