// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"
#include "forms/FlexModel.h"

#include <QTableView>

#include <memory>
#include <vector>

namespace velmora::ui {

enum class ColAlign : int { Left = 0, Center = 3, Right = 6 };

/// A table that the user looks at and picks a row from. Row 0 is the row of headings, so data rows count from
/// 1, and a table without data has one row. Columns count from 0. There is no current row, and Row is 0,
/// until the user picks one or the program sets it. It costs the rows in view, however many there are.
class FlexGrid : public QTableView, public Control {
  Q_OBJECT

 public:
  explicit FlexGrid(QWidget* parent);

  /// Shows the rows of a source under its headings; no row is current. Null shows the headings alone. The
  /// columns keep their widths and alignments.
  void SetDataSource(std::unique_ptr<GridSource> source) { m_model->SetSource(std::move(source)); }
  [[nodiscard]] GridSource* DataSource() const { return m_model->Source(); }

  [[nodiscard]] int Rows() const { return m_model->rowCount() + 1; }
  /// Rows to be filled cell by cell, the headings' one included; a data source is let go.
  void SetRows(int rows) { m_model->SetRowCount(rows - 1); }
  /// Adds a row at the end.
  void AddItem(const QStringList& cells);
  [[nodiscard]] int Cols() const { return m_model->columnCount(); }
  void SetCols(int columns) { m_model->SetColumnCount(columns); }

  /// The text of a cell as it shows; empty when there is no such cell.
  [[nodiscard]] QString TextMatrix(int row, int column) const;
  void SetTextMatrix(int row, int column, const QString& text);
  /// What a column shows for its source's texts, as long as that source stays.
  void SetConverter(int column, FlexModel::Converter converter) {
    m_model->SetConverter(column, std::move(converter));
  }

  [[nodiscard]] int Row() const { return currentIndex().row() + 1; }
  /// 0 takes the current row back. A row that is not there changes nothing.
  void SetRow(int row);
  [[nodiscard]] int Col() const { return m_col; }
  void SetCol(int column);
  /// Where the choice that begins at Row and Col ends; setting Row and Col sets them too.
  [[nodiscard]] int RowSel() const { return m_rowSel; }
  void SetRowSel(int row);
  [[nodiscard]] int ColSel() const { return m_colSel; }
  void SetColSel(int column);
  /// The text of the current cell.
  [[nodiscard]] QString Text() const { return TextMatrix(Row(), Col()); }
  /// The first row in view below the headings.
  [[nodiscard]] int TopRow() const;
  void SetTopRow(int row);

  [[nodiscard]] QString FormatString() const { return m_format; }
  /// Headings parted by "|", from column 0 on; columns that are missing are added. A heading that begins with
  /// "<", "^" or ">" puts its column left, in the middle or right.
  void SetFormatString(const QString& format);
  /// Whether the spaces around headings are dropped from the next format on; they are kept unless told.
  void SetTrimsHeadings(bool trims) { m_trimsHeadings = trims; }

  /// In twips, as it was set or as the user drew it.
  [[nodiscard]] int ColWidth(int column) const;
  void SetColWidth(int column, int twips);
  [[nodiscard]] ColAlign ColAlignment(int column) const;
  void SetColAlignment(int column, ColAlign alignment);

  /// No jump to a row by its letters: that would read all rows.
  void keyboardSearch(const QString& /*search*/) override {}
  void OnGotFocus() override { Q_EMIT GotFocus(); }
  void OnLostFocus() override { Q_EMIT LostFocus(); }

 Q_SIGNALS:
  /// A click on a row.
  void Click();
  /// A double click on a row, or Enter while a row is current.
  void DblClick();
  /// Another row is current, whoever made it so.
  void RowChanged(int row);
  void GotFocus();
  void LostFocus();

 protected:
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  void SetupHeaders();
  void FitRowHeight();
  void FitColumns();
  void OnCurrentChanged(const QModelIndex& now, const QModelIndex& before);
  void OnReset();
  void SelectRows();
  void ShowCellTip(const QPoint& position, const QPoint& global);

  FlexModel* m_model;
  QString m_format;
  std::vector<int> m_widths;
  int m_col = 0;
  int m_rowSel = 0;
  int m_colSel = 0;
  bool m_trimsHeadings = false;
  bool m_fitting = false;
};

}  // namespace velmora::ui
