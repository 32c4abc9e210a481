// SPDX-License-Identifier: MIT
#include "base/dates/Dates.h"
#include "engine/dialect/Dialect.h"
#include "engine/dialect/SqlLexer.h"
#include "engine/dialect/SqlStoredForm.h"
#include "engine/values/Error.h"
#include "tests/engine/SampleFile.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <optional>
#include <ostream>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

// The files in dialect/ hold one case after another. The first character of a line tells what it is:
//   <  a statement of the dialect; "\n" stands for a line end, spaces at the end of the line belong to it
//   v  the values that are given with it, between bars: TRUE, FALSE, NULL, 'text', #date#, numbers
//   s  its stored form
//   =  what SQLite is given
//   k  the statement that gives its row ids
//   c  its output columns
//   r  its rows, as SampleFile::Rows writes them
//   >  a statement that is asked after it; a line "r" behind belongs to it
//   !  the error's number, from whichever step
//   #  a remark
struct Question {
  QString Statement;
  std::optional<QString> Rows{};
};

struct Case {
  QString Place;
  Question Main;
  std::vector<Value> Values{};
  std::optional<QString> Stored{};
  std::optional<QString> Sql{};
  std::optional<QString> KeySql{};
  std::optional<QString> Columns{};
  std::optional<int> Error{};
  std::vector<Question> After{};
};

QString WithLineEnds(const QString& text) { return QString(text).replace("\\n"_L1, "\r\n"_L1); }

Value ValueOf(const QString& text) {
  if (text == "NULL"_L1) return {};
  if (text == "TRUE"_L1 || text == "FALSE"_L1) return Value(text == "TRUE"_L1);
  if (text.startsWith(u'\'')) return Value(text.sliced(1, text.size() - 2));
  if (text.startsWith(u'#')) return Value(*ParseDateMonthFirst(text.sliced(1, text.size() - 2)));
  bool isWhole = false;
  const qlonglong whole = text.toLongLong(&isWhole);
  return isWhole ? Value(whole) : Value(text.toDouble());
}

std::vector<Value> ValuesOf(const QString& line) {
  std::vector<Value> values;
  for (const QString& text : line.split(u" | "_s)) values.push_back(ValueOf(text));
  return values;
}

void Read(const QString& line, const QString& place, std::vector<Case>& cases) {
  const QChar kind = line.isEmpty() ? u'#' : line.front();
  const QString text = WithLineEnds(line.mid(2));
  if (kind == u'#') return;
  if (kind == u'<') {
    cases.push_back({.Place = place, .Main = {.Statement = text}});
    return;
  }
  ASSERT_FALSE(cases.empty()) << place.toStdString();
  Case& current = cases.back();
  switch (kind.unicode()) {
    case u'v':
      current.Values = ValuesOf(text);
      break;
    case u's':
      current.Stored = text;
      break;
    case u'=':
      current.Sql = text;
      break;
    case u'k':
      current.KeySql = text;
      break;
    case u'c':
      current.Columns = text;
      break;
    case u'r':
      (current.After.empty() ? current.Main : current.After.back()).Rows = text;
      break;
    case u'>':
      current.After.push_back({.Statement = text});
      break;
    case u'!':
      current.Error = text.toInt();
      break;
    default:
      FAIL() << "no such line: " << place.toStdString();
  }
}

std::vector<Case> Cases() {
  std::vector<Case> cases;
  const QDir folder(QString::fromUtf8(VELMORA_TEST_DATA) + "/engine/dialect"_L1);
  for (const QString& name : folder.entryList({u"*.txt"_s}, QDir::Files, QDir::Name)) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly)) continue;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
      Read(lines[i], QFileInfo(name).baseName() + u'_' + QString::number(i + 1), cases);
    }
  }
  return cases;
}

QString ColumnsOf(const Translation& translation) {
  static constexpr std::array Names{"Text"_L1,     "Memo"_L1,   "Long"_L1, "Double"_L1,
                                    "Currency"_L1, "Yes/No"_L1, "Date"_L1};
  QStringList columns;
  for (const Field& field : translation.Columns) {
    columns.append(field.Name + u' ' + Names[static_cast<std::size_t>(field.Type)]);
  }
  return columns.join(u", "_s);
}

void PrintTo(const Case& value, std::ostream* out) { *out << value.Place.toStdString(); }

}  // namespace

class Dialect : public testing::TestWithParam<Case> {
 protected:
  SampleFile m_file;

  void CheckTranslation(const Case& expected) {
    const auto statement = ParseStatement(expected.Main.Statement, ParameterUse::Allowed);
    const QString stored = WriteStored(*statement);
    if (expected.Stored) {
      EXPECT_EQ(stored.toStdString(), expected.Stored->toStdString());
    }
    const auto again = ParseStatement(stored, ParameterUse::Allowed);
    EXPECT_EQ(WriteStored(*again).toStdString(), stored.toStdString());

    const ParameterKinds kinds = ParameterKindsOf(expected.Values);
    const Translation translation = Translate(*statement, m_file, kinds);
    const std::vector<Value> bound = BoundValues(translation.Parameters, expected.Values);
    if (expected.Sql) {
      EXPECT_EQ(translation.Sql.toStdString(), expected.Sql->toStdString());
    }
    if (expected.KeySql) {
      EXPECT_EQ(translation.KeySql.toStdString(), expected.KeySql->toStdString());
    }
    if (expected.Columns) {
      EXPECT_EQ(ColumnsOf(translation).toStdString(), expected.Columns->toStdString());
    }
    // What was stored means the same as what was given.
    EXPECT_EQ(Translate(*again, m_file, kinds).Sql.toStdString(), translation.Sql.toStdString());
    if (!translation.Table.isEmpty()) CheckKeyset(translation, bound);

    const QString rows = RowsOf(m_file.Handle(), translation.Sql, bound);
    if (expected.Main.Rows) {
      EXPECT_EQ(rows.toStdString(), expected.Main.Rows->toStdString());
    }
    for (const Question& question : expected.After) {
      const QString after = m_file.Rows(question.Statement);
      if (question.Rows) {
        EXPECT_EQ(after.toStdString(), question.Rows->toStdString());
      }
    }
  }

