// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlExpressionWriter.h"
#include "engine/text/Collation.h"
#include "engine/values/Error.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

// "= TRUE" asks whether a number is other than zero, whatever number stands for true in the file.
std::optional<SqlValue> CompareWithTruth(Operator op, const SqlValue& left, const SqlValue& right) {
  if (op != Operator::Equal && op != Operator::NotEqual) return std::nullopt;
  for (const auto& [literal, other] : {std::pair(&left, &right), std::pair(&right, &left)}) {
    if (literal->Kind != ValueKind::Truth || literal->Form != ValueForm::Literal) continue;
    if (other->Kind != ValueKind::Truth && other->Kind != ValueKind::Number) continue;
    const bool wantsTruth = (literal->Literal == u"1") == (op == Operator::Equal);
    if (other->IsCondition) return wantsTruth ? *other : ConditionValue(u"(NOT %1)"_s.arg(other->Sql));
    return ConditionValue(BinarySql(other->Sql, wantsTruth ? "<>"_L1 : "="_L1, u"0"_s));
  }
  return std::nullopt;
}

Operator Negated(Operator op) {
  switch (op) {
    case Operator::Equal:
      return Operator::NotEqual;
    case Operator::NotEqual:
      return Operator::Equal;
    case Operator::Less:
      return Operator::GreaterEqual;
    case Operator::LessEqual:
      return Operator::Greater;
    case Operator::Greater:
      return Operator::LessEqual;
    default:
      return Operator::Less;
  }
}

/// Whether the first of two literals of one kind is the greater; nothing when that is not known before they
/// are compared.
std::optional<bool> IsGreater(const SqlValue& first, const SqlValue& second) {
  const bool areLiterals = first.Form == ValueForm::Literal && second.Form == ValueForm::Literal;
  if (!areLiterals || first.Kind != second.Kind) return std::nullopt;
  switch (first.Kind) {
    case ValueKind::Number:
      return first.Literal.toDouble() > second.Literal.toDouble();
    case ValueKind::Text:
      return CompareText(QStringView(first.Literal), QStringView(second.Literal)) > 0;
    case ValueKind::Date:
      return first.Literal > second.Literal;
    case ValueKind::Null:
    case ValueKind::Truth:
      break;
  }
  return std::nullopt;
}

/// Two values of one kind, given with the statement or one of them, in their order as SQL; nothing when they
/// are no such values.
std::optional<std::pair<QString, QString>> OrderedBounds(const SqlValue& first, const SqlValue& second) {
  const auto isKnown = [](const SqlValue& value) {
    return value.Form == ValueForm::Literal || value.Form == ValueForm::Parameter;
  };
  if (!isKnown(first) || !isKnown(second) || first.Kind != second.Kind) return std::nullopt;
  if (first.Kind == ValueKind::Null || first.Kind == ValueKind::Truth) return std::nullopt;
  const bool isText = first.Kind == ValueKind::Text;
  const QString both = u'(' + (isText ? AsKey(first) : first.Sql) + ", "_L1 + second.Sql + u')';
  return std::pair("min"_L1 + both, "max"_L1 + both);
}

}  // namespace

QLatin1StringView SignOf(Operator op) {
  switch (op) {
    case Operator::Add:
      return "+"_L1;
    case Operator::Subtract:
      return "-"_L1;
    case Operator::Multiply:
      return "*"_L1;
    case Operator::Divide:
      return "/"_L1;
    case Operator::And:
      return "AND"_L1;
    case Operator::Or:
      return "OR"_L1;
    case Operator::Equal:
      return "="_L1;
    case Operator::NotEqual:
      return "<>"_L1;
    case Operator::Less:
      return "<"_L1;
    case Operator::LessEqual:
      return "<="_L1;
    case Operator::Greater:
      return ">"_L1;
    case Operator::GreaterEqual:
      return ">="_L1;
    case Operator::WholeDivide:
    case Operator::Modulo:
    case Operator::Power:
    case Operator::Join:
    case Operator::Xor:
    case Operator::Eqv:
    case Operator::Imp:
      break;
  }
  Q_UNREACHABLE();
}

QString BinarySql(const QString& left, QLatin1StringView sign, const QString& right) {
  return u'(' + left + u' ' + sign + u' ' + right + u')';
}

SqlValue CompareValues(Operator op, const SqlValue& left, const SqlValue& right) {
  if (auto truth = CompareWithTruth(op, left, right)) return *truth;
  const ComparableSides sides = Comparable(left, right);
  return ConditionValue(BinarySql(sides.Left, SignOf(op), sides.Right));
}

SqlValue ExpressionWriter::WriteCompare(const Expression& expression) {
  if (expression.Range != Quantifier::One) return WriteQuantified(expression);
  const SqlValue left = Write(expression.Operands[0]);
  return CompareValues(expression.Op, left, Write(expression.Operands[1]));
}

