// SPDX-License-Identifier: MIT
#include "queries/QueryFields.h"

#include "base/system/Failures.h"
#include "base/text/Numbers.h"
#include "cardfile/CardFileSchema.h"
#include "cardfile/Cards.h"
#include "cardfile/FieldCatalogue.h"
#include "frame/Session.h"

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

std::array<QString, MaxPages> ReadPageCaptions() {
  std::array<QString, MaxPages> captions;
  IgnoringErrors([&] {
    const std::vector<CatalogueRow> rows = CaptionRows();
    // The first row is the main field's, which is no page.
    for (std::size_t i = 1; i < rows.size(); ++i) {
      const CatalogueRow& row = rows[i];
      if (row.Name.has_value() && row.Tab >= 1 && row.Tab <= MaxPages)
        captions[static_cast<std::size_t>(row.Tab - 1)] = *row.Name;
    }
  });
  for (std::size_t i = 0; i < captions.size(); ++i) {
    if (captions[i].trimmed().isEmpty()) captions[i] = SignedNumberText(static_cast<double>(i + 1));
  }
  return captions;
}

}  // namespace

std::array<bool, MaxPages> QueryFields::PagesInUse() const {
  std::array<bool, MaxPages> used{};
  for (const Entry& field : Fields) used[static_cast<std::size_t>(field.Page - 1)] = true;
  return used;
}

QueryFields ReadQueryFields() {
  QueryFields read;
  if (Cards(Global().File()).IsEmpty()) return read;
  for (int page = 1; page <= MaxPages; ++page) {
    for (const CatalogueRow& row : FieldRowsOfPage(page)) {
      read.Fields.push_back({.Caption = row.Name.value_or(QString()), .Page = page});
    }
  }
  read.PageCaptions = ReadPageCaptions();
  return read;
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
