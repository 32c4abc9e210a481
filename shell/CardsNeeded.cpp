// SPDX-License-Identifier: MIT
#include "shell/CardsNeeded.h"

#include "forms/Notice.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "resources/strings.h"

namespace velmora {

bool HasCardsOrTells(Frame& frame) {
  if (frame.OpenWithCards()) return true;
  ui::Notify(Global().NoFile == False ? strings::file::NoCards : strings::file::NoneOpen);
  return false;
}

}  // namespace velmora
