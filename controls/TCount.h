// SPDX-License-Identifier: MIT
#pragma once

#include "controls/TimeFace.h"

#include <QString>
#include <QTime>

namespace velmora {

/// The entry of a length of time below a day, in hours and minutes. It goes round at the day's end and does
/// not step down from nothing.
class TCount final : public TimeFace {
  Q_OBJECT

 public:
  /// Starts at "00:00".
  explicit TCount(QWidget* parent);

  /// As "hh:mm".
  [[nodiscard]] QString Value() const;
  /// Reads "hh:mm" or "hh:mm:ss", seconds dropped. What is neither changes nothing and gives false.
  bool SetValue(const QString& value);

 private:
  bool Step(Stride stride, int count) override;
  void Reset() override;
  void Set(QTime value);

  QTime m_value;
};

}  // namespace velmora
