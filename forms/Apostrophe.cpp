// SPDX-License-Identifier: MIT
#include "forms/Apostrophe.h"

#include "forms/MsgBox.h"
#include "forms/TextBox.h"
#include "resources/strings.h"

namespace velmora::ui {

bool RefusesApostrophe(TextBox& box) {
  if (!box.Text().contains(u'\'')) return false;
  MsgBox(strings::NoApostrophe);
  box.SetFocus();
  box.SelectAll();
  return true;
}

}  // namespace velmora::ui
