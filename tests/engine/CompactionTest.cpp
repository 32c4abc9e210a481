// SPDX-License-Identifier: MIT
#include "engine/file/Compaction.h"
#include "engine/file/FileLock.h"
#include "tests/engine/CardFileOnDisk.h"
#include "tests/support/TestDatabase.h"

#include <QDir>

#include <unistd.h>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::AnotherProcess;
using test::CardFileOnDisk;
using test::Connect;
using test::ErrorNumberAsUser;
using test::ErrorNumberOf;

namespace {

constexpr mode_t Permissions = 07777;

/// What the disk knows of a file when nobody has touched it.
class Untouched {
 public:
  explicit Untouched(const CardFileOnDisk& file)
      : m_file(file),
        m_bytes(file.Bytes()),
        m_names(file.Names()),
        m_status(CardFileOnDisk::StatusOf(file.Path())) {}
  ~Untouched() {
    EXPECT_EQ(m_file.Bytes(), m_bytes);
    EXPECT_EQ(m_file.Names(), m_names);
    const struct stat now = CardFileOnDisk::StatusOf(m_file.Path());
    EXPECT_EQ(now.st_ino, m_status.st_ino);
    EXPECT_EQ(now.st_mode, m_status.st_mode);
  }
  Untouched(const Untouched&) = delete;
  Untouched& operator=(const Untouched&) = delete;

