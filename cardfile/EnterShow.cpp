// SPDX-License-Identifier: MIT
#include "cardfile/EnterShow.h"

#include "cardfile/ValueLists.h"
#include "resources/strings.h"

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

ValueListDesign ViewerList() {
  return {.Screen = u"EnterShow",
          .DeleteButton = u"cmdDel",
          .EnterTip = {},
          .UpdateTip = strings::valuelist::ViewerUpdateTip};
}

}  // namespace

EnterShow::EnterShow(ValueListField field) : ValueListDialog(ViewerList(), std::move(field)) {}

bool EnterShow::IsThere(const ValueLists& lists, const QString& value) {
  return lists.Has(Field(), value.trimmed());
}

}  // namespace velmora
