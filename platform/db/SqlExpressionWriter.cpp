// SPDX-License-Identifier: MIT
#include "platform/db/SqlExpressionWriter.h"

#include "platform/dates/Dates.h"
#include "platform/db/Error.h"
#include "platform/db/TextRules.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

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

QString Between(const QString& left, QLatin1StringView sign, const QString& right) {
  return u'(' + left + u' ' + sign + u' ' + right + u')';
}

// "= TRUE" asks whether a number is other than zero, whatever number stands for true in the file.
std::optional<SqlValue> CompareWithTruth(Operator op, const SqlValue& left, const SqlValue& right) {
  if (op != Operator::Equal && op != Operator::NotEqual) return std::nullopt;
  for (const auto& [literal, other] : {std::pair(&left, &right), std::pair(&right, &left)}) {
    if (literal->Kind != ValueKind::Truth || literal->Form != ValueForm::Literal) continue;
    if (other->Kind != ValueKind::Truth && other->Kind != ValueKind::Number) continue;
    const bool wantsTruth = (literal->Literal == u"1") == (op == Operator::Equal);
    if (other->IsCondition) return wantsTruth ? *other : ConditionValue(u"(NOT %1)"_s.arg(other->Sql));
    return ConditionValue(Between(other->Sql, wantsTruth ? "<>"_L1 : "="_L1, u"0"_s));
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

FieldType ResultOf(const SqlValue& left, const SqlValue& right) {
  const auto is = [](const SqlValue& value, FieldType type) { return value.Type == type; };
  const auto either = [&](FieldType type) { return is(left, type) || is(right, type); };
  if (either(FieldType::Currency)) return FieldType::Currency;
  const auto isWhole = [&](const SqlValue& value) {
    return is(value, FieldType::Long) || is(value, FieldType::YesNo);
  };
  return isWhole(left) && isWhole(right) ? FieldType::Long : FieldType::Double;
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

}  // namespace

SqlValue CompareValues(Operator op, const SqlValue& left, const SqlValue& right) {
  if (auto truth = CompareWithTruth(op, left, right)) return *truth;
  const ComparableSides sides = Comparable(left, right);
  return ConditionValue(Between(sides.Left, SignOf(op), sides.Right));
}

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
  m_translator.Count(value.Sql);
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
  const auto one = m_translator.ResolveOneColumn(*expression.Query, m_scope, false);
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
  if (!moment) throw Error(ErrorCode::TypeMismatchInCondition, u"#%1# is no date."_s.arg(date.Text));
  return DateLiteral(StoredDate(*moment));
}

SqlValue ExpressionWriter::WriteNegate(const Expression& expression) {
  const SqlValue value = Write(expression.Operands[0]);
  const bool isPlainNumber = value.Kind == ValueKind::Number && value.Form == ValueForm::Literal;
  if (isPlainNumber && !value.Literal.startsWith(u'-')) return NumberLiteral(u'-' + value.Literal);
  const FieldType type = value.Type == FieldType::Long || value.Type == FieldType::Currency ? value.Type
                         : value.Kind == ValueKind::Truth                                   ? FieldType::Long
                                                          : FieldType::Double;
  // The blank keeps two of them from becoming a comment.
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
      return ConditionValue(Between(sides[0], "<>"_L1, sides[1]));
    case Operator::Eqv:
      return ConditionValue(Between(sides[0], "="_L1, sides[1]));
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
      return Computed(Between(a, "*"_L1, b), ResultOf(left, right));
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
    return Computed(Between(left.Sql, "||"_L1, right.Sql), FieldType::Memo);
  }
  if (left.Kind == ValueKind::Null || right.Kind == ValueKind::Null) return NullValue();
  const QString sum = Between(AsNumber(left), SignOf(op), AsNumber(right));
  const bool isDate = (left.Kind == ValueKind::Date) != (right.Kind == ValueKind::Date);
  if (isDate) return Computed("v_from_serial("_L1 + sum + u')', FieldType::Date);
  return Computed(sum, ResultOf(left, right));
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
  const auto one = m_translator.ResolveOneColumn(*expression.Query, m_scope, true);
  const QString alias = m_translator.NextAlias();
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
  return ConditionValue(Between(value, expression.Negated ? "NOT LIKE"_L1 : "LIKE"_L1, pattern));
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
  const auto isGreater =
      low.Kind == value.Kind || value.Kind == ValueKind::Truth ? IsGreater(low, high) : std::nullopt;
  const bool swaps = isGreater.value_or(false);
  const QString& first = swaps ? above.Right : below.Right;
  const QString& last = swaps ? below.Right : above.Right;
  if (isGreater) return ConditionValue(u"(%1 %2 %3 AND %4)"_s.arg(below.Left, word, first, last));
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
  const auto one = m_translator.ResolveOneColumn(query, m_scope, true);
  ComparableSides sides = Comparable(value, one.Value);
  QString rows = one.Sql;
  // What has to be converted to be compared is converted row by row.
  if (sides.Right != one.Value.Sql) {
    const QString alias = m_translator.NextAlias();
    SqlValue column = Computed(DerivedColumn(alias, 0), one.Value.Type);
    column.Kind = one.Value.Kind;
    sides = Comparable(value, column);
    rows = u"SELECT %1 FROM (%2) AS %3"_s.arg(sides.Right, one.Sql, alias);
  }
  const QString test = u'(' + sides.Left + (negated ? " NOT IN ("_L1 : " IN ("_L1) + rows + "))"_L1;
  return ConditionValue(test);
}

SqlValue ExpressionWriter::WriteExists(const Expression& expression) {
  SelectParts parts = m_translator.Resolve(*expression.Query, &m_scope);
  if (!parts.Top) parts.Order.clear();
  return ConditionValue("(EXISTS ("_L1 + SelectSql(parts, false) + "))"_L1);
}

SqlValue ExpressionWriter::WriteIsNull(const Expression& expression) {
  const SqlValue value = Write(expression.Operands[0]);
  return ConditionValue(u'(' + value.Sql + (expression.Negated ? " IS NOT NULL)"_L1 : " IS NULL)"_L1));
}

}  // namespace velmora::db
