// SPDX-License-Identifier: MIT
#include "forms/Waiting.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QScopeGuard>
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
  const auto done = qScopeGuard([] { Repainting() = false; });
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

bool IsRepainting() { return Repainting(); }

void Pause(int milliseconds) {
  QEventLoop waiting;
  QTimer::singleShot(milliseconds, &waiting, &QEventLoop::quit);
  waiting.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace velmora::ui
