// SPDX-License-Identifier: MIT
#include "platform/db/FileLock.h"
#include "platform/db/FileWork.h"
#include "tests/platform/db/CardFileOnDisk.h"
#include "tests/support/TestDatabase.h"

#include <map>
#include <random>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::AnotherProcess;
using test::CardFileOnDisk;
using test::Connect;
using test::ErrorNumberAsUser;
using test::ErrorNumberOf;
using test::Seed;

namespace {

struct PageUse {
  QString Kind;
  int Cells = 0;
  bool OfTable = false;
  bool OfSchema = false;
};

/// What each page of a whole file is for.
std::map<int, PageUse> PagesOf(const QString& path) {
  std::map<int, PageUse> pages;
  const ConnectionHandle connection = OpenConnection(path, SQLITE_OPEN_READONLY);
  const StatementHandle rows = Prepare(
      connection.get(),
      u"SELECT pageno, pagetype, ncell, name IN (SELECT name FROM sqlite_schema WHERE type = 'table'), "
      "name = 'sqlite_schema' FROM dbstat");
  while (sqlite3_step(rows.get()) == SQLITE_ROW) {
    pages[sqlite3_column_int(rows.get(), 0)] = {ColumnText(rows.get(), 1), sqlite3_column_int(rows.get(), 2),
                                                sqlite3_column_int(rows.get(), 3) != 0,
                                                sqlite3_column_int(rows.get(), 4) != 0};
  }
  return pages;
}

int RootOf(const QString& path, const QString& table) {
  const ConnectionHandle connection = Connect(path);
  return static_cast<int>(
      QueryNumber(connection.get(),
                  u"SELECT rootpage FROM sqlite_schema WHERE type = 'table' AND name = '%1'"_s.arg(table)));
}

/// A row as "table|row id|values" without its table and id.
QString ValuesOf(const QString& row) { return row.section(u'|', 2); }

/// The rows of `before` that `after` holds neither as they were nor beside their table.
QStringList Missing(const QStringList& before, const QStringList& after) {
  QStringList missing;
  std::ranges::set_difference(before, after, std::back_inserter(missing));
  QStringList beside;
  for (const QString& row : after) {
    if (row.section(u'|', 0, 0).contains(u" doubles"_s)) beside.append(ValuesOf(row));
  }
  missing.removeIf([&](const QString& row) { return beside.contains(ValuesOf(row)); });
  return missing;
}

int Repair(const CardFileOnDisk& file) {
  return ErrorNumberOf([&] { RepairFile(file.Path()); });
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

TEST(RepairFile, SoundFile_StaysAsItIs) {
  const CardFileOnDisk file;
  const QByteArray before = file.Bytes();
  EXPECT_EQ(Repair(file), 0);
  EXPECT_EQ(file.Bytes(), before);
  EXPECT_EQ(file.Names(), QStringList{u"cards.ddb"_s});
}

TEST(RepairFile, MissingFile_Fails3024) {
  const CardFileOnDisk file(3);
  EXPECT_EQ(ErrorNumberOf([&] { RepairFile(file.PathOf(u"missing.ddb"_s)); }), 3024);
}

TEST(RepairFile, NoDatabase_Fails3343AndLeavesItAsItIs) {
  const CardFileOnDisk file(3);
  for (const QByteArray& bytes :
       {QByteArray(), QByteArray("Dear customer,\n").repeated(1000), QByteArray(50'000, '\0'),
        QByteArray(50'000, '\x0d'), file.Bytes().left(100), file.Bytes().left(700)}) {
    file.Write(bytes);
    EXPECT_EQ(Repair(file), 3343) << bytes.left(20).constData();
    EXPECT_EQ(file.Bytes(), bytes);
    EXPECT_EQ(file.Names(), QStringList{u"cards.ddb"_s});
  }
}

TEST(RepairFile, OpenInThisProgram_Fails3356) {
  const CardFileOnDisk file(3);
  const FileLock lock(file.Path(), LockKind::Shared, 0);
  EXPECT_EQ(Repair(file), 3356);
}

TEST(RepairFile, OpenInAnotherProgram_Fails3356) {
  const CardFileOnDisk file(3);
  const AnotherProcess other([&] { return std::make_shared<FileLock>(file.Path(), LockKind::Shared, 0); });
  EXPECT_EQ(Repair(file), 3356);
}

TEST(RepairFile, WriteProtectedDamagedFile_Fails3027AndLeavesItAsItIs) {
  const DamagedFile file(20);
  const QByteArray damaged = file.WithoutPage(RootOf(file->Path(), u"MainData"_s));
  file->Write(damaged);
  ASSERT_EQ(::chmod(QFile::encodeName(file->Folder()).constData(), 0777), 0);
  ASSERT_EQ(::chmod(QFile::encodeName(file->Path()).constData(), 0444), 0);
  EXPECT_EQ(ErrorNumberAsUser([&] { RepairFile(file->Path()); }), 3027);
  EXPECT_EQ(file->Bytes(), damaged);
}

TEST(RepairFile, FolderThatMayNotBeWritten_Fails3051AndLeavesItAsItIs) {
  const DamagedFile file(20);
  const QByteArray damaged = file.WithoutPage(RootOf(file->Path(), u"MainData"_s));
  file->Write(damaged);
  ASSERT_EQ(::chmod(QFile::encodeName(file->Path()).constData(), 0666), 0);
  ASSERT_EQ(::chmod(QFile::encodeName(file->Folder()).constData(), 0555), 0);
  EXPECT_EQ(ErrorNumberAsUser([&] { RepairFile(file->Path()); }), 3051);
  EXPECT_EQ(file->Bytes(), damaged);
}

TEST(RepairFile, DamagedFile_KeepsModePageSizeVersionAndDefinitions) {
  DamagedFile file(100, 2048);
  const auto definitions = [&] {
    const ConnectionHandle connection = Connect(file->Path());
    const StatementHandle rows =
        Prepare(connection.get(),
                u"SELECT group_concat(sql, ';') FROM (SELECT sql FROM sqlite_schema ORDER BY type, name)");
    sqlite3_step(rows.get());
    return ColumnText(rows.get(), 0);
  };
  const QString before = definitions();
  ASSERT_EQ(::chmod(QFile::encodeName(file->Path()).constData(), 0640), 0);
  EXPECT_EQ(file.MissingAfter(file.WithoutPage(RootOf(file->Path(), u"MainData"_s))), QStringList());
  EXPECT_EQ(definitions(), before);
  EXPECT_EQ(CardFileOnDisk::StatusOf(file->Path()).st_mode & 0777U, 0640U);
  EXPECT_EQ(QueryNumber(Connect(file->Path()).get(), u"PRAGMA page_size"), 2048);
  EXPECT_EQ(QueryNumber(Connect(file->Path()).get(), u"PRAGMA user_version"), 7);
}

TEST(RepairFile, NameIsALink_RepairsTheRealFileAndKeepsTheLink) {
  DamagedFile file(50);
  const QString link = file->PathOf(u"link.ddb"_s);
  file->Write(file.WithoutPage(RootOf(file->Path(), u"MainData"_s)));
  ASSERT_TRUE(QFile::link(file->Path(), link));
  RepairFile(link);
  EXPECT_TRUE(S_ISLNK(CardFileOnDisk::StatusOf(link).st_mode));
  EXPECT_EQ(Missing(file.RowsBefore(), file->Rows()), QStringList());
}

TEST(RepairFile, EarlierDamagedFileKept_IsNotOverwritten) {
  const DamagedFile file(50);
  CardFileOnDisk::WriteAll(file->PathOf(u"cards.ddb.damaged"_s), "from an earlier day");
  file->Write(file.WithoutPage(RootOf(file->Path(), u"MainData"_s)));
  EXPECT_EQ(Repair(*file), 0);
  EXPECT_EQ(CardFileOnDisk::ReadAll(file->PathOf(u"cards.ddb.damaged"_s)), "from an earlier day");
  EXPECT_TRUE(QFile::exists(file->PathOf(u"cards.ddb.damaged2"_s)));
}

TEST(RepairFile, AnyOnePageDestroyed_LosesTheRowsOfThatPageAlone) {
  DamagedFile file;
  const std::map<int, PageUse> pages = PagesOf(file->Path());
  ASSERT_GT(pages.size(), 50U);
  for (const auto& [number, use] : pages) {
    if (use.OfSchema) continue;
    SCOPED_TRACE(qPrintable(u"page %1, %2"_s.arg(number).arg(use.Kind)));
    const bool isLeaf = use.OfTable && use.Kind == u"leaf"_s;
    const int mostLost = isLeaf ? use.Cells : use.Kind == u"overflow"_s ? 1 : 0;
    for (const char filling : {'\0', '\x0d'}) {
      EXPECT_LE(file.MissingAfter(file.WithoutPage(number, filling)).size(), mostLost);
    }
    if (testing::Test::HasFailure()) break;
  }
}

TEST(RepairFile, IndexPageDestroyed_RestoresTheIndexAndKeepsNoDamagedFile) {
  DamagedFile file;
  for (const auto& [number, use] : PagesOf(file->Path())) {
    if (use.OfTable || use.Kind != u"leaf"_s || number < 3) continue;
    EXPECT_EQ(file.MissingAfter(file.WithoutPage(number)), QStringList());
    EXPECT_EQ(file->Names(), QStringList{u"cards.ddb"_s});
    return;
  }
  FAIL() << "no page of an index";
}

TEST(RepairFile, PageOfTheListOfTablesDestroyed_Fails3343AndLeavesTheFileAsItIs) {
  const DamagedFile file(20, 512);
  int tried = 0;
  for (const auto& [number, use] : PagesOf(file->Path())) {
    if (!use.OfSchema || use.Kind == u"overflow"_s) continue;
    ++tried;
    const QByteArray damaged = file.WithoutPage(number);
    file->Write(damaged);
    EXPECT_EQ(Repair(*file), 3343);
    EXPECT_EQ(file->Bytes(), damaged);
    EXPECT_EQ(file->Names(), QStringList{u"cards.ddb"_s});
  }
  EXPECT_GT(tried, 2);
}

TEST(RepairFile, CutShortAnywhere_KeepsAllRowsOfThePagesThatAreLeft) {
  DamagedFile file;
  const std::map<int, PageUse> pages = PagesOf(file->Path());
  const int last = pages.rbegin()->first;
  int lastOfSchema = 1;
  for (const auto& [number, use] : pages) {
    if (use.OfSchema) lastOfSchema = number;
  }
  for (int left = 3; left < last; left += 7) {
    SCOPED_TRACE(left);
    qsizetype mostLost = 0;
    if (left < lastOfSchema) continue;
    for (const auto& [number, use] : pages) {
      if (number > left && use.OfTable) mostLost += use.Kind == u"leaf"_s ? use.Cells : 1;
    }
    EXPECT_LE(file.MissingAfter(file.Whole().left(qsizetype{left} * file.PageSize() + 17)).size(), mostLost);
    if (testing::Test::HasFailure()) break;
  }
}

TEST(RepairFile, AnyOneByteChanged_LosesOneRowAtMost) {
  DamagedFile file(60, 512);
  const std::map<int, PageUse> pages = PagesOf(file->Path());
  std::mt19937 random(Seed(20240517));
  std::uniform_int_distribution<qsizetype> place(file.PageSize(), file.Whole().size() - 1);
  std::uniform_int_distribution<int> value(0, 255);
  for (int round = 0; round < 400; ++round) {
    QByteArray bytes = file.Whole();
    const qsizetype at = place(random);
    if (pages.at(static_cast<int>(at / file.PageSize()) + 1).OfSchema) continue;
    bytes[at] = static_cast<char>(value(random));
    SCOPED_TRACE(qPrintable(u"round %1, byte %2 = %3"_s.arg(round).arg(at).arg(int{bytes[at]})));
    EXPECT_LE(file.MissingAfter(bytes).size(), 1);
    if (testing::Test::HasFailure()) break;
  }
}

TEST(RepairFile, AnyBytesOfTheFirstPageChanged_LosesNothingOrLeavesTheFileAsItIs) {
  DamagedFile file(60, 4096);
  std::mt19937 random(Seed(7));
  std::uniform_int_distribution<qsizetype> place(0, file.PageSize() - 1);
  std::uniform_int_distribution<int> value(0, 255);
  int repaired = 0;
  for (int round = 0; round < 300; ++round) {
    QByteArray bytes = file.Whole();
    const qsizetype at = round < 120 ? round : place(random);
    bytes[at] = static_cast<char>(bytes[at] ^ (value(random) | 1));
    SCOPED_TRACE(qPrintable(u"round %1, byte %2 = %3"_s.arg(round).arg(at).arg(int{bytes[at]})));
    file->Write(bytes);
    const int error = Repair(*file);
    if (error == 0) {
      ++repaired;
      const QString verdict = CardFileOnDisk::Verdict(file->Path());
      EXPECT_EQ(verdict, u"ok"_s);
      // The name of a table may be what was changed.
      EXPECT_EQ(file->Rows().size(), file.RowsBefore().size());
    } else {
      EXPECT_EQ(error, 3343);
      EXPECT_EQ(file->Bytes(), bytes);
    }
    if (testing::Test::HasFailure()) break;
  }
  EXPECT_GT(repaired, 100);
}

TEST(RepairFile, ManyBytesChanged_NeverLosesMoreThanWasHit) {
  DamagedFile file(300, 1024);
  const std::map<int, PageUse> pages = PagesOf(file->Path());
  std::mt19937 random(Seed(99));
  std::uniform_int_distribution<qsizetype> place(file.PageSize(), file.Whole().size() - 1);
  std::uniform_int_distribution<int> value(0, 255);
  for (int round = 0; round < 60; ++round) {
    SCOPED_TRACE(round);
    QByteArray bytes = file.Whole();
    qsizetype mostLost = 0;
    for (int hit = 0; hit <= round; ++hit) {
      const qsizetype at = place(random);
      bytes[at] = static_cast<char>(value(random));
      const auto page = pages.find(static_cast<int>(at / file.PageSize()) + 1);
      if (page == pages.end() || !page->second.OfTable) continue;
      mostLost += page->second.Kind == u"leaf"_s ? page->second.Cells : 1;
    }
    EXPECT_LE(file.MissingAfter(bytes).size(), mostLost);
    if (testing::Test::HasFailure()) break;
  }
}

TEST(RepairFile, LargeFileWithItsRootDestroyed_KeepsAllRows) {
  DamagedFile file(3000, 1024);
  EXPECT_EQ(file.MissingAfter(file.WithoutPage(RootOf(file->Path(), u"MainData"_s))), QStringList());
}

TEST(RepairFile, DeletedRows_StayDeleted) {
  DamagedFile file(400);
  db::Run(Connect(file->Path()).get(),
          u"PRAGMA secure_delete=OFF; DELETE FROM MainData WHERE \"Index@\" > 100");
  const QStringList rows = file->Rows();
  const QByteArray bytes = file->Bytes();
  const int root = RootOf(file->Path(), u"MainData"_s);
  file->Write(QByteArray(bytes).replace(qsizetype{root - 1} * 1024, 1024, QByteArray(1024, '\0')));
  ASSERT_EQ(Repair(*file), 0);
  EXPECT_EQ(file->Rows(), rows);
}

TEST(RepairFile, TwoRowsWithOneUniqueKey_KeepsTheFirstAndPutsTheOtherBeside) {
  DamagedFile file(20);
  {
    // As damage would have it: the index has lost an entry, and the row came again.
    const ConnectionHandle tool = OpenConnection(file->Path(), SQLITE_OPEN_READWRITE);
    db::Run(
        tool.get(),
        u"DROP INDEX \"MainData.Index@\"; INSERT INTO MainData(\"Index@\", Name, Active) VALUES(5, 'Again', "
        u"0);"
        "PRAGMA writable_schema=ON; INSERT INTO sqlite_schema VALUES('index', 'MainData.Index@', 'MainData',"
        "(SELECT rootpage FROM sqlite_schema WHERE name = 'Location.Place'),"
        "'CREATE UNIQUE INDEX \"MainData.Index@\" ON \"MainData\" (\"Index@\")')");
  }
  ASSERT_EQ(Repair(*file), 0);
  const ConnectionHandle connection = Connect(file->Path());
  EXPECT_EQ(QueryNumber(connection.get(),
                        u"SELECT count(*) FROM MainData WHERE \"Index@\" = 5 AND Name = 'Müller 5'"),
            1);
  EXPECT_EQ(QueryNumber(connection.get(), u"SELECT count(*) FROM MainData WHERE \"Index@\" = 5"), 1);
  EXPECT_EQ(QueryNumber(connection.get(), u"SELECT count(*) FROM \"MainData doubles\" WHERE Name = 'Again'"),
            1);
  EXPECT_EQ(Missing(file.RowsBefore(), file->Rows()), QStringList());
  EXPECT_TRUE(QFile::exists(file->PathOf(u"cards.ddb.damaged"_s)));
}

TEST(RepairFile, StrangersFileThatWouldRunMoreThanDefinitions_IsLeftAsItIs) {
  const CardFileOnDisk file(3);
  {
    const ConnectionHandle tool = OpenConnection(file.Path(), SQLITE_OPEN_READWRITE);
    db::Run(
        tool.get(),
        u"PRAGMA writable_schema=ON; UPDATE sqlite_schema SET sql = 'CREATE TABLE Location AS WITH RECURSIVE "
        "n(i) AS (SELECT 1 UNION ALL SELECT i FROM n) SELECT i FROM n' WHERE name = 'Location'");
  }
  const QByteArray before = file.Bytes();
  EXPECT_NE(Repair(file), 0);
  EXPECT_EQ(file.Bytes(), before);
  EXPECT_EQ(file.Names(), QStringList{u"cards.ddb"_s});
}

TEST(RepairFile, FileInAnotherEncoding_KeepsItsTexts) {
  const CardFileOnDisk file(3);
  QFile::remove(file.Path());
  {
    const ConnectionHandle tool = OpenConnection(file.Path(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    db::Run(tool.get(),
            u"PRAGMA encoding='UTF-16le'; PRAGMA page_size=1024; CREATE TABLE T(a TEXT, b REAL, c BLOB);"
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200) "
            "INSERT INTO T SELECT 'Größe ' || i, i / 2.0, x'00ff' FROM n");
  }
  const QStringList rows = file.Rows();
  const int root = RootOf(file.Path(), u"T"_s);
  file.Write(file.Bytes().replace(qsizetype{root - 1} * 1024, 1024, QByteArray(1024, '\0')));
  ASSERT_EQ(Repair(file), 0);
  EXPECT_EQ(file.Rows(), rows);
}

TEST(RepairFile, TableWithRowIdAsKeyAndCountedIds_KeepsThem) {
  const CardFileOnDisk file(3);
  QFile::remove(file.Path());
  {
    const ConnectionHandle tool = OpenConnection(file.Path(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    db::Run(tool.get(),
            u"PRAGMA page_size=1024; CREATE TABLE T(a TEXT, Id INTEGER PRIMARY KEY AUTOINCREMENT);"
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200) "
            "INSERT INTO T SELECT 'Row ' || i, i * 5 FROM n");
  }
  const QStringList rows = file.Rows();
  const int root = RootOf(file.Path(), u"T"_s);
  file.Write(file.Bytes().replace(qsizetype{root - 1} * 1024, 1024, QByteArray(1024, '\0')));
  ASSERT_EQ(Repair(file), 0);
  EXPECT_EQ(file.Rows(), rows);
  EXPECT_EQ(QueryNumber(Connect(file.Path()).get(), u"SELECT seq FROM sqlite_sequence"), 1000);
}

}  // namespace
}  // namespace velmora::db
