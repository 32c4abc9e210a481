// SPDX-License-Identifier: MIT
#include "engine/DBEngine.h"
#include "tests/engine/AsNobody.h"
#include "tests/engine/PlainSqlite.h"
#include "tests/support/TestDatabase.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::AsNobody;
using test::ErrorNumberOf;
using test::PlainSqlite;
using test::TestDatabase;

namespace {

const Field Number{u"N"_s, FieldType::Long};
const Field Name{u"Name"_s, FieldType::Text, 50};

void WriteFile(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
}

QByteArray ReadFile(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

int OpenError(const QString& path, bool exclusive = false) {
  return ErrorNumberOf([&] { static_cast<void>(DBEngine().OpenDatabase(path, exclusive)); });
}

TEST(DBEngine, CreateDatabase_NewFile_IsAnOrdinaryDatabase) {
  const TestDatabase file;
  EXPECT_EQ(file->Name(), file.Path());
  EXPECT_TRUE(file->TableDefs().isEmpty());
  const PlainSqlite plain(file.Path());
  EXPECT_EQ(plain.Number(u"PRAGMA page_size"), 8192);
  EXPECT_EQ(plain.Rows(u"PRAGMA journal_mode"), QStringList{u"delete"_s});
  EXPECT_EQ(plain.Rows(u"PRAGMA integrity_check"), QStringList{u"ok"_s});
}

TEST(DBEngine, CreateDatabase_FileThatExists_Fails3204AndKeepsIt) {
  const TestDatabase file;
  const QString path = file.PathOf(u"other.ddb"_s);
  WriteFile(path, "mine");
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(DBEngine().CreateDatabase(path, {})); }), 3204);
  EXPECT_EQ(ReadFile(path), "mine");
}

TEST(DBEngine, CreateDatabase_NoSuchFolder_Fails3051) {
  const TestDatabase file;
  const QString path = file.PathOf(u"none/cards.ddb"_s);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(DBEngine().CreateDatabase(path, {})); }), 3051);
}

TEST(DBEngine, OpenDatabase_MissingFile_Fails3024AndMakesNone) {
  const TestDatabase file;
  EXPECT_EQ(OpenError(file.PathOf(u"none.ddb"_s)), 3024);
  EXPECT_FALSE(QFileInfo::exists(file.PathOf(u"none.ddb"_s)));
  EXPECT_EQ(OpenError({}), 3024);
}

TEST(DBEngine, OpenDatabase_NoDatabase_Fails3343AndKeepsIt) {
  const TestDatabase file;
  const QString path = file.PathOf(u"text.ddb"_s);
  for (const QByteArray& bytes : {QByteArray("hello"), QByteArray(5000, 'x'), QByteArray("SQLite format 3"),
                                  "SQLite format 3" + QByteArray(1, '\0') + QByteArray(5000, 'x')}) {
    WriteFile(path, bytes);
    EXPECT_EQ(OpenError(path), 3343);
    EXPECT_EQ(ReadFile(path), bytes);
  }
}

TEST(DBEngine, OpenDatabase_DamagedSchema_Fails3343) {
  const TestDatabase file;
  const QString path = file.PathOf(u"schema.ddb"_s);
  {
    const PlainSqlite plain(path);
    plain.Run(
        u"CREATE TABLE T (N INTEGER); PRAGMA writable_schema = ON; "
        "UPDATE sqlite_schema SET sql = 'CREATE TABLE T (N INTEGER, ('");
  }
  EXPECT_EQ(OpenError(path), 3343);
}

TEST(DBEngine, OpenDatabase_SharedTwice_BothReadAndWrite) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number});
  const auto second = DBEngine().OpenDatabase(file.Path());
  file.Add(u"T", {{u"N"_s, 1}});
  Recordset rows = second->OpenRecordset(u"T");
  rows.AddNew();
  rows.Set(u"N", 2);
  rows.Update();
  EXPECT_EQ(file.Rows(u"T"), (QStringList{u"1"_s, u"2"_s}));
}

TEST(DBEngine, OpenDatabase_Exclusive_NeedsAndKeepsTheFileAlone) {
  const TestDatabase file;
  EXPECT_EQ(OpenError(file.Path(), true), 3356);
  file->Close();
  const auto alone = DBEngine().OpenDatabase(file.Path(), true);
  EXPECT_EQ(OpenError(file.Path(), true), 3356);
  alone->Close();
  EXPECT_EQ(OpenError(file.Path()), 0);
}

