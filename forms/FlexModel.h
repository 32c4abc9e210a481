// SPDX-License-Identifier: MIT
#pragma once

#include "forms/GridSource.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

namespace velmora::ui {

/// The columns and rows of a FlexGrid: those of a data source, or rows filled cell by cell. The headings are
/// no row here, so rows count from 0. A data source's texts are fetched when they are asked for and never
/// kept; only cells that were written are.
class FlexModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  using Converter = std::function<QString(const QString&)>;

  explicit FlexModel(QObject* parent);
  ~FlexModel() override;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// Takes rows, columns and headings from a source; written cells and converters are gone. Null leaves the
  /// columns and no row.
  void SetSource(std::unique_ptr<GridSource> source);
  [[nodiscard]] GridSource* Source() const { return m_source.get(); }
  /// Rows to be filled cell by cell: more become empty ones at the end, fewer cut the last. A source is let
  /// go, and its rows with it.
  void SetRowCount(int count);
  void SetColumnCount(int count);

  [[nodiscard]] QString Text(int row, int column) const;
  void SetText(int row, int column, const QString& text);
  [[nodiscard]] QString Heading(int column) const;
  void SetHeading(int column, const QString& heading);
  /// What a column shows for its source's texts; cells that were written show as they are.
  void SetConverter(int column, Converter converter);
  [[nodiscard]] Qt::Alignment AlignmentOf(int column) const;
  void SetAlignment(int column, Qt::Alignment alignment);

 private:
  struct Column {
    QString Heading;
    Qt::Alignment Alignment = Qt::AlignLeft;
    Converter Convert;
  };
  using Place = std::pair<int, int>;

  [[nodiscard]] bool HasColumn(int column) const { return column >= 0 && column < columnCount(); }
  [[nodiscard]] bool HasCell(int row, int column) const;
  [[nodiscard]] const Column& At(int column) const { return m_columns[static_cast<std::size_t>(column)]; }
  [[nodiscard]] Column& At(int column) { return m_columns[static_cast<std::size_t>(column)]; }

  std::unique_ptr<GridSource> m_source;
  std::vector<Column> m_columns;
  QHash<Place, QString> m_written;
  int m_rows = 0;
  /// Runs from a cell that could not be read until the grid asks for it again.
  mutable QTimer m_askAgain;
};

}  // namespace velmora::ui
