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

/// The one trap of a routine: a failure leaves the routine at this point and is given to `tell`, for the user
/// to know of it. True when the routine ran to its end.
template <typename Routine, typename Tell>
bool Trap(Routine&& routine, Tell&& tell) {
  try {
    std::forward<Routine>(routine)();
    return true;
  } catch (const std::exception& failure) {
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
