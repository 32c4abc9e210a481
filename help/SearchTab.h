// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>
#include <QWidget>

class QHelpSearchEngine;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace velmora {

class HelpCollection;

/// The search over the whole text: words go in, pages come out.
class SearchTab final : public QWidget {
  Q_OBJECT

 public:
  explicit SearchTab(HelpCollection& collection, QWidget* parent = nullptr);
  ~SearchTab() override;

 Q_SIGNALS:
  /// The user chose a page that was found by these words.
  void PageChosen(const QUrl& page, const QStringList& words);

 private:
  void SetupControls();
  void Find();
  void ShowResults();
  void Choose();

  QHelpSearchEngine* m_search;
  QLineEdit* m_words;
  QPushButton* m_find;
  QLabel* m_told;
  QListWidget* m_results;
  QStringList m_lastWords;
  bool m_indexed = false;
  bool m_waiting = false;
};

}  // namespace velmora