TEST(Connection, StructureChangedByAnother_IsSeenAtOnce) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number});
  const auto second = DBEngine().OpenDatabase(file.Path());
  EXPECT_EQ(second->TableDefs(), QStringList{u"T"_s});
  file->AppendField(u"T", Name);
  file.Table(u"U"_s, {Number});
  file->CreateQueryDef(u"Q", u"SELECT * FROM T");
  EXPECT_EQ(second->TableDefs(), (QStringList{u"T"_s, u"U"_s}));
  EXPECT_EQ(second->QueryDefs(), QStringList{u"Q"_s});
  EXPECT_EQ(second->OpenRecordset(u"SELECT * FROM T").FieldCount(), 2);
  EXPECT_EQ(second->OpenRecordset(u"Q").FieldCount(), 2);
  file->DeleteField(u"T", u"Name");
  EXPECT_EQ(second->OpenRecordset(u"Q").FieldCount(), 1);
  file->DeleteTableDef(u"U");
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(second->OpenRecordset(u"U")); }), 3078);
}

TEST(Connection, RowDroppedColumnByAnother_ReadFailsClearly) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number, Name});
  file.Add(u"T", {{u"N"_s, 1}});
  const auto second = DBEngine().OpenDatabase(file.Path());
  const Recordset rows = second->OpenRecordset(u"T");
  EXPECT_EQ(rows.RecordCount(), 1);
  file->DeleteField(u"T", u"Name");
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(rows[u"N"]); }), 3061);
}

TEST(Connection, Settings_EachOpenFile_AreTheDurableOnes) {
  TestDatabase file;
  file.Table(u"T"_s, {Number});
  file.Add(u"T", {{u"N"_s, 1}});
  EXPECT_FALSE(QFileInfo::exists(file.Path() + u"-journal"_s));
  EXPECT_FALSE(QFileInfo::exists(file.Path() + u"-wal"_s));
  file.Close();
  PlainSqlite(file.Path()).Run(u"PRAGMA journal_mode = WAL");
  file.Reopen();
  file.Add(u"T", {{u"N"_s, 2}});
  EXPECT_EQ(PlainSqlite(file.Path()).Rows(u"PRAGMA journal_mode"), QStringList{u"delete"_s});
}

TEST(Connection, FileThatCannotBeWritten_OpensForReadingAndWritingFails3027) {
  TestDatabase file;
  file.Table(u"T"_s, {Number});
  file.Add(u"T", {{u"N"_s, 1}});
  file.Close();
  const QByteArray path = QFile::encodeName(file.Path());
  const QByteArray folder = QFile::encodeName(QFileInfo(file.Path()).path());
  ASSERT_EQ(::chmod(path.constData(), 0444), 0);
  ASSERT_EQ(::chmod(folder.constData(), 0755), 0);
  const AsNobody nobody;
  const auto database = DBEngine().OpenDatabase(file.Path());
  Recordset rows = database->OpenRecordset(u"T");
  EXPECT_EQ(rows[u"N"], Value(1));
  rows.Edit();
  rows.Set(u"N", 2);
  EXPECT_EQ(ErrorNumberOf([&] { rows.Update(); }), 3027);
  EXPECT_EQ(ErrorNumberOf([&] { database->Execute(u"Delete * from T"); }), 3027);
  EXPECT_EQ(ErrorNumberOf([&] { database->AppendField(u"T", Name); }), 3027);
}

/// A transaction that was cut off: its journal stays beside the file, which holds pages of both states.
void CutOffAWrite(const QString& path, const QString& as) {
  const PlainSqlite plain(path);
  plain.Run(u"PRAGMA cache_size = 1; PRAGMA cache_spill = 1; BEGIN; UPDATE T SET Name = 'half'");
  ASSERT_TRUE(QFile::copy(path, as));
  ASSERT_TRUE(QFile::copy(path + u"-journal"_s, as + u"-journal"_s));
}

