// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlLexer.h"

#include <algorithm>
#include <array>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

// The words that begin, join or end something where a name might stand. All others are names like any:
// columns are called Index, Name, Type, Date, Query, Year.
constexpr std::array ReservedWords{
    "AND"_L1,   "AS"_L1,     "ASC"_L1,   "BETWEEN"_L1, "DELETE"_L1, "DESC"_L1,   "DISTINCT"_L1, "EQV"_L1,
    "FALSE"_L1, "FROM"_L1,   "GROUP"_L1, "HAVING"_L1,  "IMP"_L1,    "IN"_L1,     "INNER"_L1,    "INSERT"_L1,
    "INTO"_L1,  "IS"_L1,     "JOIN"_L1,  "LEFT"_L1,    "LIKE"_L1,   "MOD"_L1,    "NO"_L1,       "NOT"_L1,
    "NULL"_L1,  "ON"_L1,     "OR"_L1,    "ORDER"_L1,   "RIGHT"_L1,  "SELECT"_L1, "SET"_L1,      "TRUE"_L1,
    "UNION"_L1, "UPDATE"_L1, "WHERE"_L1, "XOR"_L1,     "YES"_L1};

constexpr std::array TwoPartSigns{"<="_L1, ">="_L1, "<>"_L1};
constexpr QStringView Signs = u"=<>+-*/\\^&(),;.!?";

bool IsBlank(QChar c) { return c == u' ' || (c >= u'\t' && c <= u'\r') || c == QChar(0xA0); }
bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }
bool BeginsWord(QChar c) { return c.isLetter() || c == u'_' || c.isSurrogate(); }
bool ContinuesWord(QChar c) { return c.isLetterOrNumber() || c == u'_' || c.isMark() || c.isSurrogate(); }

class Lexer final {
 public:
  explicit Lexer(QStringView sql) : m_sql(sql) {}

  std::vector<Token> Run() {
    std::vector<Token> tokens;
    do {
      while (m_place < m_sql.size() && IsBlank(m_sql[m_place])) ++m_place;
      tokens.push_back(Next());
    } while (tokens.back().Kind != TokenKind::End && tokens.back().Kind != TokenKind::Unreadable);
    return tokens;
  }

 private:
  [[nodiscard]] QChar At(qsizetype place) const { return place < m_sql.size() ? m_sql[place] : QChar(); }

  Token Next() {
    if (m_place >= m_sql.size()) return Made(TokenKind::End, m_place);
    const QChar first = At(m_place);
    if (first == u'\'' || first == u'"') return Quoted(first);
    if (first == u'[') return Bracketed();
    if (first == u'#') return Dated();
    if (IsDigit(first) || (first == u'.' && IsDigit(At(m_place + 1)))) return Number();
    if (BeginsWord(first)) {
      qsizetype end = m_place + 1;
      while (end < m_sql.size() && ContinuesWord(m_sql[end])) ++end;
      return Made(TokenKind::Word, end);
    }
    const QStringView two = m_sql.mid(m_place, 2);
    if (std::any_of(TwoPartSigns.begin(), TwoPartSigns.end(), [&](auto sign) { return two == sign; })) {
      return Made(TokenKind::Sign, m_place + 2);
    }
    if (Signs.contains(first)) return Made(TokenKind::Sign, m_place + 1);
    return Unreadable(ErrorCode::SyntaxInExpression);
  }

  Token Made(TokenKind kind, qsizetype end) {
    return Made(kind, end, m_sql.sliced(m_place, end - m_place).toString());
  }

  Token Made(TokenKind kind, qsizetype end, QString text) {
    Token token{.Kind = kind, .Start = m_place, .End = end, .Text = std::move(text)};
    m_place = end;
    return token;
  }

  Token Unreadable(ErrorCode failure) {
    Token token = Made(TokenKind::Unreadable, m_sql.size());
    token.Failure = failure;
    return token;
  }

  // A quote inside a text is written twice.
  Token Quoted(QChar quote) {
    QString text;
    for (qsizetype place = m_place + 1; place < m_sql.size(); ++place) {
      if (m_sql[place] == quote) {
        if (At(place + 1) != quote) return Made(TokenKind::Text, place + 1, text);
        ++place;
      }
      text += m_sql[place];
    }
    return Unreadable(ErrorCode::SyntaxInExpression);
  }

