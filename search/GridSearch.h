// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace velmora {

/// The cells of a grid as a search sees them. Row 0 is the one of the headings, so data rows count from 1. A
/// text stands in a cell whatever its case.
class SearchedCells {
 public:
  /// The first row from `row` on, that one included, in whose cell of that column the text stands.
  [[nodiscard]] virtual std::optional<int> RowFrom(int row, int column, const QString& text) = 0;
  /// The last row before `row` of which that holds.
  [[nodiscard]] virtual std::optional<int> RowBefore(int row, int column, const QString& text) = 0;

 protected:
  ~SearchedCells() = default;
};

enum class Found {
  /// The text is empty or spaces alone: nothing is searched.
  NoText,
  /// The first hit of a new search, and one of a search that goes on.
  First,
  Another,
  /// A new search, and one that went on down or up, found no row. The place of the last hit stays.
  Nowhere,
  AtEnd,
  AtBeginning,
};

/// A search that steps through a grid from hit to hit, as long as its text stays the same and the rows stay
/// in their order.
class GridSearch final {
 public:
  /// The text or the order of the rows has changed: the next search starts from the top.
  void StartOver();
  /// Steps down. The column counts for a new search alone.
  [[nodiscard]] Found Next(SearchedCells& cells, const QString& text, int column);
  /// Steps up, for the text of the last step down.
  [[nodiscard]] Found Previous(SearchedCells& cells);

  /// Where the last hit is; 0 and 0 before there is one.
  [[nodiscard]] int Row() const { return m_row; }
  [[nodiscard]] int Column() const { return m_column; }

 private:
  int m_row = 0;
  int m_column = 0;
  bool m_isNew = true;
  QString m_text;
};

/// The column in which a text is searched: that of the card numbers for a number of 1 and above, however its
/// text goes on, and that of the name else; in a list of contacts the last name where they are sorted by it.
[[nodiscard]] int ColumnOfCards(const QString& text);
[[nodiscard]] int ColumnOfContacts(const QString& text, bool byFirstName, bool byLastName);

}  // namespace velmora
