// SPDX-License-Identifier: MIT
#include "cardfile/ValueLists.h"

#include "cardfile/CardFileSchema.h"

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

/// What a statement on the rows of one value ends in.
QString FromRowsWithValue(const QString& field) {
  return u"from "_s + Bracketed(ValueListTable(field)) + u" WHERE "_s + Bracketed(field) + u" = ?"_s;
}

}  // namespace

std::vector<std::optional<QString>> ValueLists::RowsOf(const QString& field) const {
  std::vector<std::optional<QString>> values;
  db::Recordset rows = m_file.OpenRecordset(ValueListTable(field));
  for (; !rows.AtEnd(); rows.MoveNext()) {
    const db::Value value = rows[field];
    values.push_back(value.IsNull() ? std::nullopt : std::optional(value.Text()));
  }
  return values;
}

QStringList ValueLists::ValuesOf(const QString& field) const {
  QStringList values;
  for (const std::optional<QString>& value : RowsOf(field)) {
    if (value) values += *value;
  }
  return values;
}

bool ValueLists::Has(const QString& field, const QString& value) const {
  return !m_file.OpenRecordset(u"Select * "_s + FromRowsWithValue(field), {value}).AtEnd();
}

void ValueLists::Add(const QString& field, const QString& value) const {
  db::Recordset rows = m_file.OpenRecordset(ValueListTable(field));
  rows.AddNew();
  rows.Set(field, value);
  rows.Update();
}

void ValueLists::Delete(const QString& field, const QString& value) const {
  m_file.Execute(u"Delete * "_s + FromRowsWithValue(field), {value});
}

}  // namespace velmora
