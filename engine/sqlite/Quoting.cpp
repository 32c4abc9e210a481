// SPDX-License-Identifier: MIT
#include "engine/sqlite/Quoting.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

QString QuoteName(QStringView name) { return u'"' + name.toString().replace(u'"', "\"\""_L1) + u'"'; }

QString QuoteText(QStringView text) {
  QString quoted = u'\'' + text.toString().replace(u'\'', "''"_L1) + u'\'';
  if (!text.contains(QChar(u'\0'))) return quoted;
  // SQLite ends a statement at such a character.
  return u'(' + QString(quoted).replace(QChar(u'\0'), "'||char(0)||'"_L1) + u')';
}

}  // namespace velmora::db
