// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/KeyFile.h"
#include "base/system/ProgramStart.h"

#include <optional>

namespace velmora {

/// What the desktop knows of an installed program: a ".desktop" file.
class DesktopEntry final {
 public:
  /// Nothing when the file can't be read or is no entry.
  [[nodiscard]] static std::optional<DesktopEntry> Read(const QString& path);

  [[nodiscard]] QString Path() const { return m_path; }
  [[nodiscard]] QString Name() const { return m_file.LocalText(Group, QStringLiteral("Name")); }
  /// The desktop takes a hidden entry for one that is not there, those of the same name below it too.
  [[nodiscard]] bool IsHidden() const { return m_file.IsTrue(Group, QStringLiteral("Hidden")); }
  /// A program, and none for a terminal: without one it would run unseen.
  [[nodiscard]] bool HasWindow() const;
  /// An installed program with a window, offered to the user.
  [[nodiscard]] bool IsOffered() const;
  /// Whether it is meant for one of these desktops.
  [[nodiscard]] bool IsFor(const QStringList& desktops) const;
  [[nodiscard]] bool HasCategory(const QString& category) const;
  [[nodiscard]] bool OpensType(const QString& mimeType) const;

  /// How it is started with these files or addresses; nothing when its command line can't be understood. A
  /// command line without a place for them gets them at its end; one for a single file gets the first.
  [[nodiscard]] std::optional<ProgramStart> StartWith(const QStringList& files) const;

 private:
  DesktopEntry(QString path, KeyFile file) : m_path(std::move(path)), m_file(std::move(file)) {}
  [[nodiscard]] bool IsInstalled() const;

  static inline const QString Group = QStringLiteral("Desktop Entry");

  QString m_path;
  KeyFile m_file;
};

}  // namespace velmora
