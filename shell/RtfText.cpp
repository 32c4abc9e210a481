// SPDX-License-Identifier: MIT
#include "shell/RtfText.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace velmora {

using namespace std::string_view_literals;

namespace {

/// Groups nested deeper than that belong to no document that was written on purpose.
constexpr std::size_t deepest = 100;
constexpr int longestNumber = 9;
constexpr int smallestSize = 12;
constexpr int largestSize = 96;
constexpr int widestSpace = 5000;  // twips

/// What counts inside of one group.
struct Group {
  RtfFace Face;
  RtfParagraph Shape;
  /// How many characters stand behind a coded one for readers that do not know its code.
  int StandIns = 1;
  bool IsSkipped = false;
};

/// A control word with its number, or a control sign.
struct Control {
  std::string_view Word;
  std::optional<int> Number;
};

struct TextWord {
  std::string_view Word;
  char16_t Text;
};

constexpr std::array textWords{TextWord{"tab"sv, u'\t'},
                               TextWord{"line"sv, u'\u2028'},
                               TextWord{"emdash"sv, u'\u2014'},
                               TextWord{"endash"sv, u'\u2013'},
                               TextWord{"lquote"sv, u'\u2018'},
                               TextWord{"rquote"sv, u'\u2019'},
                               TextWord{"ldblquote"sv, u'\u201c'},
                               TextWord{"rdblquote"sv, u'\u201d'},
                               TextWord{"bullet"sv, u'\u2022'},
                               TextWord{"~"sv, u'\u00a0'},
                               TextWord{"_"sv, u'\u2011'},
                               TextWord{"{"sv, u'{'},
                               TextWord{"}"sv, u'}'},
                               TextWord{"\\"sv, u'\\'}};

/// The parts of a document that are not its text.
constexpr std::array destinations{"fonttbl"sv,  "colortbl"sv, "stylesheet"sv, "info"sv,
                                  "pict"sv,     "object"sv,   "header"sv,     "footer"sv,
                                  "footnote"sv, "fldinst"sv,  "listtable"sv};

/// What stands at 0x80 to 0x9f in the code page of these documents; the rest of it is that of Latin-1.
constexpr std::u16string_view codePageMiddle =
    u"\u20ac\ufffd\u201a\u0192\u201e\u2026\u2020\u2021\u02c6\u2030\u0160\u2039\u0152\ufffd\u017d\ufffd"
    u"\ufffd\u2018\u2019\u201c\u201d\u2022\u2013\u2014\u02dc\u2122\u0161\u203a\u0153\ufffd\u017e\u0178";

char16_t OfCodePage(unsigned char code) {
  return code >= 0x80 && code < 0xa0 ? codePageMiddle[code - 0x80U] : code;
}

int HexDigit(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
  return -1;
}

bool IsLetter(char sign) { return (sign >= 'a' && sign <= 'z') || (sign >= 'A' && sign <= 'Z'); }
bool IsDigit(char sign) { return sign >= '0' && sign <= '9'; }

class Reader final {
 public:
  explicit Reader(std::string_view document) : m_rest(document) {}

  QList<RtfParagraph> Read();

 private:
  /// The next character; the text is not at its end.
  char Take();
  [[nodiscard]] Control TakeControl();
  [[nodiscard]] std::optional<int> TakeNumber();
  void OpenGroup();
  void CloseGroup();
  void Obey(const Control& control);
  bool ObeyFace(const Control& control);
  bool ObeyShape(const Control& control);
  void ObeyHex();
  void ObeyUnicode(int code);
  void Add(char16_t sign);
  void EndParagraph();
  void EndLastParagraph();
  void Store();
  [[nodiscard]] Group& Here() { return m_groups.back(); }

