// SPDX-License-Identifier: MIT
#include "forms/ListModel.h"

namespace velmora::ui {

int ListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_texts.size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || role != Qt::DisplayRole) return {};
  return m_texts.at(index.row());
}

void ListModel::Insert(int row, const QStringList& texts) {
  if (texts.isEmpty()) return;
  beginInsertRows({}, row, row + static_cast<int>(texts.size()) - 1);
  if (row == m_texts.size()) {
    m_texts.append(texts);
  } else {
    for (qsizetype i = 0; i < texts.size(); ++i) m_texts.insert(row + i, texts.at(i));
  }
  endInsertRows();
}

void ListModel::Remove(int row) {
  beginRemoveRows({}, row, row);
  m_texts.removeAt(row);
  endRemoveRows();
}

void ListModel::Clear() {
  beginResetModel();
  m_texts.clear();
  endResetModel();
}

}  // namespace velmora::ui
