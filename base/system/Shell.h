// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/EnvironmentFailure.h"
#include "base/system/ProgramStart.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace velmora {

/// A program that can't be started.
class StartFailure final : public EnvironmentFailure {
 public:
  explicit StartFailure(const QString& text) : m_text(text.toUtf8()) {}
  [[nodiscard]] const char* what() const noexcept override { return m_text.constData(); }

 private:
  QByteArray m_text;
};

/// Starts a program that lives on when this one ends. Throws StartFailure when that fails.
ProcessNumber Shell(const ProgramStart& start);
/// The same for a path: that of a program, or of the desktop's entry for one (".desktop"), which says how it
/// is started.
ProcessNumber Shell(const QString& path, const QStringList& arguments = {});
/// Whether a path is that of a program or of an entry for one: what Shell can at least try.
[[nodiscard]] bool CanStart(const QString& path);

/// Starts programs in place of the system, for tests; an empty function brings the real start back.
void SetStarter(std::function<ProcessNumber(const ProgramStart&)> starter);

}  // namespace velmora
