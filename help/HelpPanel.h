// SPDX-License-Identifier: MIT
#pragma once

#include <QTabWidget>
#include <QUrl>

#include <optional>

class QHelpContentWidget;
class QHelpIndexWidget;

namespace velmora {

class HelpCollection;

/// The ways to a page: the contents, the index and the search, each in a tab.
class HelpPanel final : public QTabWidget {
  Q_OBJECT

 public:
  explicit HelpPanel(HelpCollection& collection, QWidget* parent = nullptr);

  enum Tab { ContentsTab, IndexTab, SearchingTab };
  /// Brings a tab to the front, with the focus in its first control.
  void GoTo(Tab tab);
  /// Chooses the line of that page in the contents.
  void Follow(const QUrl& page);
  /// The page that stands so many lines behind that one in the contents; nothing beyond their ends.
  [[nodiscard]] std::optional<QUrl> Beside(const QUrl& page, int step) const;

 Q_SIGNALS:
  /// The words are those of the search that found the page; there are none otherwise.
  void PageChosen(const QUrl& page, const QStringList& words);

 private:
  void SetupContents();
  void SetupIndex();

  QHelpContentWidget* m_contents;
  QHelpIndexWidget* m_index;
  QUrl m_page;
};

}  // namespace velmora
