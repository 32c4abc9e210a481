// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/EnvironmentFailure.h"

#include <QLoggingCategory>

#include <utility>

namespace velmora {

/// Where swallowed failures are told; off by default ("velmora.failures=true" in QT_LOGGING_RULES turns it
/// on).
Q_DECLARE_LOGGING_CATEGORY(FailureLog)

/// Runs one statement; a failure of the environment skips it and is told to FailureLog alone. Any other
/// exception is a bug of our own and goes on.
template <typename Statement>
void IgnoringErrors(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
  } catch (const EnvironmentFailure& failure) {
    qCDebug(FailureLog) << "ignored:" << failure.what();
  }
}

/// The one trap of a routine: a failure of the environment leaves the routine at this point. True when it ran
/// to its end. Any other exception is a bug of our own and goes on.
template <typename Routine>
bool Trap(Routine&& routine) {
  try {
    std::forward<Routine>(routine)();
    return true;
  } catch (const EnvironmentFailure& failure) {
    qCDebug(FailureLog) << "routine left:" << failure.what();
    return false;
  }
}

}  // namespace velmora
