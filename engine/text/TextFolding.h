// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

#include <array>
#include <cstdint>
#include <vector>

namespace velmora::db {

/// What one character counts for when texts are compared. Included by .cpp files of this folder alone.
struct FoldedCharacter {
  static constexpr int Most = 3;
  /// Without case, accents kept, ß as ss: what LIKE compares.
  std::array<char32_t, Most> Units{};
  /// The order of its letters without case and accents: what texts are sorted by first. Digits come before
  /// letters, punctuation before digits, spaces before all. A combining accent has none.
  std::array<std::uint32_t, Most> Weights{};
  std::uint8_t UnitCount = 0;
  std::uint8_t WeightCount = 0;
  /// Its accents, sixteen bits each from the top: what decides between texts that are otherwise equal.
  std::uint64_t Accents = 0;
};

/// How characters fold: a table for what texts mostly hold, worked out for the rest. Constant once it is
/// made, so threads may share it.
class FoldingTable final {
 public:
  [[nodiscard]] static const FoldingTable& Shared();

  /// What the character folds to; `spare` holds it when no table does.
  [[nodiscard]] const FoldedCharacter& Fold(char32_t character, FoldedCharacter& spare) const {
    if (character < CommonEnd) return m_common[character];
    if (character >= ExtendedFirst && character < ExtendedEnd) return m_extended[character - ExtendedFirst];
    return FoldRare(character, spare);
  }

 private:
  // Western and Eastern European, Greek and Cyrillic letters; then the rarer Latin ones and the dashes and
  // quotes.
  static constexpr char32_t CommonEnd = 0x0530;
  static constexpr char32_t ExtendedFirst = 0x1E00;
  static constexpr char32_t ExtendedEnd = 0x2060;

  FoldingTable();
  [[nodiscard]] static const FoldedCharacter& FoldRare(char32_t character, FoldedCharacter& spare);

  std::vector<FoldedCharacter> m_common;
  std::vector<FoldedCharacter> m_extended;
};

[[nodiscard]] inline FoldedCharacter Fold(char32_t character) {
  FoldedCharacter spare;
  return FoldingTable::Shared().Fold(character, spare);
}

/// The weights of ASCII in the same order as Fold gives them.
[[nodiscard]] const std::array<std::uint8_t, 128>& AsciiWeights();

/// The case of ASCII letters taken away; other bytes stay.
[[nodiscard]] constexpr unsigned char FoldAscii(unsigned char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte | 0x20) : byte;
}

/// Reads the character at `place` and steps behind it. A byte that is no UTF-8 counts as a character of its
/// own.
[[nodiscard]] inline char32_t TakeCharacter(QByteArrayView text, qsizetype& place);

/// Adds accents to those there are, in one order whatever theirs was; beyond four they no longer count.
[[nodiscard]] std::uint64_t WithAccents(std::uint64_t accents, std::uint64_t more);

/// The letter that a letter and an accent behind it make, when it is one that does not stand beside the
/// letter itself (the Cyrillic short i); 0 else.
[[nodiscard]] char32_t OwnLetter(char32_t letter, char32_t accent);

/// Whether the text has a letter beyond ASCII that folds to ASCII letters (ß, æ, the Kelvin sign).
[[nodiscard]] bool HoldsHiddenAscii(QByteArrayView text);

/// Whether accents stand in the text as characters of their own, so that it has to be composed before
/// matching.
[[nodiscard]] bool HasCombining(QByteArrayView text);
/// The text with such accents joined to their letters.
[[nodiscard]] QByteArray Composed(QByteArrayView text);

/// The same for a character of more than one byte.
[[nodiscard]] char32_t TakeLongCharacter(QByteArrayView text, qsizetype& place);

inline char32_t TakeCharacter(QByteArrayView text, qsizetype& place) {
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.data()) + place;
  if (bytes[0] < 0x80) {
    ++place;
    return bytes[0];
  }
  const bool isTwo =
      bytes[0] >= 0xC2 && bytes[0] < 0xE0 && place + 1 < text.size() && (bytes[1] & 0xC0) == 0x80;
  if (!isTwo) return TakeLongCharacter(text, place);
  place += 2;
  return (bytes[0] & 0x1FU) << 6 | (bytes[1] & 0x3FU);
}

}  // namespace velmora::db
