// SPDX-License-Identifier: MIT
#pragma once

#include "controls/SpinFace.h"

#include <QTimer>

namespace velmora {

/// What the entries of a time of day and of a length of time share: a face between buttons that step hours,
/// quarters of an hour and minutes, and one that resets. An hour's button that is held repeats its step.
/// Raises no events: the host reads the value.
class TimeFace : public SpinFace {
  Q_OBJECT

 public:
  /// Whether the hour's button that is or was held last steps upwards.
  [[nodiscard]] bool RepeatUp() const { return m_repeatUp; }
  /// Whether a held button has made steps that its click must not add to.
  [[nodiscard]] bool Repeated() const { return m_repeated; }

 protected:
  static constexpr Stride Minute = Stride::Short;
  static constexpr Stride Quarter = Stride::Middle;
  static constexpr Stride Hour = Stride::Long;

  /// `resetCaption` stands on the button that resets.
  TimeFace(QWidget* parent, const QString& resetCaption);

  void ShowFace(const QString& text);

 private:
  struct StepButton;
  void SetupHours(ui::SSCommand& button, bool up);
  void BeginRepeat(bool up);
  void OnTick();
  void OnHoursClicked(bool up);

  ui::SSCommand* m_minutes = nullptr;
  QTimer* m_timer1 = nullptr;
  bool m_repeatUp = false;
  bool m_repeated = false;
};

}  // namespace velmora
