// SPDX-License-Identifier: MIT
#include "help/HelpPanel.h"

#include "help/HelpCollection.h"
#include "help/SearchTab.h"
#include "resources/strings.h"

#include <QCoreApplication>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

/// The box over the index: the arrow keys go to the list and choose there.
class IndexBox final : public QLineEdit {
 public:
  IndexBox(QHelpIndexWidget& list, QWidget* parent) : QLineEdit(parent), m_list(list) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up) {
      m_list.setFocus();
      QCoreApplication::sendEvent(&m_list, event);
      return;
    }
    QLineEdit::keyPressEvent(event);
  }

 private:
  QHelpIndexWidget& m_list;
};

}  // namespace

HelpPanel::HelpPanel(HelpCollection& collection, QWidget* parent)
    : QTabWidget(parent),
      m_contents(collection.Engine().contentWidget()),
      m_index(collection.Engine().indexWidget()) {
  setObjectName(u"Panel"_s);
  // All three tabs stay in view, however large the letters.
  setUsesScrollButtons(false);
  SetupContents();
  SetupIndex();
  auto* search = new SearchTab(collection, this);
  search->setObjectName(u"Search"_s);
  connect(search, &SearchTab::PageChosen, this, &HelpPanel::PageChosen);
  addTab(search, strings::help::Search);
}

void HelpPanel::SetupContents() {
  m_contents->setObjectName(u"Contents"_s);
  m_contents->setAccessibleName(strings::help::ContentsList);
  const auto opened = [this] {
    m_contents->expandAll();
    Follow(m_page);
  };
  connect(m_contents->model(), &QAbstractItemModel::modelReset, this, opened, Qt::QueuedConnection);
  connect(m_contents, &QHelpContentWidget::linkActivated, this,
          [this](const QUrl& page) { Q_EMIT PageChosen(page, {}); });
  addTab(m_contents, strings::help::Contents);
  opened();
}

void HelpPanel::SetupIndex() {
  auto* tab = new QWidget(this);
  auto* box = new IndexBox(*m_index, tab);
  box->setObjectName(u"IndexWord"_s);
  box->setClearButtonEnabled(true);
  m_index->setObjectName(u"Keywords"_s);
  m_index->setAccessibleName(strings::help::IndexList);
  auto* label = new QLabel(strings::help::IndexWord, tab);
  label->setBuddy(box);
  auto* column = new QVBoxLayout(tab);
  column->addWidget(label);
  column->addWidget(box);
  column->addWidget(m_index);
  tab->setFocusProxy(box);
  connect(box, &QLineEdit::textChanged, this, [this](const QString& text) { m_index->filterIndices(text); });
  connect(box, &QLineEdit::returnPressed, m_index, &QHelpIndexWidget::activateCurrentItem);
  connect(m_index, &QHelpIndexWidget::documentActivated, this,
          [this](const QHelpLink& link) { Q_EMIT PageChosen(link.url, {}); });
  connect(m_index, &QHelpIndexWidget::documentsActivated, this,
          [this](const QList<QHelpLink>& links) { Q_EMIT PageChosen(links.first().url, {}); });
  addTab(tab, strings::help::Index);
}

void HelpPanel::GoTo(Tab tab) {
  setCurrentIndex(tab);
  currentWidget()->setFocus();
}

void HelpPanel::Follow(const QUrl& page) {
  m_page = page;
  const QModelIndex line = m_contents->indexOf(page.adjusted(QUrl::RemoveFragment));
  if (!line.isValid()) return;
  m_contents->setCurrentIndex(line);
  m_contents->scrollTo(line);
}

std::optional<QUrl> HelpPanel::Beside(const QUrl& page, int step) const {
  QModelIndex line = m_contents->indexOf(page.adjusted(QUrl::RemoveFragment));
  if (line.isValid()) line = step > 0 ? m_contents->indexBelow(line) : m_contents->indexAbove(line);
  const auto* model = qobject_cast<const QHelpContentModel*>(m_contents->model());
  const QHelpContentItem* item = model->contentItemAt(line);
  return line.isValid() && item != nullptr ? std::optional(item->url()) : std::nullopt;
}

}  // namespace velmora
