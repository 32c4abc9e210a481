// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <cstdint>

namespace velmora {

// The per-user settings of the program, each with its section, key and default. All are stored as text; the
// type says how it is read. What is read or written goes through these rows.

/// A text; the default counts when the key was never written.
struct TextSetting {
  QStringView Section;
  QStringView Key;
  QStringView Default = u"";
};

/// A whole number by its leading digits; the default counts for an empty text too.
struct NumberSetting {
  QStringView Section;
  QStringView Key;
  std::int32_t Default;
};

/// "1" for on and "0" for off.
struct SwitchSetting {
  QStringView Section;
  QStringView Key;
  bool Default;
};

/// On with any text that is not blank; written as "TRUE" or "".
struct MarkSetting {
  QStringView Section;
  QStringView Key;
};

[[nodiscard]] QString Read(const TextSetting& setting);
[[nodiscard]] std::int32_t Read(const NumberSetting& setting);
[[nodiscard]] bool Read(const SwitchSetting& setting);
[[nodiscard]] bool Read(const MarkSetting& setting);
// They write through to the disk; false when that fails.
bool Write(const TextSetting& setting, const QString& value);
bool Write(const NumberSetting& setting, std::int32_t value);
bool Write(const SwitchSetting& setting, bool on);
bool Write(const MarkSetting& setting, bool on);

namespace settings {

inline constexpr QStringView Init = u"Init";
inline constexpr QStringView Load = u"Load";
inline constexpr QStringView ShellApp = u"ShellApp";

/// The recent files, the most recent first.
inline constexpr std::array<TextSetting, 4> RecentFiles{
    {{Init, u"File0"}, {Init, u"File1"}, {Init, u"File2"}, {Init, u"File3"}}};
inline constexpr NumberSetting ModemPort{Init, u"Modem", 2};
inline constexpr MarkSetting InsideUsa{Init, u"USA"};
inline constexpr NumberSetting TaxPercent{Init, u"MAAM", 17};
/// The same as the text that the user typed, empty when nobody did.
inline constexpr TextSetting TaxText{Init, u"MAAM"};
inline constexpr TextSetting OutsideLine{Init, u"Outline"};
inline constexpr TextSetting AreaCode{Init, u"AreaCode"};
inline constexpr TextSetting MailServer{Init, u"MailServer"};
inline constexpr TextSetting EmailAddress{Init, u"EMail"};
inline constexpr TextSetting Browser{Init, u"Browser"};
inline constexpr TextSetting TextEditor{Init, u"TextEditor"};
inline constexpr SwitchSetting UseBackground{Init, u"UseBackground", true};
/// A path, or one of the two names below.
inline constexpr TextSetting Wallpaper{Init, u"WallPap"};
inline constexpr QStringView NoWallpaper = u"(none)";
inline constexpr QStringView DefaultWallpaper = u"(default)";
/// The same as the options show it before anybody chose one.
inline constexpr TextSetting OfferedWallpaper{Init, u"WallPap", DefaultWallpaper};

/// The last run's file and card.
inline constexpr TextSetting LastPath{Load, u"Path"};
inline constexpr TextSetting LastTitle{Load, u"Name"};
inline constexpr NumberSetting LastCard{Load, u"Index", 0};

/// The programs behind the three shortcut buttons; empty for the built-in choice.
inline constexpr std::array<TextSetting, 3> ShortcutPrograms{
    {{ShellApp, u"1"}, {ShellApp, u"2"}, {ShellApp, u"3"}}};

}  // namespace settings

}  // namespace velmora
