// SPDX-License-Identifier: MIT
#include "cardfile/CardFileSchema.h"

#include <QStringList>

#include <vector>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr int MainFieldSize = 150;
constexpr int TextFieldSize = 200;

using enum db::FieldType;
using Columns = std::vector<db::Field>;

db::Index IndexOn(const QString& column) { return {.Name = column, .Fields = {column}}; }

db::Field ColumnOf(const DesignField& field) {
  const QString name = field.Name.trimmed();
  switch (field.Kind) {
    case FieldKind::Text:
      return {name, Text, TextFieldSize};
    case FieldKind::Number:
      return {name, Double};
    case FieldKind::YesNo:
      return {name, YesNo};
    case FieldKind::Date:
      return {name, Date};
  }
  return {name};
}

db::TableDef Contacts() {
  Columns columns{{u"Index"_s, Long}, {u"Name"_s, Text}, {u"Activ"_s, YesNo}};
  for (int number = 1; number <= 16; ++number) columns.push_back({QString::number(number), Text});
  columns.push_back({u"Biografy"_s, Memo});
  columns.push_back({u"PathFoto"_s, Text});
  return {u"Agent"_s, columns, {IndexOn(u"Index"_s)}};
}

db::TableDef Meetings() {
  return {u"Meeting"_s,
          {{u"Index"_s, Long},
           {u"Date"_s, Date},
           {u"Time"_s, Date},
           {u"Place"_s, Text},
           {u"Adress"_s, Text},
           {u"TelephPl"_s, Text},
           {u"Collaborator"_s, Text},
           {u"Agent"_s, Text},
           {u"Define"_s, Text},
           {u"Description"_s, Memo},
           {u"Name"_s, Text},
           {u"Post"_s, Text},
           {u"Tel1"_s, Text},
           {u"Tel2"_s, Text},
           {u"Pelephon"_s, Text},
           {u"OrderMeet"_s, Date},
           {u"OrderTime"_s, Date},
           {u"PathFoto"_s, Memo}},
          {IndexOn(u"Index"_s), IndexOn(u"Date"_s), IndexOn(u"Time"_s)}};
}

db::TableDef Goods() {
  return {u"Goods"_s,
          {{u"Index"_s, Long},
           {u"Barcod"_s, Text},
           {u"Type"_s, Text},
           {u"Name"_s, Text},
           {u"Description"_s, Memo},
           {u"Price"_s, Currency},
           {u"Discount"_s, Text},
           {u"Another"_s, Memo},
           {u"Image"_s, Memo},
           {u"PriceDiler"_s, Currency},
           {u"DiscountClient"_s, Text}},
          {IndexOn(u"Index"_s), IndexOn(u"Barcod"_s), IndexOn(u"Name"_s), IndexOn(u"PriceDiler"_s),
           IndexOn(u"Discount"_s)}};
}

db::TableDef Calls() {
  return {u"TelCalls"_s,
          {{u"Index"_s, Long},
           {u"Date"_s, Date},
           {u"Time"_s, Date},
           {u"Priority"_s, Long},
           {u"Tel1"_s, Text},
           {u"Tel2"_s, Text},
           {u"Collaborator"_s, Text},
           {u"Agent"_s, Text},
           {u"Tok"_s, Memo},
           {u"ActivTime"_s, YesNo},
           {u"DateOrder"_s, Date},
           {u"NameFirm"_s, Text}},
          {IndexOn(u"Date"_s)}};
}

