// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Database.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace velmora {

/// The values that the user keeps for the text fields of a card, a table for each field, in a file that must
/// outlive it. All throw db::Error, also when the field has no such table. Texts compare as the engine does:
/// case and spaces at their ends do not count.
class ValueLists final {
 public:
  explicit ValueLists(db::Database& file) : m_file(file) {}

  /// The values of a field in the order in which they were stored, a Null as nothing.
  [[nodiscard]] std::vector<std::optional<QString>> RowsOf(const QString& field) const;
  /// The same without the Nulls.
  [[nodiscard]] QStringList ValuesOf(const QString& field) const;
  [[nodiscard]] bool Has(const QString& field, const QString& value) const;
  void Add(const QString& field, const QString& value) const;
  /// Deletes every row that equals the value.
  void Delete(const QString& field, const QString& value) const;

 private:
  db::Database& m_file;
};

}  // namespace velmora