  std::string_view m_rest;
  std::vector<Group> m_groups{Group()};
  /// How many groups are open beyond the deepest.
  std::size_t m_tooDeep = 0;
  /// How many characters are still passed over behind a coded one.
  int m_passOver = 0;
  bool m_isAtEnd = false;
  /// Those of the paragraph that is being read.
  QList<RtfRun> m_runs;
  QList<RtfParagraph> m_found;
};

QList<RtfParagraph> Reader::Read() {
  while (!m_rest.empty() && !m_isAtEnd) {
    switch (const char sign = Take(); sign) {
      case '{':
        OpenGroup();
        break;
      case '}':
        CloseGroup();
        break;
      case '\\':
        Obey(TakeControl());
        break;
      case '\r':
      case '\n':
      case '\0':
        break;
      default:
        Add(OfCodePage(static_cast<unsigned char>(sign)));
    }
  }
  EndLastParagraph();
  return std::move(m_found);
}

char Reader::Take() {
  const char sign = m_rest.front();
  m_rest.remove_prefix(1);
  return sign;
}

Control Reader::TakeControl() {
  if (m_rest.empty()) return {};
  const auto end = std::ranges::find_if_not(m_rest, IsLetter);
  const auto length = std::max<std::ptrdiff_t>(end - m_rest.begin(), 1);
  Control control{.Word = m_rest.substr(0, static_cast<std::size_t>(length)), .Number = {}};
  m_rest.remove_prefix(control.Word.size());
  if (!IsLetter(control.Word.front())) return control;
  control.Number = TakeNumber();
  // One blank ends the word and is no text.
  if (m_rest.starts_with(' ')) m_rest.remove_prefix(1);
  return control;
}

std::optional<int> Reader::TakeNumber() {
  const bool isNegative = m_rest.size() > 1 && m_rest[0] == '-' && IsDigit(m_rest[1]);
  if (isNegative) m_rest.remove_prefix(1);
  int digits = 0;
  int number = 0;
  for (; !m_rest.empty() && IsDigit(m_rest.front()); ++digits) {
    const int digit = Take() - '0';
    if (digits < longestNumber) number = number * 10 + digit;
  }
  if (digits == 0) return std::nullopt;
  return isNegative ? -number : number;
}

void Reader::OpenGroup() {
  m_passOver = 0;
  if (m_groups.size() < deepest) {
    m_groups.push_back(Group(Here()));
  } else {
    ++m_tooDeep;
  }
}

void Reader::CloseGroup() {
  m_passOver = 0;
  if (m_tooDeep > 0) {
    --m_tooDeep;
  } else if (m_groups.size() > 2) {
    m_groups.pop_back();
  } else {
    // The document's own group; what stands behind it is no part of it.
    m_isAtEnd = true;
  }
}

void Reader::Obey(const Control& control) {
  if (control.Word.empty()) return;
  const auto text = std::ranges::find(textWords, control.Word, &TextWord::Word);
  if (text != textWords.end()) return Add(text->Text);
  if (control.Word == "'") return ObeyHex();
  if (control.Word == "u") return ObeyUnicode(control.Number.value_or(0));
  if (control.Word == "bin") {
    const auto length = static_cast<std::size_t>(std::max(control.Number.value_or(0), 0));
    return m_rest.remove_prefix(std::min(length, m_rest.size()));
  }
  if (control.Word == "*" || std::ranges::find(destinations, control.Word) != destinations.end()) {
    Here().IsSkipped = true;
  } else if (control.Word == "par" || control.Word == "\n" || control.Word == "\r") {
    EndParagraph();
  } else if (!ObeyFace(control)) {
    ObeyShape(control);
  }
}

bool Reader::ObeyFace(const Control& control) {
  RtfFace& face = Here().Face;
  const bool isOn = control.Number != 0;
  if (control.Word == "b") {
    face.IsBold = isOn;
  } else if (control.Word == "i") {
    face.IsItalic = isOn;
  } else if (control.Word == "ul") {
    face.IsUnderlined = isOn;
  } else if (control.Word == "ulnone") {
    face.IsUnderlined = false;
  } else if (control.Word == "fs") {
    face.Size = std::clamp(control.Number.value_or(RtfFace::PlainSize), smallestSize, largestSize);
  } else if (control.Word == "plain") {
    face = {};
  } else {
    return false;
  }
  return true;
}

bool Reader::ObeyShape(const Control& control) {
  RtfParagraph& shape = Here().Shape;
  const int space = std::clamp(control.Number.value_or(0), 0, widestSpace);
  if (control.Word == "pard") {
    shape = {};
  } else if (control.Word == "li") {
    shape.LeftIndent = space;
  } else if (control.Word == "fi") {
    shape.FirstIndent = std::clamp(control.Number.value_or(0), -widestSpace, widestSpace);
  } else if (control.Word == "sb") {
    shape.SpaceBefore = space;
  } else if (control.Word == "sa") {
    shape.SpaceAfter = space;
  } else if (control.Word == "qc") {
    shape.IsCentred = true;
  } else if (control.Word == "ql") {
    shape.IsCentred = false;
  } else if (control.Word == "uc") {
    Here().StandIns = space;
  } else {
    return false;
  }
  return true;
}

void Reader::ObeyHex() {
  if (m_rest.size() < 2) return;
  const int high = HexDigit(m_rest[0]);
  const int low = HexDigit(m_rest[1]);
  if (high < 0 || low < 0) return;
  m_rest.remove_prefix(2);
  Add(OfCodePage(static_cast<unsigned char>(high * 16 + low)));
}

void Reader::ObeyUnicode(int code) {
  // Codes beyond the first half are written as negative numbers.
  m_passOver = 0;
  Add(static_cast<char16_t>(code));
  m_passOver = Here().StandIns;
}

void Reader::Add(char16_t sign) {
  if (m_passOver > 0) {
    --m_passOver;
    return;
  }
  if (Here().IsSkipped || m_tooDeep > 0) return;
  const bool isControl = sign != u'\t' && QChar(sign).category() == QChar::Other_Control;
  if (isControl) return;
  if (m_runs.isEmpty() || m_runs.last().Face != Here().Face) {
    m_runs += RtfRun{.Text = {}, .Face = Here().Face};
  }
  m_runs.last().Text += QChar(sign);
}

void Reader::EndParagraph() {
  if (!Here().IsSkipped && m_tooDeep == 0) Store();
}

void Reader::EndLastParagraph() {
  // It needs no end of its own, and in a broken document it gets none.
  if (!m_runs.isEmpty()) Store();
}

void Reader::Store() {
  RtfParagraph ended = Here().Shape;
  ended.Runs = std::exchange(m_runs, {});
  // Half of a character that is written in two codes is none.
  for (RtfRun& run : ended.Runs) run.Text = QString::fromUtf8(run.Text.toUtf8());
  m_found += ended;
}

}  // namespace

QList<RtfParagraph> ReadRtf(const QByteArray& document) {
  const std::string_view text(document.constData(), static_cast<std::size_t>(document.size()));
  if (!text.starts_with("{\\rtf")) return {};
  return Reader(text).Read();
}

}  // namespace velmora
