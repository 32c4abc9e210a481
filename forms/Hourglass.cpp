// SPDX-License-Identifier: MIT
#include "forms/Hourglass.h"

#include <QApplication>

namespace velmora::ui {

Hourglass::Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
Hourglass::~Hourglass() { QApplication::restoreOverrideCursor(); }

}  // namespace velmora::ui
