// SPDX-License-Identifier: MIT
#include "forms/FlexGrid.h"

#include "forms/Twips.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QToolTip>

namespace velmora::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int defaultColWidth = 1000;
constexpr int narrowestColumn = 8;
/// What a row is higher by than its text.
constexpr int rowRim = 4;

std::optional<ColAlign> AlignmentSign(QStringView heading) {
  if (heading.startsWith(u'<')) return ColAlign::Left;
  if (heading.startsWith(u'^')) return ColAlign::Center;
  if (heading.startsWith(u'>')) return ColAlign::Right;
  return std::nullopt;
}

Qt::Alignment ToQt(ColAlign alignment) {
  switch (alignment) {
    case ColAlign::Left:
      return Qt::AlignLeft;
    case ColAlign::Center:
      return Qt::AlignHCenter;
    case ColAlign::Right:
      return Qt::AlignRight;
  }
  return Qt::AlignLeft;
}

}  // namespace

FlexGrid::FlexGrid(QWidget* parent) : QTableView(parent), Control(this), m_model(new FlexModel(this)) {
  setModel(m_model);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setAlternatingRowColors(true);
  setWordWrap(false);
  // Tab leaves the grid.
  setTabKeyNavigation(false);
  SetupHeaders();
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this, &FlexGrid::OnCurrentChanged);
  connect(m_model, &QAbstractItemModel::modelReset, this, &FlexGrid::OnReset);
  connect(m_model, &QAbstractItemModel::columnsInserted, this, &FlexGrid::FitColumns);
}

void FlexGrid::SetupHeaders() {
  QHeaderView* headings = horizontalHeader();
  headings->setSectionsClickable(false);
  headings->setHighlightSections(false);
  headings->setMinimumSectionSize(ScaledPixels(narrowestColumn));
  headings->setTextElideMode(Qt::ElideRight);
  connect(headings, &QHeaderView::sectionResized, this, [this](int column, int /*before*/, int pixels) {
    // The user drew it; what the program sets keeps its exact twips.
    if (!m_fitting && static_cast<std::size_t>(column) < m_widths.size())
      m_widths[static_cast<std::size_t>(column)] = TwipsOf(pixels);
  });
  verticalHeader()->hide();
  // Of one height, so that no row is asked for it.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  FitRowHeight();
}

void FlexGrid::FitRowHeight() {
  const int height = fontMetrics().height() + ScaledPixels(rowRim);
  verticalHeader()->setMinimumSectionSize(height);
  verticalHeader()->setDefaultSectionSize(height);
}

void FlexGrid::FitColumns() {
  const QScopedValueRollback fitting(m_fitting, true);
  m_widths.resize(std::max(m_widths.size(), static_cast<std::size_t>(Cols())), defaultColWidth);
  for (int column = 0; column < Cols(); ++column)
    horizontalHeader()->resizeSection(column, Pixels(m_widths[static_cast<std::size_t>(column)]));
}

void FlexGrid::AddItem(const QStringList& cells) {
  SetRows(Rows() + 1);
  for (int column = 0; column < cells.size(); ++column) SetTextMatrix(Rows() - 1, column, cells[column]);
}

QString FlexGrid::TextMatrix(int row, int column) const {
  return row == 0 ? m_model->Heading(column) : m_model->Text(row - 1, column);
}

void FlexGrid::SetTextMatrix(int row, int column, const QString& text) {
  if (row == 0) {
    m_model->SetHeading(column, text);
  } else {
    m_model->SetText(row - 1, column, text);
  }
}

