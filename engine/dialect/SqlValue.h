// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/SqlParameter.h"
#include "engine/values/Schema.h"

#include <QString>

namespace velmora::db {

/// What an expression gives, as far as comparing and computing is concerned.
enum class ValueKind { Null, Text, Number, Truth, Date };

enum class ValueForm { Column, Literal, Parameter, Computed };

/// An expression written out for SQLite, with what the rules of comparison need to know of it.
struct SqlValue {
  QString Sql;
  ValueKind Kind = ValueKind::Null;
  ValueForm Form = ValueForm::Computed;
  /// The kind of column that fits it best.
  FieldType Type = FieldType::Text;
  int Size = DefaultTextSize;
  /// Sql gives SQLite's 1 and 0 and not yet the engine's -1 and 0.
  bool IsCondition = false;
  /// A literal's value: a text itself, a number as written, "1" or "0" for a truth value, a date in its
  /// stored form.
  QString Literal{};
  /// A parameter: where those of the statement are gathered, and its value's place among those given.
  ParameterList* Parameters = nullptr;
  std::size_t Place = 0;
};

[[nodiscard]] ValueKind ValueKindOf(FieldType type);
[[nodiscard]] SqlValue ColumnValue(QString sql, FieldType type, int size);
[[nodiscard]] SqlValue NullValue();
[[nodiscard]] SqlValue TextLiteral(const QString& text);
[[nodiscard]] SqlValue NumberLiteral(const QString& written);
[[nodiscard]] SqlValue TruthLiteral(bool truth);
/// From a date in its stored form.
[[nodiscard]] SqlValue DateLiteral(const QString& stored);
/// A value that is given with the statement; truth and Null become literals.
[[nodiscard]] SqlValue ParameterValue(ParameterList& parameters, std::size_t place, ParameterKind kind);
/// A text given with the statement, as the day that it names.
[[nodiscard]] SqlValue DayParameter(const SqlValue& text);
[[nodiscard]] SqlValue ConditionValue(QString sql);
[[nodiscard]] SqlValue Computed(QString sql, FieldType type);

/// The value as SQL for computing and comparing: truth as -1 or 0, whatever the file holds.
[[nodiscard]] QString Plain(const SqlValue& value);
/// As SQL that gives a text, a number, a date. A text that is not a number or a date fails with 3464: here
/// when it is a literal, when it is bound as a parameter, else when the row is met.
[[nodiscard]] QString AsText(const SqlValue& value);
[[nodiscard]] QString AsNumber(const SqlValue& value);
[[nodiscard]] QString AsDate(const SqlValue& value);
/// As SQL that gives 1, 0 or Null. 3464 for a text or a date.
[[nodiscard]] QString AsCondition(const SqlValue& value);
/// As SQL to sort, group and tell apart by: texts by the engine's comparison.
[[nodiscard]] QString AsKey(const SqlValue& value);

/// Brings two values to one kind: 3464 when there is none in which they can be compared. Truth stays what it
/// is on both sides or becomes a number.
struct ComparableSides {
  QString Left;
  QString Right;
  ValueKind Kind = ValueKind::Null;
};
[[nodiscard]] ComparableSides Comparable(const SqlValue& left, const SqlValue& right);

}  // namespace velmora::db
