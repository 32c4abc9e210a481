// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/Flag.h"

#include <QObject>
#include <QTime>

namespace velmora {

class Frame;
class MainStrip;

/// What the strip's controls make the program do: the moves between cards, the numbers of a picked contact,
/// the way to the quick search, the clock and its stopwatch.
class StripCommands final : public QObject {
  Q_OBJECT

 public:
  /// Lives as long as the strip.
  StripCommands(Frame& frame, MainStrip& strip);

  /// Writes the clock or the stopwatch's time into the strip.
  void UpdateClock();

 private:
  void SeekCard();
  void ShowQuickSearch();
  void ToggleStopwatch();

  Frame& m_frame;
  MainStrip& m_strip;
  QTime StopwatchStart;
  Flag StopwatchOn = False;
};

}  // namespace velmora
