// SPDX-License-Identifier: MIT
#include "forms/ControlArray.h"

#include <QWidget>

namespace velmora::ui {

ControlArrayBase::~ControlArrayBase() {
  for (const auto& [index, element] : m_elements) element->m_array = nullptr;
}

void ControlArrayBase::Enter(Control* element, int index) {
  element->SetName(m_name, index);
  element->m_array = this;
  m_elements[index] = element;
}

QList<QWidget*> ControlArrayBase::Widgets() const {
  QList<QWidget*> widgets;
  for (const auto& [index, element] : m_elements) widgets += element->Widget();
  return widgets;
}

Control& ControlArrayBase::ElementAt(int index) const {
  const auto found = m_elements.find(index);
  if (found == m_elements.end()) throw std::out_of_range("control array element does not exist");
  return *found->second;
}

void ControlArrayBase::Unload(int index) {
  Control& element = ElementAt(index);
  if (index == 0) return;
  m_elements.erase(index);
  element.m_array = nullptr;
  element.SetVisible(false);
  element.Widget()->deleteLater();
}

}  // namespace velmora::ui
