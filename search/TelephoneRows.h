// SPDX-License-Identifier: MIT
#pragma once

#include "forms/RecordsetSource.h"

#include <QHash>

namespace velmora {

/// The contacts that have a telephone number, for a grid: their rows with the name of their card put in
/// behind its number. Names are looked up for the rows in view alone.
class TelephoneRows final : public ui::GridSource {
 public:
  explicit TelephoneRows(db::Recordset contacts) : m_contacts(std::move(contacts)) {}

  [[nodiscard]] int RowCount() const override { return m_contacts.RowCount(); }
  [[nodiscard]] int ColumnCount() const override { return m_contacts.ColumnCount() + 1; }
  [[nodiscard]] QString Heading(int column) const override;
  [[nodiscard]] std::optional<QString> Cell(int row, int column) override;

 private:
  static constexpr int nameColumn = 1;
  static constexpr qsizetype keptNames = 1000;

  [[nodiscard]] std::optional<QString> NameOfCard(int row);

  RecordsetSource m_contacts;
  QHash<QString, QString> m_names;
};

}  // namespace velmora
