// SPDX-License-Identifier: MIT
#include "base/system/CSharedString.h"

#include <QUuid>
#include <QtEndian>

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

/// A name that no other test or program has.
QString FreshName() { return u"velmora test "_s + QUuid::createUuid().toString(QUuid::WithoutBraces); }

QByteArray ObjectOf(const QString& name) { return "/" + name.toUtf8(); }

/// Runs something in another process; what it gives is the outcome of that process.
int InAnotherProcess(const std::function<int()>& work) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(work());
  int status = 0;
  if (child < 0 || ::waitpid(child, &status, 0) != child || !WIFEXITED(status)) return -1;
  return WEXITSTATUS(status);
}

TEST(CSharedStringTest, Create_NewName_HoldsNoText) {
  CSharedString shared;
  EXPECT_EQ(shared.Create(FreshName()), True);
  EXPECT_EQ(shared.IsNull(), True);
  EXPECT_EQ(shared.Data(), QString());
  EXPECT_EQ(shared.LastErr(), 0);
}

TEST(CSharedStringTest, Create_EmptyName_DoesNothing) {
  const QString name = FreshName();
  CSharedString shared;
  ASSERT_EQ(shared.Create(name), True);
  shared.SetData(u"kept"_s);
  EXPECT_EQ(shared.Create({}), False);
  EXPECT_EQ(shared.LastErr(), 0);
  EXPECT_EQ(shared.Data(), u"kept"_s);
}

TEST(CSharedStringTest, Create_SameNameInAnotherProcess_SeesTheText) {
  const QString name = FreshName();
  CSharedString first;
  ASSERT_EQ(first.Create(name), True);
  first.SetData(u"Café L'Aquila"_s);
  EXPECT_EQ(InAnotherProcess([&] {
              CSharedString second;
              return second.Create(name) == True && second.Data() == u"Café L'Aquila"_s ? 0 : 1;
            }),
            0);
}

TEST(CSharedStringTest, SetData_InAnotherProcess_ComesBack) {
  const QString name = FreshName();
  CSharedString first;
  ASSERT_EQ(first.Create(name), True);
  first.SetData(u"a long text to begin with"_s);
  EXPECT_EQ(InAnotherProcess([&] {
              CSharedString second;
              if (second.Create(name) != True) return 1;
              second.SetData(u"short"_s);
              return 0;
            }),
            0);
  EXPECT_EQ(first.Data(), u"short"_s);
  EXPECT_EQ(first.IsNull(), False);
}

TEST(CSharedStringTest, Block_OnTheSystem_HoldsLengthAndBytesForItsUserAlone) {
  const QString name = FreshName();
  CSharedString shared;
  ASSERT_EQ(shared.Create(name), True);
  shared.SetData(u"abc"_s);
  const int descriptor = ::shm_open(ObjectOf(name).constData(), O_RDONLY, 0);
  ASSERT_GE(descriptor, 0);
  struct stat status = {};
  ASSERT_EQ(::fstat(descriptor, &status), 0);
  EXPECT_EQ(status.st_size, 65535);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
  std::array<char, 7> bytes{};
  ASSERT_EQ(::pread(descriptor, bytes.data(), bytes.size(), 0), 7);
  ::close(descriptor);
  EXPECT_EQ(QByteArray(bytes.data(), 7), QByteArray("\3\0\0\0abc", 7));
}

TEST(CSharedStringTest, SetNull_WithAText_TakesItAway) {
  CSharedString shared;
  ASSERT_EQ(shared.Create(FreshName()), True);
  shared.SetData(u"something"_s);
  shared.SetNull();
  EXPECT_EQ(shared.IsNull(), True);
  EXPECT_EQ(shared.Data(), QString());
}

TEST(CSharedStringTest, SetData_AsLongAsTheBlock_IsKeptWhole) {
  CSharedString shared;
  ASSERT_EQ(shared.Create(FreshName()), True);
  const QString longest(65531, u'x');
  shared.SetData(longest);
  EXPECT_EQ(shared.Data(), longest);
}

