// SPDX-License-Identifier: MIT
#include "queries/KnownValues.h"

#include "cardfile/CardFileSchema.h"
#include "frame/Session.h"

namespace velmora {

using namespace Qt::StringLiterals;

QStringList PickableValues(const QString& field) {
  QStringList values;
  const QString table = ValueListTable(field);
  db::Recordset rows = Global().File().OpenRecordset(table);
  QString value;
  // A value that is the table's own name does not count as one.
  QString before = table;
  for (; !rows.AtEnd(); rows.MoveNext()) {
    value = rows[field].TextOr(value);
    const QString trimmed = value.trimmed();
    if (!trimmed.isEmpty() && value != u"*"_s && trimmed != before) values += value;
    before = trimmed;
  }
  return values;
}

QStringList StoredValues(const QString& field) {
  QStringList values;
  db::Recordset rows = Global().File().OpenRecordset(ValueListTable(field));
  for (; !rows.AtEnd(); rows.MoveNext()) {
    const db::Value value = rows[field];
    if (!value.IsNull()) values += value.Text();
  }
  return values;
}

}  // namespace velmora
