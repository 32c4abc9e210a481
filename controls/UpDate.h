// SPDX-License-Identifier: MIT
#pragma once

#include "controls/SpinFace.h"
#include "forms/Labels.h"

#include <QDateTime>

namespace velmora {

/// A date on a face between buttons that step its day, month and year. A click on the face, or Home, goes
/// back to today.
class UpDate final : public SpinFace {
  Q_OBJECT

 public:
  /// Starts on today at midnight, 2505 by 1425 twips, its columns in the order of the system's short dates.
  explicit UpDate(QWidget* parent);

  [[nodiscard]] QDateTime Value() const { return {m_date, m_time}; }
  /// Shows a date and keeps its time of day; raises no Change. What is not a date between the years 100 and
  /// 9999 changes nothing and gives false.
  bool SetValue(const QDateTime& value);
  /// The same with a text, which is read as a date in the system's order.
  bool SetValue(const QString& text);
  /// Whether the column of the month stands before that of the day.
  [[nodiscard]] bool IsAmer() const { return m_isAmer; }
  void SetIsAmer(bool monthFirst);

 Q_SIGNALS:
  /// The user changed the date.
  void Change();

 private:
  static constexpr Stride Day = Stride::Short;
  static constexpr Stride Month = Stride::Middle;
  static constexpr Stride Year = Stride::Long;
  struct StepButton;
  void SetupFace();
  void SetupButton(const StepButton& step);
  bool Step(Stride stride, int count) override;
  void Reset() override;
  void Refresh();

  ui::SSCommand* m_dayUp = nullptr;
  ui::SSCommand* m_dayDown = nullptr;
  ui::SSCommand* m_monthUp = nullptr;
  ui::SSCommand* m_monthDown = nullptr;
  ui::SSCommand* m_yearUp = nullptr;
  ui::SSCommand* m_yearDown = nullptr;
  ui::SSCommand* m_dayM = nullptr;
  ui::SSPanel* m_dayWeek = nullptr;
  // Apart, so that no step meets an hour that a change to summer time leaves out.
  QDate m_date;
  QTime m_time;
  bool m_isAmer = false;
};

}  // namespace velmora
