// SPDX-License-Identifier: MIT
#include "cards/Reminders.h"

#include "cardfile/CardFileSchema.h"
#include "engine/values/Error.h"
#include "frame/Session.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

bool HasColumn(const db::Recordset& rows, const QString& name) {
  for (int i = 0; i < rows.FieldCount(); ++i) {
    if (rows.FieldAt(i).Name.compare(name, Qt::CaseInsensitive) == 0) return true;
  }
  return false;
}

db::Recordset RowOf(std::int32_t card) {
  return Global().File().OpenRecordset(u"SELECT * from  TableDatesRemainder  Where Index = ?", {card});
}

void SetReminder(db::Recordset& row, const QString& field, const db::Value& date, const db::Value& agents) {
  row.Set(field, date);
  row.Set(AgentsColumn(field), agents);
  row.Update();
}

}  // namespace

const db::Recordset& CardReminders::RowWith(const QString& field) {
  if (!m_row) m_row = RowOf(m_card);
  // A field without its columns fails whether or not the card has a row.
  for (const QString& column : {field, AgentsColumn(field)}) {
    if (!HasColumn(*m_row, column)) {
      throw db::Error(db::ErrorCode::UnknownParameter, u"The reminders have no column \"%1\"."_s.arg(column));
    }
  }
  return *m_row;
}

bool CardReminders::Has(const QString& field) {
  const db::Recordset& row = RowWith(field);
  return !row.AtEnd() && !row[field].IsNull();
}

QString CardReminders::Agents(const QString& field) {
  const db::Recordset& row = RowWith(field);
  return row.AtEnd() ? QString() : row[AgentsColumn(field)].TextOr({});
}

bool HasReminder(const QString& field, std::int32_t card) { return CardReminders(card).Has(field); }

QString ReminderAgents(const QString& field, std::int32_t card) { return CardReminders(card).Agents(field); }

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

QStringList SplitAgents(const QString& text) {
  return text.trimmed().isEmpty() ? QStringList() : text.split(u',');
}

QString JoinAgents(const QStringList& names) {
  return QStringList(names.crbegin(), names.crend()).join(u',');
}

}  // namespace velmora
