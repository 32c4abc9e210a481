// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlParser.h"

#include <algorithm>
#include <array>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

struct SyntaxMessage {
  ErrorCode Code;
  QLatin1StringView Text;
};

constexpr std::array SyntaxMessages{
    SyntaxMessage{ErrorCode::SyntaxInExpression, "Syntax error in query expression"_L1},
    SyntaxMessage{ErrorCode::CannotParse,
                  "Invalid SQL statement; DELETE, INSERT, SELECT or UPDATE is expected"_L1},
    SyntaxMessage{ErrorCode::SyntaxInFrom, "Syntax error in FROM clause"_L1},
    SyntaxMessage{ErrorCode::SyntaxInJoin, "Syntax error in JOIN operation"_L1},
    SyntaxMessage{ErrorCode::MissingOperand, "Syntax error in WHERE clause"_L1},
    SyntaxMessage{ErrorCode::SyntaxInGroupBy, "Syntax error in GROUP BY clause"_L1},
    SyntaxMessage{ErrorCode::SyntaxInHaving, "Syntax error in HAVING clause"_L1},
    SyntaxMessage{ErrorCode::SyntaxInOrderBy, "Syntax error in ORDER BY clause"_L1},
    SyntaxMessage{ErrorCode::SyntaxInInsert, "Syntax error in INSERT INTO statement"_L1},
    SyntaxMessage{ErrorCode::SyntaxInUpdate, "Syntax error in UPDATE statement"_L1},
    SyntaxMessage{
        ErrorCode::ReservedWordOrName,
        "The SELECT statement includes a reserved word or a name that is misspelled or missing, or the "
        "punctuation is incorrect"_L1},
    SyntaxMessage{ErrorCode::TextAfterEnd, "Characters found after end of SQL statement"_L1},
    SyntaxMessage{ErrorCode::TooComplex, "The query is too complex"_L1},
};

// People's statements nest a few levels; this is far from what the stack bears.
constexpr int DeepestNesting = 250;
constexpr int LongestJoinChain = 60;

}  // namespace

Parser::Level::Level(Parser& parser) : m_parser(parser) {
  if (++m_parser.m_depth <= DeepestNesting) return;
  --m_parser.m_depth;
  m_parser.Fail(ErrorCode::TooComplex);
}

void Parser::Fail(ErrorCode failure) const {
  QString text;
  for (const auto& message : SyntaxMessages) {
    if (message.Code == failure) text = message.Text;
  }
  const Token& next = m_tokens.Peek();
  throw Error(failure, next.Kind == TokenKind::End ? text + u'.' : u"%1, at \"%2\"."_s.arg(text, next.Text));
}

void Parser::Need(QLatin1StringView sign, ErrorCode failure) {
  if (!m_tokens.TakeSign(sign)) Fail(failure);
}

void Parser::NeedWord(QLatin1StringView word, ErrorCode failure) {
  if (!m_tokens.TakeWord(word)) Fail(failure);
}

bool Parser::AtName() const {
  const Token& token = m_tokens.Peek();
  return token.Kind == TokenKind::BracketedName ||
         (token.Kind == TokenKind::Word && !IsReservedWord(token.Text));
}

QString Parser::TakeName(ErrorCode failure) {
  if (!AtName()) Fail(failure);
  return m_tokens.Take().Text;
}

Statement::Tree Parser::ParseStatement() {
  Statement::Tree tree;
  if (m_tokens.IsWord("SELECT"_L1)) {
    tree = ParseSelect();
  } else if (m_tokens.IsWord("INSERT"_L1)) {
    tree = ParseInsert();
  } else if (m_tokens.IsWord("UPDATE"_L1)) {
    tree = ParseUpdate();
  } else if (m_tokens.IsWord("DELETE"_L1)) {
    tree = ParseDelete();
  } else {
    Fail(ErrorCode::CannotParse);
  }
  ParseEnd();
  return tree;
}

void Parser::ParseEnd() {
  m_tokens.TakeSign(";"_L1);
  if (!m_tokens.AtEnd()) Fail(ErrorCode::TextAfterEnd);
}

