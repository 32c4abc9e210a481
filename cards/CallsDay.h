// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/Clock.h"

#include <QDateTime>

#include <optional>
#include <utility>
#include <vector>

namespace velmora {

/// A rotating queue for timed calls. Its host moves the cursor, which counts from 1; 0 is none.
template <typename Item>
class CallsDay final {
 public:
  /// How long after BeginDial the queue stays silent, in seconds.
  int Delay = 0;
  int Cursor = 0;

  void Add(Item item) { m_items.push_back(std::move(item)); }
  void BeginDial() { m_begun = Clock::Now(); }
  void RemoveAll() { m_items.clear(); }
  [[nodiscard]] bool IsNull() const { return m_items.empty(); }

  /// The item at the cursor once the delay is over; a cursor past the end goes back to 1, and to 0 when the
  /// queue is empty. Nothing before BeginDial, during the delay, and without a cursor.
  [[nodiscard]] std::optional<Item> check() {
    if (!m_begun || Clock::Now() <= m_begun->addSecs(Delay)) return std::nullopt;
    if (IsNull()) Cursor = 0;
    if (Cursor == 0) return std::nullopt;
    if (std::cmp_greater(Cursor, m_items.size())) Cursor = 1;
    return m_items[static_cast<std::size_t>(Cursor - 1)];
  }

 private:
  std::vector<Item> m_items;
  std::optional<QDateTime> m_begun;
};

}  // namespace velmora
