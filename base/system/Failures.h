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

/// The one trap of a routine: a failure of the environment leaves the routine at this point and is given to
/// `tell`, for the user to know of it. True when the routine ran to its end. Any other exception is a bug of
/// our own and goes on.
template <typename Routine, typename Tell>
bool Trap(Routine&& routine, Tell&& tell) {
  try {
    std::forward<Routine>(routine)();
    return true;
  } catch (const EnvironmentFailure& failure) {
    qCDebug(FailureLog) << "routine left:" << failure.what();
    std::forward<Tell>(tell)(failure);
    return false;
  }
}

/// The trap of a routine whose failure nobody is told of.
template <typename Routine>
bool Trap(Routine&& routine) {
  return Trap(std::forward<Routine>(routine), [](const auto& /*failure*/) {});
}

}  // namespace velmora
