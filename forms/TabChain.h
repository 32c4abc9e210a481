// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class QWidget;

namespace velmora::ui {

/// Makes the Tab key walk through these controls in this order. For the elements of a control array give its
/// Widgets().
void ChainTabStops(const QList<QWidget*>& stops);

}  // namespace velmora::ui
