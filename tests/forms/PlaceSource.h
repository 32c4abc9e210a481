// SPDX-License-Identifier: MIT
#pragma once

#include "forms/GridSource.h"

#include <QStringList>

#include <set>

namespace velmora::ui {

using namespace Qt::StringLiterals;

/// Cells named for their place, and a record of which rows were asked for.
class PlaceSource final : public GridSource {
 public:
  PlaceSource(int rows, QStringList headings, std::set<int>* asked = nullptr)
      : m_rows(rows), m_headings(std::move(headings)), m_asked(asked) {}
  int RowCount() const override { return m_rows; }
  int ColumnCount() const override { return static_cast<int>(m_headings.size()); }
  QString Heading(int column) const override { return m_headings[column]; }
  std::optional<QString> Cell(int row, int column) override {
    if (m_asked != nullptr) m_asked->insert(row);
    return u"%1/%2"_s.arg(row).arg(column);
  }

 private:
  int m_rows;
  QStringList m_headings;
  std::set<int>* m_asked;
};

}  // namespace velmora::ui
