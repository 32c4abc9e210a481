// SPDX-License-Identifier: MIT
#include "forms/ProgramLook.h"

#include "forms/Palette.h"
#include "forms/ProgramStyle.h"
#include "forms/Twips.h"

#include <QApplication>
#include <QFont>

namespace velmora::ui {

void ApplyProgramLook(QApplication& application) {
  if (qobject_cast<ProgramStyle*>(QApplication::style()) == nullptr) {
    FollowDesktop(application);
    QApplication::setStyle(new ProgramStyle);
  }
  SetProgramScale(ScaleForFont(QApplication::font()));
  RepaintLook();
}

}  // namespace velmora::ui
