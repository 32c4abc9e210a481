// SPDX-License-Identifier: MIT
#include "forms/Keys.h"

#include <QKeyEvent>

namespace velmora::ui {

bool IsEnter(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

}  // namespace velmora::ui
