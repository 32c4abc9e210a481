// SPDX-License-Identifier: MIT
#include "cardfile/FieldCatalogue.h"

#include "base/system/Failures.h"
#include "cardfile/CardFileSchema.h"
#include "engine/text/Collation.h"
#include "frame/Session.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr std::int32_t NoSuchField = -1;
constexpr std::int32_t NoPage = -1;

/// A number that another program may have written; nothing when it is none.
std::optional<std::int32_t> Number(const db::Value& value) {
  std::optional<std::int32_t> number;
  IgnoringErrors([&] { number = value.Long(); });
  return number;
}

std::vector<CatalogueRow> Read(QStringView statement) {
  std::vector<CatalogueRow> found;
  db::Recordset rows = Global().File().OpenRecordset(statement);
  for (; !rows.AtEnd(); rows.MoveNext()) {
    const std::optional<std::int32_t> type = Number(rows[u"Type"]);
    if (!type) continue;
    const db::Value name = rows[u"Name"];
    found.push_back({.Name = name.IsNull() ? std::nullopt : std::optional(name.Text()),
                     .Tab = Number(rows[u"Tab"]).value_or(NoPage),
                     .Type = *type});
  }
  return found;
}

}  // namespace

std::optional<FieldKind> FieldKindOf(std::int32_t type) {
  if (type < TypeOf(FieldKind::Text) || type > TypeOf(FieldKind::Date)) return std::nullopt;
  return static_cast<FieldKind>(type - catalogue::FirstField);
}

std::optional<FieldKind> FieldKindOf(const CatalogueRow& row) { return FieldKindOf(row.Type); }

QString MainFieldName() {
  const db::Recordset row =
      Global().File().OpenRecordset(u"Select * FROM Location where Tab = 0 AND Type = 0");
  return row[u"Name"].Text();
}

std::vector<CatalogueRow> CatalogueRows() { return Read(schema::Catalogue.View()); }

std::vector<CatalogueRow> FieldRows() { return Read(u"SELECT * FROM Location where Type > 1 "); }

std::vector<CatalogueRow> CaptionRows() { return Read(u"SELECT * FROM Location where Type < 2  "); }

std::optional<QString> PageTitle(int page) {
  for (const CatalogueRow& row : CaptionRows()) {
    if (row.Type == catalogue::Page && row.Tab == page) return row.Name;
  }
  return std::nullopt;
}

std::int32_t Queryp(std::span<const CatalogueRow> catalogue, const QString& name) {
  const auto found = std::ranges::find_if(catalogue, [&name](const CatalogueRow& row) {
    return row.Name && db::CompareText(*row.Name, name) == 0;
  });
  return found == catalogue.end() ? NoSuchField : found->Type;
}

std::int32_t Queryp(const QString& name) { return Queryp(CatalogueRows(), name); }

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

void AddCatalogueRow(db::Recordset& rows, const QString& name, std::int32_t page, std::int32_t type) {
  rows.AddNew();
  if (!name.isEmpty()) rows.Set(u"Name", name);
  rows.Set(u"Tab", page);
  rows.Set(u"Type", type);
  rows.Update();
}

void AddReminderField(db::Recordset& rows, const QString& name) {
  rows.AddNew();
  rows.Set(u"Name", name);
  rows.Update();
}

}  // namespace velmora
