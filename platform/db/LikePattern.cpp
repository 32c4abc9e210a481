// SPDX-License-Identifier: MIT
#include "platform/db/TextFolding.h"
#include "platform/db/TextRules.h"

#include <QVarLengthArray>

#include <algorithm>
#include <vector>

namespace velmora::db {

namespace {

/// A value taken to pieces: its folded units, and for each the character that it begins, or 0 within one. ß
/// gives two units, so that it matches "ss"; "?" and lists take it whole.
struct Unit {
  char32_t Folded;
  char32_t Character;
};
using Units = QVarLengthArray<Unit, 256>;

constexpr char32_t WithinCharacter = 0xFFFFFFFF;

void AddUnits(Units& units, char32_t character) {
  if (character < 0x80) {
    units.append({FoldAscii(static_cast<unsigned char>(character)), character});
    return;
  }
  const FoldedCharacter folded = Fold(character);
  for (std::uint8_t i = 0; i < folded.UnitCount; ++i) {
    units.append({folded.Units[i], i == 0 ? character : WithinCharacter});
  }
}

void UnitsOf(QByteArrayView text, Units& units) {
  for (qsizetype place = 0; place < text.size();) AddUnits(units, TakeCharacter(text, place));
}

/// The inside of [abc], [a-f] or [!a-f].
struct CharacterList {
  std::vector<std::pair<char32_t, char32_t>> Ranges;
  bool IsNegated = false;

  [[nodiscard]] bool Holds(char32_t character) const {
    // Ranges run in character order, so each case of the character is asked for.
    const std::array cases{character, QChar::toLower(character), QChar::toUpper(character),
                           QChar::toCaseFolded(character)};
    const bool isInside = std::any_of(Ranges.begin(), Ranges.end(), [&](const auto& range) {
      return std::any_of(cases.begin(), cases.end(),
                         [&](char32_t c) { return c >= range.first && c <= range.second; });
    });
    return isInside != IsNegated;
  }
};

enum class StepKind { AnyRun, OneCharacter, OneDigit, OneUnit, OneOfList };

struct Step {
  StepKind Kind = StepKind::OneUnit;
  char32_t Unit = 0;
  std::size_t List = 0;
};

constexpr qsizetype SkipTableSize = 256;

bool IsAscii(QByteArrayView bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Whether a letter beyond ASCII folds to letters within (ß, æ, the ligatures), or an accent stands alone.
bool HoldsHiddenAscii(QByteArrayView value) {
  for (qsizetype place = 0; place < value.size();) {
    switch (static_cast<unsigned char>(value[place])) {
      // The first bytes of all such letters.
      case 0xC3:
      case 0xC5:
      case 0xC7:
      case 0xCA:
      case 0xE1:
      case 0xE2:
      case 0xEF: {
        const FoldedCharacter folded = Fold(TakeCharacter(value, place));
        const auto end = folded.Units.begin() + folded.UnitCount;
        if (std::any_of(folded.Units.begin(), end, [](char32_t unit) { return unit < 0x80; })) return true;
        break;
      }
      case 0xCC:
      case 0xCD:
        return true;
      default:
        ++place;
    }
  }
  return false;
}

}  // namespace

struct LikePattern::Program {
  bool IsReadable = true;
  std::vector<Step> Steps;
  std::vector<CharacterList> Lists;

  /// "*text*": the text alone, folded.
  bool IsSubstring = false;
  Units Needle;
  /// The same as bytes when it is all ASCII, and how far the search may jump over a byte that it meets.
  bool IsAsciiNeedle = false;
  QByteArray NeedleBytes;
  std::array<qsizetype, SkipTableSize> Skips{};

  void Compile(const std::vector<char32_t>& pattern);
  void CompileList(const std::vector<char32_t>& pattern, std::size_t& place);
  void FindSubstring();

