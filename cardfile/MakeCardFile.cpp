// SPDX-License-Identifier: MIT
#include "cardfile/MakeCardFile.h"

#include "cardfile/CardFileSchema.h"
#include "cardfile/FieldCatalogue.h"
#include "engine/DBEngine.h"
#include "frame/Session.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

/// The connect string of every card file: its language and code page.
const QString& Locale() {
  static const QString locale = u";LANGID=0x0409;CP=1252;COUNTRY=0"_s;
  return locale;
}

/// All pages stand before all fields; the order of the rows is the order of the fields on their pages.
void FillCatalogue(db::Database& file, const CardDesign& design) {
  db::Recordset rows = file.OpenRecordset(u"Location");
  AddCatalogueRow(rows, design.MainField.trimmed(), 0, catalogue::MainField);
  for (int page = 1; page <= MaxPages; ++page) {
    const DesignPage& drawn = design.Pages[static_cast<std::size_t>(page - 1)];
    if (!drawn.Fields.empty()) AddCatalogueRow(rows, drawn.Title.trimmed(), page, catalogue::Page);
  }
  for (int page = 1; page <= MaxPages; ++page) {
    for (const DesignField& field : design.Pages[static_cast<std::size_t>(page - 1)].Fields) {
      AddCatalogueRow(rows, field.Name.trimmed(), page, TypeOf(field.Kind));
    }
  }
  rows.Close();
}

QStringList FieldsOfKind(const CardDesign& design, FieldKind kind) {
  QStringList names;
  for (const DesignPage& page : design.Pages) {
    for (const DesignField& field : page.Fields) {
      if (field.Kind == kind) names += field.Name.trimmed();
    }
  }
  return names;
}

void MakeReminderFields(db::Database& file, const QStringList& dateFields) {
  db::TableDef table = ReminderFieldsTable();
  // The definition's name ends in a space. The engine drops it: the stored name has none.
  table.Name += u' ';
  file.AppendTableDef(table);
  db::Recordset rows = file.OpenRecordset(schema::ReminderFields.View());
  for (const QString& field : dateFields) AddReminderField(rows, field);
  rows.Close();
}

}  // namespace

void MakeCardFile(const QString& path, const CardDesign& design) {
  Session& session = Global();
  session.CardDb = session.DBEngine().CreateDatabase(path, Locale());
  session.File().AppendTableDef(LocationTable());
  session.CardDb->Close();
  session.CardDb = session.DBEngine().OpenDatabase(path);

  db::Database& file = session.File();
  FillCatalogue(file, design);
  file.AppendTableDef(MainDataTable(design));
  for (const QString& field : FieldsOfKind(design, FieldKind::Text)) {
    file.AppendTableDef(ValueListTableOf(field));
  }
  const QStringList dateFields = FieldsOfKind(design, FieldKind::Date);
  file.AppendTableDef(ReminderTableOf(dateFields));
  MakeReminderFields(file, dateFields);
  for (const db::TableDef& table : FixedTables()) file.AppendTableDef(table);
}

}  // namespace velmora
