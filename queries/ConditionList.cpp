// SPDX-License-Identifier: MIT
#include "queries/ConditionList.h"

#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStringList>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int countMargin = 4;

/// One line fills the box, so that none is cut in two.
class OneLine final : public QStyledItemDelegate {
 public:
  explicit OneLine(QAbstractScrollArea* list) : QStyledItemDelegate(list), m_list(list) {}
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& /*option*/,
                               const QModelIndex& /*index*/) const override {
    return {1, std::max(1, m_list->maximumViewportSize().height())};
  }

 private:
  QAbstractScrollArea* m_list;
};

}  // namespace

ConditionList::ConditionList(QWidget* parent) : ListBox(parent) {
  setItemDelegate(new OneLine(this));
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextElideMode(Qt::ElideRight);
}

void ConditionList::OnPlaced() { scheduleDelayedItemsLayout(); }

QString ConditionList::TipText() const {
  QStringList lines{toolTip().toHtmlEscaped()};
  for (int line = 0; line < ListCount(); ++line) lines += List(line).toHtmlEscaped();
  return u"<span style=\"white-space:pre\">%1</span>"_s.arg(lines.join(u"<br>"_s));
}

bool ConditionList::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip || ListCount() == 0) return ListBox::viewportEvent(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), TipText(), this);
  return true;
}

void ConditionList::paintEvent(QPaintEvent* event) {
  ListBox::paintEvent(event);
  if (ListCount() < 2) return;
  QPainter painter(viewport());
  const QString count = u"%1/%2"_s.arg(TopIndex() + 1).arg(ListCount());
  const QRect view = viewport()->rect();
  const int width = fontMetrics().horizontalAdvance(count) + 2 * countMargin;
  const QRect place(view.right() + 1 - width, view.top(), width, view.height());
  painter.fillRect(place, palette().color(QPalette::Base));
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(place, static_cast<int>(Qt::AlignCenter), count);
}

void ConditionList::wheelEvent(QWheelEvent* event) {
  const int turn = event->angleDelta().y();
  if (turn != 0) verticalScrollBar()->setValue(verticalScrollBar()->value() + (turn > 0 ? -1 : 1));
  event->accept();
}

}  // namespace velmora
