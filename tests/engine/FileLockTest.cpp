// SPDX-License-Identifier: MIT
#include "engine/file/FileAccess.h"
#include "engine/file/FileCheck.h"
#include "engine/file/FileLock.h"
#include "engine/sqlite/ConnectionSettings.h"
#include "tests/engine/CardFileOnDisk.h"
#include "tests/support/TestDatabase.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::AnotherProcess;
using test::CardFileOnDisk;
using test::Connect;
using test::ErrorNumberAsUser;
using test::ErrorNumberOf;
using test::InAnotherProcess;

namespace {

constexpr int AtOnce = 0;

int TryLock(const QString& path, LockKind kind) {
  return ErrorNumberOf([&] { const FileLock lock(path, kind, AtOnce); });
}

qsizetype OpenDescriptors() {
  return QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

TEST(FileLock, Shared_TwiceInOneProgram_BothStand) {
  const CardFileOnDisk file(3);
  const FileLock first(file.Path(), LockKind::Shared, AtOnce);
  EXPECT_EQ(TryLock(file.Path(), LockKind::Shared), 0);
}

TEST(FileLock, Exclusive_BesideASharedOneOfTheSameProgram_Fails3356) {
  const CardFileOnDisk file(3);
  auto shared = std::make_unique<FileLock>(file.Path(), LockKind::Shared, AtOnce);
  EXPECT_EQ(TryLock(file.Path(), LockKind::Exclusive), 3356);
  shared.reset();
  EXPECT_EQ(TryLock(file.Path(), LockKind::Exclusive), 0);
}

TEST(FileLock, Shared_WhileAnotherProgramHoldsItAlone_Fails3356AndStandsAfterwards) {
  const CardFileOnDisk file(3);
  AnotherProcess other([&] { return std::make_shared<FileLock>(file.Path(), LockKind::Exclusive, AtOnce); });
  EXPECT_EQ(TryLock(file.Path(), LockKind::Shared), 3356);
  other.End();
  EXPECT_EQ(TryLock(file.Path(), LockKind::Shared), 0);
}

TEST(FileLock, Exclusive_WhileAnotherToolHasTheFileOpenIdle_Fails3356) {
  const CardFileOnDisk file(3);
  AnotherProcess tool([&] {
    const auto connection =
        std::make_shared<ConnectionHandle>(OpenConnection(file.Path(), SQLITE_OPEN_READWRITE));
    static_cast<void>(QueryNumber(connection->get(), u"SELECT count(*) FROM Location"));
    return connection;
  });
  EXPECT_EQ(TryLock(file.Path(), LockKind::Exclusive), 3356);
  EXPECT_EQ(TryLock(file.Path(), LockKind::Shared), 0);
}

/// Waits until this process has asked for a lock of a file that it has pinned: the descriptor of the asking
/// then stays open beside the pin's.
void WaitUntilAsked(const QString& path) {
  const QDir descriptors(u"/proc/self/fd"_s);
  const auto isAsked = [&] {
    const QStringList numbers = descriptors.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    return std::ranges::count_if(numbers, [&](const QString& number) {
             return QFile::symLinkTarget(descriptors.filePath(number)) == path;
           }) > 1;
  };
  QElapsedTimer waited;
  waited.start();
  while (!isAsked() && waited.elapsed() < BusyTimeout) std::this_thread::yield();
}

TEST(FileLock, Shared_WithPatience_WaitsForTheOtherToGo) {
  const CardFileOnDisk file(3);
  AnotherProcess other([&] { return std::make_shared<FileLock>(file.Path(), LockKind::Exclusive, AtOnce); });
  const PinnedFile pin(file.Path());
  std::thread end([&] {
    WaitUntilAsked(file.Path());
    other.End();
  });
  QElapsedTimer time;
  time.start();
  EXPECT_EQ(ErrorNumberOf([&] { const FileLock lock(file.Path(), LockKind::Shared, BusyTimeout); }), 0);
  EXPECT_LT(time.elapsed(), BusyTimeout);
  end.join();
}

TEST(FileLock, Shared_FilePutUnderTheNameMeanwhile_LocksTheNewFile) {
  const CardFileOnDisk file(3);
  const QString next = file.PathOf(u"next"_s);
  CardFileOnDisk::WriteAll(next, file.Bytes());
  const auto newNode = CardFileOnDisk::StatusOf(next).st_ino;
  AnotherProcess other([&] { return std::make_shared<FileLock>(file.Path(), LockKind::Exclusive, AtOnce); });
  const PinnedFile pin(file.Path());
  std::thread end([&] {
    WaitUntilAsked(file.Path());
    std::rename(QFile::encodeName(next).constData(), QFile::encodeName(file.Path()).constData());
    other.End();
  });
  const FileLock lock(file.Path(), LockKind::Shared, BusyTimeout);
  end.join();
  EXPECT_EQ(StatusOf(lock.Descriptor()).st_ino, newNode);
}

/// Whether another program would find SQLite's lock on the file. Asked of the system, for SQLite in a forked
/// process remembers its parent's locks.
bool IsLockedBySqlite(const QString& path) {
  constexpr off_t SharedBytesAt = 0x40000002;
  constexpr off_t SharedBytes = 510;
  return InAnotherProcess([&] {
           const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDWR);
           struct flock wanted = {};
           wanted.l_type = F_WRLCK;
           wanted.l_whence = SEEK_SET;
           wanted.l_start = SharedBytesAt;
           wanted.l_len = SharedBytes;
           return ::fcntl(descriptor, F_GETLK, &wanted) == 0 && wanted.l_type != F_UNLCK ? 1 : 0;
         }) == 1;
}

TEST(FileLock, Release_OtherConnectionHoldsAWriteLock_KeepsThatLock) {
  const CardFileOnDisk file(3);
  auto firstLock = std::make_unique<FileLock>(file.Path(), LockKind::Shared, AtOnce);
  ConnectionHandle first = Connect(file.Path());
  const FileLock secondLock(file.Path(), LockKind::Shared, AtOnce);
  const ConnectionHandle second = Connect(file.Path());
  db::Run(second.get(), u"BEGIN EXCLUSIVE");

  first.reset();
  firstLock.reset();
  CheckHeader(file.Path());

  EXPECT_TRUE(IsLockedBySqlite(file.Path()));
}

TEST(FileLock, Release_ManyTimesBesideAnOpenFile_LeavesFewDescriptorsAndNoneAtTheEnd) {
  const CardFileOnDisk file(3);
  const qsizetype before = OpenDescriptors();
  {
    const FileLock kept(file.Path(), LockKind::Shared, AtOnce);
    for (int round = 0; round < 100; ++round) {
      const FileLock lock(file.Path(), LockKind::Shared, AtOnce);
      CheckHeader(file.Path());
    }
    EXPECT_LE(OpenDescriptors(), before + 3);
  }
  EXPECT_EQ(OpenDescriptors(), before);
}

TEST(FileLock, Release_WhileAnotherOfTheSameFileStays_GivesUpItsOwnMarkAtOnce) {
  const CardFileOnDisk file(3);
  auto exclusive = std::make_unique<FileLock>(file.Path(), LockKind::Exclusive, AtOnce);
  const PinnedFile pin(file.Path());
  exclusive.reset();
  EXPECT_EQ(InAnotherProcess([&] {
              const int descriptor = ::open(QFile::encodeName(file.Path()).constData(), O_RDONLY);
              return ::flock(descriptor, LOCK_SH | LOCK_NB);
            }),
            0);
}

TEST(FileLock, Open_MissingFile_Fails3024) {
  const CardFileOnDisk file(3);
  EXPECT_EQ(TryLock(file.PathOf(u"missing.ddb"_s), LockKind::Shared), 3024);
  EXPECT_EQ(TryLock(file.Path() + u"/below"_s, LockKind::Shared), 3024);
  EXPECT_EQ(TryLock(u""_s, LockKind::Shared), 3024);
}

TEST(FileLock, Open_FolderOrPipe_Fails3051WithoutWaiting) {
  const CardFileOnDisk file(3);
  const QString pipe = file.PathOf(u"pipe"_s);
  ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  EXPECT_EQ(TryLock(file.Folder(), LockKind::Shared), 3051);
  EXPECT_EQ(TryLock(pipe, LockKind::Shared), 3051);
}

TEST(CheckHeader, CardFile_IsTaken) {
  const CardFileOnDisk file(3);
  EXPECT_EQ(ErrorNumberOf([&] { CheckHeader(file.Path()); }), 0);
}

TEST(CheckHeader, LargestPageSize_IsTaken) {
  const CardFileOnDisk file(3, 65536);
  EXPECT_EQ(ErrorNumberOf([&] { CheckHeader(file.Path()); }), 0);
}

TEST(CheckHeader, MissingFile_Fails3024) {
  EXPECT_EQ(ErrorNumberOf([] { CheckHeader(u"/nowhere/cards.ddb"_s); }), 3024);
}

TEST(CheckHeader, NoDatabase_Fails3343) {
  const CardFileOnDisk file(3);
  const QByteArray good = file.Bytes();
  const auto refuses = [&](const QByteArray& bytes) {
    file.Write(bytes);
    EXPECT_EQ(ErrorNumberOf([&] { CheckHeader(file.Path()); }), 3343) << bytes.left(20).constData();
  };
  refuses("");
  refuses(QByteArray("Dear customer,\n").repeated(100));
  refuses(good.left(15));
  refuses(good.left(99));
  refuses(QByteArray(good).replace(0, 1, "s"));
  refuses(QByteArray(good).replace(16, 2, QByteArray("\x03\x00", 2)));
  refuses(QByteArray(good).replace(21, 1, "\x41"));
}

TEST(CheckHeader, FileThatMayNotBeRead_Fails3051) {
  const CardFileOnDisk file(3);
  ASSERT_EQ(::chmod(QFile::encodeName(file.Folder()).constData(), 0755), 0);
  ASSERT_EQ(::chmod(QFile::encodeName(file.Path()).constData(), 0), 0);
  EXPECT_EQ(ErrorNumberAsUser([&] { CheckHeader(file.Path()); }), 3051);
}

}  // namespace
}  // namespace velmora::db
