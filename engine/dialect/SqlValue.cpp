// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlValue.h"

#include "base/dates/Dates.h"
#include "base/text/Numbers.h"
#include "engine/sqlite/Quoting.h"
#include "engine/values/Error.h"

#include <algorithm>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

Error Mismatch(const QString& text) { return {ErrorCode::TypeMismatchInCondition, text}; }

QString Call(QLatin1StringView function, const QString& argument) {
  return function + u'(' + argument + u')';
}

QString InForm(const SqlValue& parameter, ParameterForm form) {
  return parameter.Parameters->Sql({.Place = parameter.Place, .Form = form});
}

// A text column of another tool may have been declared without our comparison, and a computed text has none.
QString Compared(const QString& text) { return text + " COLLATE NOCASE"_L1; }

}  // namespace

ValueKind ValueKindOf(FieldType type) {
  switch (type) {
    case FieldType::Text:
    case FieldType::Memo:
      return ValueKind::Text;
    case FieldType::Long:
    case FieldType::Double:
    case FieldType::Currency:
      return ValueKind::Number;
    case FieldType::YesNo:
      return ValueKind::Truth;
    case FieldType::Date:
      return ValueKind::Date;
  }
  return ValueKind::Null;
}

SqlValue ColumnValue(QString sql, FieldType type, int size) {
  return {.Sql = std::move(sql),
          .Kind = ValueKindOf(type),
          .Form = ValueForm::Column,
          .Type = type,
          .Size = size};
}

SqlValue NullValue() { return {.Sql = u"NULL"_s, .Kind = ValueKind::Null, .Form = ValueForm::Literal}; }

SqlValue TextLiteral(const QString& text) {
  return {.Sql = QuoteText(text), .Kind = ValueKind::Text, .Form = ValueForm::Literal, .Literal = text};
}

SqlValue NumberLiteral(const QString& written) {
  bool isWhole = false;
  written.toInt(&isWhole);
  return {.Sql = written,
          .Kind = ValueKind::Number,
          .Form = ValueForm::Literal,
          .Type = isWhole ? FieldType::Long : FieldType::Double,
          .Literal = written};
}

SqlValue TruthLiteral(bool truth) {
  return {.Sql = truth ? u"-1"_s : u"0"_s,
          .Kind = ValueKind::Truth,
          .Form = ValueForm::Literal,
          .Type = FieldType::YesNo,
          .Literal = truth ? u"1"_s : u"0"_s};
}

SqlValue DateLiteral(const QString& stored) {
  return {.Sql = QuoteText(stored),
          .Kind = ValueKind::Date,
          .Form = ValueForm::Literal,
          .Type = FieldType::Date,
          .Literal = stored};
}

SqlValue ParameterValue(ParameterList& parameters, std::size_t place, ParameterKind kind) {
  if (kind == ParameterKind::Null) return NullValue();
  if (kind == ParameterKind::Yes || kind == ParameterKind::No)
    return TruthLiteral(kind == ParameterKind::Yes);
  const FieldType type = kind == ParameterKind::Text   ? FieldType::Text
                         : kind == ParameterKind::Date ? FieldType::Date
                         : kind == ParameterKind::Long ? FieldType::Long
                                                       : FieldType::Double;
  return {.Sql = parameters.Sql({.Place = place}),
          .Kind = ValueKindOf(type),
          .Form = ValueForm::Parameter,
          .Type = type,
          .Parameters = &parameters,
          .Place = place};
}

SqlValue DayParameter(const SqlValue& text) {
  SqlValue day = text;
  day.Sql = InForm(text, ParameterForm::Day);
  day.Kind = ValueKind::Date;
  day.Type = FieldType::Date;
  return day;
}

SqlValue ConditionValue(QString sql) {
  return {.Sql = std::move(sql), .Kind = ValueKind::Truth, .Type = FieldType::YesNo, .IsCondition = true};
}

