// SPDX-License-Identifier: MIT
#include "engine/text/TextFolding.h"

#include <QList>

#include <algorithm>
#include <numeric>
#include <vector>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

// Letters that are two others, whichever way they are compared.
struct LetterPair {
  char32_t Letter;
  char32_t First;
  char32_t Second;
};
constexpr std::array LetterPairs{
    LetterPair{0x00DF, 's', 's'}, LetterPair{0x1E9E, 's', 's'}, LetterPair{0x00C6, 'a', 'e'},
    LetterPair{0x00E6, 'a', 'e'}, LetterPair{0x0152, 'o', 'e'}, LetterPair{0x0153, 'o', 'e'},
    LetterPair{0x00DE, 't', 'h'}, LetterPair{0x00FE, 't', 'h'},
};

// Letters that stand beside another as if accented, though Unicode does not take them to pieces.
struct StrokedLetter {
  char32_t Letter;
  char32_t Base;
  char16_t Accent;
};
constexpr std::array StrokedLetters{
    StrokedLetter{0x00F8, 'o', 0x0338}, StrokedLetter{0x0111, 'd', 0x0335},
    StrokedLetter{0x00F0, 'd', 0x0336}, StrokedLetter{0x0142, 'l', 0x0335},
    StrokedLetter{0x0127, 'h', 0x0335}, StrokedLetter{0x0167, 't', 0x0335},
    StrokedLetter{0x0131, 'i', 0x0335}, StrokedLetter{0x014B, 'n', 0x0335},
    StrokedLetter{0x0180, 'b', 0x0335}, StrokedLetter{0x0268, 'i', 0x0336},
    StrokedLetter{0x0130, 'i', 0x0307},
};

constexpr char32_t CyrillicYo = 0x0451;
constexpr char32_t CapitalDottedI = 0x0130;
constexpr char32_t InvalidByte = 0x110000;

enum WeightClass : std::uint32_t { Blanks, Signs, Digits, Letters };

std::uint32_t WeightOf(char32_t base) {
  WeightClass kind = Letters;
  if (QChar::isSpace(base) || QChar::category(base) == QChar::Other_Control) {
    kind = Blanks;
  } else if (QChar::isDigit(base)) {
    kind = Digits;
  } else if (QChar::isPunct(base) || QChar::isSymbol(base)) {
    kind = Signs;
  }
  return (static_cast<std::uint32_t>(kind) << 24) | static_cast<std::uint32_t>(base);
}

/// Unlike QString's, this keeps the dotted capital I one letter.
QString WithoutCase(char32_t character) {
  if (character == CapitalDottedI) return QString::fromUcs4(&character, 1);
  return QString::fromUcs4(&character, 1).toCaseFolded();
}

/// Accented Latin and Greek letters stand beside their letter; in other scripts most are letters of their
/// own.
bool StandsBesideBase(char32_t base) {
  const auto script = QChar::script(base);
  return script == QChar::Script_Latin || script == QChar::Script_Greek;
}

void AddUnit(FoldedCharacter& folded, char32_t unit) {
  if (folded.UnitCount < FoldedCharacter::Most) folded.Units[folded.UnitCount++] = unit;
}

void AddWeight(FoldedCharacter& folded, char32_t base) {
  if (folded.WeightCount < FoldedCharacter::Most) folded.Weights[folded.WeightCount++] = WeightOf(base);
}

void AddAccent(FoldedCharacter& folded, char32_t accent) {
  folded.Accents = WithAccents(folded.Accents, std::uint64_t{accent & 0xFFFF} << 48);
}

void AddLetter(FoldedCharacter& folded, char32_t letter) {
  if (QChar::isMark(letter)) return AddAccent(folded, letter);
  for (const auto& pair : LetterPairs) {
    if (pair.Letter != letter) continue;
    AddWeight(folded, pair.First);
    return AddWeight(folded, pair.Second);
  }
  for (const auto& stroked : StrokedLetters) {
    if (stroked.Letter != letter) continue;
    AddWeight(folded, stroked.Base);
    return AddAccent(folded, stroked.Accent);
  }
  if (QChar::decompositionTag(letter) == QChar::Canonical) {
    const auto parts = QChar::decomposition(letter).toUcs4();
    if (letter == CyrillicYo ||
        (!parts.isEmpty() && (StandsBesideBase(parts[0]) || QChar::isMark(parts[0])))) {
      for (const auto part : parts) AddLetter(folded, part);
      return;
    }
  }
  AddWeight(folded, letter);
}

