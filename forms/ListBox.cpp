// SPDX-License-Identifier: MIT
#include "forms/ListBox.h"

#include "forms/Keys.h"
#include "forms/ListModel.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

namespace velmora::ui {

ListBox::ListBox(QWidget* parent) : QListView(parent), Control(this), m_model(new ListModel(this)) {
  setUniformItemSizes(true);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  setModel(m_model);
  SetMode(ListChoice::Single);
}

void ListBox::SetMode(ListChoice mode) {
  setSelectionMode(mode == ListChoice::Single ? QAbstractItemView::SingleSelection
                                              : QAbstractItemView::MultiSelection);
}

void ListBox::AddItem(const QString& text) { m_model->Insert(ListCount(), {text}); }

void ListBox::AddItems(const QStringList& texts) { m_model->Insert(ListCount(), texts); }

void ListBox::InsertItem(int index, const QString& text) {
  if (index >= 0 && index <= ListCount()) m_model->Insert(index, {text});
}

void ListBox::RemoveItem(int index) {
  if (!Has(index)) return;
  // The view would make the neighbour the current line.
  if (index == ListIndex()) SetListIndex(-1);
  m_model->Remove(index);
}

void ListBox::Clear() { m_model->Clear(); }

int ListBox::ListCount() const { return m_model->rowCount(); }

QString ListBox::List(int index) const { return Has(index) ? m_model->At(index) : QString(); }

QStringList ListBox::Lines() const {
  QStringList lines;
  for (int line = 0; line < ListCount(); ++line) lines += List(line);
  return lines;
}

QStringList ListBox::SelectedLines() const {
  QStringList lines;
  for (int line = 0; line < ListCount(); ++line) {
    if (Selected(line)) lines += List(line);
  }
  return lines;
}

int ListBox::ListIndex() const { return currentIndex().row(); }

void ListBox::SetListIndex(int index) {
  const bool single = selectionMode() == QAbstractItemView::SingleSelection;
  if (Has(index)) {
    selectionModel()->setCurrentIndex(
        m_model->index(index), single ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate);
    return;
  }
  if (single) selectionModel()->clearSelection();
  selectionModel()->clearCurrentIndex();
}

bool ListBox::Selected(int index) const {
  return Has(index) && selectionModel()->isSelected(m_model->index(index));
}

void ListBox::SetSelected(int index, bool selected) {
  if (!Has(index)) return;
  if (selected && selectionMode() == QAbstractItemView::SingleSelection) {
    SetListIndex(index);
    return;
  }
  selectionModel()->select(m_model->index(index),
                           selected ? QItemSelectionModel::Select : QItemSelectionModel::Deselect);
}

int ListBox::TopIndex() const { return std::max(0, indexAt({1, 1}).row()); }

void ListBox::SetTopIndex(int index) {
  if (Has(index)) scrollTo(m_model->index(index), QAbstractItemView::PositionAtTop);
}

void ListBox::focusInEvent(QFocusEvent* event) {
  // The item view's own step would make the first line the current one.
  QAbstractScrollArea::focusInEvent(event);  // NOLINT(bugprone-parent-virtual-call)
  viewport()->update();
}

void ListBox::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(*event)) {
    event->accept();
    Q_EMIT EnterPressed();
    return;
  }
  const int before = ListIndex();
  const QItemSelection chosen = selectionModel()->selection();
  QListView::keyPressEvent(event);
  if (ListIndex() != before || selectionModel()->selection() != chosen) Q_EMIT Click();
}

void ListBox::mousePressEvent(QMouseEvent* event) {
  // A press below the last line picks nothing and takes nothing back.
  if (indexAt(event->position().toPoint()).isValid()) QListView::mousePressEvent(event);
}

void ListBox::mouseReleaseEvent(QMouseEvent* event) {
  const bool onLine = indexAt(event->position().toPoint()).isValid();
  QListView::mouseReleaseEvent(event);
  if (onLine && event->button() == Qt::LeftButton) Q_EMIT Click();
}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
  const bool onLine = indexAt(event->position().toPoint()).isValid();
  QListView::mouseDoubleClickEvent(event);
  if (onLine && event->button() == Qt::LeftButton) Q_EMIT DblClick();
}

}  // namespace velmora::ui
