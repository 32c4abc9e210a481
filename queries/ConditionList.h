// SPDX-License-Identifier: MIT
#pragma once

#include "forms/ListBox.h"

namespace velmora {

/// The list of a field's conditions on the query screen, one line high: the wheel and the arrow keys step
/// through its lines, a count tells how many there are when they are more than the one in view, and the tip
/// shows them all.
class ConditionList final : public ui::ListBox {
  Q_OBJECT

 public:
  explicit ConditionList(QWidget* parent);

 protected:
  void OnPlaced() override;
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  [[nodiscard]] QString TipText() const;
};

}  // namespace velmora