  /// Row by row through the row ids comes to the same as all at once.
  void CheckKeyset(const Translation& translation, const std::vector<Value>& bound) {
    const QString keys = RowsOf(m_file.Handle(), translation.KeySql, bound);
    QStringList rows;
    for (const QString& key : keys.split(u'|', Qt::SkipEmptyParts)) {
      rows.append(RowsOf(m_file.Handle(), translation.RowSql, bound, key.toLongLong()));
    }
    EXPECT_EQ(rows.join(u'|').toStdString(), RowsOf(m_file.Handle(), translation.Sql, bound).toStdString());
    EXPECT_EQ(translation.SourceColumns.size(), static_cast<qsizetype>(translation.Columns.size()));
  }
};

TEST_P(Dialect, Statement_AsListed_GivesWhatIsListed) {
  const Case& expected = GetParam();
  if (!expected.Error) {
    try {
      CheckTranslation(expected);
    } catch (const Error& error) {
      FAIL() << error.Number() << ": " << error.what();
    }
    return;
  }
  try {
    const QString rows = m_file.Rows(expected.Main.Statement, expected.Values);
    FAIL() << "no error; rows: " << rows.toStdString();
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), *expected.Error) << error.what();
    EXPECT_FALSE(error.Text().isEmpty());
  }
}

namespace {

/// A statement with "?" in the place of its literals, and the values of these. The places of output columns,
/// of FROM's rows and of TOP stay: they are no values.
struct Given {
  QString Statement;
  std::vector<Value> Values;
};

std::optional<Value> LiteralOf(const Token& token) {
  if (token.Kind == TokenKind::Text) return Value(token.Text);
  if (token.Kind == TokenKind::Number) return ValueOf(token.Text);
  // A time alone is read as one of the first day, and what is not a date fails.
  const auto moment = token.Kind == TokenKind::Date && token.Text.contains(u'/')
                          ? ParseDateMonthFirst(token.Text)
                          : std::nullopt;
  return moment ? std::optional(Value(*moment)) : std::nullopt;
}

Given WithValues(const QString& statement) {
  Given given;
  TokenStream tokens(statement);
  qsizetype copied = 0;
  bool isPlace = false;
  while (!tokens.AtEnd()) {
    if (tokens.IsWord("ORDER"_L1)) break;
    const bool wasPlace = std::exchange(isPlace, tokens.IsWord("TOP"_L1));
    const Token token = tokens.Take();
    const auto value = wasPlace ? std::nullopt : LiteralOf(token);
    if (!value) continue;
    given.Statement += statement.sliced(copied, token.Start - copied) + u'?';
    copied = token.End;
    given.Values.push_back(*value);
  }
  given.Statement += statement.sliced(copied);
  return given;
}

/// The rows of a statement, or its error.
QString OutcomeOf(const QString& statement, const std::vector<Value>& values = {}) {
  SampleFile file;
  try {
    return file.Rows(statement, values);
  } catch (const Error& error) {
    return u"error "_s + QString::number(error.Number());
  }
}

/// Those that parse and hold a literal; not one that a key of GROUP BY repeats, for two values are never
/// known to be the same.
std::vector<Case> CasesWithLiterals() {
  std::vector<Case> found;
  for (const Case& listed : Cases()) {
    if (listed.Main.Statement.contains("GROUP BY Left("_L1)) continue;
    try {
      static_cast<void>(ParseStatement(listed.Main.Statement));
      if (!WithValues(listed.Main.Statement).Values.empty()) found.push_back(listed);
    } catch (const Error&) {
      // What does not parse says nothing about values.
    }
  }
  return found;
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Listed, Dialect, testing::ValuesIn(Cases()),
                         [](const auto& listed) { return listed.param.Place.toStdString(); });

class DialectValues : public testing::TestWithParam<Case> {};

TEST_P(DialectValues, Literals_GivenAsValues_MeanTheSame) {
  const QString& statement = GetParam().Main.Statement;
  const auto [text, values] = WithValues(statement);
  EXPECT_EQ(OutcomeOf(text, values).toStdString(), OutcomeOf(statement).toStdString()) << text.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Listed, DialectValues, testing::ValuesIn(CasesWithLiterals()),
                         [](const auto& listed) { return listed.param.Place.toStdString(); });

TEST(DialectFiles, Cases_Always_AreFound) {
  EXPECT_GT(Cases().size(), 200U);
  EXPECT_GT(CasesWithLiterals().size(), 200U);
}

}  // namespace velmora::db
