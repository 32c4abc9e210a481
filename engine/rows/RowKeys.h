// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>
#include <vector>

namespace velmora::db {

/// The row ids of a result in their order: 4 bytes each as long as all of them fit, 8 bytes from then on.
class RowKeys final {
 public:
  [[nodiscard]] std::int64_t Size() const noexcept {
    return static_cast<std::int64_t>(m_isWide ? m_wide.size() : m_narrow.size());
  }
  [[nodiscard]] std::int64_t At(std::int64_t position) const {
    const auto index = static_cast<std::size_t>(position);
    return m_isWide ? m_wide[index] : std::int64_t{m_narrow[index]};
  }
  void Append(std::int64_t key) {
    MakeRoomFor(key);
    if (m_isWide) {
      m_wide.push_back(key);
    } else {
      m_narrow.push_back(static_cast<std::uint32_t>(key));
    }
  }
  void Replace(std::int64_t position, std::int64_t key) {
    MakeRoomFor(key);
    const auto index = static_cast<std::size_t>(position);
    if (m_isWide) {
      m_wide[index] = key;
    } else {
      m_narrow[index] = static_cast<std::uint32_t>(key);
    }
  }
  void Remove(std::int64_t position) {
    if (m_isWide) {
      m_wide.erase(m_wide.begin() + position);
    } else {
      m_narrow.erase(m_narrow.begin() + position);
    }
  }

 private:
  void MakeRoomFor(std::int64_t key) {
    if (m_isWide || (key >= 0 && key <= std::numeric_limits<std::uint32_t>::max())) return;
    m_wide.assign(m_narrow.begin(), m_narrow.end());
    m_narrow = {};
    m_isWide = true;
  }

  bool m_isWide = false;
  std::vector<std::uint32_t> m_narrow;
  std::vector<std::int64_t> m_wide;
};

}  // namespace velmora::db
