// SPDX-License-Identifier: MIT
#include "search/GridSearch.h"

#include "base/text/Numbers.h"

namespace velmora {

namespace {

constexpr int numberColumn = 0;
constexpr int nameColumn = 1;
constexpr int lastNameColumn = 2;

bool IsCardNumber(const QString& text) { return LeadingNumber(text) >= 1; }

}  // namespace

void GridSearch::StartOver() {
  m_isNew = true;
  m_row = 0;
  m_column = 0;
}

Found GridSearch::Next(SearchedCells& cells, const QString& text, int column) {
  if (text.trimmed().isEmpty()) return Found::NoText;
  m_text = text;
  if (!m_isNew) {
    const auto hit = cells.RowFrom(m_row + 1, m_column, m_text);
    if (!hit) return Found::AtEnd;
    m_row = *hit;
    return Found::Another;
  }
  StartOver();
  const auto hit = cells.RowFrom(1, column, m_text);
  if (!hit) return Found::Nowhere;
  m_row = *hit;
  m_column = column;
  m_isNew = false;
  return Found::First;
}

Found GridSearch::Previous(SearchedCells& cells) {
  const auto hit = cells.RowBefore(m_row, m_column, m_text);
  if (!hit) return Found::AtBeginning;
  m_row = *hit;
  return Found::Another;
}

int ColumnOfCards(const QString& text) { return IsCardNumber(text) ? numberColumn : nameColumn; }

int ColumnOfContacts(const QString& text, bool byFirstName, bool byLastName) {
  if (IsCardNumber(text)) return numberColumn;
  return byLastName && !byFirstName ? lastNameColumn : nameColumn;
}

}  // namespace velmora