TEST(CSharedStringDeathTest, SetData_LongerThanTheBlock_IsTheCallersFault) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(
      {
        CSharedString shared;
        static_cast<void>(shared.Create(u"velmora test of a text too long"_s));
        shared.SetData(QString(65532, u'x'));
      },
      "longer than the block");
  // What ended in the middle could not take its block along.
  ::shm_unlink("/velmora test of a text too long");
}

TEST(CSharedStringTest, Data_AfterAFailedCreate_IsEmptyAndTells) {
  CSharedString shared;
  EXPECT_EQ(shared.Create(QString(300, u'n')), False);
  EXPECT_EQ(shared.LastErr(), EINVAL);
  EXPECT_EQ(shared.Data(), QString());
  EXPECT_EQ(shared.LastErr(), 13);
}

TEST(CSharedStringTest, AnyUse_WithoutABlock_Tells) {
  CSharedString reading;
  EXPECT_EQ(reading.IsNull(), False);
  EXPECT_EQ(reading.LastErr(), 13);
  CSharedString writing;
  writing.SetData(u"nowhere"_s);
  EXPECT_EQ(writing.LastErr(), 13);
  CSharedString emptying;
  emptying.SetNull();
  EXPECT_EQ(emptying.LastErr(), 13);
}

TEST(CSharedStringTest, Data_LengthOfAForeignProgram_StaysWithinTheBlock) {
  const QString name = FreshName();
  CSharedString shared;
  ASSERT_EQ(shared.Create(name), True);
  const int descriptor = ::shm_open(ObjectOf(name).constData(), O_RDWR, 0);
  for (const std::int32_t length : {-1, 70000}) {
    std::array<char, 4> bytes{};
    qToLittleEndian(length, bytes.data());
    ASSERT_EQ(::pwrite(descriptor, bytes.data(), bytes.size(), 0), 4);
    EXPECT_EQ(shared.Data().size(), length < 0 ? 0 : 65531);
    EXPECT_EQ(shared.IsNull(), length < 0 ? True : False);
  }
  ::close(descriptor);
}

TEST(CSharedStringTest, Release_OfTheLastInstance_TakesTheBlockAway) {
  const QString name = FreshName();
  {
    CSharedString first;
    ASSERT_EQ(first.Create(name), True);
    first.SetData(u"still here"_s);
    {
      CSharedString second;
      ASSERT_EQ(second.Create(name), True);
    }
    EXPECT_EQ(first.Data(), u"still here"_s);
    CSharedString third;
    ASSERT_EQ(third.Create(name), True);
    EXPECT_EQ(third.Data(), u"still here"_s);
  }
  EXPECT_LT(::shm_open(ObjectOf(name).constData(), O_RDONLY, 0), 0);
  EXPECT_EQ(errno, ENOENT);
}

TEST(CSharedStringTest, Create_NamesThatOnlySeemAlike_StayTwo) {
  const QString name = FreshName();
  CSharedString slash;
  CSharedString code;
  ASSERT_EQ(slash.Create(name + u"a/b"_s), True);
  ASSERT_EQ(code.Create(name + u"a%2Fb"_s), True);
  slash.SetData(u"slash"_s);
  EXPECT_EQ(code.IsNull(), True);
}

TEST(CSharedStringTest, Create_Again_LetsGoOfTheFirstBlock) {
  const QString first = FreshName();
  CSharedString shared;
  ASSERT_EQ(shared.Create(first), True);
  shared.SetData(u"first"_s);
  ASSERT_EQ(shared.Create(FreshName()), True);
  EXPECT_EQ(shared.IsNull(), True);
  EXPECT_LT(::shm_open(ObjectOf(first).constData(), O_RDONLY, 0), 0);
}

}  // namespace
}  // namespace velmora