FoldedCharacter Made(char32_t character) {
  FoldedCharacter folded;
  if (character >= InvalidByte || QChar::isSurrogate(character)) {
    AddUnit(folded, character);
    AddWeight(folded, character);
    return folded;
  }
  const auto letters = WithoutCase(character).toUcs4();
  for (const auto letter : letters) {
    const auto pair = std::find_if(LetterPairs.begin(), LetterPairs.end(),
                                   [&](const LetterPair& candidate) { return candidate.Letter == letter; });
    if (pair == LetterPairs.end()) {
      AddUnit(folded, letter);
    } else {
      AddUnit(folded, pair->First);
      AddUnit(folded, pair->Second);
    }
    AddLetter(folded, letter);
  }
  return folded;
}

}  // namespace

FoldingTable::FoldingTable() {
  m_common.reserve(CommonEnd);
  for (char32_t c = 0; c < CommonEnd; ++c) m_common.push_back(Made(c));
  m_extended.reserve(ExtendedEnd - ExtendedFirst);
  for (char32_t c = ExtendedFirst; c < ExtendedEnd; ++c) m_extended.push_back(Made(c));
}

const FoldingTable& FoldingTable::Shared() {
  static const FoldingTable table;
  return table;
}

const FoldedCharacter& FoldingTable::FoldRare(char32_t character, FoldedCharacter& spare) {
  spare = Made(character);
  return spare;
}

const std::array<std::uint8_t, 128>& AsciiWeights() {
  static const auto weights = [] {
    std::array<std::uint8_t, 128> made{};
    std::array<std::uint8_t, 128> order{};
    std::iota(order.begin(), order.end(), std::uint8_t{0});
    const auto weight = [](std::uint8_t c) { return Fold(c).Weights[0]; };
    std::sort(order.begin(), order.end(), [&](auto a, auto b) { return weight(a) < weight(b); });
    std::uint8_t rank = 0;
    for (std::size_t i = 0; i < order.size(); ++i) {
      if (i > 0 && weight(order[i]) != weight(order[i - 1])) ++rank;
      made[order[i]] = rank;
    }
    return made;
  }();
  return weights;
}

char32_t TakeLongCharacter(QByteArrayView text, qsizetype& place) {
  const auto byte = [&](qsizetype at) { return static_cast<unsigned char>(text[at]); };
  const unsigned char first = byte(place++);
  const int more = first >= 0xF0 && first < 0xF8 ? 3 : first >= 0xE0 ? 2 : 1;
  static constexpr std::array<char32_t, 4> Least{0, 0x80, 0x800, 0x10000};
  if (first >= 0xC2 && first < 0xF8 && place + more <= text.size()) {
    char32_t character = first & (0x3FU >> more);
    int taken = 0;
    while (taken < more && (byte(place + taken) & 0xC0) == 0x80) {
      character = (character << 6) | (byte(place + taken) & 0x3FU);
      ++taken;
    }
    const bool isValid = taken == more && character >= Least[static_cast<std::size_t>(more)] &&
                         character < InvalidByte && !QChar::isSurrogate(character);
    if (isValid) {
      place += more;
      return character;
    }
  }
  return InvalidByte + first;
}

std::uint64_t WithAccents(std::uint64_t accents, std::uint64_t more) {
  if (accents == 0 || more == 0) return accents | more;
  constexpr std::size_t most = 4;
  std::array<std::uint64_t, 2 * most> all{};
  for (std::size_t i = 0; i < most; ++i) {
    const auto shift = 48 - 16 * i;
    all[i] = (accents >> shift) & 0xFFFF;
    all[most + i] = (more >> shift) & 0xFFFF;
  }
  const auto end = std::remove(all.begin(), all.end(), 0U);
  // Not std::sort: optimising it for so small an array, GCC warns of an access that never happens.
  std::stable_sort(all.begin(), end);
  std::uint64_t sum = 0;
  const auto count = std::min(most, static_cast<std::size_t>(end - all.begin()));
  for (std::size_t i = 0; i < count; ++i) sum |= all[i] << (48 - 16 * i);
  return sum;
}

char32_t OwnLetter(char32_t letter, char32_t accent) {
  if (QChar::isMark(letter) || StandsBesideBase(letter)) return 0;
  const std::array pair{letter, accent};
  const auto composed = QString::fromUcs4(pair.data(), 2).normalized(QString::NormalizationForm_C).toUcs4();
  return composed.size() == 1 ? composed.front() : 0;
}

bool HasCombining(QByteArrayView text) {
  // U+0300 to U+036F begin with these bytes; few other letters do.
  return std::any_of(text.begin(), text.end(), [](char c) { return c == '\xCC' || c == '\xCD'; });
}

QByteArray Composed(QByteArrayView text) {
  return QString::fromUtf8(text).normalized(QString::NormalizationForm_C).toUtf8();
}

}  // namespace velmora::db
