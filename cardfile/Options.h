// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Database.h"

#include <QString>

#include <optional>

namespace velmora {

/// The options that a card file keeps for itself, rows of key and value in a file that must outlive it: which
/// of its fields hold the telephone and the fax number of a card. All throw db::Error, also when the file has
/// no such table.
class Options final {
 public:
  explicit Options(db::Database& file) : m_file(file) {}

  /// The name that is stored for the telephone or fax field, whether or not there is such a field; nothing
  /// when no row tells it, or more than one does.
  [[nodiscard]] std::optional<QString> TelephoneField() const;
  [[nodiscard]] std::optional<QString> FaxField() const;
  /// The column of the cards that holds their telephone number, by the first row that tells it; empty when
  /// none does, or no column has exactly that name any more.
  [[nodiscard]] QString TelephoneColumn() const;

  /// Store a field's name. 3163 for one that is longer than the value's column. A name with an apostrophe can
  /// be stored for the first time, but replaces no other: the statement fails.
  void SetTelephoneField(const QString& name) const;
  void SetFaxField(const QString& name) const;

 private:
  void Set(QStringView rowsOfKey, const QString& key, const QString& value) const;

  db::Database& m_file;
};

}  // namespace velmora
