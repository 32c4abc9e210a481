// SPDX-License-Identifier: MIT
#include "search/SearchRows.h"

#include "cardfile/CardFileSchema.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

QString PatternOf(const QString& typed) { return u'*' + typed.trimmed() + u'*'; }

QString OrderBy(CardOrder order, const QString& mainField) {
  switch (order) {
    case CardOrder::Number:
      return u" ORDER BY [Index@]"_s;
    case CardOrder::Name:
      return u" ORDER BY "_s + Bracketed(mainField);
  }
  return {};
}

QString OrderBy(ContactOrder order) {
  switch (order) {
    case ContactOrder::Number:
      return u" ORDER BY [Index]"_s;
    case ContactOrder::FirstName:
      return u" ORDER BY [Name]"_s;
    case ContactOrder::LastName:
      return u" ORDER BY [1]"_s;
  }
  return {};
}

QString AllCardsSql(const QString& mainField) {
  return u"Select [Index@],"_s + Bracketed(mainField) + u" from MainData"_s;
}

QString AllContactsSql() { return u"Select [Index],[Name],[1] from Agent"_s; }

}  // namespace

db::Recordset SearchRows::CardsNamed(const QString& mainField, const QString& typed) const {
  return m_file.OpenRecordset(AllCardsSql(mainField) + u" where "_s + Bracketed(mainField) + u" LIKE ?"_s,
                              {PatternOf(typed)});
}

db::Recordset SearchRows::CardsNamed(const QString& mainField, const QString& typed, CardOrder order) const {
  return m_file.OpenRecordset(
      u"Select * from MainData where "_s + Bracketed(mainField) + u" LIKE ?"_s + OrderBy(order, mainField),
      {PatternOf(typed)});
}

ContactSearch SearchRows::ContactsNamed(ContactName which, const QString& typed) {
  const QString column = which == ContactName::First ? u"[Name]"_s : u"[1]"_s;
  return {.Sql = AllContactsSql() + u" WHERE "_s + column + u" LIKE ?"_s, .Pattern = PatternOf(typed)};
}

db::Recordset SearchRows::Contacts(const ContactSearch& search) const {
  return m_file.OpenRecordset(search.Sql, {search.Pattern});
}

db::Recordset SearchRows::Contacts(const ContactSearch& search, ContactOrder order) const {
  return m_file.OpenRecordset(search.Sql + OrderBy(order), {search.Pattern});
}

db::Recordset SearchRows::ContactsWithNumber(const QString& typed) const {
  const db::Value pattern = PatternOf(typed);
  return m_file.OpenRecordset(
      u"Select [Index],[Name],[1],[7],[8],[9],[10] From Agent "
      u"WHERE [8] Like ? OR [9] Like ? OR [10] Like ? OR [7] Like ?",
      {pattern, pattern, pattern, pattern});
}

db::Recordset SearchRows::CardsWithNumber(const QString& mainField, const QString& column,
                                          const QString& typed) const {
  return m_file.OpenRecordset(u"Select [Index@],"_s + Bracketed(mainField) + u',' + Bracketed(column) +
                                  u" from MainData Where "_s + Bracketed(column) + u" Like ?"_s,
                              {PatternOf(typed)});
}

db::Recordset SearchRows::AllCards(const QString& mainField) const {
  return m_file.OpenRecordset(AllCardsSql(mainField));
}

db::Recordset SearchRows::AllCards(const QString& mainField, CardOrder order) const {
  return m_file.OpenRecordset(AllCardsSql(mainField) + OrderBy(order, mainField));
}

db::Recordset SearchRows::AllContacts() const { return m_file.OpenRecordset(AllContactsSql()); }

db::Recordset SearchRows::AllContacts(ContactOrder order) const {
  return m_file.OpenRecordset(AllContactsSql() + OrderBy(order));
}

}  // namespace velmora
