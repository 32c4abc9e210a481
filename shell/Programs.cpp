// SPDX-License-Identifier: MIT
#include "shell/Programs.h"

namespace velmora {

void OpenHelpContents() {
  // The help opens here, at its contents.
}

void OpenHelpTopic(int /*number*/) {
  // The help opens here, at the topic of that number.
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
