// SPDX-License-Identifier: MIT
#include "shell/SettingTable.h"

#include "base/settings/Settings.h"
#include "base/text/Numbers.h"

namespace velmora {

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

void Write(const TextSetting& setting, const QString& value) {
  SaveSetting(setting.Section.toString(), setting.Key.toString(), value);
}

void Write(const NumberSetting& setting, std::int32_t value) {
  Write(TextSetting{.Section = setting.Section, .Key = setting.Key}, QString::number(value));
}

}  // namespace velmora
