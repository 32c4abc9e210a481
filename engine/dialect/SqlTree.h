// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace velmora::db {

/// The tree of a statement. Beside what a clause means, it keeps how its expressions were written, because
/// the stored form gives them back to the character.

struct SelectQuery;

enum class ExpressionKind {
  Null,
  Truth,       // Text: "1" or "0"
  Number,      // Text: as written
  Text,        // Text
  Date,        // Text: as written between the two #
  Parameter,   // Place
  Column,      // Qualifier, Text
  Negate,      // one operand
  Not,         // one operand
  Arithmetic,  // Op, two operands; Join: two or more
  Logic,       // Op, two operands; And, Or: two or more
  Compare,     // Op, two operands, or one operand, Range and Query
  Like,        // two operands
  Between,     // three operands
  InList,      // the value and then the items
  InQuery,     // one operand and Query
  Exists,      // Query
  IsNull,      // one operand
  Call,        // Text, operands
  CountRows,   // COUNT(*)
  Query,       // Query, of one column
};

enum class Operator {
  Add,
  Subtract,
  Multiply,
  Divide,
  WholeDivide,
  Modulo,
  Power,
  Join,
  And,
  Or,
  Xor,
  Eqv,
  Imp,
  Equal,
  NotEqual,
  Less,
  LessEqual,
  Greater,
  GreaterEqual,
};

enum class Quantifier { One, Any, All };

struct Expression {
  ExpressionKind Kind = ExpressionKind::Null;
  Operator Op = Operator::Add;
  Quantifier Range = Quantifier::One;
  /// NOT LIKE, NOT IN, NOT BETWEEN, IS NOT NULL.
  bool Negated = false;
  QString Qualifier;
  QString Text;
  /// Which "?" of the statement it is, counted from 0.
  std::size_t Place = 0;
  std::vector<Expression> Operands;
  std::shared_ptr<const SelectQuery> Query;
};

/// An expression and the text that it was read from.
struct WrittenExpression {
  Expression Value;
  QString Written;
};

enum class OutputKind { Value, AllColumns, AllOfTable };

struct OutputColumn {
  OutputKind Kind = OutputKind::Value;
  WrittenExpression Source;
  /// The table of "T.*".
  QString Qualifier;
  QString Alias;
  QString AliasWritten;
};

enum class JoinKind { Inner, Left, Right };

/// A table, stored query or nested SELECT, or two of them joined.
struct FromItem {
  QString Name{};
  QString Alias{};
  std::shared_ptr<const SelectQuery> Query{};
  QString QueryWritten{};

  bool IsJoin = false;
  JoinKind Join = JoinKind::Inner;
  bool InParentheses = false;
  std::vector<FromItem> Sides{};
  WrittenExpression On{};
};

struct SortKey {
  WrittenExpression Key;
  bool Descending = false;
};

struct UnionPart {
  bool KeepsRepeats = false;
  std::shared_ptr<const SelectQuery> Query;
};

struct SelectQuery {
  bool Distinct = false;
  std::optional<std::int64_t> Top;
  std::vector<OutputColumn> Columns;
  std::vector<FromItem> From;
  std::optional<WrittenExpression> Where;
  std::vector<WrittenExpression> GroupBy;
  std::optional<WrittenExpression> Having;
  /// With Unions, the order of the whole.
  std::vector<SortKey> OrderBy;
  std::vector<UnionPart> Unions;
};

struct Assignment {
  QString Column;
  QString ColumnWritten;
  WrittenExpression Value;
};

struct InsertQuery {
  QString Table;
  /// Empty: all columns in their order.
  QStringList Columns;
  QStringList ColumnsWritten;
  /// Either the values of one row or a query.
  std::vector<WrittenExpression> Values;
  std::shared_ptr<const SelectQuery> Query;
};

struct UpdateQuery {
  FromItem Table;
  std::vector<Assignment> Assignments;
  std::optional<WrittenExpression> Where;
};

struct DeleteQuery {
  /// What stood between DELETE and FROM: "*", "T.*" or nothing.
  QString Written;
  FromItem Table;
  std::optional<WrittenExpression> Where;
};

}  // namespace velmora::db
