// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QStringList>

namespace velmora::ui {

/// The lines of a list box.
class ListModel final : public QAbstractListModel {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  [[nodiscard]] const QString& At(int row) const { return m_texts.at(row); }
  void Insert(int row, const QStringList& texts);
  void Remove(int row);
  void Clear();

 private:
  QStringList m_texts;
};

}  // namespace velmora::ui
