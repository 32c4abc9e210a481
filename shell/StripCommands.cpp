// SPDX-License-Identifier: MIT
#include "shell/StripCommands.h"

#include "base/system/Clock.h"
#include "cards/ShowContacts.h"
#include "forms/Form.h"
#include "forms/Waiting.h"
#include "frame/Frame.h"
#include "shell/CardSteps.h"
#include "shell/CardsNeeded.h"
#include "shell/ClockText.h"
#include "shell/MainStrip.h"
#include "shell/NumberEntry.h"

namespace velmora {

StripCommands::StripCommands(Frame& frame, MainStrip& strip)
    : QObject(&strip), m_frame(frame), m_strip(strip) {
  connect(&strip, &MainStrip::UpClicked, this, [] { StepCard(1); });
  connect(&strip, &MainStrip::DownClicked, this, [] { StepCard(-1); });
  connect(&strip, &MainStrip::SeekChanged, this, &StripCommands::SeekCard);
  connect(&strip, &MainStrip::ContactClicked, this, [this] { ShowContactPhones(m_strip.Contact()); });
  connect(&strip, &MainStrip::NameDoubleClicked, this, &StripCommands::ShowQuickSearch);
  connect(&strip, &MainStrip::ClockClicked, this, &StripCommands::ToggleStopwatch);
}

void StripCommands::SeekCard() {
  const NumberEntry entry = ReadNumberEntry(m_strip.SeekText());
  if (entry.Clear) m_strip.EmptySeekBox();
  if (entry.Card) m_frame.SetWin(*entry.Card, m_frame.GetActive());
}

void StripCommands::ShowQuickSearch() {
  if (!m_frame.UnloadOtherForms()) return;
  // Once for what the closed screens left to do, once for what that brings about (their place is painted
  // anew): the search comes up over a frame that is done with them.
  ui::Yield();
  ui::Yield();
  if (HasCardsOrTells(m_frame)) m_frame.ShowQuickSearch();
}

void StripCommands::ToggleStopwatch() {
  if (StopwatchOn == False) {
    StopwatchStart = Clock::Now().time();
    StopwatchOn = True;
  } else {
    StopwatchOn = False;
  }
}

void StripCommands::UpdateClock() {
  const QTime now = Clock::Now().time();
  m_strip.ShowTime(StopwatchOn != False ? StopwatchText(now, StopwatchStart) : ClockText(now));
}

}  // namespace velmora
