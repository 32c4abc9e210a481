// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora {

/// A per-user setting of the program; `otherwise` when the key was never written. Keys compare without case.
[[nodiscard]] QString GetSetting(const QString& section, const QString& key, const QString& otherwise = {});
/// Writes a setting through to the disk before it returns; false when that fails.
bool SaveSetting(const QString& section, const QString& key, const QString& value);
/// The file that holds the settings.
[[nodiscard]] QString SettingsFile();

}  // namespace velmora
