// SPDX-License-Identifier: MIT
#include "engine/text/LikePattern.h"

#include "engine/text/TextFolding.h"

#include <QList>
#include <QVarLengthArray>

#include <algorithm>
#include <cstring>
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
  FoldedCharacter spare;
  const FoldedCharacter& folded = FoldingTable::Shared().Fold(character, spare);
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

/// Eight bytes at a time: this runs over every value.
bool IsAscii(QByteArrayView bytes) {
  constexpr std::uint64_t highBits = 0x8080808080808080;
  const char* place = bytes.data();
  qsizetype left = bytes.size();
  std::uint64_t word = 0;
  for (; left >= 8; place += 8, left -= 8) {
    std::memcpy(&word, place, 8);
    if ((word & highBits) != 0) return false;
  }
  word = 0;
  if (left > 0) std::memcpy(&word, place, static_cast<std::size_t>(left));
  return (word & highBits) == 0;
}

/// The letters that others hold within, and the first bytes of those others: ß, æ, œ, þ, the long s, the
/// Kelvin sign.
constexpr QByteArrayView HiddenLetters = "saeothk";
constexpr auto HidingBytes = [] {
  std::array<bool, 256> hiding{};
  for (const std::size_t byte : {0xC3U, 0xC5U, 0xE1U, 0xE2U}) hiding[byte] = true;
  return hiding;
}();

}  // namespace

bool HoldsHiddenAscii(QByteArrayView value) {
  const auto* bytes = reinterpret_cast<const unsigned char*>(value.data());
  const auto* const end = bytes + value.size();
  const auto next = [&](int ahead) { return ahead < end - bytes ? bytes[ahead] : 0; };
  for (; bytes != end; ++bytes) {
    if (!HidingBytes[*bytes]) continue;
    switch (*bytes) {
      case 0xC3:
        if (next(1) == 0x86 || next(1) == 0xA6 || next(1) == 0x9F || next(1) == 0x9E || next(1) == 0xBE)
          return true;
        break;
      case 0xC5:
        if (next(1) == 0x92 || next(1) == 0x93 || next(1) == 0xBF) return true;
        break;
      case 0xE1:
        if (next(1) == 0xBA && (next(2) == 0x9E)) return true;
        break;
      case 0xE2:
        if (next(1) == 0x84 && next(2) == 0xAA) return true;
        break;
      default:
        break;
    }
  }
  return false;
}

struct LikePattern::Program {
  bool IsReadable = true;
  std::vector<Step> Steps;
  std::vector<CharacterList> Lists;

  /// "*text*": the text alone, folded.
  bool IsSubstring = false;
  Units Needle;
  /// The longest piece of it that is ASCII, how far the search for that may jump over a byte that it meets (0
  /// at the piece's last byte), and how far when the rest does not fit.
  QByteArray NeedleBytes;
  bool IsAsciiNeedle = false;
  /// Whether a letter beyond ASCII may hold part of it.
  bool MayBeHidden = false;
  std::array<std::uint8_t, SkipTableSize> Skips{};
  qsizetype SkipOverLast = 0;

  void Compile(const std::vector<char32_t>& pattern);
  void CompileList(const std::vector<char32_t>& pattern, std::size_t& place);
  void FindSubstring();
  void PrepareSearch();

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
  QByteArray piece;
  for (const Step& step : Steps) {
    if (step.Kind != StepKind::OneUnit) continue;
    Needle.append({step.Unit, step.Unit});
    if (step.Unit >= 0x80) {
      piece.clear();
      continue;
    }
    piece.append(static_cast<char>(step.Unit));
    if (piece.size() > NeedleBytes.size()) NeedleBytes = piece;
  }
  IsAsciiNeedle = NeedleBytes.size() == Needle.size();
  MayBeHidden =
      std::any_of(NeedleBytes.begin(), NeedleBytes.end(), [](char c) { return HiddenLetters.contains(c); });
  if (!NeedleBytes.isEmpty()) PrepareSearch();
}

void LikePattern::Program::PrepareSearch() {
  constexpr qsizetype farthest = 255;
  const qsizetype length = NeedleBytes.size();
  Skips.fill(static_cast<std::uint8_t>(std::min(length, farthest)));
  SkipOverLast = length;
  for (qsizetype i = 0; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(NeedleBytes[i]);
    const auto upper = static_cast<unsigned char>(byte >= 'a' && byte <= 'z' ? byte - 0x20 : byte);
    const auto skip = static_cast<std::uint8_t>(std::min(length - 1 - i, farthest));
    Skips[byte] = skip;
    Skips[upper] = skip;
    if (i + 1 < length && NeedleBytes[i] == NeedleBytes.back()) SkipOverLast = length - 1 - i;
  }
}

// Looks at the last byte of the place where the text might stand and jumps as far as that byte allows.
qsizetype LikePattern::Program::FindBytes(QByteArrayView value) const {
  const qsizetype length = NeedleBytes.size();
  const auto* needle = reinterpret_cast<const unsigned char*>(NeedleBytes.constData());
  const auto* bytes = reinterpret_cast<const unsigned char*>(value.data());
  qsizetype last = length - 1;
  while (last < value.size()) {
    if (const auto skip = Skips[bytes[last]]) {
      last += skip;
      continue;
    }
    const auto* start = bytes + last - (length - 1);
    qsizetype matched = 0;
    while (matched < length - 1 && FoldAscii(start[matched]) == needle[matched]) ++matched;
    if (matched == length - 1) return start - bytes;
    last += SkipOverLast;
  }
  return -1;
}

bool LikePattern::Program::HoldsSubstring(QByteArrayView value) const {
  if (Needle.isEmpty()) return true;
  if (NeedleBytes.isEmpty()) {
    if (IsAscii(value)) return false;
  } else {
    const qsizetype place = FindBytes(value);
    // Letters beyond ASCII may still fold to what is looked for.
    if (place < 0 && (!MayBeHidden || IsAscii(value) || !HoldsHiddenAscii(value))) return false;
    // Found, unless an accent follows that belongs to the last letter.
    const qsizetype end = place + NeedleBytes.size();
    const char next = place < 0 || end == value.size() ? '\0' : value[end];
    if (IsAsciiNeedle && place >= 0 && next != '\xCC' && next != '\xCD') return true;
  }
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

QString LiteralLike(QStringView text) {
  QString pattern;
  for (const QChar character : text) {
    const bool isSign = character == u'*' || character == u'?' || character == u'#' || character == u'[';
    pattern += isSign ? QString(u'[') + character + u']' : QString(character);
  }
  return pattern;
}

bool MatchesLike(QStringView pattern, QStringView value) {
  return LikePattern(pattern).Matches(value.toUtf8());
}

}  // namespace velmora::db
