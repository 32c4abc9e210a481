// SPDX-License-Identifier: MIT
#include "engine/text/Collation.h"

#include "engine/text/TextFolding.h"

#include <algorithm>

namespace velmora::db {

namespace {

QByteArrayView WithoutEndBlanks(QByteArrayView text) {
  while (text.endsWith(' ')) text.chop(1);
  return text;
}

int Sign(bool isLess) { return isLess ? -1 : 1; }

/// Walks a text letter by letter; each comes with the accents that belong to it.
class LetterReader final {
 public:
  explicit LetterReader(QByteArrayView text) : m_text(text) { m_leading = TakeAccents(0); }

  /// Accents before the first letter: they belong to what the two texts have in common.
  [[nodiscard]] std::uint64_t LeadingAccents() const { return m_leading; }

  bool Next() {
    while (m_used == m_pending->WeightCount) {
      if (m_place >= m_text.size()) return false;
      m_character = TakeCharacter(m_text, m_place);
      m_pending = &m_table.Fold(m_character, m_spare);
      m_used = 0;
    }
    // Accents belong to the last letter of a pair.
    m_accents = m_used + 1 == m_pending->WeightCount ? TakeAccents(m_pending->Accents) : 0;
    m_weight = m_pending->Weights[m_used++];
    return true;
  }

  [[nodiscard]] std::uint32_t Weight() const { return m_weight; }
  [[nodiscard]] std::uint64_t Accents() const { return m_accents; }

 private:
  std::uint64_t TakeAccents(std::uint64_t accents) {
    // No ASCII character is an accent.
    while (m_place < m_text.size() && static_cast<unsigned char>(m_text[m_place]) >= 0x80) {
      qsizetype next = m_place;
      const char32_t accent = TakeCharacter(m_text, next);
      FoldedCharacter spare;
      const FoldedCharacter& folded = m_table.Fold(accent, spare);
      if (folded.WeightCount > 0) break;
      m_place = next;
      if (const char32_t letter = OwnLetter(m_character, accent)) {
        m_character = letter;
        m_pending = &m_table.Fold(letter, m_spare);
      } else {
        accents = WithAccents(accents, folded.Accents);
      }
    }
    return accents;
  }

  static constexpr FoldedCharacter Nothing{};

  const FoldingTable& m_table = FoldingTable::Shared();
  QByteArrayView m_text;
  qsizetype m_place = 0;
  /// The last character taken, what it folds to, and how many of its letters have been given out.
  char32_t m_character = 0;
  const FoldedCharacter* m_pending = &Nothing;
  FoldedCharacter m_spare;
  std::uint8_t m_used = 0;
  std::uint32_t m_weight = 0;
  std::uint64_t m_accents = 0;
  std::uint64_t m_leading = 0;
};

/// Letters decide first, from the first to the last; then accents, likewise. Both are orders of sequences, so
/// the whole is one order: nothing can be before, behind and between the same two.
int CompareLetters(QByteArrayView left, QByteArrayView right) {
  LetterReader a(left);
  LetterReader b(right);
  int accents = a.LeadingAccents() == b.LeadingAccents() ? 0 : Sign(a.LeadingAccents() < b.LeadingAccents());
  while (true) {
    const bool hasLeft = a.Next();
    const bool hasRight = b.Next();
    if (!hasLeft || !hasRight) {
      if (hasLeft != hasRight) return Sign(!hasLeft);
      return accents;
    }
    if (a.Weight() != b.Weight()) return Sign(a.Weight() < b.Weight());
    if (accents == 0 && a.Accents() != b.Accents()) accents = Sign(a.Accents() < b.Accents());
  }
}

}  // namespace

int CompareText(QByteArrayView left, QByteArrayView right) {
  left = WithoutEndBlanks(left);
  right = WithoutEndBlanks(right);
  const auto& weights = AsciiWeights();
  const qsizetype common = std::min(left.size(), right.size());
  qsizetype place = 0;
  for (; place < common; ++place) {
    const auto a = static_cast<unsigned char>(left[place]);
    const auto b = static_cast<unsigned char>(right[place]);
    if ((a | b) >= 0x80) break;
    if (weights[a] != weights[b]) return Sign(weights[a] < weights[b]);
  }
  left = left.sliced(place);
  right = right.sliced(place);
  if (left.isEmpty() && right.isEmpty()) return 0;
  return CompareLetters(left, right);
}

int CompareText(QStringView left, QStringView right) {
  return CompareText(QByteArrayView(left.toUtf8()), QByteArrayView(right.toUtf8()));
}

QString FoldName(QStringView name) {
  while (name.endsWith(u' ')) name.chop(1);
  const bool isAscii = std::all_of(name.begin(), name.end(), [](QChar c) { return c.unicode() < 0x80; });
  if (isAscii) return name.toString().toLower();
  return name.toString().normalized(QString::NormalizationForm_C).toCaseFolded();
}

}  // namespace velmora::db
