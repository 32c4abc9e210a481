// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlExpressionWriter.h"

#include "base/dates/Dates.h"
#include "engine/text/Collation.h"
#include "engine/values/Error.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

FieldType ResultOf(const SqlValue& left, const SqlValue& right) {
  const auto is = [](const SqlValue& value, FieldType type) { return value.Type == type; };
  const auto either = [&](FieldType type) { return is(left, type) || is(right, type); };
  if (either(FieldType::Currency)) return FieldType::Currency;
  const auto isWhole = [&](const SqlValue& value) {
    return is(value, FieldType::Long) || is(value, FieldType::YesNo);
  };
  return isWhole(left) && isWhole(right) ? FieldType::Long : FieldType::Double;
}

}  // namespace

void ExpressionWriter::AllowAggregates(const QStringList& groups, const QString& rowKey) {
  m_aggregatesAllowed = true;
  m_groups = groups;
  m_rowKey = rowKey;
}

SqlValue ExpressionWriter::Write(const Expression& expression) {
  const qsizetype looseBefore = m_loose.size();
  ++m_depth;
  SqlValue value = WriteNode(expression);
  --m_depth;
  m_context.Count(value.Sql);
  if (!m_aggregatesAllowed || m_inAggregate) return value;
  if (m_groups.contains(AsKey(value))) m_loose.resize(looseBefore);
  if (m_depth == 0 && !m_loose.isEmpty()) {
    throw Error(
        ErrorCode::NotInAggregate,
        u"%1 is neither computed over the rows nor one of the GROUP BY columns."_s.arg(m_loose.front()));
  }
  return value;
}

SqlValue ExpressionWriter::WriteNode(const Expression& expression) {
  switch (expression.Kind) {
    case ExpressionKind::Null:
      return NullValue();
    case ExpressionKind::Truth:
      return TruthLiteral(expression.Text == u"1");
    case ExpressionKind::Number:
      return NumberLiteral(expression.Text);
    case ExpressionKind::Text:
      return TextLiteral(expression.Text);
    case ExpressionKind::Date:
      return WriteDate(expression);
    case ExpressionKind::Parameter:
      return m_context.Parameter(expression.Place);
    case ExpressionKind::Column:
      return WriteColumn(expression);
    case ExpressionKind::Negate:
      return WriteNegate(expression);
    case ExpressionKind::Not:
      return ConditionValue(u"(NOT %1)"_s.arg(Condition(expression.Operands[0])));
    case ExpressionKind::Arithmetic:
      return WriteArithmetic(expression);
    case ExpressionKind::Logic:
      return WriteLogic(expression);
    case ExpressionKind::Compare:
      return WriteCompare(expression);
    case ExpressionKind::Like:
      return WriteLike(expression);
    case ExpressionKind::Between:
      return WriteBetween(expression);
    case ExpressionKind::InList:
      return WriteInList(expression);
    case ExpressionKind::InQuery:
      return WriteInQuery(expression.Operands[0], *expression.Query, expression.Negated);
    case ExpressionKind::Exists:
      return WriteExists(expression);
    case ExpressionKind::IsNull:
      return WriteIsNull(expression);
    case ExpressionKind::Call:
    case ExpressionKind::CountRows:
      return WriteCall(expression);
    case ExpressionKind::Query:
      break;
  }
  const auto one = m_context.ResolveOneColumn(*expression.Query, m_scope, false);
  SqlValue value = Computed(u'(' + one.Sql + u')', one.Value.Type);
  value.Size = one.Value.Size;
  value.Kind = one.Value.Kind;
  return value;
}

std::optional<ExpressionWriter::FoundColumn> ExpressionWriter::Find(const Expression& column,
                                                                    const Scope& place) {
  const QString name = FoldName(column.Text);
  const QString qualifier = FoldName(column.Qualifier);
  for (const Scope* scope = &place; scope != nullptr; scope = scope->Outer) {
    FoundColumn found;
    for (const NamedSource& source : scope->Sources) {
      if (!qualifier.isEmpty() && source.Folded != qualifier) continue;
      for (const NamedColumn& candidate : source.Columns) {
        if (candidate.Folded != name) continue;
        if (found.Column != nullptr) {
          throw Error(ErrorCode::AmbiguousColumn,
                      u"The column \"%1\" could be of more than one table."_s.arg(column.Text));
        }
        found = {.Column = &candidate, .Source = &source, .IsOuter = scope != &place};
      }
    }
    if (found.Column != nullptr) return found;
  }
  return std::nullopt;
}

SqlValue ExpressionWriter::WriteColumn(const Expression& column) {
  const auto found = Find(column, m_scope);
  if (!found) {
    throw Error(ErrorCode::UnknownParameter,
                u"Too few parameters. Expected 1: there is no column \"%1\"."_s.arg(column.Text));
  }
  if (!found->IsOuter && !m_inAggregate) m_loose.append(column.Text);
  return found->Column->Value;
}

