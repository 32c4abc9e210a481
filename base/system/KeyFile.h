// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace velmora {

/// A file of the desktop: groups of keys with texts, as desktop entries and lists of programs are written.
/// Whatever is not such a line is passed over.
class KeyFile final {
 public:
  /// Nothing when the file can't be read, or is too large to be one.
  [[nodiscard]] static std::optional<KeyFile> Read(const QString& path);
  [[nodiscard]] static KeyFile Parse(const QByteArray& content);

  [[nodiscard]] bool HasGroup(const QString& group) const { return m_groups.contains(group); }
  /// The value as it is written; empty when there is none.
  [[nodiscard]] QString Raw(const QString& group, const QString& key) const;
  /// The value with its escapes resolved.
  [[nodiscard]] QString Text(const QString& group, const QString& key) const;
  /// The same in the user's language where the file has it.
  [[nodiscard]] QString LocalText(const QString& group, const QString& key) const;
  /// True with "true" alone.
  [[nodiscard]] bool IsTrue(const QString& group, const QString& key) const;
  /// The parts between semicolons, empty ones left out.
  [[nodiscard]] QStringList List(const QString& group, const QString& key) const;

 private:
  QHash<QString, QHash<QString, QString>> m_groups;
};

}  // namespace velmora
