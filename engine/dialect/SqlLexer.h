// SPDX-License-Identifier: MIT
#pragma once

#include "engine/values/Error.h"

#include <QString>

#include <optional>
#include <vector>

namespace velmora::db {

enum class TokenKind { End, Word, BracketedName, Text, Number, Date, Sign, Unreadable };

/// One piece of a statement. `Text` is what it says: a name without its brackets, a text without its quotes,
/// the inside of a date's signs; a word, number or sign as it is written.
struct Token {
  TokenKind Kind = TokenKind::End;
  qsizetype Start = 0;
  qsizetype End = 0;
  QString Text;
  /// What an unreadable token is reported as, by the parser when it comes to it.
  ErrorCode Failure = ErrorCode::SyntaxInExpression;
};

/// The pieces of one statement and the place in them. Words are compared without case. The text must outlive
/// it.
class TokenStream final {
 public:
  explicit TokenStream(QStringView sql);

  /// The next token, or the one behind it; throws when it is unreadable.
  [[nodiscard]] const Token& Peek(std::size_t ahead = 0) const;
  const Token& Take();
  [[nodiscard]] bool AtEnd() const { return Peek().Kind == TokenKind::End; }

  [[nodiscard]] bool IsWord(QLatin1StringView word, std::size_t ahead = 0) const;
  [[nodiscard]] bool IsSign(QLatin1StringView sign, std::size_t ahead = 0) const;
  bool TakeWord(QLatin1StringView word);
  bool TakeSign(QLatin1StringView sign);

  /// The place of the next token, for Since.
  [[nodiscard]] qsizetype Place() const { return m_tokens[m_next].Start; }
  /// The statement's text from a place to the end of the last token taken, to the character.
  [[nodiscard]] QString Since(qsizetype place) const;

 private:
  QStringView m_sql;
  std::vector<Token> m_tokens;
  std::size_t m_next = 0;
};

/// Whether a word can't stand for a name without brackets.
[[nodiscard]] bool IsReservedWord(QStringView word);
/// The name as it stands in a statement: in brackets where it needs them.
[[nodiscard]] QString BracketedWhereNeeded(const QString& name);

}  // namespace velmora::db
