// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

namespace velmora {

/// The face of the clock: the hour and minute with the half of the day.
[[nodiscard]] QString ClockText(QTime now);
/// The face of the running stopwatch: the time since its start, over midnight too.
[[nodiscard]] QString StopwatchText(QTime now, QTime start);

}  // namespace velmora
