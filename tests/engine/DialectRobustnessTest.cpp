// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlStoredForm.h"
#include "engine/values/Error.h"
#include "tests/engine/SampleFile.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <random>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

bool Parses(const QString& text) {
  try {
    static_cast<void>(ParseStatement(text));
    return true;
  } catch (const Error&) {
    return false;
  }
}

/// Those that parse: what is wrong from the start gives no good mutations.
QStringList ListedStatements() {
  QStringList statements;
  const QDir folder(QString::fromUtf8(VELMORA_TEST_DATA) + "/engine/dialect"_L1);
  for (const QString& name : folder.entryList({u"*.txt"_s}, QDir::Files, QDir::Name)) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly)) continue;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
      if (line.startsWith("< "_L1) && Parses(line.mid(2))) statements.append(line.mid(2));
    }
  }
  return statements;
}

/// Random choices, the same in every run.
class Chance final {
 public:
  explicit Chance(unsigned seed) : m_engine(seed) {}
  qsizetype Below(qsizetype end) {
    return end < 1 ? 0 : static_cast<qsizetype>(m_engine() % static_cast<std::mt19937::result_type>(end));
  }
  const QString& Any(const QStringList& list) { return list[Below(list.size())]; }

 private:
  std::mt19937 m_engine;
};

// Statements with pieces lost, doubled, replaced and put together from several.
class Mutator final {
 public:
  explicit Mutator(QStringList statements) : m_statements(std::move(statements)) {}

  QString Next() {
    if (m_chance.Below(2) == 0) return WithOtherWords();
    QString text = m_chance.Any(m_statements);
    for (qsizetype changes = 1 + m_chance.Below(4); changes > 0; --changes) Change(text);
    return text;
  }

 private:
  QString WithOtherWords() {
    QStringList words = m_chance.Any(m_statements).split(u' ');
    for (qsizetype changes = 1 + m_chance.Below(2); changes > 0; --changes) {
      const QStringList others = m_chance.Any(m_statements).split(u' ');
      words[m_chance.Below(words.size())] = m_chance.Any(others);
    }
    return words.join(u' ');
  }

  void Change(QString& text) {
    static const QStringList Pieces{u"("_s,
                                    u")"_s,
                                    u"["_s,
                                    u"]"_s,
                                    u"'"_s,
                                    u"\""_s,
                                    u"#"_s,
                                    u","_s,
                                    u";"_s,
                                    u" AND "_s,
                                    u" OR "_s,
                                    u" NOT "_s,
                                    u" LIKE "_s,
                                    u" IN ("_s,
                                    u" = ANY ("_s,
                                    u"SELECT "_s,
                                    u" FROM "_s,
                                    u" WHERE "_s,
                                    u" ORDER BY "_s,
                                    u" GROUP BY "_s,
                                    u" UNION "_s,
                                    u"NULL"_s,
                                    u"TRUE"_s,
                                    u"*"_s,
                                    u"."_s,
                                    u"-"_s,
                                    u"1"_s,
                                    u"1e999"_s,
                                    u"99999999999999999999"_s,
                                    u"DateValue("_s,
                                    u"Count(*)"_s,
                                    u"é"_s,
                                    QString(QChar(0)),
                                    QString(QChar(0xD800))};
    const qsizetype place = m_chance.Below(text.size());
    switch (m_chance.Below(5)) {
      case 0:
        text.remove(place, 1 + m_chance.Below(8));
        break;
      case 1:
        text.insert(place, m_chance.Any(Pieces));
        break;
      case 2:
        text.insert(place, text.mid(m_chance.Below(text.size() + 1), m_chance.Below(20)));
        break;
      case 3:
        text = text.left(place) + m_chance.Any(m_statements).mid(m_chance.Below(30));
        break;
      default:
        text.replace(place, 1 + m_chance.Below(4), m_chance.Any(Pieces));
    }
  }

  QStringList m_statements;
  Chance m_chance{42};
};

// Statements that parse, made of everything that may stand in an expression.
class Generator final {
 public:
  QString Statement() {
    switch (m_chance.Below(7)) {
      case 0:
        return u"SELECT "_s + Value(3) + u", "_s + Condition(2) + u" FROM MainData"_s;
      case 1:
        return u"SELECT DISTINCT "_s + Value(2) + u" FROM MainData WHERE "_s + Condition(2);
      case 2:
        return u"SELECT "_s + Group() + u", Count(*) FROM MainData GROUP BY City, Active"_s;
      case 3:
        return u"UPDATE MainData SET "_s + Column() + u" = "_s + Value(2) + u" WHERE "_s + Condition(2);
      case 4:
        return u"DELETE FROM MainData WHERE "_s + Condition(3);
      case 5:
        return u"SELECT [Index@] FROM MainData ORDER BY "_s + Value(2) + u" DESC, "_s + Condition(1);
      default:
        return u"SELECT [Index@] FROM MainData WHERE "_s + Condition(4);
    }
  }

 private:
  QString Group() {
    return m_chance.Any({u"City"_s, u"Active"_s, u"Min(Due)"_s, u"First(Company)"_s, Value(1)});
  }

  QString Column() {
    return m_chance.Any({u"[Index@]"_s, u"Company"_s, u"City"_s, u"Turnover"_s, u"Active"_s, u"Due"_s,
                         u"Fee"_s, u"[Größe 1]"_s, u"Remarks"_s});
  }