TEST(Connection, JournalOfAProgramThatDied_IsPlayedBackAtOpen) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number, Name});
  for (int number = 0; number < 20; ++number) {
    file->Execute(u"INSERT INTO T (N, [Name]) VALUES (%1, 'whole')"_s.arg(number));
  }
  PlainSqlite(file.Path())
      .Run(
          u"WITH RECURSIVE C(N) AS (SELECT 1 UNION ALL SELECT N + 1 FROM C WHERE N < 20000) "
          "INSERT INTO T SELECT N, 'whole' FROM C");
  const QString path = file.PathOf(u"died.ddb"_s);
  CutOffAWrite(file.Path(), path);
  const auto database = DBEngine().OpenDatabase(path);
  EXPECT_EQ(database->OpenRecordset(u"SELECT * FROM T WHERE [Name] = 'half'").RecordCount(), 0);
  EXPECT_EQ(database->OpenRecordset(u"SELECT * FROM T WHERE [Name] = 'whole'").RecordCount(), 20020);
  EXPECT_FALSE(QFileInfo::exists(path + u"-journal"_s));
}

TEST(Connection, AnotherWriterIsBusy_WriteFails3045AndWorksLater) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number});
  const PlainSqlite other(file.Path());
  other.Run(u"BEGIN IMMEDIATE");
  EXPECT_EQ(ErrorNumberOf([&] { file->Execute(u"INSERT INTO T (N) VALUES (1)"); }), 3045);
  other.Run(u"ROLLBACK");
  file->Execute(u"INSERT INTO T (N) VALUES (2)");
  EXPECT_EQ(file.Rows(u"T"), QStringList{u"2"_s});
}

TEST(Connection, RowsStillBeingFetchedElsewhere_DoNotHoldUpAWrite) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number});
  for (int number = 1; number <= 3; ++number) file.Add(u"T", {{u"N"_s, number}});
  const auto second = DBEngine().OpenDatabase(file.Path());
  Recordset rows = second->OpenRecordset(u"T");
  EXPECT_EQ(rows[u"N"], Value(1));
  file->Execute(u"UPDATE T SET N = N + 10");
  file.Add(u"T", {{u"N"_s, 99}});
  EXPECT_EQ(rows.RecordCount(), 3);
  rows.MoveLast();
  EXPECT_EQ(rows[u"N"], Value(13));
}

TEST(Connection, ForeignFile_OddDeclarations_CanBeReadAndChanged) {
  const TestDatabase file;
  const QString path = file.PathOf(u"foreign.ddb"_s);
  PlainSqlite(path).Run(
      u"CREATE TABLE Odd (id INTEGER PRIMARY KEY, a, b VARCHAR(10) NOT NULL DEFAULT 'x', c BLOB, d \"my "
      u"type\", "
      "e INT GENERATED ALWAYS AS (id * 2), f BOOLEAN, g TIMESTAMP);"
      "CREATE TABLE Auto (id INTEGER PRIMARY KEY AUTOINCREMENT, \"odd \"\" name\" TEXT UNIQUE);"
      "CREATE TABLE NoRows (k TEXT PRIMARY KEY, v) WITHOUT ROWID;"
      "CREATE TABLE \"größe\" (n INT); CREATE TABLE \"GRÖßE\" (n INT);"
      "CREATE INDEX OnIt ON Odd (lower(b), a); CREATE VIEW V AS SELECT * FROM Odd;"
      "CREATE TRIGGER Tr AFTER INSERT ON Odd BEGIN DELETE FROM Auto; END;"
      "INSERT INTO Odd (id, a, c, f, g) VALUES (5, 'A', x'00ff', 1, 1700000000), (7, NULL, NULL, NULL, "
      "'never');"
      "INSERT INTO Auto VALUES (1, 'kept'); INSERT INTO NoRows VALUES ('k', 'v');"
      "INSERT INTO \"größe\" VALUES (1); INSERT INTO \"GRÖßE\" VALUES (2);");
  const auto database = DBEngine().OpenDatabase(path);
  EXPECT_EQ(database->TableDefs().size(), 5);
  Recordset odd = database->OpenRecordset(u"odd");
  EXPECT_EQ(odd[u"id"].Long(), 5);
  EXPECT_EQ(odd[u"f"], Value(true));
  odd.Edit();
  odd.Set(u"a", u"B"_s);
  odd.Set(u"id", 6);
  odd.Update();
  EXPECT_EQ(odd[u"id"].Long(), 6);
  EXPECT_EQ(odd[u"e"].Long(), 12);
  odd.AddNew();
  odd.Set(u"a", u"new"_s);
  odd.Update();
  odd.MoveLast();
  EXPECT_EQ(odd[u"b"], Value(u"x"_s));
  EXPECT_EQ(database->OpenRecordset(u"Auto")[u"odd \" name"], Value(u"kept"_s));
  EXPECT_EQ(database->OpenRecordset(u"größe").At(0).Long(), 1);
  EXPECT_EQ(database->OpenRecordset(u"GRÖßE").At(0).Long(), 2);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(database->OpenRecordset(u"NoRows")); }), 3000);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(database->OpenRecordset(u"V")); }), 3078);
  EXPECT_EQ(ErrorNumberOf([&] { database->DeleteField(u"Odd", u"a"); }), 3280);
}

