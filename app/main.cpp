// SPDX-License-Identifier: MIT
#include "shell/Main.h"

#include "forms/Palette.h"
#include "forms/ProgramLook.h"
#include "resources/strings.h"
#include "shell/StartAnswer.h"

#include <QApplication>
#include <QLocale>

#include <optional>

int main(int argc, char** argv) {
  const velmora::CommandLine line = velmora::ReadCommandLine(argc, argv);
  if (const std::optional<int> exitCode = velmora::AnswerStart(line)) return *exitCode;
  std::optional<velmora::DisplayCheck> check(line);
  QApplication application(argc, argv);
  check.reset();
  QApplication::setApplicationName(velmora::strings::ProgramName);
  QApplication::setApplicationVersion(QStringLiteral(VELMORA_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("org.velmora.Velmora"));
  // With it the forms of dates follow LC_TIME, and not the language alone.
  QLocale::setDefault(QLocale::system());
  velmora::ui::ApplyProgramLook(application);
  // Quitting is the frame's: it compacts the file and ends the process itself.
  QApplication::setQuitOnLastWindowClosed(false);
  velmora::Main frame;
  frame.Load(line.File);
  return QApplication::exec();
}