std::vector<db::TableDef> MakeFixedTables() {
  return {
      {u"Captions"_s, {{u"Caption"_s, Text}, {u"Num"_s, Long}}, {}},
      {u"WebAddress"_s,
       {{u"Index"_s, Long}, {u"Name"_s, Text}, {u"defText"_s, Text}, {u"defNum"_s, Long}},
       {}},
      {u"tOptions"_s, {{u"txtKey"_s, Text, schema::OptionSize}, {u"tVal"_s, Text, schema::OptionSize}}, {}},
      {u"Telefon"_s,
       {{u"Index"_s, Long},
        {u"Date"_s, Date},
        {u"Time"_s, Date},
        {u"Collaborator"_s, Text},
        {u"Cooperation"_s, Text},
        {u"DesTok"_s, Memo},
        {u"Agent"_s, Text}},
       {IndexOn(u"Index"_s)}},
      Goods(),
      {u"TypeGoods"_s, {{u"Type"_s, Text}}, {}},
      Meetings(),
      {u"TabProd"_s,
       {{u"ProdID"_s, Long}, {u"SugID"_s, Long}, {u"Query"_s, Text}, {u"Descrip"_s, Memo}},
       {{.Name = u"IndPrim"_s, .Fields = {u"SugID"_s, u"Query"_s}},
        {.Name = u"IndSug"_s, .Fields = {u"SugID"_s}}}},
      {u"NotifyTable"_s,
       {{u"Collaborator"_s, Text},
        {u"Date"_s, Date},
        {u"Time"_s, Date},
        {u"For"_s, Text},
        {u"NotifyOrder"_s, Date},
        {u"Memo"_s, Memo},
        {u"NotifyDate"_s, Date},
        {u"QMemo"_s, Text}},
       {}},
      {u"PriceList"_s,
       {{u"Index"_s, Long},
        {u"Year"_s, Long},
        {u"NumbOf"_s, Long},
        {u"FileName"_s, Memo},
        {u"Date"_s, Date},
        {u"Agent"_s, Text},
        {u"Status"_s, Text}},
       {}},
      {u"TabSug"_s, {{u"SugID"_s, Long}, {u"Descrip"_s, Text}, {u"Pict"_s, Memo}}, {IndexOn(u"SugID"_s)}},
      Contacts(),
      {u"TCoop"_s, {{u"Type"_s, Text}, {u"Activ"_s, YesNo}}, {}},
      Calls(),
      {u"tArchiv"_s,
       {{u"Date"_s, Date}, {u"Program"_s, Text}, {u"File"_s, Text}, {u"Rem"_s, Memo}, {u"Index"_s, Long}},
       {}},
  };
}

}  // namespace

std::optional<FieldKind> FieldKindOf(db::FieldType column) {
  switch (column) {
    case Text:
      return FieldKind::Text;
    case Double:
    case Long:
      return FieldKind::Number;
    case YesNo:
      return FieldKind::YesNo;
    case Date:
      return FieldKind::Date;
    case Memo:
    case Currency:
      return std::nullopt;
  }
  return std::nullopt;
}

QString Bracketed(const QString& name) { return u'[' + name + u']'; }

QString ValueListTable(const QString& field) { return field + u'T'; }

QString AgentsColumn(const QString& field) { return field + u"Agents"_s; }

db::TableDef LocationTable() {
  return {schema::Catalogue, {{u"Name"_s, Text}, {u"Tab"_s, Long}, {u"Type"_s, Long}}, {}};
}

db::TableDef MainDataTable(const CardDesign& design) {
  Columns columns{{schema::CardNumber, Long}, {design.MainField.trimmed(), Text, MainFieldSize}};
  for (const DesignPage& page : design.Pages) {
    for (const DesignField& field : page.Fields) columns.push_back(ColumnOf(field));
  }
  columns.push_back({schema::Remarks, Memo});
  return {schema::Cards, columns, {{.Name = u"Index"_s, .Fields = {schema::CardNumber}, .Unique = true}}};
}

db::TableDef ValueListTableOf(const QString& field) { return {ValueListTable(field), {{field, Text}}, {}}; }

Columns ReminderColumnsOf(const QString& field) { return {{field, Date}, {AgentsColumn(field), Text}}; }

db::Field AddedColumnOf(const DesignField& field) {
  switch (field.Kind) {
    case FieldKind::Text:
      return {field.Name, Text};
    case FieldKind::Number:
      return {field.Name, Long};
    case FieldKind::YesNo:
      return {field.Name, YesNo};
    case FieldKind::Date:
      return {field.Name, Date};
  }
  return {field.Name};
}

db::TableDef ReminderTableOf(const QStringList& dateFields) {
  Columns columns{{u"Index"_s, Long}};
  for (const QString& field : dateFields) {
    for (const db::Field& column : ReminderColumnsOf(field)) columns.push_back(column);
  }
  return {schema::Reminders, columns, {}};
}

db::TableDef ReminderFieldsTable() { return {schema::ReminderFields, {{u"Name"_s, Text}}, {}}; }

std::span<const db::TableDef> FixedTables() {
  static const std::vector<db::TableDef> tables = MakeFixedTables();
  return tables;
}

}  // namespace velmora
