// SPDX-License-Identifier: MIT
#include "tools/makedemo/CardRows.h"

#include "cardfile/ValueLists.h"
#include "frame/Session.h"

#include <QFile>
#include <QHash>

namespace velmora::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr int contactColumns = 16;

}  // namespace

std::vector<CsvRow> Table(const QString& name) {
  QFile file(u":/"_s + name);
  if (!file.open(QIODevice::ReadOnly)) qFatal("no data: %s", qUtf8Printable(name));
  return ReadCsv(QString::fromUtf8(file.readAll()));
}

QString Filled(const QString& text) { return text.isEmpty() ? u" "_s : text; }

Contact PersonOf(const CsvRow& row) {
  const QString name = row.value(u"ContactName"_s);
  const qsizetype blank = name.indexOf(u' ');
  return {.FirstName = name.left(blank),
          .LastName = name.mid(blank + 1),
          .Street = row.value(u"Address"_s),
          .City = row.value(u"City"_s),
          .PostalCode = row.value(u"PostalCode"_s),
          .Country = row.value(u"Country"_s),
          .Position = row.value(u"ContactTitle"_s),
          .Telephone = row.value(u"Phone"_s),
          .Fax = row.value(u"Fax"_s),
          .Email = {}};
}

void AddRow(const QString& table, const Values& values) {
  db::Recordset rows = Global().File().OpenRecordset(table);
  rows.AddNew();
  for (const auto& [column, value] : values) rows.Set(column, value);
  rows.Update();
}

void AddContact(std::int32_t card, const Contact& contact, bool active) {
  Values values{{u"Index"_s, card}, {u"Name"_s, contact.FirstName}, {u"Activ"_s, active}};
  const QHash<int, QString> known{{1, contact.LastName},   {2, contact.Street},  {3, contact.City},
                                  {4, contact.PostalCode}, {5, contact.Country}, {6, contact.Position},
                                  {7, contact.Telephone},  {10, contact.Fax},    {11, contact.Email}};
  for (int column = 1; column <= contactColumns; ++column)
    values.emplace_back(QString::number(column), known.value(column, u""_s));
  AddRow(u"Agent"_s, values);
}

void AddValueList(const QString& field, QStringList values) {
  values.removeDuplicates();
  values.sort();
  const ValueLists lists(Global().File());
  for (const QString& value : std::as_const(values)) {
    if (!value.trimmed().isEmpty()) lists.Add(field, value);
  }
}

}  // namespace velmora::demo
