// SPDX-License-Identifier: MIT
#include "cardfile/Options.h"

#include "cardfile/CardFileSchema.h"

#include <algorithm>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

// One key, read in one spelling and written in another: the engine compares texts without case.
constexpr QStringView FaxRow = u"Select * from tOptions where txtKey = 'Fieldfax'";
constexpr QStringView TelephoneRow = u"Select * from tOptions where txtKey = 'FieldDial'";

std::optional<QString> OnlyValue(const db::Recordset& row) {
  return row.RecordCount() == 1 ? std::optional(row[u"tVal"].TextOr({})) : std::nullopt;
}

}  // namespace

std::optional<QString> Options::TelephoneField() const {
  return OnlyValue(m_file.OpenRecordset(TelephoneRow));
}

std::optional<QString> Options::FaxField() const { return OnlyValue(m_file.OpenRecordset(FaxRow)); }

QString Options::TelephoneColumn() const {
  const db::Recordset row = m_file.OpenRecordset(u"Select * from tOptions WHERE txtKey = 'FieldDial'");
  if (row.AtEnd()) return {};
  const QString name = row[u"tVal"].TextOr({});
  const db::TableDef cards = m_file.TableDefOf(schema::Cards.View());
  const auto column = std::ranges::find(cards.Fields, name, &db::Field::Name);
  return column == cards.Fields.end() ? QString() : name;
}

void Options::SetTelephoneField(const QString& name) const { Set(TelephoneRow, u"FieldDial"_s, name); }

void Options::SetFaxField(const QString& name) const { Set(FaxRow, u"FieldFax"_s, name); }

void Options::Set(QStringView rowsOfKey, const QString& key, const QString& value) const {
  if (m_file.OpenRecordset(rowsOfKey).RecordCount() > 0) {
    m_file.Execute(u"Update tOptions SET tVal = '"_s + value + u"' Where txtKey = '"_s + key + u"'"_s);
    return;
  }
  db::Recordset rows = m_file.OpenRecordset(u"tOptions");
  rows.AddNew();
  rows.Set(u"txtKey", key);
  rows.Set(u"tVal", value);
  rows.Update();
}

}  // namespace velmora
