// SPDX-License-Identifier: MIT
#include "platform/ui/ScrollSpin.h"

namespace velmora::ui {

ScrollSpin::ScrollSpin(QWidget* parent) : QScrollBar(Qt::Vertical, parent), Control(this) {
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QAbstractSlider::valueChanged, this, [this] { Q_EMIT Change(); });
}

}  // namespace velmora::ui