SqlValue ExpressionWriter::WriteDate(const Expression& date) const {
  // A time alone is one of the day from which dates are counted.
  const bool isTime = date.Text.contains(u':') && !date.Text.contains(u'/') && !date.Text.contains(u'-');
  const auto moment = ParseDateMonthFirst(isTime ? "1899-12-30 "_L1 + date.Text.trimmed() : date.Text);
  if (!moment) throw Error(ErrorCode::TypeMismatchInCondition, u"#%1# is not a date."_s.arg(date.Text));
  return DateLiteral(StoredDate(*moment));
}

SqlValue ExpressionWriter::WriteNegate(const Expression& expression) {
  const SqlValue value = Write(expression.Operands[0]);
  const bool isPlainNumber = value.Kind == ValueKind::Number && value.Form == ValueForm::Literal;
  if (isPlainNumber && !value.Literal.startsWith(u'-')) return NumberLiteral(u'-' + value.Literal);
  const FieldType type = value.Type == FieldType::Long || value.Type == FieldType::Currency ? value.Type
                         : value.Kind == ValueKind::Truth                                   ? FieldType::Long
                                                          : FieldType::Double;
  // The space keeps two of them from becoming a comment.
  return Computed(u"(- %1)"_s.arg(AsNumber(value)), type);
}

SqlValue ExpressionWriter::WriteLogic(const Expression& expression) {
  QStringList sides;
  for (const auto& operand : expression.Operands) sides.append(Condition(operand));
  switch (expression.Op) {
    case Operator::And:
    case Operator::Or:
      return ConditionValue(JoinedConditions(sides, SignOf(expression.Op)));
    case Operator::Xor:
      return ConditionValue(BinarySql(sides[0], "<>"_L1, sides[1]));
    case Operator::Eqv:
      return ConditionValue(BinarySql(sides[0], "="_L1, sides[1]));
    default:
      return ConditionValue(u"((NOT %1) OR %2)"_s.arg(sides[0], sides[1]));
  }
}

SqlValue ExpressionWriter::WriteArithmetic(const Expression& expression) {
  if (expression.Op == Operator::Join) return WriteJoin(expression);
  const SqlValue left = Write(expression.Operands[0]);
  const SqlValue right = Write(expression.Operands[1]);
  if (expression.Op == Operator::Add || expression.Op == Operator::Subtract) {
    return WriteSum(expression.Op, left, right);
  }
  const QString a = AsNumber(left);
  const QString b = AsNumber(right);
  switch (expression.Op) {
    case Operator::Multiply:
      return Computed(BinarySql(a, "*"_L1, b), ResultOf(left, right));
    // SQLite would divide two whole numbers without a rest.
    case Operator::Divide:
      return Computed(u"(CAST(%1 AS REAL) / %2)"_s.arg(a, b), FieldType::Double);
    case Operator::WholeDivide:
      return Computed(u"v_whole_divide(%1, %2)"_s.arg(a, b), FieldType::Long);
    case Operator::Modulo:
      return Computed(u"v_modulo(%1, %2)"_s.arg(a, b), FieldType::Long);
    default:
      return Computed(u"v_power(%1, %2)"_s.arg(a, b), FieldType::Double);
  }
}

// SQLite bounds the number of a function's arguments; a longer row is joined in pieces.
SqlValue ExpressionWriter::WriteJoin(const Expression& expression) {
  constexpr qsizetype most = 100;
  QStringList texts;
  for (const auto& operand : expression.Operands) texts.append(AsText(Write(operand)));
  while (texts.size() > 1) {
    QStringList pieces;
    for (qsizetype i = 0; i < texts.size(); i += most) {
      pieces.append("v_join("_L1 + texts.mid(i, most).join(", "_L1) + u')');
    }
    texts = std::move(pieces);
  }
  return Computed(texts.front(), FieldType::Memo);
}

SqlValue ExpressionWriter::WriteSum(Operator op, const SqlValue& left, const SqlValue& right) const {
  if (op == Operator::Add && left.Kind == ValueKind::Text && right.Kind == ValueKind::Text) {
    return Computed(BinarySql(left.Sql, "||"_L1, right.Sql), FieldType::Memo);
  }
  if (left.Kind == ValueKind::Null || right.Kind == ValueKind::Null) return NullValue();
  const QString sum = BinarySql(AsNumber(left), SignOf(op), AsNumber(right));
  const bool isDate = (left.Kind == ValueKind::Date) != (right.Kind == ValueKind::Date);
  if (isDate) return Computed("v_from_serial("_L1 + sum + u')', FieldType::Date);
  return Computed(sum, ResultOf(left, right));
}

SqlValue ExpressionWriter::WriteExists(const Expression& expression) {
  SelectParts parts = m_context.Resolve(*expression.Query, &m_scope);
  if (!parts.Top) parts.Order.clear();
  return ConditionValue("(EXISTS ("_L1 + SelectSql(parts, false) + "))"_L1);
}

SqlValue ExpressionWriter::WriteIsNull(const Expression& expression) {
  const SqlValue value = Write(expression.Operands[0]);
  return ConditionValue(u'(' + value.Sql + (expression.Negated ? " IS NOT NULL)"_L1 : " IS NULL)"_L1));
}

}  // namespace velmora::db
