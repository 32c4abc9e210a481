// SPDX-License-Identifier: MIT
#include "forms/TabChain.h"

#include <QWidget>

namespace velmora::ui {

void ChainTabStops(const QList<QWidget*>& stops) {
  for (qsizetype i = 1; i < stops.size(); ++i) QWidget::setTabOrder(stops.at(i - 1), stops.at(i));
}

}  // namespace velmora::ui
