// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"
#include "engine/rows/Recordset.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace velmora {

/// A row of the open file's field catalogue. Name is Null for a page without a title.
struct CatalogueRow {
  std::optional<QString> Name;
  std::int32_t Tab = 0;
  std::int32_t Type = 0;
};

/// The kind of a field by its row's code; nothing for the code of another row.
[[nodiscard]] std::optional<FieldKind> FieldKindOf(std::int32_t type);
[[nodiscard]] std::optional<FieldKind> FieldKindOf(const CatalogueRow& row);

// These ask the open file and throw db::Error when there is none or its catalogue cannot be read. A row whose
// page number is none stands on no page, one whose code is none is left out.

/// The name of the field that names the card, and of its column. 3021 when the catalogue has none.
[[nodiscard]] QString MainFieldName();
/// All rows in their order, which is that of the fields on each page.
[[nodiscard]] std::vector<CatalogueRow> CatalogueRows();
/// All fields, in the order of the catalogue.
[[nodiscard]] std::vector<CatalogueRow> FieldRows();
/// The main field first, then the pages.
[[nodiscard]] std::vector<CatalogueRow> CaptionRows();
/// The title of a page; nothing for a page without a row or a title.
[[nodiscard]] std::optional<QString> PageTitle(int page);

/// The code of the first row of that name, a field's kind plus 2; -1 when there is none. A page may bear the
/// name of a field, and stands before it.
[[nodiscard]] std::int32_t Queryp(std::span<const CatalogueRow> catalogue, const QString& name);
/// The same of the open file.
[[nodiscard]] std::int32_t Queryp(const QString& name);

/// Whether the stored query has an output column of that name, whatever its case. Any failure, such as a
/// query that does not exist, gives false.
[[nodiscard]] bool FieldInQuery(const QString& queryName, const QString& fieldName);
/// Whether the open file has a table of that name.
[[nodiscard]] bool TableExists(const QString& name);

/// Adds a row to the open catalogue. A page's name may be empty: it is then Null.
void AddCatalogueRow(db::Recordset& rows, const QString& name, std::int32_t page, std::int32_t type);
/// Adds a row to the open list of the date fields that have reminders.
void AddReminderField(db::Recordset& rows, const QString& name);

}  // namespace velmora