// Each clause sees to it that it ends where a clause may end, so that what is left over is told as its error.
bool Parser::AtClauseEnd() const {
  static constexpr std::array Beginnings{"FROM"_L1,  "WHERE"_L1, "GROUP"_L1, "HAVING"_L1,
                                         "ORDER"_L1, "UNION"_L1, "SET"_L1};
  if (m_tokens.AtEnd() || m_tokens.IsSign(";"_L1) || m_tokens.IsSign(")"_L1)) return true;
  return std::any_of(Beginnings.begin(), Beginnings.end(),
                     [this](auto word) { return m_tokens.IsWord(word); });
}

SelectQuery Parser::ParseSelect() {
  const Level level(*this);
  SelectQuery select = ParseOneSelect();
  while (m_tokens.TakeWord("UNION"_L1)) {
    UnionPart part;
    part.KeepsRepeats = m_tokens.TakeWord("ALL"_L1);
    if (!m_tokens.IsWord("SELECT"_L1)) Fail(ErrorCode::ReservedWordOrName);
    part.Query = std::make_shared<const SelectQuery>(ParseOneSelect());
    select.Unions.push_back(std::move(part));
  }
  if (m_tokens.IsWord("ORDER"_L1)) select.OrderBy = ParseOrderBy();
  return select;
}

SelectQuery Parser::ParseOneSelect() {
  m_tokens.Take();
  SelectQuery select;
  if (!m_tokens.TakeWord("ALL"_L1)) select.Distinct = m_tokens.TakeWord("DISTINCT"_L1);
  ParseTop(select);
  ParseOutputColumns(select);
  if (m_tokens.TakeWord("FROM"_L1)) select.From = ParseFrom();
  ParseClauses(select);
  return select;
}

std::shared_ptr<const SelectQuery> Parser::ParseNestedSelect() {
  if (!m_tokens.IsWord("SELECT"_L1)) Fail(ErrorCode::SyntaxInExpression);
  return std::make_shared<const SelectQuery>(ParseSelect());
}

void Parser::ParseTop(SelectQuery& select) {
  if (!m_tokens.IsWord("TOP"_L1) || m_tokens.Peek(1).Kind != TokenKind::Number) return;
  m_tokens.Take();
  bool isWhole = false;
  select.Top = m_tokens.Peek().Text.toLongLong(&isWhole);
  if (!isWhole) Fail(ErrorCode::ReservedWordOrName);
  m_tokens.Take();
}

void Parser::ParseOutputColumns(SelectQuery& select) {
  do {
    if (AtClauseEnd() || m_tokens.IsSign(","_L1)) Fail(ErrorCode::ReservedWordOrName);
    select.Columns.push_back(ParseOutputColumn());
  } while (m_tokens.TakeSign(","_L1));
  if (AtClauseEnd()) return;
  const bool isValue =
      select.Columns.back().Kind == OutputKind::Value && select.Columns.back().Alias.isEmpty();
  Fail(isValue ? ErrorCode::SyntaxInExpression : ErrorCode::ReservedWordOrName);
}

OutputColumn Parser::ParseOutputColumn() {
  OutputColumn column;
  const qsizetype place = m_tokens.Place();
  if (m_tokens.TakeSign("*"_L1)) {
    column.Kind = OutputKind::AllColumns;
    column.Source.Written = u"*"_s;
    return column;
  }
  if (AtName() && m_tokens.IsSign("."_L1, 1) && m_tokens.IsSign("*"_L1, 2)) {
    column.Kind = OutputKind::AllOfTable;
    column.Qualifier = m_tokens.Take().Text;
    m_tokens.Take();
    m_tokens.Take();
    column.Source.Written = m_tokens.Since(place);
    return column;
  }
  column.Source = ParseWritten();
  if (m_tokens.TakeWord("AS"_L1)) {
    const Token& name = m_tokens.Peek();
    if (name.Kind != TokenKind::Word && name.Kind != TokenKind::BracketedName)
      Fail(ErrorCode::ReservedWordOrName);
    const qsizetype aliasPlace = m_tokens.Place();
    column.Alias = m_tokens.Take().Text;
    column.AliasWritten = m_tokens.Since(aliasPlace);
  }
  return column;
}

