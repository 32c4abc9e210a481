// SPDX-License-Identifier: MIT
#include "controls/TimeFace.h"

#include "resources/strings.h"

#include <array>
#include <chrono>

namespace velmora {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr ui::Place ControlPlace{.Left = 0, .Top = 0, .Width = 2505, .Height = 1425};
constexpr ui::Place ResetPlace{.Left = 75, .Top = 510, .Width = 690, .Height = 405};
constexpr ui::Place MinutesPlace{.Left = 840, .Top = 510, .Width = 1590, .Height = 405};
constexpr int UpTop = 75;
constexpr int DownTop = 990;
constexpr int ButtonWidth = 510;
constexpr int ButtonHeight = 360;
constexpr int HourColumn = 840;
constexpr int QuarterColumn = 1380;
constexpr int MinuteColumn = 1920;

constexpr auto RepeatInterval = 150ms;

}  // namespace

struct TimeFace::StepButton {
  const char16_t* Name;
  strings::Text AccessibleName;
  int Left;
  Stride Of;
  int Count;
};

TimeFace::TimeFace(QWidget* parent, const QString& resetCaption)
    : SpinFace(parent, ControlPlace), m_timer1(new QTimer(this)) {
  static constexpr std::array<StepButton, 6> steps{{
      {u"cmdHoUp", strings::time::HourUp, HourColumn, Hour, 1},
      {u"cmdHoDown", strings::time::HourDown, HourColumn, Hour, -1},
      {u"cmdQuUp", strings::time::QuarterUp, QuarterColumn, Quarter, 1},
      {u"cmdQuDown", strings::time::QuarterDown, QuarterColumn, Quarter, -1},
      {u"cmdMinUp", strings::time::MinuteUp, MinuteColumn, Minute, 1},
      {u"cmdMinDown", strings::time::MinuteDown, MinuteColumn, Minute, -1},
  }};
  for (const StepButton& step : steps) {
    const bool up = step.Count > 0;
    ui::SSCommand* const button =
        AddArrow(QString::fromUtf16(step.Name), step.AccessibleName, up ? Qt::UpArrow : Qt::DownArrow,
                 {step.Left, up ? UpTop : DownTop, ButtonWidth, ButtonHeight});
    if (step.Of == Hour) {
      SetupHours(*button, up);
    } else {
      connect(button, &ui::SSCommand::Click, this,
              [this, stride = step.Of, count = step.Count] { Step(stride, count); });
    }
  }
  m_minutes = AddButton(u"Minutes"_s, MinutesPlace);
  connect(m_minutes, &ui::SSCommand::Click, this, [this] { FaceClicked(); });
  ui::SSCommand* const reset = AddButton(u"cmdNull"_s, ResetPlace);
  reset->SetCaption(resetCaption);
  connect(reset, &ui::SSCommand::Click, this, [this] { Reset(); });

  m_timer1->setObjectName(u"Timer1"_s);
  m_timer1->setInterval(RepeatInterval);
  connect(m_timer1, &QTimer::timeout, this, &TimeFace::OnTick);
}

void TimeFace::SetupHours(ui::SSCommand& button, bool up) {
  connect(&button, &ui::SSCommand::pressed, this, [this, up] { BeginRepeat(up); });
  connect(&button, &ui::SSCommand::released, m_timer1, &QTimer::stop);
  connect(&button, &ui::SSCommand::Click, this, [this, up] { OnHoursClicked(up); });
}

void TimeFace::BeginRepeat(bool up) {
  m_repeatUp = up;
  // A press that ended beside the button brought no click to take this back.
  m_repeated = false;
  m_timer1->start();
}

void TimeFace::OnTick() {
  if (Step(Hour, m_repeatUp ? 1 : -1)) m_repeated = true;
}

void TimeFace::OnHoursClicked(bool up) {
  if (!m_repeated) Step(Hour, up ? 1 : -1);
  m_repeated = false;
}

void TimeFace::ShowFace(const QString& text) {
  m_minutes->SetCaption(text);
  SetSpoken(text);
}

}  // namespace velmora
