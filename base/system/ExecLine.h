// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace velmora {

/// One argument of a desktop entry's command line with nothing filled in yet.
struct ExecArgument {
  QString Text;
  bool IsQuoted = false;
};

/// The arguments of a command line: blanks part them, double quotes keep one together. Nothing for a quote
/// without an end.
[[nodiscard]] std::optional<QList<ExecArgument>> SplitExecLine(QStringView line);

/// What the codes of a command line stand for.
struct ExecValues {
  QStringList Files;
  /// The entry's own name, icon and file.
  QString Name;
  QString Icon;
  QString Entry;
};

/// The words of a command line with its codes filled in; nothing when it has a fault or no program. Files for
/// which it has no code stand at its end.
[[nodiscard]] std::optional<QStringList> FillExecLine(QStringView line, const ExecValues& values);

}  // namespace velmora
