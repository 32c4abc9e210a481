// SPDX-License-Identifier: MIT
#include "shell/Programs.h"

#include "base/system/Failures.h"
#include "base/system/Files.h"
#include "base/system/Shell.h"
#include "forms/Notice.h"
#include "resources/HelpTopics.h"
#include "resources/strings.h"

#include <QCoreApplication>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

/// The help viewer, which lies beside this program, on the file of the help.
void StartHelp(const QStringList& topic) {
  const QString viewer = PathOfFile(QCoreApplication::applicationFilePath()) + u"velmora-help"_s;
  Trap([&] { Shell(viewer, QStringList{ProgramDir() + u"Velmora"_s} + topic); },
       [](const auto& /*failure*/) { ui::Notify(strings::programs::NoHelp); });
}

}  // namespace

void OpenHelpContents() { StartHelp({}); }

void OpenHelpTopic(int number) {
  if (number == topics::None) {
    StartHelp({});
  } else {
    StartHelp({QString::number(number)});
  }
}

void RunVideoHelp() {
  // The video help starts here.
}

void OpenWebPage() {
  // The browser opens the product's page here.
}

void RunCalculator() {
  // The calculator starts here.
}

void RunProgram(int /*number*/) {
  // The program of that shortcut button starts here.
}

}  // namespace velmora
