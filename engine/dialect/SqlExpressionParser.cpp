// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlParser.h"

#include <array>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

// How tight the operators bind, from loose to tight. Unary minus stands between Power and Product: -2 ^ 2 is
// -4.
enum Binding {
  BindsImp,
  BindsEqv,
  BindsXor,
  BindsOr,
  BindsAnd,
  BindsNot,
  BindsComparison,
  BindsJoin,
  BindsSum,
  BindsModulo,
  BindsWholeDivide,
  BindsProduct,
  BindsMinus,
  BindsPower,
};

struct BinaryOperator {
  QLatin1StringView Sign;
  bool IsWord;
  int Binding;
  ExpressionKind Kind;
  Operator Op;
};

constexpr auto Arithmetic = ExpressionKind::Arithmetic;
constexpr auto Logic = ExpressionKind::Logic;
constexpr auto Compare = ExpressionKind::Compare;

constexpr std::array BinaryOperators{
    BinaryOperator{"IMP"_L1, true, BindsImp, Logic, Operator::Imp},
    BinaryOperator{"EQV"_L1, true, BindsEqv, Logic, Operator::Eqv},
    BinaryOperator{"XOR"_L1, true, BindsXor, Logic, Operator::Xor},
    BinaryOperator{"OR"_L1, true, BindsOr, Logic, Operator::Or},
    BinaryOperator{"AND"_L1, true, BindsAnd, Logic, Operator::And},
    BinaryOperator{"="_L1, false, BindsComparison, Compare, Operator::Equal},
    BinaryOperator{"<>"_L1, false, BindsComparison, Compare, Operator::NotEqual},
    BinaryOperator{"<="_L1, false, BindsComparison, Compare, Operator::LessEqual},
    BinaryOperator{">="_L1, false, BindsComparison, Compare, Operator::GreaterEqual},
    BinaryOperator{"<"_L1, false, BindsComparison, Compare, Operator::Less},
    BinaryOperator{">"_L1, false, BindsComparison, Compare, Operator::Greater},
    BinaryOperator{"&"_L1, false, BindsJoin, Arithmetic, Operator::Join},
    BinaryOperator{"+"_L1, false, BindsSum, Arithmetic, Operator::Add},
    BinaryOperator{"-"_L1, false, BindsSum, Arithmetic, Operator::Subtract},
    BinaryOperator{"MOD"_L1, true, BindsModulo, Arithmetic, Operator::Modulo},
    BinaryOperator{"\\"_L1, false, BindsWholeDivide, Arithmetic, Operator::WholeDivide},
    BinaryOperator{"*"_L1, false, BindsProduct, Arithmetic, Operator::Multiply},
    BinaryOperator{"/"_L1, false, BindsProduct, Arithmetic, Operator::Divide},
    BinaryOperator{"^"_L1, false, BindsPower, Arithmetic, Operator::Power},
};

const BinaryOperator* OperatorAt(const TokenStream& tokens) {
  for (const auto& candidate : BinaryOperators) {
    if (candidate.IsWord ? tokens.IsWord(candidate.Sign) : tokens.IsSign(candidate.Sign)) return &candidate;
  }
  return nullptr;
}

Expression Leaf(ExpressionKind kind, QString text = {}) {
  Expression leaf;
  leaf.Kind = kind;
  leaf.Text = std::move(text);
  return leaf;
}

Expression With(ExpressionKind kind, Expression operand) {
  Expression whole = Leaf(kind);
  whole.Operands.push_back(std::move(operand));
  return whole;
}

// A long row of AND, OR or & becomes one node, however many conditions a user picked: it makes no deep tree.
bool Flattens(const Expression& side, const BinaryOperator& binary) {
  const bool isRow = binary.Op == Operator::And || binary.Op == Operator::Or || binary.Op == Operator::Join;
  return isRow && side.Kind == binary.Kind && side.Op == binary.Op;
}

Expression Combined(const BinaryOperator& binary, Expression left, Expression right) {
  Expression whole = Leaf(binary.Kind);
  whole.Op = binary.Op;
  for (Expression* side : {&left, &right}) {
    if (Flattens(*side, binary)) {
      if (whole.Operands.empty()) {
        whole.Operands = std::move(side->Operands);
      } else {
        std::move(side->Operands.begin(), side->Operands.end(), std::back_inserter(whole.Operands));
      }
    } else {
      whole.Operands.push_back(std::move(*side));
    }
  }
  return whole;
}

// The longest row of operators that are not flattened: "a + b - c ..." makes a tree as deep as it is long.
constexpr int LongestChain = 90;

}  // namespace

