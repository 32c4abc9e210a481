// SPDX-License-Identifier: MIT
#include "base/system/Failures.h"

namespace velmora {

// The threshold keeps debug messages off until QT_LOGGING_RULES asks for them.
Q_LOGGING_CATEGORY(FailureLog, "velmora.failures", QtWarningMsg)

}  // namespace velmora
