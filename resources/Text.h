// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace velmora::strings {

/// A text of the string table. It stands in the program's read-only data; as a QString it points there and
/// copies nothing.
class Text final {
 public:
  template <std::size_t Size>
  constexpr Text(const char16_t (&literal)[Size]) : m_data(literal), m_size(Size - 1) {}

  operator QString() const {
    using namespace Qt::StringLiterals;
    return operator""_s(m_data, m_size);
  }
  [[nodiscard]] constexpr QStringView View() const { return {m_data, static_cast<qsizetype>(m_size)}; }

 private:
  const char16_t* m_data;
  std::size_t m_size;
};

}  // namespace velmora::strings
