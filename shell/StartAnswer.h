// SPDX-License-Identifier: MIT
#pragma once

#include "shell/CommandLine.h"

#include <QtGlobal>

#include <optional>

namespace velmora {

/// The words behind the program's name, read in the folder where it was started.
[[nodiscard]] CommandLine ReadCommandLine(int argc, char** argv);

/// Prints what the command line asks for and gives the exit code; nothing when the program is to run.
[[nodiscard]] std::optional<int> AnswerStart(const CommandLine& line);

/// While it lives, a toolkit that finds no display does not abort the process: what that means for this start
/// is told on standard error, and the process ends with the exit code that goes with it. One at a time.
class DisplayCheck final {
 public:
  explicit DisplayCheck(const CommandLine& line);
  ~DisplayCheck();
  DisplayCheck(const DisplayCheck&) = delete;
  DisplayCheck& operator=(const DisplayCheck&) = delete;

 private:
  QtMessageHandler m_usual;
};

}  // namespace velmora
