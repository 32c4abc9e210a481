// SPDX-License-Identifier: MIT
#include "shell/StartAnswer.h"

#include <QDir>

#include <cstdio>
#include <cstdlib>

namespace velmora {

namespace {

constexpr int exitOfMisuse = 2;

void Print(const QString& text, std::FILE* stream) { std::fputs(text.toLocal8Bit().constData(), stream); }

/// A message handler is a plain function: what it tells must stand where it finds it.
NoDisplay& Told() {
  static NoDisplay told;
  return told;
}

void EndAtFatal(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*text*/) {
  if (type != QtFatalMsg) return;
  Print(Told().Text, stderr);
  std::_Exit(Told().ExitCode);
}

}  // namespace

CommandLine ReadCommandLine(int argc, char** argv) {
  QStringList words;
  for (int i = 1; i < argc; ++i) words.append(QString::fromLocal8Bit(argv[i]));
  return ReadCommandLine(words, QDir::currentPath());
}

std::optional<int> AnswerStart(const CommandLine& line) {
  switch (line.Asks) {
    case CommandLine::Ask::Run:
      return std::nullopt;
    case CommandLine::Ask::Print:
      Print(line.Text, stdout);
      return EXIT_SUCCESS;
    case CommandLine::Ask::Refuse:
      Print(line.Text, stderr);
      return exitOfMisuse;
  }
  return std::nullopt;
}

DisplayCheck::DisplayCheck(const CommandLine& line) {
  Told() = WithoutDisplay(line);
  m_usual = qInstallMessageHandler(&EndAtFatal);
}

DisplayCheck::~DisplayCheck() { qInstallMessageHandler(m_usual); }

}  // namespace velmora