WrittenExpression Parser::ParseWritten() {
  const qsizetype place = m_tokens.Place();
  Expression value = ParseExpression();
  return {.Value = std::move(value), .Written = m_tokens.Since(place)};
}

std::vector<WrittenExpression> Parser::ParseWrittenList() {
  std::vector<WrittenExpression> list;
  do {
    list.push_back(ParseWritten());
  } while (m_tokens.TakeSign(","_L1));
  return list;
}

Expression Parser::ParseExpression() { return ParseBinary(BindsImp); }

Expression Parser::ParseBinary(int loosest) {
  const Level level(*this);
  Expression left = ParsePrefix();
  int chain = 0;
  while (true) {
    if (TakeComparison(left, loosest)) {
      if (++chain > LongestChain) Fail(ErrorCode::TooComplex);
      continue;
    }
    const BinaryOperator* binary = OperatorAt(m_tokens);
    if (binary == nullptr || binary->Binding < loosest) return left;
    m_tokens.Take();
    if (!Flattens(left, *binary) && ++chain > LongestChain) Fail(ErrorCode::TooComplex);
    if (binary->Kind == Compare) {
      left = ParseComparison(binary->Op, std::move(left));
    } else {
      // All bind to the left: 8 - 4 - 2 is 2, 2 ^ 3 ^ 2 is 64.
      Expression right = ParseBinary(binary->Binding + 1);
      left = Combined(*binary, std::move(left), std::move(right));
    }
  }
}

/// The comparisons that are words: LIKE, IN, BETWEEN, each with NOT or without, and IS.
bool Parser::TakeComparison(Expression& left, int loosest) {
  if (BindsComparison < loosest) return false;
  const std::size_t at = m_tokens.IsWord("NOT"_L1) ? 1 : 0;
  const bool isLike = m_tokens.IsWord("LIKE"_L1, at);
  const bool isIn = m_tokens.IsWord("IN"_L1, at);
  const bool isBetween = m_tokens.IsWord("BETWEEN"_L1, at);
  const bool isIs = at == 0 && m_tokens.IsWord("IS"_L1);
  if (!isLike && !isIn && !isBetween && !isIs) return false;
  if (at == 1) m_tokens.Take();
  m_tokens.Take();
  if (isLike) {
    Expression like = With(ExpressionKind::Like, std::move(left));
    like.Operands.push_back(ParseBinary(BindsComparison + 1));
    left = std::move(like);
  } else if (isIn) {
    left = ParseIn(std::move(left));
  } else if (isBetween) {
    left = ParseBetween(std::move(left));
  } else {
    left = ParseIsNull(std::move(left));
  }
  if (at == 1) left.Negated = true;
  return true;
}

Expression Parser::ParseComparison(Operator op, Expression left) {
  Expression whole = With(Compare, std::move(left));
  whole.Op = op;
  const bool isAny = m_tokens.IsWord("ANY"_L1) || m_tokens.IsWord("SOME"_L1);
  if ((isAny || m_tokens.IsWord("ALL"_L1)) && m_tokens.IsSign("("_L1, 1)) {
    m_tokens.Take();
    m_tokens.Take();
    whole.Range = isAny ? Quantifier::Any : Quantifier::All;
    whole.Query = ParseNestedSelect();
    Need(")"_L1, ErrorCode::SyntaxInExpression);
    return whole;
  }
  whole.Operands.push_back(ParseBinary(BindsComparison + 1));
  return whole;
}

Expression Parser::ParseIn(Expression left) {
  Need("("_L1, ErrorCode::SyntaxInExpression);
  Expression whole = With(ExpressionKind::InList, std::move(left));
  if (m_tokens.IsWord("SELECT"_L1)) {
    whole.Kind = ExpressionKind::InQuery;
    whole.Query = ParseNestedSelect();
  } else {
    do {
      whole.Operands.push_back(ParseExpression());
    } while (m_tokens.TakeSign(","_L1));
  }
  Need(")"_L1, ErrorCode::SyntaxInExpression);
  return whole;
}

Expression Parser::ParseBetween(Expression left) {
  Expression whole = With(ExpressionKind::Between, std::move(left));
  whole.Operands.push_back(ParseBinary(BindsComparison + 1));
  NeedWord("AND"_L1, ErrorCode::SyntaxInExpression);
  whole.Operands.push_back(ParseBinary(BindsComparison + 1));
  return whole;
}

Expression Parser::ParseIsNull(Expression left) {
  Expression whole = With(ExpressionKind::IsNull, std::move(left));
  whole.Negated = m_tokens.TakeWord("NOT"_L1);
  NeedWord("NULL"_L1, ErrorCode::SyntaxInExpression);
  return whole;
}

