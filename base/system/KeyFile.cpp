// SPDX-License-Identifier: MIT
#include "base/system/KeyFile.h"

#include <QFile>
#include <QLocale>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestFile = 1 << 20;

QChar Unescaped(QChar letter) {
  switch (letter.unicode()) {
    case u's':
      return u' ';
    case u'n':
      return u'\n';
    case u't':
      return u'\t';
    case u'r':
      return u'\r';
    default:
      return letter;
  }
}

/// The parts of a value between separators, each with its escapes resolved; a null separator leaves it whole.
QStringList Parts(QStringView raw, QChar separator) {
  QStringList parts{QString()};
  for (qsizetype i = 0; i < raw.size(); ++i) {
    if (raw[i] == u'\\' && i + 1 < raw.size()) {
      parts.last() += Unescaped(raw[++i]);
    } else if (!separator.isNull() && raw[i] == separator) {
      parts += QString();
    } else {
      parts.last() += raw[i];
    }
  }
  return parts;
}

}  // namespace

std::optional<KeyFile> KeyFile::Read(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly) || file.size() > longestFile) return std::nullopt;
  return Parse(file.read(longestFile));
}

KeyFile KeyFile::Parse(const QByteArray& content) {
  KeyFile found;
  QString group;
  const QString text = QString::fromUtf8(content);
  for (const QStringView raw : QStringView(text).split(u'\n')) {
    const QStringView line = raw.trimmed();
    if (line.startsWith(u'#')) continue;
    if (line.startsWith(u'[') && line.endsWith(u']')) {
      group = line.sliced(1, line.size() - 2).toString();
      // A group that comes again adds nothing to the first.
      if (found.m_groups.contains(group)) group.clear();
      if (!group.isEmpty()) found.m_groups.insert(group, {});
      continue;
    }
    const qsizetype equals = line.indexOf(u'=');
    if (equals <= 0 || group.isEmpty()) continue;
    found.m_groups[group].insert(line.first(equals).trimmed().toString(),
                                 line.sliced(equals + 1).trimmed().toString());
  }
  return found;
}

QString KeyFile::Raw(const QString& group, const QString& key) const {
  return m_groups.value(group).value(key);
}

QString KeyFile::Text(const QString& group, const QString& key) const {
  return Parts(Raw(group, key), {}).constFirst();
}

QString KeyFile::LocalText(const QString& group, const QString& key) const {
  const QString locale = QLocale().name();
  for (const QString& language : {locale, locale.section(u'_', 0, 0)}) {
    const QString text = Text(group, u"%1[%2]"_s.arg(key, language));
    if (!text.isEmpty()) return text;
  }
  return Text(group, key);
}

bool KeyFile::IsTrue(const QString& group, const QString& key) const { return Raw(group, key) == u"true"_s; }

QStringList KeyFile::List(const QString& group, const QString& key) const {
  QStringList parts = Parts(Raw(group, key), u';');
  parts.removeAll(QString());
  return parts;
}

}  // namespace velmora
