// SPDX-License-Identifier: MIT
#include "cards/Reminders.h"

#include "cardfile/CardFileSchema.h"
#include "cardfile/FieldCatalogue.h"
#include "frame/Session.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

db::Recordset ReminderOf(const QString& field, std::int32_t card) {
  return Global().File().OpenRecordset(u"Select [Index],["_s + field + u"],["_s + AgentsColumn(field) +
                                       u"] from  TableDatesRemainder Where Index = "_s +
                                       QString::number(card));
}

db::Recordset RowOf(std::int32_t card) {
  return Global().File().OpenRecordset(u"SELECT * from  TableDatesRemainder  Where Index = "_s +
                                       QString::number(card));
}

void SetReminder(db::Recordset& row, const QString& field, const db::Value& date, const db::Value& agents) {
  row.Set(field, date);
  row.Set(AgentsColumn(field), agents);
  row.Update();
}

}  // namespace

bool HasReminder(const QString& field, std::int32_t card) {
  const db::Recordset row = ReminderOf(field, card);
  return !row.AtEnd() && !row[field].IsNull();
}

QString ReminderAgents(const QString& field, std::int32_t card) {
  const db::Recordset row = ReminderOf(field, card);
  return row.AtEnd() ? QString() : row[AgentsColumn(field)].TextOr({});
}

void SaveReminder(const QString& field, std::int32_t card, const QString& date, const QString& agents) {
  db::Recordset row = RowOf(card);
  if (row.AtEnd()) {
    row.AddNew();
    row.Set(u"Index", card);
  } else {
    row.Edit();
  }
  SetReminder(row, field, date, agents);
}

void ClearReminder(const QString& field, std::int32_t card) {
  db::Recordset row = RowOf(card);
  if (row.AtEnd()) return;
  row.Edit();
  SetReminder(row, field, db::Value::Null(), db::Value::Null());
}

void EnsureReminderTable() {
  if (!TableExists(schema::Reminders)) Global().File().AppendTableDef(ReminderTableOf({}));
}

void EnsureSupportTable() {
  if (!TableExists(schema::ReminderFields)) Global().File().AppendTableDef(ReminderFieldsTable());
}

QStringList SplitAgents(const QString& text) {
  return text.trimmed().isEmpty() ? QStringList() : text.split(u',');
}

QString JoinAgents(const QStringList& names) {
  return QStringList(names.crbegin(), names.crend()).join(u',');
}

}  // namespace velmora
