// SPDX-License-Identifier: MIT
#include "cardfile/EnterItem.h"

#include "cardfile/ValueLists.h"
#include "resources/strings.h"

#include <utility>

namespace velmora {

EnterItem::EnterItem(ValueListField field)
    : ValueListDialog({.Screen = u"EnterItem",
                       .DeleteButton = u"Command2",
                       .EnterTip = strings::valuelist::AddTip,
                       .UpdateTip = strings::valuelist::EditorUpdateTip},
                      std::move(field)) {}

bool EnterItem::IsThere(const ValueLists& lists, const QString& value) {
  m_sawDuplicate = m_sawDuplicate || lists.ValuesOf(Field()).contains(value);
  return m_sawDuplicate;
}

}  // namespace velmora
