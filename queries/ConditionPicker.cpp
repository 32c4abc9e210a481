// SPDX-License-Identifier: MIT
#include "queries/ConditionPicker.h"

#include "forms/ListBox.h"
#include "resources/HelpTopics.h"

namespace velmora {

ConditionPicker::ConditionPicker(const QString& name, const QString& caption, ui::ListBox& conditions)
    : Form(name, caption), m_conditions(&conditions) {
  SetHelpTopic(topics::Queries);
}

std::int32_t ConditionPicker::ItemIndex() const { return m_conditions ? m_conditions->Index() : -1; }

void ConditionPicker::Replace(const QStringList& conditions) {
  if (m_conditions.isNull()) return;
  m_conditions->Clear();
  m_conditions->AddItems(conditions);
  if (!conditions.isEmpty()) m_conditions->SetListIndex(0);
}

}  // namespace velmora
