// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/SqlExpressionContext.h"

namespace velmora::db {

/// Writes the expressions of one place of a statement for SQLite, by the kinds of what they are made of.
class ExpressionWriter final {
 public:
  ExpressionWriter(ExpressionContext& context, const Scope& scope) : m_context(context), m_scope(scope) {}

  /// Lets COUNT, SUM and the like in. `groups` are the keys of GROUP BY as SQL: what stands in no aggregate
  /// must be one of them (3122). `rowKey` orders the rows for FIRST and LAST.
  void AllowAggregates(const QStringList& groups, const QString& rowKey);

  [[nodiscard]] SqlValue Write(const Expression& expression);
  /// As a condition: SQL that gives 1, 0 or Null.
  [[nodiscard]] QString Condition(const Expression& expression) { return AsCondition(Write(expression)); }

  /// The column that a name means, and the scope where it was found. 3061 when there is none, 3079 for two.
  struct FoundColumn {
    const NamedColumn* Column = nullptr;
    const NamedSource* Source = nullptr;
    bool IsOuter = false;
  };
  [[nodiscard]] static std::optional<FoundColumn> Find(const Expression& column, const Scope& scope);

 private:
  [[nodiscard]] SqlValue WriteNode(const Expression& expression);
  [[nodiscard]] SqlValue WriteColumn(const Expression& column);
  [[nodiscard]] SqlValue WriteDate(const Expression& date) const;
  [[nodiscard]] SqlValue WriteNegate(const Expression& expression);
  [[nodiscard]] SqlValue WriteLogic(const Expression& expression);
  [[nodiscard]] SqlValue WriteArithmetic(const Expression& expression);
  [[nodiscard]] SqlValue WriteJoin(const Expression& expression);
  [[nodiscard]] SqlValue WriteSum(Operator op, const SqlValue& left, const SqlValue& right) const;
  [[nodiscard]] SqlValue WriteExists(const Expression& expression);
  [[nodiscard]] SqlValue WriteIsNull(const Expression& expression);

  // SqlComparisons.cpp
  [[nodiscard]] SqlValue WriteCompare(const Expression& expression);
  [[nodiscard]] SqlValue WriteQuantified(const Expression& expression);
  [[nodiscard]] SqlValue WriteLike(const Expression& expression);
  [[nodiscard]] SqlValue WriteBetween(const Expression& expression);
  [[nodiscard]] SqlValue WriteInList(const Expression& expression);
  [[nodiscard]] SqlValue WriteInQuery(const Expression& operand, const SelectQuery& query, bool negated);

  // SqlCalls.cpp
  [[nodiscard]] SqlValue WriteCall(const Expression& call);
  [[nodiscard]] SqlValue WriteSpecialCall(const Expression& call);
  [[nodiscard]] SqlValue WriteAggregate(const Expression& call);

  ExpressionContext& m_context;
  const Scope& m_scope;
  bool m_aggregatesAllowed = false;
  bool m_inAggregate = false;
  QStringList m_groups;
  QString m_rowKey;
  /// Columns met outside aggregates that are no key of GROUP BY.
  QStringList m_loose;
  int m_depth = 0;
};

/// Whether a COUNT, SUM or the like stands in the expression, nested SELECTs aside.
[[nodiscard]] bool HasAggregate(const Expression& expression);
/// How SQLite writes the operator; for those alone that it has.
[[nodiscard]] QLatin1StringView SignOf(Operator op);
/// "(left sign right)".
[[nodiscard]] QString BinarySql(const QString& left, QLatin1StringView sign, const QString& right);
/// "left op right" as a condition, by the kinds of both.
[[nodiscard]] SqlValue CompareValues(Operator op, const SqlValue& left, const SqlValue& right);

}  // namespace velmora::db
