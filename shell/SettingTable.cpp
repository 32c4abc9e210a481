// SPDX-License-Identifier: MIT
#include "shell/SettingTable.h"

#include "base/settings/Settings.h"
#include "base/text/Numbers.h"

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

QString Stored(QStringView section, QStringView key, QStringView otherwise) {
  return GetSetting(section.toString(), key.toString(), otherwise.toString());
}

}  // namespace

QString Read(const TextSetting& setting) { return Stored(setting.Section, setting.Key, setting.Default); }

std::int32_t Read(const NumberSetting& setting) {
  const QString text = Stored(setting.Section, setting.Key, u"");
  return text.isEmpty() ? setting.Default : LeadingWhole(text);
}

bool Read(const SwitchSetting& setting) {
  return LeadingWhole(Stored(setting.Section, setting.Key, setting.Default ? u"1" : u"0")) != 0;
}

bool Read(const MarkSetting& setting) {
  return !Stored(setting.Section, setting.Key, u"").trimmed().isEmpty();
}

bool Write(const TextSetting& setting, const QString& value) {
  return SaveSetting(setting.Section.toString(), setting.Key.toString(), value);
}

bool Write(const NumberSetting& setting, std::int32_t value) {
  return Write(TextSetting{.Section = setting.Section, .Key = setting.Key}, QString::number(value));
}

bool Write(const SwitchSetting& setting, bool on) {
  return Write(TextSetting{.Section = setting.Section, .Key = setting.Key}, on ? u"1"_s : u"0"_s);
}

bool Write(const MarkSetting& setting, bool on) {
  return Write(TextSetting{.Section = setting.Section, .Key = setting.Key}, on ? u"TRUE"_s : u""_s);
}

}  // namespace velmora