Expression Parser::ParsePrefix() {
  if (m_tokens.TakeWord("NOT"_L1)) return With(ExpressionKind::Not, ParseBinary(BindsComparison));
  if (m_tokens.TakeSign("-"_L1)) return With(ExpressionKind::Negate, ParseBinary(BindsPower));
  if (m_tokens.TakeSign("+"_L1)) return ParseBinary(BindsPower);
  return ParsePrimary();
}

Expression Parser::ParsePrimary() {
  const Token& token = m_tokens.Peek();
  switch (token.Kind) {
    case TokenKind::Text:
      return Leaf(ExpressionKind::Text, m_tokens.Take().Text);
    case TokenKind::Number:
      return Leaf(ExpressionKind::Number, m_tokens.Take().Text);
    case TokenKind::Date:
      return Leaf(ExpressionKind::Date, m_tokens.Take().Text);
    case TokenKind::BracketedName:
      return ParseColumn();
    case TokenKind::Word:
      return ParseWord();
    case TokenKind::Sign:
      if (m_tokens.IsSign("("_L1)) return ParseParentheses();
      if (m_tokens.IsSign("?"_L1) && m_use == ParameterUse::Allowed) return ParseParameter();
      break;
    case TokenKind::End:
    case TokenKind::Unreadable:
      break;
  }
  Fail(ErrorCode::SyntaxInExpression);
}

Expression Parser::ParseParameter() {
  m_tokens.Take();
  Expression parameter = Leaf(ExpressionKind::Parameter);
  parameter.Place = m_parameters++;
  return parameter;
}

Expression Parser::ParseParentheses() {
  const Level level(*this);
  m_tokens.Take();
  Expression inside;
  if (m_tokens.IsWord("SELECT"_L1)) {
    inside = Leaf(ExpressionKind::Query);
    inside.Query = ParseNestedSelect();
  } else {
    inside = ParseExpression();
  }
  Need(")"_L1, ErrorCode::SyntaxInExpression);
  return inside;
}

Expression Parser::ParseWord() {
  struct Constant {
    QLatin1StringView Word;
    ExpressionKind Kind;
    QLatin1StringView Text;
  };
  static constexpr std::array Constants{
      Constant{"NULL"_L1, ExpressionKind::Null, ""_L1},  Constant{"TRUE"_L1, ExpressionKind::Truth, "1"_L1},
      Constant{"YES"_L1, ExpressionKind::Truth, "1"_L1}, Constant{"FALSE"_L1, ExpressionKind::Truth, "0"_L1},
      Constant{"NO"_L1, ExpressionKind::Truth, "0"_L1},
  };
  for (const auto& constant : Constants) {
    if (m_tokens.TakeWord(constant.Word)) return Leaf(constant.Kind, QString(constant.Text));
  }
  if (m_tokens.IsSign("("_L1, 1)) return ParseCall();
  return ParseColumn();
}

Expression Parser::ParseCall() {
  if (m_tokens.TakeWord("EXISTS"_L1)) {
    m_tokens.Take();
    Expression exists = Leaf(ExpressionKind::Exists);
    exists.Query = ParseNestedSelect();
    Need(")"_L1, ErrorCode::SyntaxInExpression);
    return exists;
  }
  // LEFT and RIGHT are the only reserved words that name functions too.
  const bool isFunction = AtName() || m_tokens.IsWord("LEFT"_L1) || m_tokens.IsWord("RIGHT"_L1);
  if (!isFunction) Fail(ErrorCode::SyntaxInExpression);
  Expression call = Leaf(ExpressionKind::Call, m_tokens.Take().Text.toUpper());
  m_tokens.Take();
  if (call.Text == "COUNT"_L1 && m_tokens.TakeSign("*"_L1)) {
    call.Kind = ExpressionKind::CountRows;
  } else if (!m_tokens.IsSign(")"_L1)) {
    do {
      call.Operands.push_back(ParseExpression());
    } while (m_tokens.TakeSign(","_L1));
  }
  Need(")"_L1, ErrorCode::SyntaxInExpression);
  return call;
}

Expression Parser::ParseColumn() {
  Expression column = Leaf(ExpressionKind::Column, TakeName(ErrorCode::SyntaxInExpression));
  // The exclamation mark stands for the full stop too.
  if (m_tokens.TakeSign("."_L1) || m_tokens.TakeSign("!"_L1)) {
    column.Qualifier = std::exchange(column.Text, QString());
    const Token& name = m_tokens.Peek();
    if (name.Kind != TokenKind::Word && name.Kind != TokenKind::BracketedName)
      Fail(ErrorCode::SyntaxInExpression);
    column.Text = m_tokens.Take().Text;
  }
  return column;
}

}  // namespace velmora::db
