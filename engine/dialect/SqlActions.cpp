// SPDX-License-Identifier: MIT
#include "base/dates/Dates.h"
#include "engine/dialect/SqlExpressionWriter.h"
#include "engine/dialect/SqlTranslator.h"
#include "engine/sqlite/Quoting.h"
#include "engine/sqlite/Storage.h"
#include "engine/text/Collation.h"
#include "engine/values/Error.h"

#include <QLocale>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

Error UnknownColumn(const QString& name) {
  return {ErrorCode::UnknownParameter,
          u"Too few parameters. Expected 1: there is no column \"%1\"."_s.arg(name)};
}

std::optional<Value> LiteralOf(const SqlValue& value) {
  if (value.Form != ValueForm::Literal) return std::nullopt;
  switch (value.Kind) {
    case ValueKind::Null:
      return Value();
    case ValueKind::Truth:
      return Value(value.Literal == u"1");
    case ValueKind::Number:
      return Value(value.Literal.toDouble());
    case ValueKind::Text:
      return Value(value.Literal);
    case ValueKind::Date:
      return std::nullopt;
  }
  return std::nullopt;
}

QString LiteralSql(const Value& value) {
  if (value.IsNull()) return u"NULL"_s;
  if (value.IsTruth()) return value.Truth() ? u"-1"_s : u"0"_s;
  if (value.IsDate()) return QuoteText(StoredDate(value.DateTime()));
  if (value.IsWhole()) return QString::number(value.Whole());
  // The shortest text that gives the number back as it was.
  if (value.IsNumber()) return QString::number(value.Number(), 'g', QLocale::FloatingPointShortest);
  return QuoteText(value.Text());
}

/// The value in the form in which the column stores it. A literal or a parameter that the column can't take
/// fails before anything is written.
QString Stored(const SqlValue& value, const Field& column) {
  if (const auto literal = LiteralOf(value)) return LiteralSql(Converted(column, *literal));
  if (value.Form == ValueForm::Parameter && value.Kind != ValueKind::Date) {
    return value.Parameters->Sql({.Place = value.Place, .Form = ParameterForm::Stored, .Column = column});
  }
  const ValueKind kind = ValueKindOf(column.Type);
  const QString sql = value.Kind == ValueKind::Date && kind == ValueKind::Text     ? AsText(value)
                      : value.Kind == ValueKind::Date && kind == ValueKind::Number ? AsNumber(value)
                      : value.Kind == ValueKind::Number && kind == ValueKind::Date ? AsDate(value)
                                                                                   : Plain(value);
  return u"v_store(%1, %2, %3)"_s.arg(sql, QString::number(static_cast<int>(column.Type)),
                                      QString::number(column.Size));
}

Field FieldOf(const NamedColumn& column) {
  return {.Name = column.Name, .Type = column.Value.Type, .Size = column.Value.Size};
}

const NamedColumn& Writable(const FromParts& target, const QString& name) {
  const QString folded = FoldName(name);
  for (const auto& column : target.Sources[0].Columns) {
    if (column.Folded == folded && !column.ColumnInFile.isEmpty()) return column;
  }
  throw UnknownColumn(name);
}

}  // namespace

/// The one table whose rows an action changes, named itself or through a stored query.
FromParts Translator::ResolveTarget(const FromItem& target) {
  FromParts from = ResolveItem(target, true, nullptr);
  if (!from.Base) {
    throw Error(ErrorCode::ReadOnlyDatabase, u"The rows of \"%1\" can't be changed."_s.arg(target.Name));
  }
  return from;
}

Translation Translator::RunUpdate(const UpdateQuery& update) {
  const FromParts target = ResolveTarget(update.Table);
  const Scope scope{.Sources = target.Sources, .Outer = nullptr};
  QStringList assignments;
  for (const auto& assignment : update.Assignments) {
    const NamedColumn& column = Writable(target, assignment.Column);
    const SqlValue value = ExpressionWriter(*this, scope).Write(assignment.Value.Value);
    assignments.append(QuoteName(column.ColumnInFile) + " = "_L1 + Stored(value, FieldOf(column)));
  }
  QStringList conditions = target.Conditions;
  if (update.Where) conditions.append(ExpressionWriter(*this, scope).Condition(update.Where->Value));
  Translation translation;
  translation.Sql = "UPDATE "_L1 + target.Sql + " SET "_L1 + assignments.join(", "_L1) + WhereSql(conditions);
  return translation;
}

Translation Translator::RunDelete(const DeleteQuery& erase) {
  const FromParts target = ResolveTarget(erase.Table);
  const Scope scope{.Sources = target.Sources, .Outer = nullptr};
  QStringList conditions = target.Conditions;
  if (erase.Where) conditions.append(ExpressionWriter(*this, scope).Condition(erase.Where->Value));
  Translation translation;
  translation.Sql = "DELETE FROM "_L1 + target.Sql + WhereSql(conditions);
  return translation;
}

Translation Translator::RunInsert(const InsertQuery& insert) {
  const FromParts target = ResolveTarget({.Name = insert.Table});
  std::vector<const NamedColumn*> columns;
  for (const QString& name : insert.Columns) columns.push_back(&Writable(target, name));
  if (insert.Columns.isEmpty()) {
    for (const auto& column : target.Sources[0].Columns) columns.push_back(&Writable(target, column.Name));
  }
  const auto needValues = [&](std::size_t count) {
    if (count == columns.size()) return;
    throw Error(ErrorCode::ValueCount,
                u"%1 values are given for %2 columns."_s.arg(count).arg(columns.size()));
  };
  QStringList names;
  for (const NamedColumn* column : columns) names.append(QuoteName(column->ColumnInFile));
  QStringList values;
  QString source;
  if (insert.Query != nullptr) {
    const FromParts rows = Derived(Resolve(*insert.Query, nullptr), {});
    needValues(rows.Sources[0].Columns.size());
    for (const auto& column : rows.Sources[0].Columns) {
      values.append(Stored(column.Value, FieldOf(*columns[static_cast<std::size_t>(values.size())])));
    }
    source = "SELECT "_L1 + values.join(", "_L1) + " FROM "_L1 + rows.Sql;
  } else {
    needValues(insert.Values.size());
    const Scope nothing;
    for (const auto& value : insert.Values) {
      const Field field = FieldOf(*columns[static_cast<std::size_t>(values.size())]);
      values.append(Stored(ExpressionWriter(*this, nothing).Write(value.Value), field));
    }
    source = "VALUES ("_L1 + values.join(", "_L1) + u')';
  }
  Translation translation;
  translation.Sql =
      u"INSERT INTO %1 (%2) %3"_s.arg(QuoteName(target.Base->NameInFile), names.join(", "_L1), source);
  return translation;
}

}  // namespace velmora::db
