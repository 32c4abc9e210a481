// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"

#include <QWidget>

namespace velmora {

/// A small bell that marks a date with a reminder, drawn in lines so that it is sharp at every scale. The
/// mouse works through it.
class ReminderMark final : public QWidget, public ui::Control {
  Q_OBJECT

 public:
  explicit ReminderMark(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace velmora
