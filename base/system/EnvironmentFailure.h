// SPDX-License-Identifier: MIT
#pragma once

#include <exception>

namespace velmora {

/// What a failing environment throws: a file that cannot be read, a full disk, a statement that the engine
/// refuses. Trap and IgnoringErrors catch this alone.
class EnvironmentFailure : public std::exception {};

}  // namespace velmora
