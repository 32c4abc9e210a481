// SPDX-License-Identifier: MIT
#include "base/dates/Dates.h"
#include "engine/dialect/SqlExpressionWriter.h"
#include "engine/values/Error.h"

#include <algorithm>
#include <array>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

/// A function of the dialect that becomes a call of one of ours. `Arguments` holds a letter for each: t a
/// text, n a number, d a date; those behind the bar may be left out.
struct CallRule {
  QLatin1StringView Name;
  QLatin1StringView Arguments;
  QLatin1StringView Function;
  FieldType Type;
};

constexpr std::array CallRules{
    CallRule{"ABS"_L1, "n"_L1, "abs"_L1, FieldType::Double},
    CallRule{"CBOOL"_L1, "n"_L1, "v_truth"_L1, FieldType::YesNo},
    CallRule{"CCUR"_L1, "n"_L1, "v_currency"_L1, FieldType::Currency},
    CallRule{"CDATE"_L1, "d"_L1, ""_L1, FieldType::Date},
    CallRule{"CDBL"_L1, "n"_L1, ""_L1, FieldType::Double},
    CallRule{"CINT"_L1, "n"_L1, "v_whole"_L1, FieldType::Long},
    CallRule{"CLNG"_L1, "n"_L1, "v_whole"_L1, FieldType::Long},
    CallRule{"CSTR"_L1, "t"_L1, ""_L1, FieldType::Memo},
    CallRule{"DATE"_L1, ""_L1, "v_today"_L1, FieldType::Date},
    CallRule{"DATESERIAL"_L1, "nnn"_L1, "v_date_serial"_L1, FieldType::Date},
    CallRule{"DAY"_L1, "d"_L1, "v_day"_L1, FieldType::Long},
    CallRule{"FIX"_L1, "n"_L1, "v_fix"_L1, FieldType::Double},
    CallRule{"HOUR"_L1, "d"_L1, "v_hour"_L1, FieldType::Long},
    CallRule{"INT"_L1, "n"_L1, "v_int"_L1, FieldType::Double},
    CallRule{"LCASE"_L1, "t"_L1, "v_lower"_L1, FieldType::Memo},
    CallRule{"LEFT"_L1, "tn"_L1, "v_left"_L1, FieldType::Memo},
    CallRule{"LEN"_L1, "t"_L1, "v_len"_L1, FieldType::Long},
    CallRule{"LTRIM"_L1, "t"_L1, "v_ltrim"_L1, FieldType::Memo},
    CallRule{"MID"_L1, "tn|n"_L1, "v_mid"_L1, FieldType::Memo},
    CallRule{"MINUTE"_L1, "d"_L1, "v_minute"_L1, FieldType::Long},
    CallRule{"MONTH"_L1, "d"_L1, "v_month"_L1, FieldType::Long},
    CallRule{"NOW"_L1, ""_L1, "v_now"_L1, FieldType::Date},
    CallRule{"REPLACE"_L1, "ttt"_L1, "v_replace"_L1, FieldType::Memo},
    CallRule{"RIGHT"_L1, "tn"_L1, "v_right"_L1, FieldType::Memo},
    CallRule{"ROUND"_L1, "n|n"_L1, "v_round"_L1, FieldType::Double},
    CallRule{"RTRIM"_L1, "t"_L1, "v_rtrim"_L1, FieldType::Memo},
    CallRule{"SECOND"_L1, "d"_L1, "v_second"_L1, FieldType::Long},
    CallRule{"SGN"_L1, "n"_L1, "v_sign"_L1, FieldType::Long},
    CallRule{"SPACE"_L1, "n"_L1, "v_space"_L1, FieldType::Memo},
    CallRule{"SQR"_L1, "n"_L1, "v_root"_L1, FieldType::Double},
    CallRule{"TRIM"_L1, "t"_L1, "v_trim"_L1, FieldType::Memo},
    CallRule{"UCASE"_L1, "t"_L1, "v_upper"_L1, FieldType::Memo},
    CallRule{"VAL"_L1, "t"_L1, "v_val"_L1, FieldType::Double},
    CallRule{"WEEKDAY"_L1, "d"_L1, "v_weekday"_L1, FieldType::Long},
    CallRule{"YEAR"_L1, "d"_L1, "v_year"_L1, FieldType::Long},
};

