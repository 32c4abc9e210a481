// SPDX-License-Identifier: MIT
#pragma once

#include "engine/repair/Repair.h"
#include "tests/engine/CardFileOnDisk.h"
#include "tests/support/TestDatabase.h"

#include <map>

namespace velmora::test {

using namespace Qt::StringLiterals;

struct PageUse {
  QString Kind;
  int Cells = 0;
  bool OfTable = false;
  bool OfSchema = false;
};

/// What each page of a whole file is for.
inline std::map<int, PageUse> PagesOf(const QString& path) {
  std::map<int, PageUse> pages;
  const db::ConnectionHandle connection = db::OpenConnection(path, SQLITE_OPEN_READONLY);
  const db::StatementHandle rows = db::Prepare(
      connection.get(),
      u"SELECT pageno, pagetype, ncell, name IN (SELECT name FROM sqlite_schema WHERE type = 'table'), "
      "name = 'sqlite_schema' FROM dbstat");
  while (sqlite3_step(rows.get()) == SQLITE_ROW) {
    pages[sqlite3_column_int(rows.get(), 0)] = {
        db::ColumnText(rows.get(), 1), sqlite3_column_int(rows.get(), 2),
        sqlite3_column_int(rows.get(), 3) != 0, sqlite3_column_int(rows.get(), 4) != 0};
  }
  return pages;
}

inline int RootOf(const QString& path, const QString& table) {
  const db::ConnectionHandle connection = Connect(path);
  return static_cast<int>(db::QueryNumber(
      connection.get(),
      u"SELECT rootpage FROM sqlite_schema WHERE type = 'table' AND name = '%1'"_s.arg(table)));
}

/// A row as "table|row id|values" without its table and id.
inline QString ValuesOf(const QString& row) { return row.section(u'|', 2); }

/// The rows of `before` that `after` holds neither as they were nor beside their table.
inline QStringList Missing(const QStringList& before, const QStringList& after) {
  QStringList missing;
  std::ranges::set_difference(before, after, std::back_inserter(missing));
  QStringList beside;
  for (const QString& row : after) {
    if (row.section(u'|', 0, 0).contains(u" doubles"_s)) beside.append(ValuesOf(row));
  }
  missing.removeIf([&](const QString& row) { return beside.contains(ValuesOf(row)); });
  return missing;
}

inline int Repair(const CardFileOnDisk& file) {
  return ErrorNumberOf([&] { db::RepairFile(file.Path()); });
}

/// A file that is damaged again and again, and the rows that it held when it was whole.
class DamagedFile {
 public:
  explicit DamagedFile(int cards = 200, int pageSize = 1024)
      : m_file(cards, pageSize), m_whole(m_file.Bytes()), m_rows(m_file.Rows()), m_pageSize(pageSize) {}
  const CardFileOnDisk* operator->() const { return &m_file; }
  const CardFileOnDisk& operator*() const { return m_file; }
  [[nodiscard]] const QByteArray& Whole() const { return m_whole; }
  [[nodiscard]] const QStringList& RowsBefore() const { return m_rows; }
  [[nodiscard]] int PageSize() const { return m_pageSize; }

  /// Writes the damaged bytes, repairs, and gives the rows that are missing afterwards. The file that comes
  /// out is sound, and lies alone in its folder but for the damaged one.
  [[nodiscard]] QStringList MissingAfter(const QByteArray& damaged) {
    RemoveKept();
    m_file.Write(damaged);
    EXPECT_EQ(Repair(m_file), 0);
    EXPECT_EQ(CardFileOnDisk::Verdict(m_file.Path()), u"ok"_s);
    const QStringList rows = m_file.Rows();
    const QStringList names = m_file.Names();
    // A changed letter in a text is damage that nobody can see; a row that is gone is not.
    EXPECT_TRUE(rows.size() >= m_rows.size() || names.contains(u"cards.ddb.damaged"_s));
    if (names.size() > 1) {
      EXPECT_EQ(names, QStringList({u"cards.ddb"_s, u"cards.ddb.damaged"_s}));
      EXPECT_EQ(CardFileOnDisk::ReadAll(m_file.PathOf(u"cards.ddb.damaged"_s)), damaged);
    }
    return Missing(m_rows, rows);
  }
  /// The bytes with one page overwritten.
  [[nodiscard]] QByteArray WithoutPage(int page, char filling = '\0') const {
    QByteArray bytes = m_whole;
    return bytes.replace(qsizetype{page - 1} * m_pageSize, m_pageSize, QByteArray(m_pageSize, filling));
  }

 private:
  void RemoveKept() const {
    for (const QString& name : m_file.Names()) {
      if (name != u"cards.ddb"_s) QFile::remove(m_file.PathOf(name));
    }
  }
  CardFileOnDisk m_file;
  QByteArray m_whole;
  QStringList m_rows;
  int m_pageSize;
};

}  // namespace velmora::test
