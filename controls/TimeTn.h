// SPDX-License-Identifier: MIT
#pragma once

#include "controls/TimeFace.h"

#include <QDateTime>

namespace velmora {

/// The entry of a time of day. Steps carry into the date that goes with it; a click on the face, or the space
/// bar, shows and hides the seconds.
class TimeTn final : public TimeFace {
  Q_OBJECT

 public:
  /// Starts at the present hour and minute, on the day that stands for none.
  explicit TimeTn(QWidget* parent);

  [[nodiscard]] QDateTime Value() const { return {m_date, m_time}; }
  /// Shows hours and minutes, also on a face that shows seconds until its next change.
  void SetValue(const QDateTime& value);
  [[nodiscard]] bool ShowSeconds() const { return m_showSeconds; }

 private:
  bool Step(Stride stride, int count) override;
  void Reset() override;
  void FaceClicked() override;
  void Refresh();

  // Apart, so that no step meets an hour that a change to summer time leaves out.
  QDate m_date;
  QTime m_time;
  bool m_showSeconds = false;
};

}  // namespace velmora
