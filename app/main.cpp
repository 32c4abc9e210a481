// SPDX-License-Identifier: MIT
#include "shell/Main.h"

#include "forms/Palette.h"
#include "forms/ProgramLook.h"
#include "resources/strings.h"

#include <QApplication>
#include <QLocale>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(velmora::strings::ProgramName);
  QApplication::setApplicationVersion(QStringLiteral(VELMORA_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("velmora"));
  // With it the forms of dates follow LC_TIME, and not the language alone.
  QLocale::setDefault(QLocale::system());
  velmora::ui::ApplyProgramLook(application);
  // Quitting is the frame's: it compacts the file and ends the process itself.
  QApplication::setQuitOnLastWindowClosed(false);
  velmora::Main frame;
  frame.Load();
  return QApplication::exec();
}
