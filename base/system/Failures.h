// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

#include <exception>
#include <utility>

namespace velmora {

/// Where swallowed failures are told; off by default ("velmora.failures=true" in QT_LOGGING_RULES turns it
/// on).
Q_DECLARE_LOGGING_CATEGORY(FailureLog)

/// Runs one statement; a failure skips it and is told to FailureLog alone.
template <typename Statement>
void IgnoringErrors(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
  } catch (const std::exception& failure) {
    qCDebug(FailureLog) << "ignored:" << failure.what();
  }
}

/// The one trap of a routine: a failure leaves the routine at this point. True when it ran to its end.
template <typename Routine>
bool Trap(Routine&& routine) {
  try {
    std::forward<Routine>(routine)();
    return true;
  } catch (const std::exception& failure) {
    qCDebug(FailureLog) << "routine left:" << failure.what();
    return false;
  }
}

}  // namespace velmora
