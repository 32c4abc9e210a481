// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Database.h"

#include <QString>

namespace velmora {

/// The orders in which the sort buttons put cards and contacts; their values are the buttons' numbers.
enum class CardOrder { Number, Name };
enum class ContactOrder { Number, FirstName, LastName };
/// Which of a contact's names is searched.
enum class ContactName { First, Last };

/// A search among the contacts, kept so that its rows can be asked for again in an order.
struct ContactSearch {
  /// The statement without an order; empty as long as nothing was searched.
  QString Sql{};
  QString Pattern{};
  [[nodiscard]] bool IsEmpty() const { return Sql.isEmpty(); }
};

/// The rows that the two search screens show, of a file that must outlive it. Spaces around a text that was
/// typed do not count; the signs of patterns in it (* ? # [ ]) mean what they mean in LIKE. `mainField` is
/// the column that names the cards. All throw db::Error.
class SearchRows final {
 public:
  explicit SearchRows(db::Database& file) : m_file(file) {}

  /// Number and name of the cards with that text in their name. No text finds every card that has a name.
  [[nodiscard]] db::Recordset CardsNamed(const QString& mainField, const QString& typed) const;
  /// The same cards in an order, with all their columns.
  [[nodiscard]] db::Recordset CardsNamed(const QString& mainField, const QString& typed,
                                         CardOrder order) const;

  [[nodiscard]] static ContactSearch ContactsNamed(ContactName which, const QString& typed);
  /// Card number, first and last name.
  [[nodiscard]] db::Recordset Contacts(const ContactSearch& search) const;
  [[nodiscard]] db::Recordset Contacts(const ContactSearch& search, ContactOrder order) const;

  /// Card number, names, the three telephones and the fax of the contacts with that text in one of the four
  /// numbers.
  [[nodiscard]] db::Recordset ContactsWithNumber(const QString& typed) const;
  /// Number, name and that column of the cards with that text in it.
  [[nodiscard]] db::Recordset CardsWithNumber(const QString& mainField, const QString& column,
                                              const QString& typed) const;

  /// Number and name of all cards, in the order of storing or in that of a sort button.
  [[nodiscard]] db::Recordset AllCards(const QString& mainField) const;
  [[nodiscard]] db::Recordset AllCards(const QString& mainField, CardOrder order) const;
  /// The same of all contacts: card number, first and last name.
  [[nodiscard]] db::Recordset AllContacts() const;
  [[nodiscard]] db::Recordset AllContacts(ContactOrder order) const;

 private:
  db::Database& m_file;
};

}  // namespace velmora
