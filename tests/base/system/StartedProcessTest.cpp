// SPDX-License-Identifier: MIT
#include "base/system/StartedProcess.h"

#include <QProcess>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

TEST(StartedProcessTest, IsRunning_UntilTheProcessEnds) {
  StartedProcess watched;
  EXPECT_FALSE(watched.IsRunning());
  QProcess process;
  process.start(u"sleep"_s, {u"1000"_s});
  ASSERT_TRUE(process.waitForStarted());
  watched.Watch(process.processId());
  EXPECT_TRUE(watched.IsRunning());
  EXPECT_EQ(watched.Number(), process.processId());
  process.kill();
  EXPECT_TRUE(QTest::qWaitFor([&watched] { return !watched.IsRunning(); }));
  process.waitForFinished();
  EXPECT_FALSE(watched.IsRunning());
}

TEST(StartedProcessTest, Watch_NumberOfNoProcess_RunsNot) {
  StartedProcess watched;
  watched.Watch(0x3fffffff);
  EXPECT_FALSE(watched.IsRunning());
}

}  // namespace
}  // namespace velmora
