// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/ProgramStart.h"

namespace velmora {

/// Restores the window of another program and brings it to the front. False where the window system can't be
/// asked for that, or the process has no window.
bool BringToFront(ProcessNumber process);

}  // namespace velmora