SqlValue Computed(QString sql, FieldType type) {
  return {.Sql = std::move(sql), .Kind = ValueKindOf(type), .Form = ValueForm::Computed, .Type = type};
}

QString Plain(const SqlValue& value) {
  if (value.Kind != ValueKind::Truth || value.Form == ValueForm::Literal) return value.Sql;
  return value.IsCondition ? u"(- %1)"_s.arg(value.Sql) : u"(- (%1 <> 0))"_s.arg(value.Sql);
}

QString AsText(const SqlValue& value) {
  switch (value.Kind) {
    case ValueKind::Null:
    case ValueKind::Text:
      return value.Sql;
    case ValueKind::Date:
      return Call("v_date_text"_L1, value.Sql);
    case ValueKind::Number:
    case ValueKind::Truth:
      break;
  }
  return Call("v_text"_L1, Plain(value));
}

QString AsNumber(const SqlValue& value) {
  if (value.Kind == ValueKind::Date) return Call("v_serial"_L1, value.Sql);
  if (value.Kind != ValueKind::Text) return Plain(value);
  if (value.Form == ValueForm::Parameter) return InForm(value, ParameterForm::Number);
  if (value.Form == ValueForm::Literal && !ParseNumber(value.Literal)) {
    throw Mismatch(u"\"%1\" is not a number."_s.arg(value.Literal));
  }
  return Call("v_number"_L1, value.Sql);
}

QString AsDate(const SqlValue& value) {
  if (value.Kind == ValueKind::Date || value.Kind == ValueKind::Null) return value.Sql;
  if (value.Kind != ValueKind::Text) return Call("v_from_serial"_L1, AsNumber(value));
  if (value.Form == ValueForm::Parameter) return InForm(value, ParameterForm::Date);
  if (value.Form != ValueForm::Literal) return Call("v_to_date"_L1, value.Sql);
  const auto moment = ParseDate(value.Literal);
  if (!moment) throw Mismatch(u"\"%1\" is not a date."_s.arg(value.Literal));
  return QuoteText(StoredDate(*moment));
}

QString AsCondition(const SqlValue& value) {
  if (value.IsCondition || value.Kind == ValueKind::Null) return value.Sql;
  if (value.Kind == ValueKind::Truth && value.Form == ValueForm::Literal) return value.Literal;
  if (value.Kind == ValueKind::Text || value.Kind == ValueKind::Date) {
    throw Mismatch(u"A text or a date can't be a condition."_s);
  }
  return u"(%1 <> 0)"_s.arg(value.Sql);
}

QString AsKey(const SqlValue& value) {
  if (value.Kind == ValueKind::Text) return Compared(value.Sql);
  const QString sql = Plain(value);
  // To SQLite a plain number is the place of an output column.
  const bool isPlainNumber =
      std::none_of(sql.begin(), sql.end(), [](QChar c) { return c.isLetter() || c == u'"'; });
  return isPlainNumber ? u"ifnull(%1, NULL)"_s.arg(sql) : sql;
}

ComparableSides Comparable(const SqlValue& left, const SqlValue& right) {
  const auto either = [&](ValueKind kind) { return left.Kind == kind || right.Kind == kind; };
  if (either(ValueKind::Null)) {
    const bool isText = either(ValueKind::Text);
    return {Plain(left), Plain(right), isText ? ValueKind::Text : ValueKind::Number};
  }
  if (left.Kind == ValueKind::Text && right.Kind == ValueKind::Text) {
    return {Compared(left.Sql), right.Sql, ValueKind::Text};
  }
  if (either(ValueKind::Date) && (either(ValueKind::Text) || left.Kind == right.Kind)) {
    return {AsDate(left), AsDate(right), ValueKind::Date};
  }
  if (either(ValueKind::Text)) {
    throw Mismatch(u"A text can't be compared with a number or a truth value."_s);
  }
  return {AsNumber(left), AsNumber(right), ValueKind::Number};
}

}  // namespace velmora::db
