// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Element.h"

#include <QString>

#include <array>
#include <cstdint>
#include <vector>

namespace velmora {

/// The controls of one page in the order in which they were added, each under the text of its element number
/// as its key.
class ElementPage final {
 public:
  /// Throws std::logic_error when the page has a control of that element number already.
  void Add(ui::Element& element);
  /// Takes the control of that key out; it is not unloaded. Nothing happens when there is none.
  void Remove(const QString& key);
  /// The control of that key; null when there is none.
  [[nodiscard]] ui::Element* Find(const QString& key) const;
  [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(m_elements.size()); }
  /// The control at a position from 0 on.
  [[nodiscard]] ui::Element& At(std::int32_t position) const;

  [[nodiscard]] auto begin() const { return m_elements.begin(); }
  [[nodiscard]] auto end() const { return m_elements.end(); }

 private:
  std::vector<ui::Element*> m_elements;
};

/// The controls of a paged screen, page by page: shows one page, walks the focus through it, counts, and
/// unloads. It does not own them. A control must not be destroyed while it is entered here, so a screen calls
/// ClearAll, or drops the whole ptrArray, before its controls go; Remove and ClearAll unload and take out in
/// one step.
class ptrArray final {
 public:
  static constexpr std::int32_t PageCount = 10;

  /// The ten pages in order; page 1 stands at position 0.
  [[nodiscard]] std::array<ElementPage, PageCount>& Pages() { return m_pages; }
  [[nodiscard]] const std::array<ElementPage, PageCount>& Pages() const { return m_pages; }

  void HideAll();
  /// The running count, which Add, Remove, AddCount and DecCount keep; see GetCount for what the pages hold.
  [[nodiscard]] std::int32_t Count() const { return m_count; }
  void AddCount() { ++m_count; }
  /// Stays at 0.
  void DecCount();
  /// Enters a control. A page outside 1 to 10 takes nothing, but the running count still goes up.
  void Add(std::int32_t page, ui::Element& element);
  /// Unloads the last control of a page and takes it out.
  void Remove(std::int32_t page);
  /// Shows a page's controls; the other pages are left as they are.
  void Show(std::int32_t page);
  /// How many controls the ten pages hold together.
  [[nodiscard]] std::int32_t GetCount() const;
  /// How many controls a page holds; 0 for a page outside 1 to 10.
  [[nodiscard]] std::int32_t GetNum(std::int32_t page) const;
  /// Moves the focus to the control after the one of that element number; after the last, and when the number
  /// is not on the page, to the first.
  void SetNext(std::int32_t element, std::int32_t page);
  /// Moves forward too, just as SetNext does: the focus never goes back through a page.
  void SetPrev(std::int32_t element, std::int32_t page) { SetNext(element, page); }
  /// Unloads and takes out every control but those of element number 0, which cannot be unloaded and stay
  /// entered. The running count becomes 0.
  void ClearAll();
  void SetFirst(std::int32_t page);

 private:
  [[nodiscard]] ElementPage* PageAt(std::int32_t page);
  std::array<ElementPage, PageCount> m_pages;
  std::int32_t m_count = 0;
};

}  // namespace velmora
