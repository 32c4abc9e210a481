// SPDX-License-Identifier: MIT
#include "forms/FlexModel.h"

namespace velmora::ui {

FlexModel::FlexModel(QObject* parent) : QAbstractTableModel(parent) {
  constexpr int untilAskedAgain = 100;  // milliseconds
  m_askAgain.setSingleShot(true);
  m_askAgain.setInterval(untilAskedAgain);
  connect(&m_askAgain, &QTimer::timeout, this, [this] {
    if (m_rows > 0 && columnCount() > 0)
      Q_EMIT dataChanged(index(0, 0), index(m_rows - 1, columnCount() - 1), {Qt::DisplayRole});
  });
}

FlexModel::~FlexModel() = default;

int FlexModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_rows; }

int FlexModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

bool FlexModel::HasCell(int row, int column) const { return row >= 0 && row < m_rows && HasColumn(column); }

QVariant FlexModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole) return Text(index.row(), index.column());
  if (role == Qt::TextAlignmentRole)
    return QVariant::fromValue(AlignmentOf(index.column()) | Qt::AlignVCenter);
  return {};
}

QVariant FlexModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || !HasColumn(section))
    return QAbstractTableModel::headerData(section, orientation, role);
  if (role == Qt::DisplayRole) return Heading(section);
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(AlignmentOf(section) | Qt::AlignVCenter);
  return {};
}

void FlexModel::SetSource(std::unique_ptr<GridSource> source) {
  beginResetModel();
  m_source = std::move(source);
  m_written.clear();
  m_rows = m_source ? m_source->RowCount() : 0;
  if (m_source) {
    m_columns.resize(static_cast<std::size_t>(m_source->ColumnCount()));
    for (int i = 0; i < columnCount(); ++i) At(i).Heading = m_source->Heading(i);
  }
  for (Column& column : m_columns) column.Convert = {};
  endResetModel();
}

void FlexModel::SetRowCount(int count) {
  if (m_source) SetSource(nullptr);
  if (count > m_rows) {
    beginInsertRows({}, m_rows, count - 1);
    m_rows = count;
    endInsertRows();
  } else if (count >= 0 && count < m_rows) {
    beginRemoveRows({}, count, m_rows - 1);
    m_rows = count;
    m_written.removeIf([count](const auto& cell) { return cell.key().first >= count; });
    endRemoveRows();
  }
}

void FlexModel::SetColumnCount(int count) {
  const int before = columnCount();
  if (count > before) {
    beginInsertColumns({}, before, count - 1);
    m_columns.resize(static_cast<std::size_t>(count));
    endInsertColumns();
  } else if (count >= 0 && count < before) {
    beginRemoveColumns({}, count, before - 1);
    m_columns.resize(static_cast<std::size_t>(count));
    m_written.removeIf([count](const auto& cell) { return cell.key().second >= count; });
    endRemoveColumns();
  }
}

QString FlexModel::Text(int row, int column) const {
  if (!HasCell(row, column)) return {};
  const auto written = m_written.constFind({row, column});
  if (written != m_written.constEnd()) return *written;
  if (!m_source || column >= m_source->ColumnCount()) return {};
  const std::optional<QString> text = m_source->Cell(row, column);
  if (!text) {
    m_askAgain.start();
    return {};
  }
  const Converter& convert = At(column).Convert;
  return convert ? convert(*text) : *text;
}

void FlexModel::SetText(int row, int column, const QString& text) {
  if (!HasCell(row, column)) return;
  m_written[{row, column}] = text;
  Q_EMIT dataChanged(index(row, column), index(row, column), {Qt::DisplayRole});
}

QString FlexModel::Heading(int column) const { return HasColumn(column) ? At(column).Heading : QString(); }

void FlexModel::SetHeading(int column, const QString& heading) {
  if (!HasColumn(column)) return;
  At(column).Heading = heading;
  Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void FlexModel::SetConverter(int column, Converter converter) {
  if (!HasColumn(column)) return;
  At(column).Convert = std::move(converter);
  if (m_rows > 0) Q_EMIT dataChanged(index(0, column), index(m_rows - 1, column), {Qt::DisplayRole});
}

Qt::Alignment FlexModel::AlignmentOf(int column) const {
  return HasColumn(column) ? At(column).Alignment : Qt::AlignLeft;
}

void FlexModel::SetAlignment(int column, Qt::Alignment alignment) {
  if (!HasColumn(column)) return;
  At(column).Alignment = alignment;
  Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
  if (m_rows > 0) Q_EMIT dataChanged(index(0, column), index(m_rows - 1, column), {Qt::TextAlignmentRole});
}

}  // namespace velmora::ui
