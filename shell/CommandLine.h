// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace velmora {

/// What the user asks of a start by the words of the command line.
struct CommandLine {
  enum class Ask {
    /// The program, on File when one is named.
    Run,
    /// A text that is printed before the program ends: Text.
    Print,
    /// The same on standard error, for words that mean nothing.
    Refuse
  };
  Ask Asks = Ask::Run;
  /// The full path of the card file; empty for none.
  QString File;
  QString Text;
};

/// Reads the words behind the program's name. A file is a path, taken from `directory` when it is relative,
/// or a file: address. The options of the toolkit, which reads them itself, are passed over.
[[nodiscard]] CommandLine ReadCommandLine(const QStringList& words, const QString& directory);

/// What is told when the program cannot come up for want of a display: that the file is missing, when it is,
/// and else that there is no display; with the exit code.
struct NoDisplay {
  QString Text;
  int ExitCode = 0;
};
[[nodiscard]] NoDisplay WithoutDisplay(const CommandLine& line);

}  // namespace velmora
