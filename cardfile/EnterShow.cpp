// SPDX-License-Identifier: MIT
#include "cardfile/EnterShow.h"

#include "frame/Session.h"
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

bool EnterShow::Store(const QString& value) {
  db::Recordset rows = Global().File().OpenRecordset(u"Select * from ["_s + Table() + u"] WHERE ["_s +
                                                     Column() + u"] = '"_s + value.trimmed() + u'\'');
  if (!rows.AtEnd()) return false;
  rows.AddNew();
  rows.Set(Column(), value);
  rows.Update();
  rows.Close();
  return true;
}

}  // namespace velmora
