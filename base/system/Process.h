// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace velmora {

/// Ends the process at once: no destructor, no event runs any more. Everything that must last is on the disk.
void EndProcess();
/// Ends the run in place of the system, for tests; an empty function brings the real end back.
void SetProcessEnder(std::function<void()> ender);

}  // namespace velmora
