// SPDX-License-Identifier: MIT
#include "tools/makedemo/Csv.h"

#include <QStringList>

namespace velmora::demo {

namespace {

/// Takes the field that begins at `at` and leaves `at` behind the character that ends it; that character, or
/// null at the end of the text.
QChar TakeField(const QString& text, qsizetype& at, QString& field) {
  field.clear();
  bool quoted = false;
  for (; at < text.size(); ++at) {
    const QChar character = text.at(at);
    if (character == u'"') {
      const bool doubled = quoted && at + 1 < text.size() && text.at(at + 1) == u'"';
      if (doubled) {
        field += text.at(++at);
      } else {
        quoted = !quoted;
      }
    } else if (!quoted && (character == u',' || character == u'\n')) {
      return text.at(at++);
    } else if (quoted || character != u'\r') {
      field += character;
    }
  }
  return {};
}

}  // namespace

std::vector<CsvRow> ReadCsv(const QString& text) {
  std::vector<QStringList> lines(1);
  QString field;
  for (qsizetype at = 0; at < text.size();) {
    const QChar end = TakeField(text, at, field);
    lines.back().append(field);
    if (end == u'\n') lines.emplace_back();
  }
  std::vector<CsvRow> rows;
  for (std::size_t line = 1; line < lines.size(); ++line) {
    if (lines.at(line).size() != lines.front().size()) continue;
    CsvRow row;
    for (qsizetype column = 0; column < lines.front().size(); ++column) {
      row.insert(lines.front().at(column), lines.at(line).at(column));
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace velmora::demo
