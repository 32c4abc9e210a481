// SPDX-License-Identifier: MIT
#include "base/settings/Settings.h"

#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

// A slash would open a group within the group; a backslash would become a slash.
QString StoredName(QString name) {
  return name.replace(u'%', "%25"_L1).replace(u'/', "%2F"_L1).replace(u'\\', "%5C"_L1);
}

/// The spelling under which the name stands in the list already; the given one when it does not.
QString SpellingIn(const QStringList& names, const QString& name) {
  for (const QString& known : names) {
    if (known.compare(name, Qt::CaseInsensitive) == 0) return known;
  }
  return name;
}

/// Opens the section and gives the stored spelling of the key. The file is read anew when another program has
/// written it meanwhile.
QString EnterSection(QSettings& store, const QString& section, const QString& key) {
  store.beginGroup(SpellingIn(store.childGroups(), StoredName(section)));
  return SpellingIn(store.childKeys(), StoredName(key));
}

}  // namespace

QString SettingsFile() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Velmora/Velmora.ini"_L1;
}

QString GetSetting(const QString& section, const QString& key, const QString& otherwise) {
  QSettings store(SettingsFile(), QSettings::IniFormat);
  const QString name = EnterSection(store, section, key);
  return store.contains(name) ? store.value(name).toString() : otherwise;
}

bool SaveSetting(const QString& section, const QString& key, const QString& value) {
  QSettings store(SettingsFile(), QSettings::IniFormat);
  const QString name = EnterSection(store, section, key);
  // A null text would be written as an invalid variant, which reads back as another value than an empty text.
  store.setValue(name, value.isNull() ? u""_s : value);
  store.sync();
  return store.status() == QSettings::NoError;
}

}  // namespace velmora
