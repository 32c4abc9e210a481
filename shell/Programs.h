// SPDX-License-Identifier: MIT
#pragma once

namespace velmora {

// The programs beside this one that its commands start.

/// The help at its contents, and at the topic of that number (the contents for none).
void OpenHelpContents();
void OpenHelpTopic(int number);
void RunVideoHelp();
/// The browser at the product's page.
void OpenWebPage();
void RunCalculator();
/// The program behind a shortcut button, 1 to 3.
void RunProgram(int number);

}  // namespace velmora
