// SPDX-License-Identifier: MIT
#include "cardfile/EnterShow.h"

#include "cardfile/ValueLists.h"
#include "resources/strings.h"

#include <utility>

namespace velmora {

EnterShow::EnterShow(ValueListField field)
    : ValueListDialog({.Screen = u"EnterShow",
                       .DeleteButton = u"cmdDel",
                       .EnterTip = {},
                       .UpdateTip = strings::valuelist::ViewerUpdateTip},
                      std::move(field)) {}

bool EnterShow::IsThere(const ValueLists& lists, const QString& value) {
  return lists.Has(Field(), value.trimmed());
}

}  // namespace velmora
