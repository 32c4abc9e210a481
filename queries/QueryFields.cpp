// SPDX-License-Identifier: MIT
#include "queries/QueryFields.h"

#include "base/text/Numbers.h"
#include "cardfile/CardFileSchema.h"
#include "cardfile/Cards.h"
#include "cardfile/FieldCatalogue.h"
#include "frame/Session.h"

#include <span>
#include <utility>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

using Rows = std::span<const CatalogueRow>;

std::vector<QueryFields::Entry> Fields(Rows rows) {
  std::vector<QueryFields::Entry> fields;
  for (int page = 1; page <= MaxPages; ++page) {
    for (const CatalogueRow& row : rows) {
      if (row.Type < catalogue::FirstField || row.Tab != page) continue;
      const QString name = row.Name.value_or(QString());
      fields.push_back({.Caption = name, .Page = page, .Kind = FieldKindOf(Queryp(rows, name))});
    }
  }
  return fields;
}

std::array<QString, MaxPages> PageCaptions(Rows rows) {
  std::array<QString, MaxPages> captions;
  bool isMainField = true;
  for (const CatalogueRow& row : rows) {
    if (row.Type >= catalogue::FirstField) continue;
    // The first row is the main field's, which is no page.
    if (!std::exchange(isMainField, false) && row.Name && row.Tab >= 1 && row.Tab <= MaxPages)
      captions[static_cast<std::size_t>(row.Tab - 1)] = *row.Name;
  }
  for (std::size_t i = 0; i < captions.size(); ++i) {
    if (captions[i].trimmed().isEmpty()) captions[i] = SignedNumberText(static_cast<double>(i + 1));
  }
  return captions;
}

}  // namespace

std::array<bool, MaxPages> PagesInUse(std::span<const QueryFields::Entry> fields) {
  std::array<bool, MaxPages> used{};
  for (const QueryFields::Entry& field : fields) used[static_cast<std::size_t>(field.Page - 1)] = true;
  return used;
}

QueryFields ReadQueryFields() {
  if (Cards(Global().File()).IsEmpty()) return {};
  const std::vector<CatalogueRow> rows = CatalogueRows();
  return {.Fields = Fields(rows), .PageCaptions = PageCaptions(rows)};
}

QString MainColumn() {
  const QString name = MainFieldName();
  const db::TableDef cards = Global().File().TableDefOf(schema::Cards.View());
  const db::Field* column = cards.FindField(name);
  if (column == nullptr)
    throw db::Error(db::ErrorCode::ItemNotFound, u"The cards have no column \"%1\"."_s.arg(name));
  return column->Name;
}

}  // namespace velmora