// Null comes out where neither answer is certain: no row decides, and some could not be compared.
SqlValue ExpressionWriter::WriteQuantified(const Expression& expression) {
  const Expression& operand = expression.Operands[0];
  const bool isAny = expression.Range == Quantifier::Any;
  if (isAny && expression.Op == Operator::Equal) return WriteInQuery(operand, *expression.Query, false);
  if (!isAny && expression.Op == Operator::NotEqual) return WriteInQuery(operand, *expression.Query, true);
  const auto one = m_context.ResolveOneColumn(*expression.Query, m_scope, true);
  const QString alias = m_context.NextAlias();
  SqlValue inner = ColumnValue(DerivedColumn(alias, 0), one.Value.Type, one.Value.Size);
  inner.Kind = one.Value.Kind;
  const Operator op = isAny ? expression.Op : Negated(expression.Op);
  // For ALL the rows are counted that speak against it.
  const QString test = CompareValues(op, Write(operand), inner).Sql;
  return ConditionValue(
      u"(SELECT CASE WHEN total(%1) > 0 THEN %2 WHEN count(%1) < count(*) THEN NULL ELSE %3 END FROM (%4) AS %5)"_s
          .arg(test, isAny ? u"1"_s : u"0"_s, isAny ? u"0"_s : u"1"_s, one.Sql, alias));
}

SqlValue ExpressionWriter::WriteLike(const Expression& expression) {
  const QString value = AsText(Write(expression.Operands[0]));
  const QString pattern = AsText(Write(expression.Operands[1]));
  return ConditionValue(BinarySql(value, expression.Negated ? "NOT LIKE"_L1 : "LIKE"_L1, pattern));
}

// The bounds may stand in either order: 100 AND 7 means 7 to 100. Plain bounds are put in order here, so that
// an index can be used.
SqlValue ExpressionWriter::WriteBetween(const Expression& expression) {
  const SqlValue value = Write(expression.Operands[0]);
  const SqlValue low = Write(expression.Operands[1]);
  const SqlValue high = Write(expression.Operands[2]);
  const ComparableSides below = Comparable(value, low);
  const ComparableSides above = Comparable(value, high);
  if (below.Left != above.Left && low.Kind != ValueKind::Null && high.Kind != ValueKind::Null) {
    throw Error(ErrorCode::TypeMismatchInCondition, u"The bounds behind BETWEEN are of different kinds."_s);
  }
  const QLatin1StringView word = expression.Negated ? "NOT BETWEEN"_L1 : "BETWEEN"_L1;
  // A text compared with a date is one itself, and may be written in another order.
  const bool isOneKind = low.Kind == value.Kind || value.Kind == ValueKind::Truth;
  const auto isGreater = isOneKind ? IsGreater(low, high) : std::nullopt;
  const bool swaps = isGreater.value_or(false);
  const QString& first = swaps ? above.Right : below.Right;
  const QString& last = swaps ? below.Right : above.Right;
  if (isGreater) return ConditionValue(u"(%1 %2 %3 AND %4)"_s.arg(below.Left, word, first, last));
  if (const auto bounds = isOneKind ? OrderedBounds(low, high) : std::nullopt) {
    return ConditionValue(u"(%1 %2 %3 AND %4)"_s.arg(below.Left, word, bounds->first, bounds->second));
  }
  const QString test = u"v_between(%1, %2, %3)"_s.arg(below.Left, first, last);
  return ConditionValue(expression.Negated ? u"(NOT %1)"_s.arg(test) : test);
}

SqlValue ExpressionWriter::WriteInList(const Expression& expression) {
  const SqlValue value = Write(expression.Operands[0]);
  QStringList plain;
  QStringList tests;
  QString left;
  for (std::size_t i = 1; i < expression.Operands.size(); ++i) {
    const SqlValue item = Write(expression.Operands[i]);
    if (CompareWithTruth(Operator::Equal, value, item) || value.Kind == ValueKind::Null) {
      tests.append(CompareValues(Operator::Equal, value, item).Sql);
      continue;
    }
    const ComparableSides sides = Comparable(value, item);
    if (!left.isEmpty() && left != sides.Left) {
      tests.append(CompareValues(Operator::Equal, value, item).Sql);
      continue;
    }
    left = sides.Left;
    plain.append(sides.Right);
  }
  if (!plain.isEmpty()) tests.prepend(u'(' + left + " IN ("_L1 + plain.join(", "_L1) + "))"_L1);
  const QString all = JoinedConditions(tests, "OR"_L1);
  return ConditionValue(expression.Negated ? u"(NOT %1)"_s.arg(all) : all);
}

SqlValue ExpressionWriter::WriteInQuery(const Expression& operand, const SelectQuery& query, bool negated) {
  const SqlValue value = Write(operand);
  const auto one = m_context.ResolveOneColumn(query, m_scope, true);
  ComparableSides sides = Comparable(value, one.Value);
  QString rows = one.Sql;
  // What has to be converted to be compared is converted row by row.
  if (sides.Right != one.Value.Sql) {
    const QString alias = m_context.NextAlias();
    SqlValue column = Computed(DerivedColumn(alias, 0), one.Value.Type);
    column.Kind = one.Value.Kind;
    sides = Comparable(value, column);
    rows = u"SELECT %1 FROM (%2) AS %3"_s.arg(sides.Right, one.Sql, alias);
  }
  const QString test = u'(' + sides.Left + (negated ? " NOT IN ("_L1 : " IN ("_L1) + rows + "))"_L1;
  return ConditionValue(test);
}

}  // namespace velmora::db
