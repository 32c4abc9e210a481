// SPDX-License-Identifier: MIT
#include "base/system/ExecLine.h"

#include <QUrl>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

/// A local path as an address; what is an address already stays one.
QString AddressOf(const QString& file) {
  return file.startsWith(u'/') ? QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded) : file;
}

/// Fills in the codes of one argument after another.
class Filler final {
 public:
  explicit Filler(const ExecValues& values) : m_values(values) {}

  /// False for a code that does not exist; between quotes that is plain text, for the commands that some
  /// entries hand to other programs so.
  bool Add(const ExecArgument& argument);
  [[nodiscard]] QStringList Words() const;

 private:
  /// A code that is an argument of its own and can become none or several.
  bool AddWhole(const QString& argument);
  bool Fill(QChar code, QString& word);

  const ExecValues& m_values;
  QStringList m_words;
  bool m_filesTaken = false;
};

bool Filler::AddWhole(const QString& argument) {
  if (argument == u"%F"_s || argument == u"%U"_s) {
    for (const QString& file : m_values.Files) m_words += argument == u"%U"_s ? AddressOf(file) : file;
    m_filesTaken = true;
    return true;
  }
  if (argument == u"%i"_s) {
    if (!m_values.Icon.isEmpty()) m_words += {u"--icon"_s, m_values.Icon};
    return true;
  }
  return false;
}

bool Filler::Fill(QChar code, QString& word) {
  switch (code.unicode()) {
    case u'%':
      word += u'%';
      return true;
    case u'f':
    case u'u':
      m_filesTaken = true;
      if (!m_values.Files.isEmpty()) {
        const QString& file = m_values.Files.constFirst();
        word += code == u'u' ? AddressOf(file) : file;
      }
      return true;
    case u'c':
      word += m_values.Name;
      return true;
    case u'k':
      word += m_values.Entry;
      return true;
    case u'd':
    case u'D':
    case u'n':
    case u'N':
    case u'v':
    case u'm':
      // Codes of old that stand for nothing any more.
      return true;
    default:
      return false;
  }
}

bool Filler::Add(const ExecArgument& argument) {
  const QString& text = argument.Text;
  if (AddWhole(text)) return true;
  QString word;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] != u'%') {
      word += text[i];
    } else if (i + 1 < text.size() && Fill(text[i + 1], word)) {
      ++i;
    } else if (argument.IsQuoted) {
      word += u'%';
    } else {
      return false;
    }
  }
  // A code that had nothing to give leaves no empty argument behind.
  if (!word.isEmpty() || text.isEmpty()) m_words += word;
  return true;
}

QStringList Filler::Words() const { return m_filesTaken ? m_words : m_words + m_values.Files; }

}  // namespace

std::optional<QList<ExecArgument>> SplitExecLine(QStringView line) {
  QList<ExecArgument> found;
  ExecArgument current;
  bool inArgument = false;
  bool inQuotes = false;
  for (qsizetype i = 0; i < line.size(); ++i) {
    const QChar letter = line[i];
    if (inQuotes && letter == u'\\' && i + 1 < line.size() && u"\"`$\\"_s.contains(line[i + 1])) {
      current.Text += line[++i];
    } else if (letter == u'"') {
      inQuotes = !inQuotes;
      inArgument = true;
      current.IsQuoted = true;
    } else if (!inQuotes && letter.isSpace()) {
      if (inArgument) found += std::exchange(current, {});
      inArgument = false;
    } else {
      current.Text += letter;
      inArgument = true;
    }
  }
  if (inQuotes) return std::nullopt;
  if (inArgument) found += current;
  return found;
}

std::optional<QStringList> FillExecLine(QStringView line, const ExecValues& values) {
  const std::optional<QList<ExecArgument>> arguments = SplitExecLine(line);
  if (!arguments || arguments->isEmpty() || arguments->constFirst().Text.isEmpty()) return std::nullopt;
  Filler filler(values);
  for (const ExecArgument& argument : *arguments) {
    if (!filler.Add(argument)) return std::nullopt;
  }
  return filler.Words();
}

}  // namespace velmora
