// SPDX-License-Identifier: MIT
#include "cards/Contacts.h"

#include "base/system/Failures.h"
#include "frame/Session.h"

#include <array>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

/// Columns of a contact: two telephones and the cellular.
constexpr std::array<QStringView, 3> PhoneColumns{u"7", u"8", u"9"};

db::Recordset ContactsOf(std::int32_t card) {
  return Global().File().OpenRecordset(u"Select * from Agent where Index = ?", {card});
}

/// Name, last name and position. Throws when one is Null.
QString EntryOf(const db::Recordset& row) {
  return row[u"Name"].Text() + u"   "_s + row[u"1"].Text() + u"   "_s + row[u"6"].Text();
}

QStringList NumbersOf(const db::Recordset& row) {
  QStringList numbers;
  for (const QStringView column : PhoneColumns) {
    const QString number = row[column].TextOr({});
    if (!number.trimmed().isEmpty()) numbers += number;
  }
  return numbers;
}

/// Unlike the list, the box in view takes a number of spaces too.
QString FirstNumberOf(const db::Recordset& row) {
  for (const QStringView column : PhoneColumns) {
    QString number = row[column].TextOr({});
    if (!number.isEmpty()) return number;
  }
  return {};
}

}  // namespace

ContactPanel ReadContacts(std::int32_t card) {
  ContactPanel panel;
  Trap([&] {
    db::Recordset rows = ContactsOf(card);
    for (; !rows.AtEnd(); rows.MoveNext()) {
      panel.Entries += EntryOf(rows);
      if (!rows[u"Activ"].Truth()) continue;
      panel.Shown = panel.Entries.back();
      panel.Phones.Numbers = NumbersOf(rows);
      panel.Phones.Shown = panel.Phones.Numbers.value(0);
    }
  });
  return panel;
}

std::optional<ContactPhones> ReadContactPhones(std::int32_t card, const QString& entry) {
  std::optional<ContactPhones> phones;
  Trap([&] {
    const qsizetype blank = entry.indexOf(u' ');
    const QString key = blank > 0 ? entry.left(blank) : entry;
    db::Recordset rows = ContactsOf(card);
    for (; !rows.AtEnd() && !phones; rows.MoveNext()) {
      const QString name = rows[u"Name"].Text();
      if (name.left(name.indexOf(u' ')) == key) {
        phones = ContactPhones{.Numbers = NumbersOf(rows), .Shown = FirstNumberOf(rows)};
      }
    }
  });
  return phones;
}

void DeleteContacts(std::int32_t card) {
  Global().File().Execute(u"Delete * from Agent WHERE [Index] = ?", {card});
}

}  // namespace velmora
