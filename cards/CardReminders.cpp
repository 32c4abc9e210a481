// SPDX-License-Identifier: MIT
#include "cards/CardReminders.h"

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

}  // namespace

const db::Recordset& CardReminders::RowWith(const QString& field) {
  if (!m_row) {
    m_row = Global().File().OpenRecordset(u"SELECT * from  TableDatesRemainder  Where Index = "_s +
                                          QString::number(m_card));
  }
  // A field without its columns fails whether or not the card has a row.
  for (const QString& column : {field, AgentsColumn(field)}) {
    if (!HasColumn(*m_row, column)) {
      throw db::Error(db::ErrorCode::ItemNotFound, u"The reminders have no column \"%1\"."_s.arg(column));
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

}  // namespace velmora
