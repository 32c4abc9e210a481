// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"

#include <QScrollBar>

namespace velmora::ui {

/// A vertical scroll bar that sets a number. The up key and the upper arrow lower the value.
class ScrollSpin : public QScrollBar, public Control {
  Q_OBJECT

 public:
  explicit ScrollSpin(QWidget* parent);
  [[nodiscard]] int Value() const { return value(); }
  /// Raises Change when the value becomes another.
  void SetValue(int value) { setValue(value); }
  void SetRange(int least, int most) { setRange(least, most); }

  void OnGotFocus() override { Q_EMIT GotFocus(); }
  void OnLostFocus() override { Q_EMIT LostFocus(); }

 Q_SIGNALS:
  /// The value became another, whoever set it.
  void Change();
  void GotFocus();
  void LostFocus();
};

}  // namespace velmora::ui
