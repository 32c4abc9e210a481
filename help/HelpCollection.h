// SPDX-License-Identifier: MIT
#pragma once

#include "help/IndexFolder.h"

#include <QHelpEngine>
#include <QString>
#include <QUrl>

#include <memory>
#include <optional>

namespace velmora {

/// One help file, opened: its pages, its contents and its indexes. What the library underneath needs to write
/// goes into an IndexFolder; the help file itself is only read.
class HelpCollection final {
 public:
  /// Opens the file. When that fails there is nothing, and `why` is a sentence for the user.
  [[nodiscard]] static std::unique_ptr<HelpCollection> Open(const QString& helpFile, QString& why);
  HelpCollection(const HelpCollection&) = delete;
  HelpCollection& operator=(const HelpCollection&) = delete;

  [[nodiscard]] QString File() const { return m_file; }
  [[nodiscard]] QHelpEngine& Engine() const { return *m_engine; }
  [[nodiscard]] bool IsTemporary() const { return m_folder.IsTemporary(); }

  /// The page of the contents.
  [[nodiscard]] QUrl ContentsPage() const;
  /// The page of a topic, by its number or one of its keywords.
  [[nodiscard]] std::optional<QUrl> PageOf(const QString& topic) const;
  /// What the file holds under an address of its own; empty when there is nothing.
  [[nodiscard]] QByteArray Data(const QUrl& address) const;

 private:
  explicit HelpCollection(const QString& helpFile);
  [[nodiscard]] bool SetUp();
  [[nodiscard]] bool HasThisFile() const;

  QString m_file;
  QString m_namespace;
  IndexFolder m_folder;
  std::unique_ptr<QHelpEngine> m_engine;
};

}  // namespace velmora
