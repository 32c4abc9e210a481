// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/DesktopEntry.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace velmora {

/// Where the desktop keeps what it knows, the user's own places first, and which desktops are running.
struct DesktopPlaces {
  QStringList ConfigDirs;
  QStringList DataDirs;
  QStringList Desktops;

  /// Those that the environment names; relative paths in it are passed over.
  [[nodiscard]] static DesktopPlaces FromEnvironment();
};

/// The programs that the desktop has, by what they are for. Looks into the files at each question. Programs
/// for a terminal and those that are not offered to the user are passed over.
class DesktopPrograms final {
 public:
  explicit DesktopPrograms(DesktopPlaces places = DesktopPlaces::FromEnvironment())
      : m_places(std::move(places)) {}

  /// The program that the user, the desktop or the system chose for files of that type; without a choice one
  /// that opens them.
  [[nodiscard]] std::optional<DesktopEntry> ForType(const QString& mimeType) const;
  /// The first installed program of a category of the menu.
  [[nodiscard]] std::optional<DesktopEntry> OfCategory(const QString& category) const;
  /// The first of these that is installed; each is named by its entry's file name.
  [[nodiscard]] std::optional<DesktopEntry> FirstOf(const QStringList& names) const;

 private:
  struct InstalledEntry {
    QString Name;
    DesktopEntry Entry;
  };
  /// Every entry that is offered, the user's own before the system's; one hides those of its name behind it.
  [[nodiscard]] std::vector<InstalledEntry> Installed() const;
  /// The lists of chosen programs, the one that counts most first.
  [[nodiscard]] QStringList ChoiceLists() const;

  DesktopPlaces m_places;
};

}  // namespace velmora