void Parser::ParseClauses(SelectQuery& select) {
  select.Where = ParseWhere();
  if (m_tokens.TakeWord("GROUP"_L1)) {
    NeedWord("BY"_L1, ErrorCode::SyntaxInGroupBy);
    if (AtClauseEnd()) Fail(ErrorCode::SyntaxInGroupBy);
    select.GroupBy = ParseWrittenList();
    if (!AtClauseEnd()) Fail(ErrorCode::SyntaxInGroupBy);
  }
  if (m_tokens.TakeWord("HAVING"_L1)) {
    if (AtClauseEnd()) Fail(ErrorCode::SyntaxInHaving);
    select.Having = ParseWritten();
    if (!AtClauseEnd()) Fail(ErrorCode::SyntaxInExpression);
  }
}

std::optional<WrittenExpression> Parser::ParseWhere() {
  if (!m_tokens.TakeWord("WHERE"_L1)) return std::nullopt;
  if (AtClauseEnd()) Fail(ErrorCode::MissingOperand);
  WrittenExpression condition = ParseWritten();
  // A closing bracket too many belongs to the condition as well, unless a nested SELECT ends with it.
  const bool isOneTooMany = m_depth <= 1 && m_tokens.IsSign(")"_L1);
  if (!AtClauseEnd() || isOneTooMany) Fail(ErrorCode::SyntaxInExpression);
  return condition;
}

std::vector<SortKey> Parser::ParseOrderBy() {
  constexpr ErrorCode failure = ErrorCode::SyntaxInOrderBy;
  m_tokens.Take();
  NeedWord("BY"_L1, failure);
  std::vector<SortKey> keys;
  do {
    if (AtClauseEnd() || m_tokens.IsSign(","_L1)) Fail(failure);
    SortKey key{.Key = ParseWritten()};
    // A number would be the place of a column; what is bound is known too late for that.
    if (key.Key.Value.Kind == ExpressionKind::Parameter) Fail(failure);
    if (!m_tokens.TakeWord("ASC"_L1)) key.Descending = m_tokens.TakeWord("DESC"_L1);
    keys.push_back(std::move(key));
  } while (m_tokens.TakeSign(","_L1));
  if (!AtClauseEnd()) Fail(failure);
  return keys;
}

std::vector<FromItem> Parser::ParseFrom() {
  std::vector<FromItem> items;
  do {
    items.push_back(ParseJoins());
  } while (m_tokens.TakeSign(","_L1));
  if (!AtClauseEnd()) Fail(ErrorCode::SyntaxInFrom);
  return items;
}

std::optional<JoinKind> Parser::TakeJoin() {
  static constexpr std::array Kinds{std::pair{"INNER"_L1, JoinKind::Inner},
                                    std::pair{"LEFT"_L1, JoinKind::Left},
                                    std::pair{"RIGHT"_L1, JoinKind::Right}};
  for (const auto& [word, kind] : Kinds) {
    if (!m_tokens.TakeWord(word)) continue;
    if (kind != JoinKind::Inner) m_tokens.TakeWord("OUTER"_L1);
    NeedWord("JOIN"_L1, ErrorCode::SyntaxInFrom);
    return kind;
  }
  if (m_tokens.IsWord("JOIN"_L1)) Fail(ErrorCode::SyntaxInFrom);
  return std::nullopt;
}

FromItem Parser::ParseJoins() {
  const Level level(*this);
  FromItem left = ParseFromItem();
  // A chain of joins makes a tree as deep as it is long.
  int joins = 0;
  while (const auto kind = TakeJoin()) {
    if (++joins > LongestJoinChain) Fail(ErrorCode::TooComplex);
    FromItem join;
    join.IsJoin = true;
    join.Join = *kind;
    join.Sides.push_back(std::move(left));
    join.Sides.push_back(ParseFromItem());
    NeedWord("ON"_L1, ErrorCode::SyntaxInJoin);
    join.On = ParseWritten();
    left = std::move(join);
  }
  return left;
}

