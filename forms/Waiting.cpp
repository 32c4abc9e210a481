// SPDX-License-Identifier: MIT
#include "forms/Waiting.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace velmora::ui {

namespace {

bool& Repainting() {
  static bool repainting = false;
  return repainting;
}

}  // namespace

void Yield() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

void LetRepaint() {
  if (Repainting()) return;
  Repainting() = true;
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  Repainting() = false;
}

bool IsRepainting() { return Repainting(); }

void Pause(int milliseconds) {
  QEventLoop waiting;
  QTimer::singleShot(milliseconds, &waiting, &QEventLoop::quit);
  waiting.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace velmora::ui
