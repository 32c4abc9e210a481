// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

namespace velmora {

/// The system's number of a process.
using ProcessNumber = std::int64_t;

/// A program and what is given to it, each argument as it is: nothing of it ever goes through a shell.
struct ProgramStart {
  QString Program;
  QStringList Arguments;
  /// The directory in which it runs; empty for the user's home.
  QString Directory;

  bool operator==(const ProgramStart&) const = default;
};

}  // namespace velmora
