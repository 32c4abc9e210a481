// SPDX-License-Identifier: MIT
#include "forms/SSTab.h"

#include "forms/PageButtons.h"

#include <utility>

namespace velmora::ui {

using namespace Qt::StringLiterals;

SSTab::SSTab(QWidget* parent) : QTabWidget(parent), Control(this) {
  // Tabs in a narrow window are scrolled, not cut.
  setElideMode(Qt::ElideNone);
  connect(this, &QTabWidget::currentChanged, this, &SSTab::OnCurrentChanged);
  AddPageKeys(parent, [this](int direction) { SetTab(Tab() + direction); });
}

QWidget* SSTab::AddPage(const QString& caption, Ampersand ampersand) {
  auto* page = new QWidget;
  page->setObjectName(u"%1(%2)"_s.arg(objectName()).arg(count()));
  page->setAccessibleName(ampersand == Ampersand::Plain ? caption : QString(caption).remove(u'&'));
  m_captions += caption;
  addTab(page, ampersand == Ampersand::Plain ? Escaped(caption) : caption);
  return page;
}

QString SSTab::TabCaption(int tab) const { return m_captions.value(tab); }

void SSTab::OnCurrentChanged(int tab) {
  const int before = std::exchange(m_tab, tab);
  if (before >= 0) Q_EMIT Click(before);
}

}  // namespace velmora::ui
