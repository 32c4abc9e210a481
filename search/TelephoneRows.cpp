// SPDX-License-Identifier: MIT
#include "search/TelephoneRows.h"

#include "base/text/Numbers.h"
#include "cards/CardNumbers.h"
#include "forms/Waiting.h"

namespace velmora {

QString TelephoneRows::Heading(int column) const {
  if (column == nameColumn) return {};
  return m_contacts.Heading(column < nameColumn ? column : column - 1);
}

std::optional<QString> TelephoneRows::Cell(int row, int column) {
  if (column == nameColumn) return NameOfCard(row);
  return m_contacts.Cell(row, column < nameColumn ? column : column - 1);
}

std::optional<QString> TelephoneRows::NameOfCard(int row) {
  const std::optional<QString> number = m_contacts.Cell(row, 0);
  if (!number) return std::nullopt;
  const auto known = m_names.constFind(*number);
  if (known != m_names.constEnd()) return *known;
  // As with the rows themselves: nothing is read while a window repaints within long work.
  if (ui::IsRepainting()) return std::nullopt;
  if (m_names.size() == keptNames) m_names.clear();
  return *m_names.insert(*number, CardName(LeadingWhole(*number)));
}

}  // namespace velmora
