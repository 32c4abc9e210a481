// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace velmora {

/// A row of the open file's field catalogue. Name is Null for a page without a title.
struct CatalogueRow {
  std::optional<QString> Name;
  std::int32_t Tab = 0;
  std::int32_t Type = 0;
};

/// The kind of a field row; nothing for another row.
[[nodiscard]] std::optional<FieldKind> KindOf(const CatalogueRow& row);

// These ask the open file and throw db::Error when there is none or its catalogue cannot be read.

/// The name of the field that names the card, and of its column. 3021 when the catalogue has none.
[[nodiscard]] QString MainFieldName();
/// The row code of the first catalogue row of that name, a field's kind plus 2; -1 when there is none. The
/// name stands between apostrophes in the statement, so one that holds an apostrophe fails.
[[nodiscard]] std::int32_t Queryp(const QString& name);
/// All fields in the order of the catalogue, which is their order on each page.
[[nodiscard]] std::vector<CatalogueRow> FieldRows();
[[nodiscard]] std::vector<CatalogueRow> FieldRowsOfPage(int page);
/// The main field first, then the pages.
[[nodiscard]] std::vector<CatalogueRow> CaptionRows();
/// The title of a page; nothing for a page without a row or a title.
[[nodiscard]] std::optional<QString> PageTitle(int page);

/// Whether the stored query has an output column of that name, whatever its case. Any failure, such as a
/// query that does not exist, gives false.
[[nodiscard]] bool FieldInQuery(const QString& queryName, const QString& fieldName);
/// Whether the open file has a table of that name.
[[nodiscard]] bool TableExists(const QString& name);

}  // namespace velmora
