// SPDX-License-Identifier: MIT
#pragma once

class QApplication;

namespace velmora::ui {

/// Gives the program its style, palette and scale, and lets it follow the desktop from light to dark and
/// back.
void ApplyProgramLook(QApplication& application);

}  // namespace velmora::ui