  [[nodiscard]] bool HoldsSubstring(QByteArrayView value) const;
  [[nodiscard]] qsizetype FindBytes(QByteArrayView value) const;
  [[nodiscard]] bool MatchesUnits(const Units& units) const;
  [[nodiscard]] qsizetype StepOver(const Step& step, const Units& units, qsizetype at) const;
};

void LikePattern::Program::Compile(const std::vector<char32_t>& pattern) {
  for (std::size_t place = 0; place < pattern.size() && IsReadable; ++place) {
    switch (pattern[place]) {
      case '*':
        if (Steps.empty() || Steps.back().Kind != StepKind::AnyRun)
          Steps.push_back({.Kind = StepKind::AnyRun});
        break;
      case '?':
        Steps.push_back({.Kind = StepKind::OneCharacter});
        break;
      case '#':
        Steps.push_back({.Kind = StepKind::OneDigit});
        break;
      case '[':
        CompileList(pattern, place);
        break;
      default: {
        Units units;
        AddUnits(units, pattern[place]);
        for (const Unit& unit : units) Steps.push_back({.Kind = StepKind::OneUnit, .Unit = unit.Folded});
      }
    }
  }
}

void LikePattern::Program::CompileList(const std::vector<char32_t>& pattern, std::size_t& place) {
  const auto end = std::find(pattern.begin() + static_cast<std::ptrdiff_t>(place), pattern.end(), U']');
  if (end == pattern.end()) {
    IsReadable = false;
    return;
  }
  std::vector<char32_t> inside(pattern.begin() + static_cast<std::ptrdiff_t>(place) + 1, end);
  place = static_cast<std::size_t>(end - pattern.begin());
  // An empty list stands for nothing at all, a lone "!" for itself.
  if (inside.empty()) return;
  CharacterList list;
  if (inside.size() > 1 && inside.front() == '!') {
    list.IsNegated = true;
    inside.erase(inside.begin());
  }
  for (std::size_t i = 0; i < inside.size(); ++i) {
    // A hyphen at either end is itself.
    const bool isRange = i + 2 < inside.size() && inside[i + 1] == '-';
    const char32_t last = isRange ? inside[i + 2] : inside[i];
    if (last < inside[i]) IsReadable = false;
    list.Ranges.emplace_back(inside[i], last);
    if (isRange) i += 2;
  }
  Steps.push_back({.Kind = StepKind::OneOfList, .List = Lists.size()});
  Lists.push_back(std::move(list));
}

void LikePattern::Program::FindSubstring() {
  if (Steps.empty() || Steps.front().Kind != StepKind::AnyRun || Steps.back().Kind != StepKind::AnyRun)
    return;
  const bool isPlain =
      Steps.size() == 1 || std::all_of(Steps.begin() + 1, Steps.end() - 1,
                                       [](const Step& step) { return step.Kind == StepKind::OneUnit; });
  if (!isPlain) return;
  IsSubstring = true;
  IsAsciiNeedle = true;
  for (const Step& step : Steps) {
    if (step.Kind != StepKind::OneUnit) continue;
    Needle.append({step.Unit, step.Unit});
    IsAsciiNeedle = IsAsciiNeedle && step.Unit < 0x80;
    NeedleBytes.append(static_cast<char>(step.Unit & 0x7F));
  }
  const qsizetype length = NeedleBytes.size();
  Skips.fill(length);
  for (qsizetype i = 0; i + 1 < length; ++i) {
    const auto byte = static_cast<unsigned char>(NeedleBytes[i]);
    const auto upper = static_cast<unsigned char>(byte >= 'a' && byte <= 'z' ? byte - 0x20 : byte);
    Skips[byte] = length - 1 - i;
    Skips[upper] = length - 1 - i;
  }
}

// Looks at the last byte of the place where the text might stand and jumps as far as that byte allows.
qsizetype LikePattern::Program::FindBytes(QByteArrayView value) const {
  const qsizetype length = NeedleBytes.size();
  const auto* needle = reinterpret_cast<const unsigned char*>(NeedleBytes.constData());
  const auto* bytes = reinterpret_cast<const unsigned char*>(value.data());
  for (qsizetype place = 0; place + length <= value.size();) {
    const unsigned char last = bytes[place + length - 1];
    if (FoldAscii(last) == needle[length - 1]) {
      qsizetype matched = 0;
      while (matched < length - 1 && FoldAscii(bytes[place + matched]) == needle[matched]) ++matched;
      if (matched == length - 1) return place;
    }
    place += Skips[last];
  }
  return -1;
}

bool LikePattern::Program::HoldsSubstring(QByteArrayView value) const {
  if (Needle.isEmpty()) return true;
  if (IsAsciiNeedle) {
    const qsizetype place = FindBytes(value);
    const qsizetype end = place + NeedleBytes.size();
    // Found, unless an accent follows that belongs to the last letter.
    const auto next = place < 0 || end == value.size() ? '\0' : value[end];
    if (place >= 0 && next != '\xCC' && next != '\xCD') return true;
  }
  // Letters beyond ASCII may still fold to what is looked for.
  if (IsAsciiNeedle ? !HoldsHiddenAscii(value) : IsAscii(value)) return false;
  Units units;
  if (HasCombining(value)) {
    UnitsOf(Composed(value), units);
  } else {
    UnitsOf(value, units);
  }
  return std::search(units.begin(), units.end(), Needle.begin(), Needle.end(),
                     [](const Unit& a, const Unit& b) { return a.Folded == b.Folded; }) != units.end();
}

/// The place behind what the step takes at `at`, or -1 when it takes nothing there.
qsizetype LikePattern::Program::StepOver(const Step& step, const Units& units, qsizetype at) const {
  const Unit& unit = units[at];
  if (step.Kind == StepKind::OneUnit) return unit.Folded == step.Unit ? at + 1 : -1;
  if (unit.Character == WithinCharacter) return -1;
  if (step.Kind == StepKind::OneDigit && (unit.Character < '0' || unit.Character > '9')) return -1;
  if (step.Kind == StepKind::OneOfList && !Lists[step.List].Holds(unit.Character)) return -1;
  ++at;
  while (at < units.size() && units[at].Character == WithinCharacter) ++at;
  return at;
}

// Only the last "*" need ever be tried further to the right: no pattern makes this slower than pattern times
// value.
bool LikePattern::Program::MatchesUnits(const Units& units) const {
  std::size_t step = 0;
  qsizetype at = 0;
  std::optional<std::size_t> lastRun;
  qsizetype runEnd = 0;
  while (true) {
    if (step < Steps.size() && Steps[step].Kind == StepKind::AnyRun) {
      lastRun = ++step;
      runEnd = at;
      if (step == Steps.size()) return true;
      continue;
    }
    if (step == Steps.size() && at == units.size()) return true;
    const qsizetype next = step < Steps.size() && at < units.size() ? StepOver(Steps[step], units, at) : -1;
    if (next >= 0) {
      at = next;
      ++step;
      continue;
    }
    if (!lastRun || runEnd >= units.size()) return false;
    at = ++runEnd;
    step = *lastRun;
  }
}

LikePattern::LikePattern(QStringView pattern) : m_program(std::make_unique<Program>()) {
  const auto characters = pattern.toString().normalized(QString::NormalizationForm_C).toUcs4();
  m_program->Compile({characters.begin(), characters.end()});
  if (m_program->IsReadable) m_program->FindSubstring();
}

LikePattern::~LikePattern() = default;
LikePattern::LikePattern(LikePattern&&) noexcept = default;
LikePattern& LikePattern::operator=(LikePattern&&) noexcept = default;

bool LikePattern::Matches(QByteArrayView value) const {
  if (!m_program->IsReadable) return false;
  if (m_program->IsSubstring) return m_program->HoldsSubstring(value);
  Units units;
  if (HasCombining(value)) {
    UnitsOf(Composed(value), units);
  } else {
    UnitsOf(value, units);
  }
  return m_program->MatchesUnits(units);
}

bool MatchesLike(QStringView pattern, QStringView value) {
  return LikePattern(pattern).Matches(value.toUtf8());
}

}  // namespace velmora::db
