// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

#include <array>
#include <cstdint>

namespace velmora::db {

/// What one character counts for when texts are compared. Included by .cpp files of this folder alone.
struct FoldedCharacter {
  static constexpr int Most = 3;
  /// Without case, accents kept, ß as ss: what LIKE compares.
  std::array<char32_t, Most> Units{};
  /// The order of its letters without case and accents: what texts are sorted by first. Digits come before
  /// letters, signs before digits, blanks before all. A combining accent has none.
  std::array<std::uint32_t, Most> Weights{};
  std::uint8_t UnitCount = 0;
  std::uint8_t WeightCount = 0;
  /// Its accents, sixteen bits each from the top: what decides between texts that are otherwise equal.
  std::uint64_t Accents = 0;
};

/// From a table for what texts mostly hold; the table is constant once it is made, so threads may share it.
[[nodiscard]] FoldedCharacter Fold(char32_t character);

/// The weights of ASCII in the same order as Fold gives them.
[[nodiscard]] const std::array<std::uint8_t, 128>& AsciiWeights();

/// The case of ASCII letters taken away; other bytes stay.
[[nodiscard]] constexpr unsigned char FoldAscii(unsigned char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte | 0x20) : byte;
}

/// Reads the character at `place` and steps behind it. A byte that is no UTF-8 counts as a character of its
/// own.
[[nodiscard]] char32_t TakeCharacter(QByteArrayView text, qsizetype& place);

/// Adds an accent behind those there are; beyond four they no longer count.
[[nodiscard]] std::uint64_t WithAccents(std::uint64_t accents, std::uint64_t more);

/// Whether accents stand in the text as characters of their own, so that it has to be composed before
/// comparing.
[[nodiscard]] bool HasCombining(QByteArrayView text);
/// The text with such accents joined to their letters.
[[nodiscard]] QByteArray Composed(QByteArrayView text);

}  // namespace velmora::db
