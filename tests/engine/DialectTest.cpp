// SPDX-License-Identifier: MIT
#include "engine/dialect/Dialect.h"
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

// The files in dialect/ hold one case after another. The first sign of a line tells what it is:
//   <  a statement of the dialect; "\n" stands for a line end, blanks at the end of the line belong to it
//   s  its stored form
//   =  what SQLite is given
//   k  the statement that gives its row ids
//   c  its output columns
//   r  its rows, as SampleFile::Rows writes them
//   >  a statement that is asked after it; a line "r" behind belongs to it
//   !  the error's number, from whichever step
//   #  a remark
struct Step {
  QString Statement;
  std::optional<QString> Rows{};
};

struct Case {
  QString Place;
  Step Main;
  std::optional<QString> Stored{};
  std::optional<QString> Sql{};
  std::optional<QString> KeySql{};
  std::optional<QString> Columns{};
  std::optional<int> Error{};
  std::vector<Step> After{};
};

QString WithLineEnds(const QString& text) { return QString(text).replace("\\n"_L1, "\r\n"_L1); }

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
    const auto statement = ParseStatement(expected.Main.Statement);
    const QString stored = WriteStored(*statement);
    if (expected.Stored) {
      EXPECT_EQ(stored.toStdString(), expected.Stored->toStdString());
    }
    EXPECT_EQ(WriteStored(*ParseStatement(stored)).toStdString(), stored.toStdString());

    const Translation translation = Translate(*statement, m_file);
    EXPECT_EQ(translation.Kind, KindOf(*statement));
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
    EXPECT_EQ(Translate(*ParseStatement(stored), m_file).Sql.toStdString(), translation.Sql.toStdString());
    if (!translation.Table.isEmpty()) CheckKeyset(translation);

    const QString rows = RowsOf(m_file.Handle(), translation.Sql);
    if (expected.Main.Rows) {
      EXPECT_EQ(rows.toStdString(), expected.Main.Rows->toStdString());
    }
    for (const Step& step : expected.After) {
      const QString after = m_file.Rows(step.Statement);
      if (step.Rows) {
        EXPECT_EQ(after.toStdString(), step.Rows->toStdString());
      }
    }
  }

  /// Row by row through the row ids comes to the same as all at once.
  void CheckKeyset(const Translation& translation) {
    const StatementHandle row = Prepare(m_file.Handle(), translation.RowSql);
    const QString keys = RowsOf(m_file.Handle(), translation.KeySql);
    QStringList rows;
    for (const QString& key : keys.split(u'|', Qt::SkipEmptyParts)) {
      const QString sql = QString(translation.RowSql).replace("?1"_L1, key);
      rows.append(RowsOf(m_file.Handle(), sql));
    }
    EXPECT_EQ(rows.join(u'|').toStdString(), RowsOf(m_file.Handle(), translation.Sql).toStdString());
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
    const QString rows = m_file.Rows(expected.Main.Statement);
    FAIL() << "no error; rows: " << rows.toStdString();
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), *expected.Error) << error.what();
    EXPECT_FALSE(error.Text().isEmpty());
  }
}

INSTANTIATE_TEST_SUITE_P(Listed, Dialect, testing::ValuesIn(Cases()),
                         [](const auto& listed) { return listed.param.Place.toStdString(); });

TEST(DialectFiles, Cases_Always_AreFound) { EXPECT_GT(Cases().size(), 200U); }

}  // namespace velmora::db
