// SPDX-License-Identifier: MIT
#include "help/OneViewer.h"
#include "tests/help/HelpFixture.h"

#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QtTest>

#include <future>
#include <sys/stat.h>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Outcome = OneViewer::Outcome;

class OneViewerTest : public HelpFixture {
 protected:
  static constexpr auto patience = 3s;

  static HelpRequest Request(const QString& topic) {
    return {.File = u"/x/Velmora.qch"_s, .Topic = topic, .ActivationToken = u"token"_s};
  }
  /// What a second process does, while this one goes on.
  static std::future<Outcome> JoinElsewhere(const HelpRequest& request) {
    return std::async(std::launch::async, [request] {
      OneViewer second;
      return second.Join(request, patience);
    });
  }
  static Outcome Answer(std::future<Outcome>& joining) {
    EXPECT_TRUE(
        QTest::qWaitFor([&joining] { return joining.wait_for(0s) == std::future_status::ready; }, 10000));
    return joining.get();
  }
  /// Where the viewers meet.
  [[nodiscard]] QString Place() const {
    const QStringList locks = QDir(PathOf(u"run"_s)).entryList({u"velmora-help-*.lock"_s}, QDir::Files);
    EXPECT_EQ(locks.size(), 1);
    return PathOf(u"run/"_s) + locks.value(0).chopped(5);
  }
};

TEST_F(OneViewerTest, Join_NobodyThere_IsFirst) {
  OneViewer viewer;
  EXPECT_EQ(viewer.Join(Request({}), patience), Outcome::First);
}

TEST_F(OneViewerTest, Join_SecondStart_ReachesTheFirst) {
  OneViewer first;
  ASSERT_EQ(first.Join(Request({}), patience), Outcome::First);
  QList<HelpRequest> asked;
  QObject::connect(&first, &OneViewer::Asked, &first,
                   [&asked](const HelpRequest& request) { asked.append(request); });
  auto second = JoinElsewhere(Request(u"113"_s));
  EXPECT_EQ(Answer(second), Outcome::HandedOver);
  ASSERT_TRUE(QTest::qWaitFor([&asked] { return !asked.isEmpty(); }));
  EXPECT_EQ(asked, QList{Request(u"113"_s)});
}

TEST_F(OneViewerTest, Join_ManyAtOnce_OneIsFirstAndTheOthersReachIt) {
  OneViewer first;
  ASSERT_EQ(first.Join(Request({}), patience), Outcome::First);
  int asked = 0;
  QObject::connect(&first, &OneViewer::Asked, &first, [&asked] { ++asked; });
  std::vector<std::future<Outcome>> others;
  for (int i = 0; i < 6; ++i) others.push_back(JoinElsewhere(Request(QString::number(i))));
  for (auto& other : others) EXPECT_EQ(Answer(other), Outcome::HandedOver);
  EXPECT_TRUE(QTest::qWaitFor([&asked] { return asked == 6; }));
}

TEST_F(OneViewerTest, Join_AfterTheFirstHasGone_IsFirst) {
  {
    OneViewer first;
    ASSERT_EQ(first.Join(Request({}), patience), Outcome::First);
  }
  OneViewer second;
  EXPECT_EQ(second.Join(Request({}), patience), Outcome::First);
}

TEST_F(OneViewerTest, Join_SocketOfAViewerThatDied_IsFirst) {
  QString place;
  {
    OneViewer gone;
    ASSERT_EQ(gone.Join(Request({}), patience), Outcome::First);
    place = Place();
  }
  QFile left(place);
  ASSERT_TRUE(left.open(QIODevice::WriteOnly));
  left.close();
  // A lock names its process; this one has none.
  QFile lock(place + u".lock"_s);
  ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
  lock.write("999999999\nvelmora-help\n" + QSysInfo::machineHostName().toLocal8Bit() + "\n" +
             QSysInfo::machineUniqueId() + "\n" + QSysInfo::bootUniqueId() + "\n");
  lock.close();
  OneViewer viewer;
  EXPECT_EQ(viewer.Join(Request({}), patience), Outcome::First);
}

TEST_F(OneViewerTest, Join_FirstDoesNotAnswer_GoesAlone) {
  OneViewer first;
  ASSERT_EQ(first.Join(Request({}), patience), Outcome::First);
  // This thread waits without handling its events, as a viewer that hangs.
  auto second = std::async(std::launch::async, [] {
    OneViewer viewer;
    return viewer.Join(Request({}), 0s);
  });
  EXPECT_EQ(second.get(), Outcome::Alone);
}

TEST_F(OneViewerTest, Join_OtherDisplay_IsFirstThere) {
  OneViewer here;
  ASSERT_EQ(here.Join(Request({}), patience), Outcome::First);
  const QByteArray display = qgetenv("DISPLAY");
  qputenv("DISPLAY", ":4711");
  OneViewer there;
  EXPECT_EQ(there.Join(Request({}), patience), Outcome::First);
  if (display.isNull()) {
    qunsetenv("DISPLAY");
  } else {
    qputenv("DISPLAY", display);
  }
}

TEST_F(OneViewerTest, Socket_IsTheUsersAlone) {
  OneViewer viewer;
  ASSERT_EQ(viewer.Join(Request({}), patience), Outcome::First);
  struct stat state {};
  ASSERT_EQ(stat(Place().toLocal8Bit().constData(), &state), 0);
  EXPECT_TRUE(S_ISSOCK(state.st_mode));
  EXPECT_EQ(state.st_mode & (S_IRWXG | S_IRWXO), 0U);
}

TEST_F(OneViewerTest, Receive_Junk_AsksForNothing) {
  OneViewer viewer;
  ASSERT_EQ(viewer.Join(Request({}), patience), Outcome::First);
  int asked = 0;
  QObject::connect(&viewer, &OneViewer::Asked, &viewer, [&asked] { ++asked; });
  QLocalSocket socket;
  socket.connectToServer(Place());
  ASSERT_TRUE(socket.waitForConnected());
  socket.write(QByteArray(200000, '\xff'));
  // It is hung up on: nobody keeps what never becomes a request.
  EXPECT_TRUE(QTest::qWaitFor([&socket] { return socket.state() == QLocalSocket::UnconnectedState; }));
  EXPECT_EQ(asked, 0);
}

TEST_F(OneViewerTest, Receive_RequestInPieces_IsOneRequest) {
  OneViewer viewer;
  ASSERT_EQ(viewer.Join(Request({}), patience), Outcome::First);
  QList<HelpRequest> asked;
  QObject::connect(&viewer, &OneViewer::Asked, &viewer,
                   [&asked](const HelpRequest& request) { asked.append(request); });
  QLocalSocket socket;
  socket.connectToServer(Place());
  ASSERT_TRUE(socket.waitForConnected());
  const QByteArray bytes = Packed(Request(u"147"_s));
  for (const char byte : bytes) {
    socket.write(&byte, 1);
    socket.flush();
    QCoreApplication::processEvents();
  }
  ASSERT_TRUE(QTest::qWaitFor([&asked] { return !asked.isEmpty(); }));
  EXPECT_EQ(asked, QList{Request(u"147"_s)});
}

}  // namespace
}  // namespace velmora
