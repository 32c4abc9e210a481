// SPDX-License-Identifier: MIT
#include "forms/ptrArray.h"

#include <algorithm>
#include <stdexcept>

namespace velmora {

namespace {

QString KeyOf(const ui::Element& element) { return QString::number(element.Index()); }

}  // namespace

void ElementPage::Add(ui::Element& element) {
  if (Find(KeyOf(element)) != nullptr)
    throw std::logic_error("the page has a control of this element number");
  m_elements.push_back(&element);
}

void ElementPage::Remove(const QString& key) {
  std::erase_if(m_elements, [&key](const ui::Element* element) { return KeyOf(*element) == key; });
}

ui::Element* ElementPage::Find(const QString& key) const {
  const auto found =
      std::ranges::find_if(m_elements, [&key](const auto* element) { return KeyOf(*element) == key; });
  return found == m_elements.end() ? nullptr : *found;
}

ui::Element& ElementPage::At(std::int32_t position) const {
  return *m_elements.at(static_cast<std::size_t>(position));
}

void ptrArray::HideAll() {
  for (const ElementPage& page : m_pages) {
    for (ui::Element* element : page) element->SetVisible(false);
  }
}

void ptrArray::DecCount() { m_count = std::max(0, m_count - 1); }

void ptrArray::Add(std::int32_t page, ui::Element& element) {
  if (ElementPage* target = PageAt(page)) target->Add(element);
  ++m_count;
}

void ptrArray::Remove(std::int32_t page) {
  ElementPage* target = PageAt(page);
  if (target == nullptr || target->Count() == 0) return;
  ui::Element& last = target->At(target->Count() - 1);
  const QString key = KeyOf(last);
  last.Unload();
  target->Remove(key);
  --m_count;
}

void ptrArray::Show(std::int32_t page) {
  const ElementPage* target = PageAt(page);
  if (target == nullptr) return;
  for (ui::Element* element : *target) element->SetVisible(true);
}

std::int32_t ptrArray::GetCount() const {
  std::int32_t sum = 0;
  for (const ElementPage& page : m_pages) sum += page.Count();
  return sum;
}

std::int32_t ptrArray::GetNum(std::int32_t page) const {
  return page >= 1 && page <= PageCount ? m_pages[static_cast<std::size_t>(page - 1)].Count() : 0;
}

void ptrArray::SetNext(std::int32_t element, std::int32_t page) {
  const ElementPage* target = PageAt(page);
  if (target == nullptr || target->Count() == 0) return;
  const auto here =
      std::ranges::find_if(*target, [element](const auto* each) { return each->Index() == element; });
  const bool hasNext = here != target->end() && here + 1 != target->end();
  (hasNext ? *(here + 1) : *target->begin())->SetFocus();
}

void ptrArray::ClearAll() {
  for (ElementPage& page : m_pages) {
    for (std::int32_t position = page.Count() - 1; position >= 0; --position) {
      ui::Element& element = page.At(position);
      if (element.Index() == 0) continue;
      const QString key = KeyOf(element);
      element.Unload();
      page.Remove(key);
    }
  }
  m_count = 0;
}

void ptrArray::SetFirst(std::int32_t page) {
  const ElementPage* target = PageAt(page);
  if (target != nullptr && target->Count() > 0) target->At(0).SetFocus();
}

ElementPage* ptrArray::PageAt(std::int32_t page) {
  return page >= 1 && page <= PageCount ? &m_pages[static_cast<std::size_t>(page - 1)] : nullptr;
}

}  // namespace velmora
