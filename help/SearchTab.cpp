// SPDX-License-Identifier: MIT
#include "help/SearchTab.h"

#include "help/HelpCollection.h"
#include "help/SearchWords.h"
#include "resources/strings.h"

#include <QHelpSearchEngine>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

namespace velmora {

using namespace Qt::StringLiterals;

SearchTab::SearchTab(HelpCollection& collection, QWidget* parent)
    : QWidget(parent),
      m_search(new QHelpSearchEngine(&collection.Engine(), this)),
      m_words(new QLineEdit(this)),
      m_find(new QPushButton(strings::help::Find, this)),
      m_told(new QLabel(this)),
      m_results(new QListWidget(this)) {
  SetupControls();
  connect(m_words, &QLineEdit::returnPressed, this, &SearchTab::Find);
  connect(m_find, &QPushButton::clicked, this, &SearchTab::Find);
  connect(m_results, &QListWidget::itemActivated, this, &SearchTab::Choose);
  connect(m_results, &QListWidget::itemClicked, this, &SearchTab::Choose);
  connect(m_search, &QHelpSearchEngine::searchingFinished, this, &SearchTab::ShowResults);
  connect(m_search, &QHelpSearchEngine::indexingFinished, this, [this] {
    m_indexed = true;
    if (m_waiting) Find();
  });
  m_search->scheduleIndexDocumentation();
}

SearchTab::~SearchTab() {
  // Its threads read the collection, which goes after this.
  m_search->cancelIndexing();
  m_search->cancelSearching();
}

void SearchTab::SetupControls() {
  m_words->setObjectName(u"SearchWords"_s);
  m_words->setClearButtonEnabled(true);
  m_find->setObjectName(u"Find"_s);
  m_find->setAutoDefault(false);
  m_results->setObjectName(u"Results"_s);
  m_results->setAccessibleName(strings::help::Results);
  m_results->setWordWrap(true);
  m_results->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_told->setObjectName(u"Told"_s);
  m_told->setWordWrap(true);
  m_told->setTextFormat(Qt::PlainText);
  auto* label = new QLabel(strings::help::WordsToFind, this);
  label->setBuddy(m_words);
  auto* row = new QHBoxLayout;
  row->addWidget(m_words);
  row->addWidget(m_find);
  auto* column = new QVBoxLayout(this);
  column->addWidget(label);
  column->addLayout(row);
  column->addWidget(m_told);
  column->addWidget(m_results);
  setFocusProxy(m_words);
}

void SearchTab::Find() {
  m_lastWords = SearchWords(m_words->text());
  m_results->clear();
  if (m_lastWords.isEmpty()) {
    m_told->setText(strings::help::NoWords);
    m_words->setFocus();
    return;
  }
  m_waiting = !m_indexed;
  if (m_waiting) {
    m_told->setText(strings::help::Indexing);
    return;
  }
  m_search->search(SearchQuestion(m_lastWords));
}

void SearchTab::ShowResults() {
  m_results->clear();
  const QList<QHelpSearchResult> found = m_search->searchResults(0, m_search->searchResultCount());
  for (const QHelpSearchResult& page : found) {
    auto* line = new QListWidgetItem(page.title(), m_results);
    line->setData(Qt::UserRole, page.url());
    line->setToolTip(QTextDocumentFragment::fromHtml(page.snippet()).toPlainText().simplified());
  }
  if (found.isEmpty()) {
    m_told->setText(strings::help::NothingFound);
    m_words->setFocus();
    m_words->selectAll();
    return;
  }
  m_told->setText(found.size() == 1 ? QString(strings::help::OneFound)
                                    : QString(strings::help::ManyFound).arg(found.size()));
  m_results->setCurrentRow(0);
  m_results->setFocus();
}

void SearchTab::Choose() {
  const QListWidgetItem* line = m_results->currentItem();
  if (line != nullptr) Q_EMIT PageChosen(line->data(Qt::UserRole).toUrl(), m_lastWords);
}

}  // namespace velmora
