// SPDX-License-Identifier: MIT
#include "help/SearchWords.h"

#include <QRegularExpression>

namespace velmora {

using namespace Qt::StringLiterals;

QStringList SearchWords(const QString& typed) {
  static const QRegularExpression between(u"[^\\p{L}\\p{N}]+"_s,
                                          QRegularExpression::UseUnicodePropertiesOption);
  QStringList words = typed.toLower().split(between, Qt::SkipEmptyParts);
  words.removeDuplicates();
  return words;
}

QString SearchQuestion(const QStringList& words) {
  QStringList parts;
  for (const QString& word : words) parts.append(u'"' + word + u"\"*"_s);
  return parts.join(u' ');
}

}  // namespace velmora
