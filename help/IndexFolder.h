// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace velmora {

/// The folder in the user's cache that holds what the viewer makes of a help file: its collection and its
/// search index. It belongs to one process at a time and to one state of the file; what was made of an older
/// state is removed. Where the cache can't be written, or another viewer has the folder, it is a temporary
/// one.
class IndexFolder final {
 public:
  explicit IndexFolder(const QString& helpFile);
  ~IndexFolder();
  IndexFolder(const IndexFolder&) = delete;
  IndexFolder& operator=(const IndexFolder&) = delete;

  /// Where the collection is or will be; empty when there is no place to write to at all.
  [[nodiscard]] QString Collection() const;
  [[nodiscard]] bool IsTemporary() const { return m_temporary != nullptr; }
  /// Takes away what the folder holds, for it to be made anew.
  void Empty() const;

 private:
  void GoTemporary();
  void Take(const QString& helpFile);
  void RemoveOthers(const QString& parent) const;

  QString m_path;
  std::unique_ptr<QLockFile> m_lock;
  std::unique_ptr<QTemporaryDir> m_temporary;
};

}  // namespace velmora
