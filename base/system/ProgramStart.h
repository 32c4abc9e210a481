// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace velmora {

/// A program and what is given to it, each argument as it is: nothing of it ever goes through a shell.
struct ProgramStart {
  QString Program;
  QStringList Arguments;
  /// The directory in which it runs; empty for the user's home.
  QString Directory;

  bool operator==(const ProgramStart&) const = default;
};

}  // namespace velmora
