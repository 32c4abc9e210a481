// SPDX-License-Identifier: MIT
#include "engine/file/FileLock.h"
#include "tests/engine/DamagedCardFile.h"

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::AnotherProcess;
using test::CardFileOnDisk;
using test::Connect;
using test::DamagedFile;
using test::ErrorNumberAsUser;
using test::ErrorNumberOf;
using test::Missing;
using test::Repair;
using test::RootOf;

namespace {

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

TEST(RepairFile, NullWhereNoneCanBe_BecomesTheDefault) {
  DamagedFile file(20);
  {
    const ConnectionHandle tool = OpenConnection(file->Path(), SQLITE_OPEN_READWRITE);
    db::Run(
        tool.get(),
        u"CREATE TABLE T(a TEXT, b YESNO DEFAULT 0); INSERT INTO T VALUES('no', NULL), ('yes', -1);"
        "PRAGMA writable_schema=ON; UPDATE sqlite_schema SET sql = 'CREATE TABLE T(a TEXT, b YESNO NOT NULL "
        "DEFAULT 0)' WHERE name = 'T'");
  }
  ASSERT_EQ(Repair(*file), 0);
  const ConnectionHandle connection = Connect(file->Path());
  EXPECT_EQ(QueryNumber(connection.get(), u"SELECT count(*) FROM T WHERE a = 'no' AND b = 0"), 1);
  EXPECT_EQ(QueryNumber(connection.get(), u"SELECT count(*) FROM T WHERE a = 'yes' AND b = -1"), 1);
  EXPECT_EQ(Missing(file.RowsBefore(), file->Rows()), QStringList());
}

TEST(RepairFile, DoubleFromBeforeAColumnWasAdded_HasTheDefaultOfThatColumn) {
  const CardFileOnDisk file(3);
  {
    const ConnectionHandle tool = OpenConnection(file.Path(), SQLITE_OPEN_READWRITE);
    db::Run(
        tool.get(),
        u"CREATE TABLE T(a INTEGER); INSERT INTO T VALUES(1), (1); ALTER TABLE T ADD COLUMN b DEFAULT 'x';"
        "CREATE INDEX I ON T(a); PRAGMA writable_schema=ON;"
        "UPDATE sqlite_schema SET sql = 'CREATE UNIQUE INDEX I ON T(a)' WHERE name = 'I'");
  }
  ASSERT_EQ(Repair(file), 0);
  EXPECT_EQ(QueryNumber(Connect(file.Path()).get(), u"SELECT count(*) FROM \"T doubles\" WHERE b = 'x'"), 1);
}

}  // namespace
}  // namespace velmora::db
