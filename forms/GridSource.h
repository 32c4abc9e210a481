// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace velmora::ui {

/// Where a grid takes its rows from. It is asked only for what is in view, and for some of that again and
/// again, so it should keep what it read last. No call throws: what can never be read is an empty text.
class GridSource {
 public:
  GridSource() = default;
  GridSource(const GridSource&) = delete;
  GridSource& operator=(const GridSource&) = delete;
  virtual ~GridSource() = default;

  /// Both stay the same as long as the source lives.
  [[nodiscard]] virtual int RowCount() const = 0;
  [[nodiscard]] virtual int ColumnCount() const = 0;
  [[nodiscard]] virtual QString Heading(int column) const = 0;
  /// Rows and columns count from 0. Nothing for a cell that cannot be read just now but can be later.
  [[nodiscard]] virtual std::optional<QString> Cell(int row, int column) = 0;
};

}  // namespace velmora::ui
