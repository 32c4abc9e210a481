// SPDX-License-Identifier: MIT
#pragma once

#include "resources/Text.h"
#include "shell/Command.h"

#include <QStringView>

#include <span>

namespace velmora {

/// How an entry starts; nothing changes it but the recent list and Delete Card.
enum class EntryStart { Enabled, Disabled, Hidden };

/// An entry of the menu, all of it; the caption "-" makes it a separator.
struct MenuRow {
  QStringView Name;
  strings::Text Caption;
  Command Run = Command::Nothing;
  QStringView Shortcut = {};
  EntryStart Start = EntryStart::Enabled;
};

struct MenuRows {
  QStringView Name;
  strings::Text Caption;
  std::span<const MenuRow> Entries;
};

/// The separator before the recent files, shown when there are any. They stand behind it, at the end of
/// RecentMenu.
inline constexpr QStringView RecentSeparator = u"hSep";
inline constexpr QStringView RecentMenu = u"file";
/// The entry that the card editor disables.
inline constexpr QStringView DeleteCardEntry = u"DelCard";

/// The menu bar in its order.
[[nodiscard]] std::span<const MenuRows> Menus();

}  // namespace velmora
