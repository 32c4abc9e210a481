// SPDX-License-Identifier: MIT
#include "forms/Screen.h"

namespace velmora::ui {

namespace {

QList<Screen*>& OpenScreens() {
  static QList<Screen*> open;
  return open;
}

}  // namespace

const QList<Screen*>& Forms() { return OpenScreens(); }

Screen* FindScreen(QStringView name) {
  for (Screen* screen : Forms()) {
    if (screen->ScreenName() == name) return screen;
  }
  return nullptr;
}

void EnterScreen(Screen* screen) { OpenScreens().append(screen); }

void EnterFrame(Screen* frame) { OpenScreens().prepend(frame); }

void LeaveScreen(Screen* screen) { OpenScreens().removeAll(screen); }

}  // namespace velmora::ui