  Token Bracketed() {
    const qsizetype end = m_sql.indexOf(u']', m_place + 1);
    if (end < 0) return Unreadable(ErrorCode::InvalidBracketing);
    QStringView name = m_sql.sliced(m_place + 1, end - m_place - 1);
    while (name.endsWith(u' ')) name.chop(1);
    if (name.isEmpty() || name.contains(u'[')) return Unreadable(ErrorCode::InvalidBracketing);
    return Made(TokenKind::BracketedName, end + 1, name.toString());
  }

  Token Dated() {
    const qsizetype end = m_sql.indexOf(u'#', m_place + 1);
    if (end < 0) return Unreadable(ErrorCode::SyntaxInExpression);
    const QStringView date = m_sql.sliced(m_place + 1, end - m_place - 1);
    if (!std::any_of(date.begin(), date.end(), IsDigit)) return Unreadable(ErrorCode::SyntaxInExpression);
    return Made(TokenKind::Date, end + 1, date.toString());
  }

  Token Number() {
    qsizetype end = m_place;
    while (IsDigit(At(end))) ++end;
    if (At(end) == u'.') ++end;
    while (IsDigit(At(end))) ++end;
    if (At(end) == u'e' || At(end) == u'E') {
      const qsizetype digits = end + (At(end + 1) == u'+' || At(end + 1) == u'-' ? 2 : 1);
      if (IsDigit(At(digits))) end = digits;
      while (IsDigit(At(end))) ++end;
    }
    if (ContinuesWord(At(end))) return Unreadable(ErrorCode::SyntaxInExpression);
    return Made(TokenKind::Number, end);
  }

  QStringView m_sql;
  qsizetype m_place = 0;
};

}  // namespace

TokenStream::TokenStream(QStringView sql) : m_sql(sql), m_tokens(Lexer(sql).Run()) {}

const Token& TokenStream::Peek(std::size_t ahead) const {
  const Token& token = m_tokens[std::min(m_next + ahead, m_tokens.size() - 1)];
  if (token.Kind == TokenKind::Unreadable) {
    const QString what = token.Failure == ErrorCode::InvalidBracketing
                             ? u"Invalid bracketing of name \"%1\"."_s
                             : u"Syntax error in query expression \"%1\"."_s;
    throw Error(token.Failure, what.arg(token.Text));
  }
  return token;
}

const Token& TokenStream::Take() {
  const Token& token = Peek();
  if (m_next + 1 < m_tokens.size()) ++m_next;
  return token;
}

bool TokenStream::IsWord(QLatin1StringView word, std::size_t ahead) const {
  const Token& token = Peek(ahead);
  return token.Kind == TokenKind::Word && token.Text.compare(word, Qt::CaseInsensitive) == 0;
}

bool TokenStream::IsSign(QLatin1StringView sign, std::size_t ahead) const {
  const Token& token = Peek(ahead);
  return token.Kind == TokenKind::Sign && token.Text == sign;
}

bool TokenStream::TakeWord(QLatin1StringView word) {
  if (!IsWord(word)) return false;
  Take();
  return true;
}

bool TokenStream::TakeSign(QLatin1StringView sign) {
  if (!IsSign(sign)) return false;
  Take();
  return true;
}

QString TokenStream::Since(qsizetype place) const {
  const qsizetype end = m_next > 0 ? m_tokens[m_next - 1].End : 0;
  return end > place ? m_sql.sliced(place, end - place).toString() : QString();
}

bool IsReservedWord(QStringView word) {
  return std::any_of(ReservedWords.begin(), ReservedWords.end(),
                     [&](auto reserved) { return word.compare(reserved, Qt::CaseInsensitive) == 0; });
}

QString BracketedWhereNeeded(const QString& name) {
  const bool isPlain = !name.isEmpty() && BeginsWord(name.front()) &&
                       std::all_of(name.begin(), name.end(), ContinuesWord) && !IsReservedWord(name);
  return isPlain ? name : u'[' + name + u']';
}

}  // namespace velmora::db
