// SPDX-License-Identifier: MIT
#pragma once

#include "shell/SettingTable.h"

#include <QString>

#include <array>

namespace velmora {

inline constexpr std::size_t RecentPlaces = settings::RecentFiles.size();
/// Full paths, the most recent first; empty for a free place.
using RecentList = std::array<QString, RecentPlaces>;

/// The list with that path moved or put to its front: once, by exact comparison; the last entry falls out
/// when there is no room. An empty path leaves the first place free.
[[nodiscard]] RecentList WithFirst(const RecentList& list, const QString& path);

/// The stored list.
[[nodiscard]] RecentList RecentFiles();
/// Puts the session's file first in the stored list.
void RecentSave();
/// Frees the first place that holds exactly that path.
void ForgetRecent(const QString& path);

/// The folder of a path with its last separator; "" for a path without one.
[[nodiscard]] QString SplitPath(const QString& path);

}  // namespace velmora