 private:
  const CardFileOnDisk& m_file;
  QByteArray m_bytes;
  QStringList m_names;
  struct stat m_status;
};

QString CopyOf(const CardFileOnDisk& file) { return file.PathOf(u"temp~.ddb"_s); }

int Compact(const CardFileOnDisk& file) {
  return ErrorNumberOf([&] { CompactFile(file.Path(), CopyOf(file)); });
}

int Replace(const CardFileOnDisk& file) {
  return ErrorNumberOf([&] { ReplaceFile(CopyOf(file), file.Path()); });
}

void ChangeMode(const QString& path, mode_t mode) {
  ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
}

std::int64_t NumberIn(const QString& path, QStringView sql) { return QueryNumber(Connect(path).get(), sql); }

TEST(CompactFile, FileWithRoomInIt_CopyHoldsAllRowsInLessRoom) {
  const CardFileOnDisk file(500);
  db::Run(Connect(file.Path()).get(), u"DELETE FROM Location WHERE rowid % 5 <> 0");
  ASSERT_EQ(Compact(file), 0);
  EXPECT_EQ(CardFileOnDisk::RowsOf(CopyOf(file)), file.Rows());
  EXPECT_LT(QFile(CopyOf(file)).size(), QFile(file.Path()).size());
  EXPECT_EQ(CardFileOnDisk::Verdict(CopyOf(file)), u"ok"_s);
}

TEST(CompactFile, AnyFile_CopyHasItsPageSizeVersionAndIndexes) {
  const CardFileOnDisk file(50, 8192);
  db::Run(Connect(file.Path()).get(), u"PRAGMA application_id = 4711");
  ASSERT_EQ(Compact(file), 0);
  for (const QStringView question : {u"PRAGMA page_size", u"PRAGMA user_version", u"PRAGMA application_id",
                                     u"PRAGMA auto_vacuum", u"SELECT count(*) FROM sqlite_schema"}) {
    EXPECT_EQ(NumberIn(CopyOf(file), question), NumberIn(file.Path(), question))
        << qPrintable(question.toString());
  }
  EXPECT_EQ(NumberIn(CopyOf(file), u"PRAGMA page_size"), 8192);
}

TEST(CompactFile, AnyFile_LeavesTheSourceUntouchedAndNothingBesideTheCopy) {
  const CardFileOnDisk file;
  const QByteArray before = file.Bytes();
  ASSERT_EQ(Compact(file), 0);
  EXPECT_EQ(file.Bytes(), before);
  EXPECT_EQ(file.Names(), QStringList({u"cards.ddb"_s, u"temp~.ddb"_s}));
}

TEST(CompactFile, FileThatOthersMayNotRead_CopyIsAsPrivate) {
  const CardFileOnDisk file(20);
  ChangeMode(file.Path(), 0640);
  ASSERT_EQ(Compact(file), 0);
  EXPECT_EQ(CardFileOnDisk::StatusOf(CopyOf(file)).st_mode & Permissions, 0640U);
}

TEST(CompactFile, DestinationExists_Fails3204AndLeavesBoth) {
  const CardFileOnDisk file(20);
  CardFileOnDisk::WriteAll(CopyOf(file), "from an earlier day");
  const Untouched untouched(file);
  EXPECT_EQ(Compact(file), 3204);
  EXPECT_EQ(CardFileOnDisk::ReadAll(CopyOf(file)), "from an earlier day");
}

TEST(CompactFile, DestinationExistsAndSourceIsMissing_Fails3204) {
  const CardFileOnDisk file(3);
  EXPECT_EQ(ErrorNumberOf([&] { CompactFile(file.PathOf(u"missing.ddb"_s), file.Path()); }), 3204);
}

TEST(CompactFile, DestinationIsAnEmptyFile_Fails3204) {
  const CardFileOnDisk file(20);
  CardFileOnDisk::WriteAll(CopyOf(file), "");
  const Untouched untouched(file);
  EXPECT_EQ(Compact(file), 3204);
}

TEST(CompactFile, DestinationIsALinkToNowhere_Fails3204) {
  const CardFileOnDisk file(20);
  ASSERT_TRUE(QFile::link(file.PathOf(u"nowhere"_s), CopyOf(file)));
  EXPECT_EQ(Compact(file), 3204);
  EXPECT_FALSE(QFile::exists(file.PathOf(u"nowhere"_s)));
}

TEST(CompactFile, DestinationIsTheSource_Fails) {
  const CardFileOnDisk file(20);
  const Untouched untouched(file);
  EXPECT_EQ(ErrorNumberOf([&] { CompactFile(file.Path(), file.Path()); }), 3204);
}

TEST(CompactFile, SourceMissing_Fails3024AndMakesNothing) {
  const CardFileOnDisk file(20);
  EXPECT_EQ(ErrorNumberOf([&] { CompactFile(file.PathOf(u"missing.ddb"_s), CopyOf(file)); }), 3024);
  EXPECT_EQ(file.Names(), QStringList{u"cards.ddb"_s});
}

TEST(CompactFile, SourceIsNoDatabase_Fails3343AndMakesNothing) {
  const CardFileOnDisk file(20);
  for (const QByteArray& bytes : {QByteArray(), QByteArray("text ").repeated(1000)}) {
    file.Write(bytes);
    const Untouched untouched(file);
    EXPECT_EQ(Compact(file), 3343);
  }
}

TEST(CompactFile, SourceCutShort_FailsAndMakesNothing) {
  const CardFileOnDisk file;
  file.Write(file.Bytes().left(file.Bytes().size() / 2));
  const Untouched untouched(file);
  EXPECT_EQ(Compact(file), 3343);
}

TEST(CompactFile, SourceOpenInThisProgram_Fails3356) {
  const CardFileOnDisk file(20);
  const Untouched untouched(file);
  const FileLock lock(file.Path(), LockKind::Shared, 0);
  const ConnectionHandle connection = Connect(file.Path());
  EXPECT_EQ(Compact(file), 3356);
}

TEST(CompactFile, SourceOpenInAnotherProgram_Fails3356) {
  const CardFileOnDisk file(20);
  const Untouched untouched(file);
  const AnotherProcess other([&] { return std::make_shared<FileLock>(file.Path(), LockKind::Shared, 0); });
  EXPECT_EQ(Compact(file), 3356);
}

TEST(CompactFile, AnotherToolIsWriting_Fails3356) {
  const CardFileOnDisk file(20);
  const Untouched untouched(file);
  const AnotherProcess tool([&] {
    const auto connection =
        std::make_shared<ConnectionHandle>(OpenConnection(file.Path(), SQLITE_OPEN_READWRITE));
    db::Run(connection->get(), u"BEGIN IMMEDIATE");
    return connection;
  });
  EXPECT_EQ(Compact(file), 3356);
}

TEST(CompactFile, FolderThatMayNotBeWritten_Fails3051) {
  const CardFileOnDisk file(20);
  ChangeMode(file.Folder(), 0555);
  ChangeMode(file.Path(), 0666);
  const Untouched untouched(file);
  EXPECT_EQ(ErrorNumberAsUser([&] { CompactFile(file.Path(), CopyOf(file)); }), 3051);
}

TEST(CompactFile, SourceInWriteAheadMode_CopyHoldsWhatTheLogHeld) {
  const CardFileOnDisk file(20);
  AnotherProcess tool([&] {
    const auto connection =
        std::make_shared<ConnectionHandle>(OpenConnection(file.Path(), SQLITE_OPEN_READWRITE));
    db::Run(connection->get(),
            u"PRAGMA journal_mode=WAL; INSERT INTO Location VALUES('In the log', 1, NULL)");
    return connection;
  });
  tool.End();
  ASSERT_TRUE(QFile::exists(file.Path() + u"-wal"_s));
  ASSERT_EQ(Compact(file), 0);
  EXPECT_EQ(NumberIn(CopyOf(file), u"SELECT count(*) FROM Location WHERE Place = 'In the log'"), 1);
  EXPECT_FALSE(QFile::exists(file.Path() + u"-wal"_s));
}

TEST(CompactFile, StrangersFileWithTriggersAndViews_KeepsThemAndRunsNothing) {
  const CardFileOnDisk file(20);
  {
    const ConnectionHandle tool = OpenConnection(file.Path(), SQLITE_OPEN_READWRITE);
    db::Run(tool.get(),
            u"CREATE VIEW V AS SELECT * FROM Location; CREATE TRIGGER Act AFTER INSERT ON Location BEGIN "
            "DELETE FROM MainData; END");
  }
  ASSERT_EQ(Compact(file), 0);
  EXPECT_EQ(CardFileOnDisk::RowsOf(CopyOf(file)), file.Rows());
  EXPECT_EQ(NumberIn(CopyOf(file), u"SELECT count(*) FROM sqlite_schema WHERE type IN ('view', 'trigger')"),
            2);
}

TEST(ReplaceFile, CompactedCopy_TakesThePlaceOfItsSource) {
  const CardFileOnDisk file;
  const QStringList rows = file.Rows();
  ASSERT_EQ(Compact(file), 0);
  const auto copyNode = CardFileOnDisk::StatusOf(CopyOf(file)).st_ino;
  ASSERT_EQ(Replace(file), 0);
  EXPECT_EQ(file.Rows(), rows);
  EXPECT_EQ(file.Names(), QStringList{u"cards.ddb"_s});
  EXPECT_EQ(CardFileOnDisk::StatusOf(file.Path()).st_ino, copyNode);
}

TEST(ReplaceFile, AnyFile_KeepsModeAndOwner) {
  const CardFileOnDisk file(20);
  ChangeMode(file.Path(), 0664);
  const bool isAdministrator = ::geteuid() == 0;
  if (isAdministrator) {
    ASSERT_EQ(::chown(QFile::encodeName(file.Path()).constData(), 1234, 4321), 0);
  }
  const struct stat before = CardFileOnDisk::StatusOf(file.Path());
  ASSERT_EQ(Compact(file), 0);
  ASSERT_EQ(Replace(file), 0);
  const struct stat after = CardFileOnDisk::StatusOf(file.Path());
  EXPECT_EQ(after.st_mode, before.st_mode);
  EXPECT_EQ(after.st_uid, before.st_uid);
  EXPECT_EQ(after.st_gid, before.st_gid);
}

TEST(ReplaceFile, NameIsALink_ReplacesTheRealFileAndKeepsTheLink) {
  const CardFileOnDisk file(20);
  const QStringList rows = file.Rows();
  ASSERT_TRUE(QDir(file.Folder()).mkdir(u"desk"_s));
  const QString link = file.PathOf(u"desk/cards.ddb"_s);
  const QString copy = file.PathOf(u"desk/temp~.ddb"_s);
  ASSERT_TRUE(QFile::link(file.Path(), link));
  const auto oldNode = CardFileOnDisk::StatusOf(file.Path()).st_ino;
  CompactFile(link, copy);
  ReplaceFile(copy, link);
  EXPECT_TRUE(S_ISLNK(CardFileOnDisk::StatusOf(link).st_mode));
  EXPECT_NE(CardFileOnDisk::StatusOf(file.Path()).st_ino, oldNode);
  EXPECT_EQ(file.Rows(), rows);
  EXPECT_FALSE(QFile::exists(copy));
}

/// A folder on another disk than the file; none where the machine has just one.
std::unique_ptr<QTemporaryDir> FolderOnAnotherDisk(const CardFileOnDisk& file) {
  for (const auto& place : {u"/dev/shm"_s, u"/var/tmp"_s}) {
    auto folder = std::make_unique<QTemporaryDir>(place + u"/velmora-XXXXXX"_s);
    if (!folder->isValid()) continue;
    const dev_t device = CardFileOnDisk::StatusOf(folder->path()).st_dev;
    if (device != CardFileOnDisk::StatusOf(file.Folder()).st_dev) return folder;
  }
  return nullptr;
}

TEST(ReplaceFile, RealFileOnAnotherDisk_IsReplacedThere) {
  const CardFileOnDisk file(20);
  const auto other = FolderOnAnotherDisk(file);
  if (other == nullptr) GTEST_SKIP() << "needs two disks";
  const QString real = other->filePath(u"cards.ddb"_s);
  const QString link = file.PathOf(u"link.ddb"_s);
  ASSERT_TRUE(QFile::copy(file.Path(), real));
  ASSERT_TRUE(QFile::link(real, link));
  ChangeMode(real, 0640);
  const auto oldNode = CardFileOnDisk::StatusOf(real).st_ino;
  CompactFile(link, CopyOf(file));
  ReplaceFile(CopyOf(file), link);
  EXPECT_EQ(CardFileOnDisk::RowsOf(real), file.Rows());
  EXPECT_NE(CardFileOnDisk::StatusOf(real).st_ino, oldNode);
  EXPECT_EQ(CardFileOnDisk::StatusOf(real).st_mode & Permissions, 0640U);
  EXPECT_EQ(QDir(other->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList{u"cards.ddb"_s});
  EXPECT_FALSE(QFile::exists(CopyOf(file)));
}

TEST(ReplaceFile, AnotherProgramWroteMeanwhile_Fails3356AndKeepsItsWork) {
  const CardFileOnDisk file(20);
  ASSERT_EQ(Compact(file), 0);
  db::Run(Connect(file.Path()).get(), u"INSERT INTO Location VALUES('Written meanwhile', 1, NULL)");
  EXPECT_EQ(Replace(file), 3356);
  EXPECT_EQ(NumberIn(file.Path(), u"SELECT count(*) FROM Location WHERE Place = 'Written meanwhile'"), 1);
  // The old copy would only keep the next compaction from its work.
  EXPECT_EQ(file.Names(), QStringList{u"cards.ddb"_s});
}

TEST(ReplaceFile, AnotherProgramOpenedTheFileMeanwhile_Fails3356) {
  const CardFileOnDisk file(20);
  const Untouched untouched(file);
  ASSERT_EQ(Compact(file), 0);
  const AnotherProcess other([&] { return std::make_shared<FileLock>(file.Path(), LockKind::Shared, 0); });
  EXPECT_EQ(Replace(file), 3356);
}

TEST(ReplaceFile, CopyIsNoDatabase_Fails3343AndKeepsTheFile) {
  const CardFileOnDisk file(20);
  CardFileOnDisk::WriteAll(CopyOf(file), "");
  const Untouched untouched(file);
  EXPECT_EQ(Replace(file), 3343);
}

TEST(ReplaceFile, CopyMissing_Fails3024AndKeepsTheFile) {
  const CardFileOnDisk file(20);
  const Untouched untouched(file);
  EXPECT_EQ(Replace(file), 3024);
}

TEST(ReplaceFile, FileMissing_Fails3024AndKeepsTheCopy) {
  const CardFileOnDisk file(20);
  const QStringList rows = file.Rows();
  ASSERT_EQ(Compact(file), 0);
  ASSERT_TRUE(QFile::remove(file.Path()));
  EXPECT_EQ(Replace(file), 3024);
  EXPECT_EQ(CardFileOnDisk::RowsOf(CopyOf(file)), rows);
}

TEST(ReplaceFile, FileWithItself_FailsAndKeepsIt) {
  const CardFileOnDisk file(20);
  const Untouched untouched(file);
  EXPECT_EQ(ErrorNumberOf([&] { ReplaceFile(file.Path(), file.Path()); }), 3001);
}

TEST(ReplaceFile, WriteProtectedFile_Fails3027AndKeepsIt) {
  const CardFileOnDisk file(20);
  ChangeMode(file.Folder(), 0777);
  ChangeMode(file.Path(), 0444);
  const Untouched untouched(file);
  EXPECT_EQ(ErrorNumberAsUser([&] {
              CardFileOnDisk::WriteAll(CopyOf(file), file.Bytes());
              ReplaceFile(CopyOf(file), file.Path());
            }),
            3027);
  QFile::remove(CopyOf(file));
}

TEST(ReplaceFile, JournalOfACrashedProgramBeside_IsRolledBackFirstAndGone) {
  const CardFileOnDisk file(100);
  const QStringList rows = file.Rows();
  ASSERT_EQ(Compact(file), 0);
  AnotherProcess crashed([&] {
    const auto connection =
        std::make_shared<ConnectionHandle>(OpenConnection(file.Path(), SQLITE_OPEN_READWRITE));
    // A cache of one page brings unfinished work into the file.
    db::Run(connection->get(),
            u"PRAGMA cache_size=1; BEGIN; UPDATE Location SET Place = 'Half done ' || Place");
    return connection;
  });
  crashed.End();
  ASSERT_TRUE(QFile::exists(file.Path() + u"-journal"_s));
  ASSERT_EQ(Replace(file), 0);
  EXPECT_EQ(file.Names(), QStringList{u"cards.ddb"_s});
  EXPECT_EQ(file.Rows(), rows);
}

TEST(ReplaceFile, EmptiedJournalBeside_IsNotLeftToTheNewFile) {
  const CardFileOnDisk file(20);
  ASSERT_EQ(Compact(file), 0);
  CardFileOnDisk::WriteAll(file.Path() + u"-journal"_s, QByteArray(512, '\0'));
  ASSERT_EQ(Replace(file), 0);
  EXPECT_EQ(file.Names(), QStringList{u"cards.ddb"_s});
}

}  // namespace
}  // namespace velmora::db
