// SPDX-License-Identifier: MIT
#include "shell/FocusRound.h"

#include "forms/Form.h"
#include "shell/MainStrip.h"

namespace velmora {

namespace {

enum Place { Child, Strip, ShortBar, LongBar, Places };

Place PlaceOf(const MainStrip& strip, const QWidget* focused) {
  if (strip.ShortBar().isAncestorOf(focused)) return ShortBar;
  if (strip.LongBar().isAncestorOf(focused)) return LongBar;
  return strip.isAncestorOf(focused) ? Strip : Child;
}

}  // namespace

void MoveFocusRound(MainStrip& strip, const QWidget* focused, int step) {
  int place = (PlaceOf(strip, focused) + step + Places) % Places;
  if (place == Child && ui::ActiveChild() == nullptr) place = (place + step + Places) % Places;
  switch (place) {
    case Child:
      return ui::ActiveChild()->TakeFocus();
    case Strip:
      return strip.FocusSeekBox();
    case ShortBar:
      return strip.ShortBar().SetFocus();
    default:
      return strip.LongBar().SetFocus();
  }
}

}  // namespace velmora
