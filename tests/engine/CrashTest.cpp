// SPDX-License-Identifier: MIT
#include "engine/DBEngine.h"
#include "engine/file/Compaction.h"
#include "engine/repair/Repair.h"
#include "tests/engine/CardFileOnDisk.h"
#include "tests/support/TestDatabase.h"

#include <array>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <random>
#include <set>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace velmora::db {

using namespace Qt::StringLiterals;
using test::CardFileOnDisk;
using test::ErrorNumberOf;
using test::Seed;

namespace {

constexpr int Rounds = 30;
constexpr std::chrono::microseconds LongestLife{40'000};

/// A program that works on and tells by numbers what it has done, until it is killed in the middle of it.
class DoomedProgram final {
 public:
  using Tell = std::function<void(int)>;
  explicit DoomedProgram(const std::function<void(const Tell&)>& work) {
    std::array<int, 2> pipe{};
    EXPECT_EQ(::pipe(pipe.data()), 0);
    m_process = ::fork();
    if (m_process == 0) {
      work([&](int number) { static_cast<void>(!::write(pipe[1], &number, sizeof number)); });
      ::_exit(0);
    }
    ::close(pipe[1]);
    m_told = pipe[0];
  }
  DoomedProgram(const DoomedProgram&) = delete;
  DoomedProgram& operator=(const DoomedProgram&) = delete;
  ~DoomedProgram() { ::close(m_told); }

  /// Waits until it tells that number, and gives all that it told up to then.
  std::vector<int> Await(int awaited) {
    std::vector<int> told;
    int number = 0;
    while ((told.empty() || told.back() != awaited) &&
           ::read(m_told, &number, sizeof number) == sizeof number) {
      told.push_back(number);
    }
    return told;
  }
  /// Kills it after a while, counted from its first word, and gives all that it told.
  std::vector<int> KillAfter(std::chrono::microseconds life) {
    std::vector<int> told;
    int number = 0;
    if (::read(m_told, &number, sizeof number) == sizeof number) told.push_back(number);
    std::this_thread::sleep_for(life);
    ::kill(m_process, SIGKILL);
    ::waitpid(m_process, nullptr, 0);
    while (::read(m_told, &number, sizeof number) == sizeof number) told.push_back(number);
    return told;
  }

 private:
  pid_t m_process = -1;
  int m_told = -1;
};

std::set<int> CardsIn(const QString& path) {
  std::set<int> cards;
  const auto database = DBEngine().OpenDatabase(path);
  for (Recordset rows = database->OpenRecordset(u"MainData"); !rows.AtEnd(); rows.MoveNext()) {
    const int number = rows[u"Index@"].Long();
    EXPECT_TRUE(cards.insert(number).second) << "twice: " << number;
    if (number > 0) {
      EXPECT_EQ(rows[u"Notes"].Text(), QString(number * 20 % 3000, u'n'));
    }
  }
  return cards;
}

void SaveCardsForEver(const QString& path, int first, const DoomedProgram::Tell& tell) {
  const auto database = DBEngine().OpenDatabase(path);
  Recordset cards = database->OpenRecordset(u"MainData");
  for (int number = first;; ++number) {
    cards.AddNew();
    cards.Set(u"Index@", number);
    cards.Set(u"Notes", QString(number * 20 % 3000, u'n'));
    cards.Update();
    tell(number);
  }
}

TEST(Crash, KilledWhileSaving_FileHoldsEachSavedCardAndIsSound) {
  const CardFileOnDisk file(0);
  std::mt19937 random(Seed(5));
  std::uniform_int_distribution<std::int64_t> life(0, LongestLife.count());
  std::set<int> saved = CardsIn(file.Path());
  int next = 1;
  for (int round = 0; round < Rounds && !HasFailure(); ++round) {
    SCOPED_TRACE(round);
    DoomedProgram program(
        [&](const DoomedProgram::Tell& tell) { SaveCardsForEver(file.Path(), next, tell); });
    for (const int number : program.KillAfter(std::chrono::microseconds(life(random)))) saved.insert(number);
    const std::set<int> found = CardsIn(file.Path());
    EXPECT_TRUE(std::ranges::includes(found, saved));
    // The card in the making may have been saved before its maker could say so; never more than that one.
    EXPECT_LE(found.size(), saved.size() + 1);
    EXPECT_EQ(CardFileOnDisk::Verdict(file.Path()), u"ok"_s);
    saved = found;
    next = saved.empty() ? 1 : *saved.rbegin() + 1;
  }
  EXPECT_GT(saved.size(), static_cast<std::size_t>(Rounds));
}

void CompactForEver(const QString& path, const QString& copy, const DoomedProgram::Tell& tell) {
  for (int number = 0;; ++number) {
    tell(number);
    CompactFile(path, copy);
    ReplaceFile(copy, path);
  }
}

TEST(Crash, KilledWhileCompacting_FileUnderItsNameHoldsAllCards) {
  const CardFileOnDisk file(300);
  const QString copy = file.PathOf(u"temp~.ddb"_s);
  const QStringList rows = file.Rows();
  std::mt19937 random(Seed(6));
  std::uniform_int_distribution<std::int64_t> life(0, LongestLife.count());
  for (int round = 0; round < Rounds && !HasFailure(); ++round) {
    SCOPED_TRACE(round);
    DoomedProgram program([&](const DoomedProgram::Tell& tell) { CompactForEver(file.Path(), copy, tell); });
    program.KillAfter(std::chrono::microseconds(life(random)));
    EXPECT_EQ(file.Rows(), rows);
    EXPECT_EQ(CardFileOnDisk::Verdict(file.Path()), u"ok"_s);
    for (const QString& name : file.Names()) {
      if (name == u"cards.ddb"_s) continue;
      EXPECT_TRUE(name.startsWith(u"temp~.ddb"_s)) << qPrintable(name);
      QFile::remove(file.PathOf(name));
    }
  }
}

TEST(Crash, KilledWhileRepairing_FileUnderItsNameIsTheOldOrTheRepairedOne) {
  const CardFileOnDisk file(300);
  const QStringList rows = file.Rows();
  const int root = static_cast<int>(QueryNumber(
      test::Connect(file.Path()).get(), u"SELECT rootpage FROM sqlite_schema WHERE name = 'MainData'"));
  const QByteArray damaged = file.Bytes().replace(qsizetype{root - 1} * 1024, 1024, QByteArray(1024, '\0'));
  std::mt19937 random(Seed(7));
  std::uniform_int_distribution<std::int64_t> life(0, LongestLife.count());
  for (int round = 0; round < Rounds && !HasFailure(); ++round) {
    SCOPED_TRACE(round);
    file.Write(damaged);
    DoomedProgram program([&](const DoomedProgram::Tell& tell) {
      tell(0);
      RepairFile(file.Path());
    });
    program.KillAfter(std::chrono::microseconds(life(random)));
    if (file.Bytes() != damaged) {
      EXPECT_EQ(file.Rows(), rows);
    }
    for (const QString& name : file.Names()) {
      if (name != u"cards.ddb"_s) QFile::remove(file.PathOf(name));
    }
  }
}

TEST(Crash, OpenedAgainAndAgainBesideACompactingProgram_FindsAllCardsEachTime) {
  const CardFileOnDisk file(300);
  const QString copy = file.PathOf(u"temp~.ddb"_s);
  const std::set<int> cards = [&] {
    std::set<int> numbers;
    for (const QString& row : file.Rows()) {
      if (row.startsWith(u"MainData|"_s)) numbers.insert(row.section(u'|', 2, 2).toInt());
    }
    return numbers;
  }();
  std::array<int, 2> end{};
  ASSERT_EQ(::pipe2(end.data(), O_NONBLOCK), 0);
  DoomedProgram program([&](const DoomedProgram::Tell& tell) {
    char sign = 0;
    int error = 0;
    // At the end it has the file for itself once, and must come to terms with it.
    while (error != 0 || ::read(end[0], &sign, 1) != 1) {
      error = ErrorNumberOf([&] {
        CompactFile(file.Path(), copy);
        ReplaceFile(copy, file.Path());
      });
      tell(error);
    }
    tell(-1);
  });
  for (int round = 0; round < Rounds; ++round) {
    const auto database = DBEngine().OpenDatabase(file.Path());
    std::set<int> found;
    for (Recordset rows = database->OpenRecordset(u"MainData"); !rows.AtEnd(); rows.MoveNext()) {
      found.insert(rows[u"Index@"].Long());
    }
    EXPECT_EQ(found, cards);
  }
  ASSERT_EQ(::write(end[1], "!", 1), 1);
  const std::vector<int> meanwhile = program.Await(-1);
  EXPECT_TRUE(std::ranges::all_of(meanwhile, [](int error) { return error <= 0 || error == 3356; }));
  program.KillAfter(std::chrono::microseconds(0));
  ::close(end[0]);
  ::close(end[1]);
}

}  // namespace
}  // namespace velmora::db
