// SPDX-License-Identifier: MIT
#include "engine/DBEngine.h"
#include "engine/file/Compaction.h"
#include "engine/repair/Repair.h"
#include "tests/engine/CardFileOnDisk.h"
#include "tests/engine/FailingDisk.h"
#include "tests/support/TestDatabase.h"

#include <csignal>
#include <sys/resource.h>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::CardFileOnDisk;
using test::ErrorNumberOf;
using test::FailingDisk;
using test::InAnotherProcess;

namespace {

const auto OnlyTheFile = QStringList{u"cards.ddb"_s};

/// Runs `work` with a disk that is full after 0, 1, 2... writes, until one run goes through; `check` looks at
/// each failed run. Gives the number of the failed ones.
int FillAtEachWrite(const std::function<void()>& work, const std::function<void(int error)>& check) {
  for (int writes = 0;; ++writes) {
    SCOPED_TRACE(writes);
    FailingDisk::FillAfter(writes);
    const int error = ErrorNumberOf(work);
    const bool wasFull = FailingDisk::WasFull();
    FailingDisk::Free();
    if (!wasFull) {
      EXPECT_EQ(error, 0);
      return writes;
    }
    check(error);
    if (testing::Test::HasFailure()) return writes;
  }
}

void AddRow(Database& database, int number) {
  Recordset cards = database.OpenRecordset(u"MainData");
  cards.AddNew();
  cards.Set(u"Index@", number);
  cards.Set(u"Name", u"New card"_s);
  cards.Set(u"Notes", QString(5000, u'n'));
  cards.Update();
}

TEST(FullDisk, SaveOfANewCard_Fails3026AndLeavesAllCards) {
  const CardFileOnDisk file(40);
  const FailingDisk disk;
  const QStringList before = file.Rows();
  const auto database = DBEngine().OpenDatabase(file.Path());
  const int failures = FillAtEachWrite([&] { AddRow(*database, 1000); },
                                       [&](int error) {
                                         EXPECT_EQ(error, 3026);
                                         // As the user goes on: the same open file, once there is room.
                                         const Recordset cards = database->OpenRecordset(u"MainData");
                                         EXPECT_EQ(cards.RecordCount(), 67);
                                         EXPECT_EQ(file.Rows(), before);
                                       });
  EXPECT_GT(failures, 5);
  database->Close();
  EXPECT_EQ(file.Rows().size(), before.size() + 1);
  EXPECT_EQ(CardFileOnDisk::Verdict(file.Path()), u"ok"_s);
  EXPECT_EQ(file.Names(), OnlyTheFile);
}

TEST(FullDisk, ChangeOfManyCardsInOneStatement_Fails3026AndChangesNone) {
  const CardFileOnDisk file(40);
  const FailingDisk disk;
  const QStringList before = file.Rows();
  const auto database = DBEngine().OpenDatabase(file.Path());
  const int failures = FillAtEachWrite(
      [&] { database->Execute(u"UPDATE MainData SET Notes = Notes & ' and more than before'"); },
      [&](int error) {
        EXPECT_EQ(error, 3026);
        EXPECT_EQ(file.Rows(), before);
      });
  EXPECT_GT(failures, 10);
  EXPECT_NE(file.Rows(), before);
  EXPECT_EQ(CardFileOnDisk::Verdict(file.Path()), u"ok"_s);
}

TEST(FullDisk, CrashWhileTheDiskIsFull_NextOpeningFindsAllCards) {
  const CardFileOnDisk file(40);
  const QStringList before = file.Rows();
  for (int writes = 0; writes < 12; ++writes) {
    SCOPED_TRACE(writes);
    const auto error = InAnotherProcess([&] {
      const FailingDisk disk;
      const auto database = DBEngine().OpenDatabase(file.Path());
      FailingDisk::FillAfter(writes);
      return ErrorNumberOf([&] { AddRow(*database, 1000); });
    });
    EXPECT_EQ(error, 3026);
    DBEngine().OpenDatabase(file.Path())->Close();
    EXPECT_EQ(file.Rows(), before);
    EXPECT_EQ(file.Names(), OnlyTheFile);
  }
}

TEST(FullDisk, Compaction_Fails3026AndLeavesTheFileAndNothingBeside) {
  const CardFileOnDisk file(60);
  const FailingDisk disk;
  const QByteArray before = file.Bytes();
  const QString copy = file.PathOf(u"temp~.ddb"_s);
  const int failures = FillAtEachWrite([&] { CompactFile(file.Path(), copy); },
                                       [&](int error) {
                                         EXPECT_EQ(error, 3026);
                                         EXPECT_EQ(file.Bytes(), before);
                                         EXPECT_EQ(file.Names(), OnlyTheFile);
                                       });
  EXPECT_GT(failures, 20);
  EXPECT_EQ(CardFileOnDisk::RowsOf(copy), file.Rows());
}

TEST(FullDisk, Repair_Fails3026AndLeavesTheDamagedFileAndNothingBeside) {
  const CardFileOnDisk file(30);
  QByteArray damaged = file.Bytes();
  const QStringList rows = file.Rows();
  const int root = static_cast<int>(QueryNumber(
      test::Connect(file.Path()).get(), u"SELECT rootpage FROM sqlite_schema WHERE name = 'MainData'"));
  damaged.replace(qsizetype{root - 1} * 1024, 1024, QByteArray(1024, '\0'));
  file.Write(damaged);
  const FailingDisk disk;
  const int failures = FillAtEachWrite([&] { RepairFile(file.Path()); },
                                       [&](int error) {
                                         EXPECT_EQ(error, 3026);
                                         EXPECT_EQ(file.Bytes(), damaged);
                                         EXPECT_EQ(file.Names(), OnlyTheFile);
                                       });
  EXPECT_GT(failures, 10);
  EXPECT_EQ(file.Rows(), rows);
}

TEST(FullDisk, CreateDatabase_FailsAtAnyWrite_LeavesNothingBehind) {
  const CardFileOnDisk folder(1);
  const FailingDisk disk;
  const QString path = folder.PathOf(u"new.ddb"_s);
  const int failures = FillAtEachWrite([&] { static_cast<void>(DBEngine().CreateDatabase(path, {})); },
                                       [&](int error) {
                                         EXPECT_EQ(error, 3026);
                                         EXPECT_EQ(folder.Names(), OnlyTheFile);
                                       });
  EXPECT_GT(failures, 3);
}

TEST(FailingDisk, CreateDatabase_JournalThatStays_LeavesNothingBehind) {
  const CardFileOnDisk folder(1);
  const FailingDisk disk;
  FailingDisk::KeepFiles();
  EXPECT_NE(
      ErrorNumberOf([&] { static_cast<void>(DBEngine().CreateDatabase(folder.PathOf(u"new.ddb"_s), {})); }),
      0);
  EXPECT_EQ(folder.Names(), OnlyTheFile);
}

TEST(FullDisk, CompactionBeyondTheLargestFileSize_FailsAndLeavesTheFileAndNothingBeside) {
  const CardFileOnDisk file(100);
  const QByteArray before = file.Bytes();
  for (const int share : {0, 1, 3, 9}) {
    SCOPED_TRACE(share);
    const auto error = InAnotherProcess([&] {
      std::signal(SIGXFSZ, SIG_IGN);
      const rlimit limit{static_cast<rlim_t>(before.size() * share / 10), RLIM_INFINITY};
      ::setrlimit(RLIMIT_FSIZE, &limit);
      return ErrorNumberOf([&] { CompactFile(file.Path(), file.PathOf(u"temp~.ddb"_s)); });
    });
    // The system calls this a failing disk, not a full one.
    EXPECT_EQ(error, 3000);
    EXPECT_EQ(file.Bytes(), before);
    EXPECT_EQ(file.Names(), OnlyTheFile);
  }
}

}  // namespace
}  // namespace velmora::db