constexpr std::array AggregateNames{"AVG"_L1, "COUNT"_L1, "FIRST"_L1, "LAST"_L1,
                                    "MAX"_L1, "MIN"_L1,   "SUM"_L1};

bool IsAggregate(const Expression& expression) {
  if (expression.Kind == ExpressionKind::CountRows) return true;
  return expression.Kind == ExpressionKind::Call &&
         std::find(AggregateNames.begin(), AggregateNames.end(), expression.Text) != AggregateNames.end();
}

void NeedArguments(const Expression& call, std::size_t least, std::size_t most) {
  if (call.Operands.size() >= least && call.Operands.size() <= most) return;
  throw Error(ErrorCode::SyntaxInExpression,
              u"Wrong number of arguments used with function %1."_s.arg(call.Text));
}

/// The kind that two outcomes of one expression share; what has none in common becomes a text.
SqlValue Shared(QString sql, const SqlValue& first, const SqlValue& second) {
  if (first.Kind == ValueKind::Null) return Computed(std::move(sql), second.Type);
  if (second.Kind == ValueKind::Null || first.Type == second.Type)
    return Computed(std::move(sql), first.Type);
  const auto isNumber = [](const SqlValue& value) {
    return value.Kind == ValueKind::Number || value.Kind == ValueKind::Truth;
  };
  return Computed(std::move(sql), isNumber(first) && isNumber(second) ? FieldType::Double : FieldType::Memo);
}

/// Both as SQL of the kind that Shared gives them.
std::pair<QString, QString> SharedSides(const SqlValue& first, const SqlValue& second) {
  const bool isText = ValueKindOf(Shared({}, first, second).Type) == ValueKind::Text;
  const auto side = [&](const SqlValue& value) { return isText ? AsText(value) : Plain(value); };
  return {side(first), side(second)};
}

}  // namespace

bool HasAggregate(const Expression& expression) {
  return IsAggregate(expression) ||
         std::any_of(expression.Operands.begin(), expression.Operands.end(), HasAggregate);
}

SqlValue ExpressionWriter::WriteCall(const Expression& call) {
  if (IsAggregate(call)) return WriteAggregate(call);
  const auto rule = std::find_if(CallRules.begin(), CallRules.end(),
                                 [&](const CallRule& candidate) { return candidate.Name == call.Text; });
  if (rule == CallRules.end()) return WriteSpecialCall(call);
  const QString letters = QString(rule->Arguments).remove(u'|');
  const qsizetype bar = rule->Arguments.indexOf(u'|');
  NeedArguments(call, static_cast<std::size_t>(bar < 0 ? letters.size() : bar),
                static_cast<std::size_t>(letters.size()));
  QStringList arguments;
  for (const auto& operand : call.Operands) {
    const SqlValue value = Write(operand);
    const QChar letter = letters[arguments.size()];
    arguments.append(letter == u't' ? AsText(value) : letter == u'd' ? AsDate(value) : AsNumber(value));
  }
  if (rule->Function.isEmpty()) return Computed(arguments.front(), rule->Type);
  return Computed(rule->Function + u'(' + arguments.join(", "_L1) + u')', rule->Type);
}

