// SPDX-License-Identifier: MIT
#include "forms/ScrollSpin.h"

namespace velmora::ui {

ScrollSpin::ScrollSpin(QWidget* parent) : QScrollBar(Qt::Vertical, parent), Control(this) {
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QAbstractSlider::valueChanged, this, [this] { Q_EMIT Change(); });
}

}  // namespace velmora::ui
