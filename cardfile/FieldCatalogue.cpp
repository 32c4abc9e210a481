// SPDX-License-Identifier: MIT
#include "cardfile/FieldCatalogue.h"

#include "base/system/Failures.h"
#include "frame/Session.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr std::int32_t NoSuchField = -1;

std::vector<CatalogueRow> Read(const QString& statement) {
  std::vector<CatalogueRow> found;
  db::Recordset rows = Global().File().OpenRecordset(statement);
  for (; !rows.AtEnd(); rows.MoveNext()) {
    const db::Value name = rows[u"Name"];
    found.push_back({.Name = name.IsNull() ? std::nullopt : std::optional(name.Text()),
                     .Tab = rows[u"Tab"].Long(),
                     .Type = rows[u"Type"].Long()});
  }
  return found;
}

}  // namespace

std::optional<FieldKind> KindOf(const CatalogueRow& row) {
  if (row.Type < TypeOf(FieldKind::Text) || row.Type > TypeOf(FieldKind::Date)) return std::nullopt;
  return static_cast<FieldKind>(row.Type - catalogue::FirstField);
}

QString MainFieldName() {
  const db::Recordset row =
      Global().File().OpenRecordset(u"Select * FROM Location where Tab = 0 AND Type = 0");
  return row[u"Name"].Text();
}

std::int32_t Queryp(const QString& name) {
  const db::Recordset row =
      Global().File().OpenRecordset(u"SELECT * FROM LOCATION WHERE Name = '"_s + name + u'\'');
  return row.AtEnd() ? NoSuchField : row[u"Type"].Long();
}

std::vector<CatalogueRow> FieldRows() { return Read(u"SELECT * FROM Location where Type > 1 "_s); }

std::vector<CatalogueRow> FieldRowsOfPage(int page) {
  return Read(u"SELECT * FROM Location where Type > 1 AND Tab = "_s + QString::number(page));
}

std::vector<CatalogueRow> CaptionRows() { return Read(u"SELECT * FROM Location where Type < 2  "_s); }

std::optional<QString> PageTitle(int page) {
  const auto rows = Read(u"Select * from Location Where Type = 1 AND Tab = "_s + QString::number(page));
  return rows.empty() ? std::nullopt : rows.front().Name;
}

bool FieldInQuery(const QString& queryName, const QString& fieldName) {
  bool found = false;
  Trap([&] {
    db::Database& file = Global().File();
    const QString query = file.QueryDefOf(queryName).Name;
    const db::Recordset rows = file.OpenRecordset(query);
    for (int i = 0; i < rows.FieldCount() && !found; ++i) {
      found = rows.FieldAt(i).Name.compare(fieldName, Qt::CaseInsensitive) == 0;
    }
  });
  return found;
}

bool TableExists(const QString& name) { return Global().File().HasTable(name); }

}  // namespace velmora
