// SPDX-License-Identifier: MIT
#include "cardfile/FieldChanges.h"

#include "cardfile/CardFileSchema.h"
#include "cardfile/FieldCatalogue.h"
#include "frame/Session.h"

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

// Tells tools that keep copies of a file in step that a table is to be copied too.
constexpr QStringView replicable = u"Replicable";
const QString& IsReplicable() {
  static const QString yes = u"T"_s;
  return yes;
}

QStringList ColumnsOf(const QString& table) {
  QStringList names;
  for (const db::Field& column : Global().File().TableDefOf(table).Fields) names += column.Name;
  return names;
}

void AddToReminders(const QString& field) {
  EnsureReminderTable();
  for (const db::Field& column : ReminderColumnsOf(field))
    Global().File().AppendField(schema::Reminders.View(), column);
  EnsureSupportTable();
  db::Recordset rows = Global().File().OpenRecordset(schema::ReminderFields.View());
  AddReminderField(rows, field);
}

void MakeValueList(const QString& field) {
  const db::TableDef list = ValueListTableOf(field);
  Global().File().AppendTableDef(list);
  Global().File().SetTableProperty(list.Name, replicable, IsReplicable());
}

void DeleteStoredQueries() {
  db::Database& file = Global().File();
  for (const QString& query : file.QueryDefs()) file.DeleteQueryDef(query);
}

/// A field whose list could not be made, because a table had its name, leaves that table alone.
void DeleteValueList(const QString& field) {
  const QString table = ValueListTable(field);
  if (TableExists(table) && ColumnsOf(table).first().compare(field, Qt::CaseInsensitive) != 0) return;
  Global().File().DeleteTableDef(table);
}

void DeleteFromCards(const QString& field) {
  db::Database& file = Global().File();
  // A page's title may be the same.
  db::Recordset row = file.OpenRecordset(u"Select * from Location where Name = ? And Type > 1", {field});
  if (row.AtEnd()) return;
  if (row[u"Type"].Long() == TypeOf(FieldKind::Text)) DeleteValueList(field);
  row.Delete();
  row.Close();
  file.DeleteField(schema::Cards.View(), field);
}

/// The reminders are looked for among the stored queries, where they are not: so they stay, and a field that
/// comes again under the name of a deleted one meets them.
void DeleteFromReminders(const QString& field) {
  if (!FieldInQuery(schema::Reminders, field)) return;
  for (const db::Field& column : ReminderColumnsOf(field))
    Global().File().DeleteField(schema::Reminders.View(), column.Name);
}

bool HasFields(int page) {
  return !Global().File().OpenRecordset(u"Select * from Location Where Tab = ? AND Type > 1", {page}).AtEnd();
}

void RemoveEmptyPages() {
  for (int page = 1; page <= MaxPages; ++page) {
    if (!HasFields(page))
      Global().File().Execute(u"DELETE * from Location Where Tab = ? AND Type = 1", {page});
  }
}

}  // namespace

QStringList CardColumns() { return ColumnsOf(schema::Cards); }

TakenNames NamesInFile() {
  return {.Columns = CardColumns(),
          .Tables = Global().File().TableDefs(),
          .ReminderColumns = TableExists(schema::Reminders) ? ColumnsOf(schema::Reminders) : QStringList()};
}

void MakeFieldColumn(const DesignField& field) {
  Global().File().AppendField(schema::Cards.View(), AddedColumnOf(field));
}

void EnterField(const DesignField& field, int page) {
  db::Recordset rows = Global().File().OpenRecordset(schema::Catalogue.View());
  AddCatalogueRow(rows, field.Name, page, TypeOf(field.Kind));
}

void MakeFieldTables(const DesignField& field) {
  if (field.Kind == FieldKind::Date) AddToReminders(field.Name);
  if (field.Kind == FieldKind::Text) MakeValueList(field.Name);
}

int QueriesLostWithAField() { return static_cast<int>(Global().File().QueryDefs().size()); }

void DeleteField(const QString& name) {
  const QString field = name.trimmed();
  Global().File().AsOneTransaction([&field] {
    DeleteStoredQueries();
    DeleteFromCards(field);
    DeleteFromReminders(field);
    RemoveEmptyPages();
  });
}

bool SetPageTitle(int page, const QString& title) {
  if (!HasFields(page)) return false;
  db::Recordset row =
      Global().File().OpenRecordset(u"Select * from Location Where Type = 1 and Tab = ?", {page});
  if (row.AtEnd()) {
    AddCatalogueRow(row, title, page, catalogue::Page);
    return true;
  }
  row.Edit();
  row.Set(u"Name", title);
  row.Update();
  return true;
}

void EnsureReminderTable() {
  if (!TableExists(schema::Reminders)) Global().File().AppendTableDef(ReminderTableOf({}));
}

void EnsureSupportTable() {
  if (!TableExists(schema::ReminderFields)) Global().File().AppendTableDef(ReminderFieldsTable());
}

}  // namespace velmora
