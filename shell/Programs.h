// SPDX-License-Identifier: MIT
#pragma once

namespace velmora {

// The programs beside this one that its commands start. Where one can't be started a notice says so.

/// The help at its contents, and at the topic of that number (the contents for none).
void OpenHelpContents();
void OpenHelpTopic(int number);
/// The browser at the product's page.
void OpenWebPage();
/// The calculator; one that this program started and that still runs is brought to the front.
void RunCalculator();
/// The program behind a shortcut button, 1 to 3; false when it was not started.
bool RunProgram(int number);
/// The desktop's program that tells about the system.
void StartSysInfo();

}  // namespace velmora