SqlValue ExpressionWriter::WriteSpecialCall(const Expression& call) {
  if (call.Text == "ISNULL"_L1) {
    NeedArguments(call, 1, 1);
    return ConditionValue(u"(%1 IS NULL)"_s.arg(Write(call.Operands[0]).Sql));
  }
  if (call.Text == "IIF"_L1) {
    NeedArguments(call, 3, 3);
    const QString condition = Condition(call.Operands[0]);
    const SqlValue yes = Write(call.Operands[1]);
    const SqlValue no = Write(call.Operands[2]);
    const auto [first, second] = SharedSides(yes, no);
    return Shared(u"(CASE WHEN %1 THEN %2 ELSE %3 END)"_s.arg(condition, first, second), yes, no);
  }
  if (call.Text == "NZ"_L1) {
    NeedArguments(call, 1, 2);
    const SqlValue value = Write(call.Operands[0]);
    const bool isText = value.Kind == ValueKind::Text || value.Kind == ValueKind::Null;
    const SqlValue other = call.Operands.size() > 1 ? Write(call.Operands[1])
                           : isText                 ? TextLiteral({})
                                                    : NumberLiteral(u"0"_s);
    const auto [first, second] = SharedSides(value, other);
    return Shared(u"ifnull(%1, %2)"_s.arg(first, second), value, other);
  }
  if (call.Text == "INSTR"_L1) {
    NeedArguments(call, 2, 3);
    const bool hasStart = call.Operands.size() == 3;
    const QString start = hasStart ? AsNumber(Write(call.Operands[0])) : u"1"_s;
    const QString text = AsText(Write(call.Operands[hasStart ? 1 : 0]));
    const QString part = AsText(Write(call.Operands[hasStart ? 2 : 1]));
    return Computed(u"v_in_text(%1, %2, %3)"_s.arg(start, text, part), FieldType::Long);
  }
  if (call.Text == "DATEVALUE"_L1) {
    NeedArguments(call, 1, 1);
    const SqlValue value = Write(call.Operands[0]);
    if (value.Form == ValueForm::Parameter && value.Kind == ValueKind::Text) return DayParameter(value);
    const QString date = AsDate(value);
    if (value.Form != ValueForm::Literal || value.Kind != ValueKind::Text) {
      return Computed(u"v_date_value(%1)"_s.arg(date), FieldType::Date);
    }
    // Written as a date, so that it is read once and an index on the column compared with it can be used.
    return DateLiteral(StoredDate(QDateTime(ParseDate(value.Literal)->date(), QTime(0, 0), Qt::UTC)));
  }
  throw Error(ErrorCode::UndefinedFunction, u"Undefined function \"%1\" in expression."_s.arg(call.Text));
}

SqlValue ExpressionWriter::WriteAggregate(const Expression& call) {
  if (!m_aggregatesAllowed || m_inAggregate) {
    throw Error(ErrorCode::AggregateInWhere, u"%1 can't be used here."_s.arg(call.Text));
  }
  if (call.Kind == ExpressionKind::CountRows) return Computed(u"count(*)"_s, FieldType::Long);
  NeedArguments(call, 1, 1);
  m_inAggregate = true;
  const SqlValue value = Write(call.Operands[0]);
  m_inAggregate = false;
  if (call.Text == "COUNT"_L1) return Computed(u"count(%1)"_s.arg(value.Sql), FieldType::Long);
  if (call.Text == "SUM"_L1) {
    const FieldType type = value.Kind == ValueKind::Truth ? FieldType::Long : value.Type;
    return Computed(u"sum(%1)"_s.arg(AsNumber(value)),
                    ValueKindOf(type) == ValueKind::Number ? type : FieldType::Double);
  }
  if (call.Text == "AVG"_L1) return Computed(u"avg(%1)"_s.arg(AsNumber(value)), FieldType::Double);
  SqlValue result = Computed({}, value.Type);
  result.Size = value.Size;
  if (call.Text == "MIN"_L1 || call.Text == "MAX"_L1) {
    const QString argument = value.Kind == ValueKind::Text ? AsKey(value) : Plain(value);
    result.Sql = call.Text.toLower() + u'(' + argument + u')';
  } else {
    const QString order = m_rowKey.isEmpty() ? u"0"_s : m_rowKey;
    result.Sql = u"v_%1(%2, %3)"_s.arg(call.Text.toLower(), Plain(value), order);
  }
  return result;
}

}  // namespace velmora::db