TEST(Connection, NamesInBrackets_AreQuotedNeverRun) {
  const TestDatabase file;
  const QString nasty = u"a\"; DROP TABLE T; --"_s;
  file.Table(u"T"_s, {Number});
  file.Table(nasty, {{nasty, FieldType::Text, 50}}, {{nasty, {nasty}, true, false}});
  file.Add(nasty, {{nasty, u"'; DELETE FROM T; --"_s}});
  EXPECT_EQ(file.Rows(nasty), QStringList{u"'; DELETE FROM T; --"_s});
  file->SetTableProperty(nasty, nasty, nasty);
  EXPECT_EQ(file->TableProperty(nasty, nasty), nasty);
  EXPECT_TRUE(file->HasTable(u"T"));
}

TEST(Database, OpenRecordset_Sources_AreTakenOrRefused) {
  const TestDatabase file;
  file.Table(u"City T"_s, {Number});
  file.Table(u"1"_s, {Number});
  file->CreateQueryDef(u"All&", u"SELECT * FROM [City T]");
  file->CreateQueryDef(u"Wipe", u"Delete * from [City T]");
  const auto openError = [&](QStringView source) {
    return ErrorNumberOf([&] { static_cast<void>(file->OpenRecordset(source)); });
  };
  for (const auto* source :
       {u"City T", u"city t ", u"[City T]", u"1", u"[1]", u"All&", u"SELECT * FROM [All&]",
        u"select * from [1]", u"\r\n Select *\r\nFrom [1] ;\r\n"}) {
    EXPECT_EQ(openError(source), 0) << QStringView(source).toUtf8().toStdString();
  }
  EXPECT_EQ(openError(u"None"), 3078);
  EXPECT_EQ(openError(u""), 3078);
  EXPECT_EQ(openError(u"SELECT * FROM None"), 3078);
  EXPECT_EQ(openError(u"SELECT [None] FROM [1]"), 3061);
  EXPECT_EQ(openError(u"Delete * from [1]"), 3219);
  EXPECT_EQ(openError(u"Wipe"), 3219);
}

TEST(Database, Execute_Sources_AreRunOrRefused) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number});
  file->CreateQueryDef(u"Fill", u"INSERT INTO T (N) VALUES (1)");
  file->CreateQueryDef(u"Rows", u"SELECT * FROM T");
  EXPECT_EQ(file->Execute(u"Fill"), 1);
  EXPECT_EQ(file->Execute(u"INSERT INTO T (N) VALUES (2)"), 1);
  EXPECT_EQ(file->Execute(u"UPDATE T SET N = N + 1"), 2);
  EXPECT_EQ(file->Execute(u"Delete * from T WHERE N > 100"), 0);
  EXPECT_EQ(ErrorNumberOf([&] { file->Execute(u"SELECT * FROM T"); }), 3065);
  EXPECT_EQ(ErrorNumberOf([&] { file->Execute(u"Rows"); }), 3065);
  EXPECT_NE(ErrorNumberOf([&] { file->Execute(u"DROP TABLE T"); }), 0);
  EXPECT_NE(ErrorNumberOf([&] { file->Execute(u"Delete * from T; Delete * from T"); }), 0);
  EXPECT_EQ(file.Rows(u"T"), (QStringList{u"2"_s, u"3"_s}));
}

TEST(Database, Execute_FailsHalfWay_LeavesAllRowsAsTheyWere) {
  const TestDatabase file;
  file.Table(u"T"_s, {Number}, {{u"I"_s, {u"N"_s}, true, false}});
  for (const int number : {1, 2, 4}) file.Add(u"T", {{u"N"_s, number}});
  EXPECT_EQ(ErrorNumberOf([&] { file->Execute(u"UPDATE T SET N = N * 2 WHERE N < 4"); }), 3022);
  EXPECT_EQ(file.Rows(u"T"), (QStringList{u"1"_s, u"2"_s, u"4"_s}));
}

}  // namespace
}  // namespace velmora::db