void FlexGrid::SetRow(int row) {
  if (row == 0) {
    selectionModel()->clear();
  } else if (row > 0 && row < Rows() && Cols() > 0) {
    const int column = std::min(m_col, Cols() - 1);
    selectionModel()->setCurrentIndex(m_model->index(row - 1, column),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }
  m_rowSel = Row();
}

void FlexGrid::SetCol(int column) {
  if (column < 0 || column >= Cols()) return;
  m_col = column;
  m_colSel = column;
  if (Row() > 0)
    selectionModel()->setCurrentIndex(m_model->index(Row() - 1, column), QItemSelectionModel::NoUpdate);
}

void FlexGrid::SetRowSel(int row) {
  if (Row() < 1 || row < 1 || row >= Rows()) return;
  m_rowSel = row;
  SelectRows();
}

void FlexGrid::SetColSel(int column) {
  if (column >= 0 && column < Cols()) m_colSel = column;
}

void FlexGrid::SelectRows() {
  const auto [first, last] = std::minmax({Row(), m_rowSel});
  selectionModel()->select(QItemSelection(m_model->index(first - 1, 0), m_model->index(last - 1, Cols() - 1)),
                           QItemSelectionModel::ClearAndSelect);
}

int FlexGrid::TopRow() const { return std::max(1, rowAt(0) + 1); }

void FlexGrid::SetTopRow(int row) {
  if (row < 1 || row >= Rows() || Cols() == 0) return;
  // A cell of a column that is in view, so that the grid moves up and down alone.
  const int column = std::max(0, columnAt(0));
  scrollTo(m_model->index(row - 1, column), QAbstractItemView::PositionAtTop);
}

void FlexGrid::SetFormatString(const QString& format) {
  m_format = format;
  const QStringList headings = format.split(u'|');
  SetCols(std::max(Cols(), static_cast<int>(headings.size())));
  for (int column = 0; column < headings.size(); ++column) {
    QString heading = headings[column];
    if (const auto alignment = AlignmentSign(heading)) {
      SetColAlignment(column, *alignment);
      heading.remove(0, 1);
    }
    m_model->SetHeading(column, m_trimsHeadings ? heading.trimmed() : heading);
  }
}

int FlexGrid::ColWidth(int column) const {
  return column >= 0 && column < Cols() ? m_widths[static_cast<std::size_t>(column)] : 0;
}

void FlexGrid::SetColWidth(int column, int twips) {
  if (column < 0 || column >= Cols()) return;
  m_widths[static_cast<std::size_t>(column)] = twips;
  const QScopedValueRollback fitting(m_fitting, true);
  horizontalHeader()->resizeSection(column, Pixels(twips));
}

ColAlign FlexGrid::ColAlignment(int column) const {
  const Qt::Alignment alignment = m_model->AlignmentOf(column);
  if (alignment == Qt::AlignHCenter) return ColAlign::Center;
  return alignment == Qt::AlignRight ? ColAlign::Right : ColAlign::Left;
}

void FlexGrid::SetColAlignment(int column, ColAlign alignment) {
  m_model->SetAlignment(column, ToQt(alignment));
}

void FlexGrid::OnCurrentChanged(const QModelIndex& now, const QModelIndex& before) {
  if (now.isValid()) {
    m_col = now.column();
    m_colSel = m_col;
  }
  m_rowSel = now.row() + 1;
  if (now.row() != before.row()) Q_EMIT RowChanged(now.row() + 1);
}

void FlexGrid::OnReset() {
  m_col = 0;
  m_colSel = 0;
  m_rowSel = 0;
  FitColumns();
}

void FlexGrid::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitRowHeight();
}

void FlexGrid::focusInEvent(QFocusEvent* event) {
  // The item view's own step would make the first row the current one.
  QAbstractScrollArea::focusInEvent(event);  // NOLINT(bugprone-parent-virtual-call)
  viewport()->update();
}

void FlexGrid::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      event->accept();
      if (Row() >= 1 && !event->isAutoRepeat()) Q_EMIT DblClick();
      break;
    case Qt::Key_Home:
      SetRow(1);
      break;
    case Qt::Key_End:
      SetRow(Rows() - 1);
      break;
    default:
      QTableView::keyPressEvent(event);
  }
}

void FlexGrid::mousePressEvent(QMouseEvent* event) {
  // A press below the last row picks nothing and takes nothing back.
  if (indexAt(event->position().toPoint()).isValid()) QTableView::mousePressEvent(event);
}

void FlexGrid::mouseReleaseEvent(QMouseEvent* event) {
  const bool onRow = indexAt(event->position().toPoint()).isValid();
  QTableView::mouseReleaseEvent(event);
  if (onRow && event->button() == Qt::LeftButton) Q_EMIT Click();
}

void FlexGrid::mouseDoubleClickEvent(QMouseEvent* event) {
  const bool onRow = indexAt(event->position().toPoint()).isValid();
  if (!onRow) return;
  QTableView::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton) Q_EMIT DblClick();
}

bool FlexGrid::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !toolTip().isEmpty()) return QTableView::viewportEvent(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  ShowCellTip(help->pos(), help->globalPos());
  return true;
}

void FlexGrid::ShowCellTip(const QPoint& position, const QPoint& global) {
  const QModelIndex cell = indexAt(position);
  const bool isCut = cell.isValid() && sizeHintForIndex(cell).width() > columnWidth(cell.column());
  const QString text = isCut ? cell.data().toString() : QString();
  QToolTip::showText(global, isCut ? u"<span>%1</span>"_s.arg(text.toHtmlEscaped()) : QString(), this);
}

}  // namespace velmora::ui
