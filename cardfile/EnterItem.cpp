// SPDX-License-Identifier: MIT
#include "cardfile/EnterItem.h"

#include "base/system/Failures.h"
#include "resources/strings.h"

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

ValueListDesign EditorList() {
  return {.Screen = u"EnterItem",
          .DeleteButton = u"Command2",
          .EnterTip = strings::valuelist::AddTip,
          .UpdateTip = strings::valuelist::EditorUpdateTip};
}

}  // namespace

EnterItem::EnterItem(ValueListField field) : ValueListDialog(EditorList(), std::move(field)) {}

void EnterItem::OnUnload() { m_rows.reset(); }

void EnterItem::Keep(db::Recordset rows) { m_rows.emplace(std::move(rows)); }

void EnterItem::GoToFirst() {
  if (!m_rows->AtStart()) m_rows->MoveFirst();
}

bool EnterItem::Holds(const QString& value) {
  bool holds = false;
  for (GoToFirst(); !m_rows->AtEnd(); m_rows->MoveNext()) {
    // A row that was deleted meanwhile cannot be read and holds nothing.
    IgnoringErrors([&] { holds = holds || (*m_rows)[Column()].TextOr({}) == value; });
  }
  return holds;
}

bool EnterItem::Store(const QString& value) {
  if (!m_rows) return false;
  if (Holds(value)) m_sawDuplicate = true;
  if (!m_sawDuplicate) {
    m_rows->AddNew();
    m_rows->Set(Column(), value);
    m_rows->Update();
  }
  GoToFirst();
  return !m_sawDuplicate;
}

}  // namespace velmora