  QString Literal() {
    return m_chance.Any({u"5"_s, u"-2.5"_s, u"1e300"_s, u"9223372036854775807"_s, u"'x'"_s, u"'3/1/1999'"_s,
                         u"\"12\""_s, u"''"_s, u"#2/1/1999#"_s, u"TRUE"_s, u"NO"_s, u"Null"_s});
  }

  QString Value(int depth) {
    if (depth == 0 || m_chance.Below(4) == 0) return m_chance.Below(2) == 0 ? Column() : Literal();
    const auto next = [&] { return Value(depth - 1); };
    switch (m_chance.Below(9)) {
      case 0:
        return u'(' + next() + u' ' +
               m_chance.Any({u"+"_s, u"-"_s, u"*"_s, u"/"_s, u"\\"_s, u"MOD"_s, u"^"_s}) + u' ' + next() +
               u')';
      case 1:
        return next() + u" & "_s + next();
      case 2:
        return u"- "_s + next();
      case 3:
        return u"IIf("_s + Condition(depth - 1) + u", "_s + next() + u", "_s + next() + u')';
      case 4:
        return m_chance.Any({u"Len"_s, u"UCase"_s, u"Year"_s, u"Abs"_s, u"Nz"_s, u"Val"_s, u"Trim"_s,
                             u"Int"_s, u"CLng"_s, u"DateValue"_s, u"CStr"_s, u"IsNull"_s}) +
               u'(' + next() + u')';
      case 5:
        return m_chance.Any({u"Left"_s, u"Right"_s, u"Mid"_s, u"InStr"_s}) + u'(' + next() + u", "_s +
               next() + u')';
      case 6:
        return u"(SELECT Max("_s + Column() + u") FROM MainData)"_s;
      case 7:
        return u"(SELECT "_s + next() + u" FROM CityT)"_s;
      default:
        return u'(' + Condition(depth - 1) + u')';
    }
  }

  QString Condition(int depth) {
    if (depth == 0) return Value(1) + u" = "_s + Value(1);
    const auto value = [&] { return Value(depth - 1); };
    const QString negation = m_chance.Any({u""_s, u" NOT"_s});
    switch (m_chance.Below(9)) {
      case 0:
        return u'(' + Condition(depth - 1) + u' ' +
               m_chance.Any({u"AND"_s, u"OR"_s, u"XOR"_s, u"EQV"_s, u"IMP"_s}) + u' ' + Condition(depth - 1) +
               u')';
      case 1:
        return u"NOT "_s + Condition(depth - 1);
      case 2:
        return value() + negation + u" LIKE "_s + value();
      case 3:
        return value() + negation + u" BETWEEN "_s + value() + u" AND "_s + value();
      case 4:
        return value() + negation + u" IN ("_s + value() + u", "_s + value() + u')';
      case 5:
        return value() + negation + u" IN (SELECT "_s + value() + u" FROM MainData)"_s;
      case 6:
        return value() + u" IS"_s + negation + u" NULL"_s;
      case 7:
        return value() + Sign() + m_chance.Any({u"ANY"_s, u"ALL"_s}) + u" (SELECT "_s + Column() +
               u" FROM MainData)"_s;
      default:
        return value() + Sign() + value();
    }
  }

  QString Sign() { return m_chance.Any({u" = "_s, u" <> "_s, u" < "_s, u" <= "_s, u" > "_s, u" >= "_s}); }

  Chance m_chance{17};
};

/// Whether the statement ran. It may fail, but only with one of the engine's errors: SQLite's own complaint
/// would mean that it was given nonsense.
bool RunsOrFailsProperly(SampleFile& file, const QString& text) {
  bool isRun = false;
  try {
    const auto statement = ParseStatement(text);
    const QString stored = WriteStored(*statement);
    EXPECT_EQ(WriteStored(*ParseStatement(stored)).toStdString(), stored.toStdString());
    const Translation translation = Translate(*statement, file);
    db::Run(file.Handle(), u"SAVEPOINT attempt");
    try {
      static_cast<void>(RowsOf(file.Handle(), translation.Sql));
      isRun = true;
    } catch (const Error& error) {
      EXPECT_NE(error.Code(), ErrorCode::Internal) << error.what() << "\n" << translation.Sql.toStdString();
    }
    db::Run(file.Handle(), u"ROLLBACK TO attempt");
    db::Run(file.Handle(), u"RELEASE attempt");
  } catch (const Error& error) {
    EXPECT_NE(error.Code(), ErrorCode::Internal) << error.what();
  }
  return isRun;
}

}  // namespace

TEST(DialectRobustness, MutatedStatements_Always_RunOrFailWithAnEngineError) {
  constexpr int count = 6000;
  SampleFile file;
  Mutator mutator(ListedStatements());
  int ran = 0;
  for (int i = 0; i < count; ++i) {
    const QString text = mutator.Next();
    SCOPED_TRACE(text.toStdString());
    if (RunsOrFailsProperly(file, text)) ++ran;
  }
  // Most mutations break a statement; those that leave it whole must be among them.
  EXPECT_GT(ran, 100);
}

TEST(DialectRobustness, GeneratedStatements_Always_RunOrFailWithAnEngineError) {
  constexpr int count = 6000;
  SampleFile file;
  Generator generator;
  int ran = 0;
  for (int i = 0; i < count; ++i) {
    const QString text = generator.Statement();
    SCOPED_TRACE(text.toStdString());
    if (RunsOrFailsProperly(file, text)) ++ran;
  }
  EXPECT_GT(ran, count / 20);
}

}  // namespace velmora::db
