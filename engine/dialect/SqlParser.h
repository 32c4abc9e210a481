// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/SqlLexer.h"
#include "engine/dialect/Statement.h"

namespace velmora::db {

/// Reads one statement by recursive descent. Throws the engine's syntax errors; how deep it nests is limited,
/// so that no text can exhaust the stack.
class Parser final {
 public:
  Parser(QStringView sql, ParameterUse use) : m_tokens(sql), m_use(use) {}
  [[nodiscard]] Statement::Tree ParseStatement();
  /// How many "?" it has come upon.
  [[nodiscard]] std::size_t Parameters() const { return m_parameters; }

 private:
  /// Counts a level of nesting for as long as it lives.
  class Level;

  // Statements: SqlParser.cpp
  [[nodiscard]] SelectQuery ParseSelect();
  [[nodiscard]] SelectQuery ParseOneSelect();
  [[nodiscard]] std::shared_ptr<const SelectQuery> ParseNestedSelect();
  void ParseTop(SelectQuery& select);
  void ParseOutputColumns(SelectQuery& select);
  [[nodiscard]] OutputColumn ParseOutputColumn();
  void ParseClauses(SelectQuery& select);
  [[nodiscard]] std::vector<SortKey> ParseOrderBy();
  [[nodiscard]] std::optional<WrittenExpression> ParseWhere();
  [[nodiscard]] std::vector<FromItem> ParseFrom();
  [[nodiscard]] FromItem ParseJoins();
  [[nodiscard]] std::optional<JoinKind> TakeJoin();
  [[nodiscard]] FromItem ParseFromItem();
  [[nodiscard]] FromItem ParseTable();
  [[nodiscard]] InsertQuery ParseInsert();
  void ParseInsertSource(InsertQuery& insert);
  [[nodiscard]] UpdateQuery ParseUpdate();
  [[nodiscard]] DeleteQuery ParseDelete();
  void ParseEnd();
  [[nodiscard]] QString TakeName(ErrorCode failure);
  [[nodiscard]] bool AtName() const;
  [[nodiscard]] bool AtClauseEnd() const;

  // Expressions: SqlExpressionParser.cpp
  [[nodiscard]] WrittenExpression ParseWritten();
  [[nodiscard]] std::vector<WrittenExpression> ParseWrittenList();
  [[nodiscard]] Expression ParseExpression();
  [[nodiscard]] Expression ParseBinary(int loosest);
  [[nodiscard]] bool TakeComparison(Expression& left, int loosest);
  [[nodiscard]] Expression ParseComparison(Operator op, Expression left);
  [[nodiscard]] Expression ParseIn(Expression left);
  [[nodiscard]] Expression ParseBetween(Expression left);
  [[nodiscard]] Expression ParseIsNull(Expression left);
  [[nodiscard]] Expression ParsePrefix();
  [[nodiscard]] Expression ParsePrimary();
  [[nodiscard]] Expression ParseParentheses();
  [[nodiscard]] Expression ParseWord();
  [[nodiscard]] Expression ParseCall();
  [[nodiscard]] Expression ParseColumn();
  [[nodiscard]] Expression ParseParameter();

  /// Throws `failure` unless the sign or word is next, and takes it.
  void Need(QLatin1StringView sign, ErrorCode failure);
  void NeedWord(QLatin1StringView word, ErrorCode failure);
  [[noreturn]] void Fail(ErrorCode failure) const;

  TokenStream m_tokens;
  ParameterUse m_use;
  std::size_t m_parameters = 0;
  int m_depth = 0;
};

class Parser::Level final {
 public:
  explicit Level(Parser& parser);
  ~Level() { --m_parser.m_depth; }
  Level(const Level&) = delete;
  Level& operator=(const Level&) = delete;

 private:
  Parser& m_parser;
};

}  // namespace velmora::db