FromItem Parser::ParseFromItem() {
  if (!m_tokens.TakeSign("("_L1)) return ParseTable();
  FromItem item;
  if (m_tokens.IsWord("SELECT"_L1)) {
    const qsizetype place = m_tokens.Place();
    item.Query = ParseNestedSelect();
    item.QueryWritten = m_tokens.Since(place);
    Need(")"_L1, ErrorCode::SyntaxInFrom);
    m_tokens.TakeWord("AS"_L1);
    item.Alias = TakeName(ErrorCode::SyntaxInFrom);
    return item;
  }
  item = ParseJoins();
  Need(")"_L1, ErrorCode::SyntaxInFrom);
  item.InParentheses = item.IsJoin;
  return item;
}

FromItem Parser::ParseTable() {
  FromItem table;
  table.Name = TakeName(ErrorCode::SyntaxInFrom);
  if (m_tokens.TakeWord("AS"_L1)) {
    table.Alias = TakeName(ErrorCode::SyntaxInFrom);
  } else if (AtName()) {
    table.Alias = m_tokens.Take().Text;
  }
  return table;
}

InsertQuery Parser::ParseInsert() {
  constexpr ErrorCode failure = ErrorCode::SyntaxInInsert;
  m_tokens.Take();
  NeedWord("INTO"_L1, failure);
  InsertQuery insert;
  insert.Table = TakeName(failure);
  if (m_tokens.TakeSign("("_L1)) {
    do {
      const qsizetype place = m_tokens.Place();
      insert.Columns.append(TakeName(failure));
      insert.ColumnsWritten.append(m_tokens.Since(place));
    } while (m_tokens.TakeSign(","_L1));
    Need(")"_L1, failure);
  }
  ParseInsertSource(insert);
  return insert;
}

void Parser::ParseInsertSource(InsertQuery& insert) {
  constexpr ErrorCode failure = ErrorCode::SyntaxInInsert;
  if (m_tokens.IsWord("SELECT"_L1)) {
    insert.Query = ParseNestedSelect();
    return;
  }
  NeedWord("VALUES"_L1, failure);
  Need("("_L1, failure);
  if (AtClauseEnd()) Fail(failure);
  insert.Values = ParseWrittenList();
  Need(")"_L1, failure);
  if (!AtClauseEnd()) Fail(failure);
}

UpdateQuery Parser::ParseUpdate() {
  constexpr ErrorCode failure = ErrorCode::SyntaxInUpdate;
  m_tokens.Take();
  UpdateQuery update;
  if (!AtName()) Fail(failure);
  update.Table = ParseTable();
  NeedWord("SET"_L1, failure);
  do {
    Assignment assignment;
    const qsizetype place = m_tokens.Place();
    assignment.Column = TakeName(failure);
    // The table's own name may stand before the column's.
    if (m_tokens.TakeSign("."_L1)) assignment.Column = TakeName(failure);
    assignment.ColumnWritten = m_tokens.Since(place);
    Need("="_L1, failure);
    if (AtClauseEnd() || m_tokens.IsSign(","_L1)) Fail(failure);
    assignment.Value = ParseWritten();
    update.Assignments.push_back(std::move(assignment));
  } while (m_tokens.TakeSign(","_L1));
  if (!AtClauseEnd()) Fail(ErrorCode::SyntaxInExpression);
  update.Where = ParseWhere();
  return update;
}

DeleteQuery Parser::ParseDelete() {
  m_tokens.Take();
  DeleteQuery erase;
  const qsizetype place = m_tokens.Place();
  if (AtName()) {
    m_tokens.Take();
    Need("."_L1, ErrorCode::SyntaxInFrom);
    Need("*"_L1, ErrorCode::SyntaxInFrom);
  } else {
    m_tokens.TakeSign("*"_L1);
  }
  erase.Written = m_tokens.Since(place);
  NeedWord("FROM"_L1, ErrorCode::SyntaxInFrom);
  erase.Table = ParseTable();
  if (!AtClauseEnd()) Fail(ErrorCode::SyntaxInFrom);
  erase.Where = ParseWhere();
  return erase;
}

}  // namespace velmora::db
