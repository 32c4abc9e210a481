// SPDX-License-Identifier: MIT
// What it costs to change the design of a file with many cards, and for how long the window stands still
// meanwhile.
#include "bench/BenchFile.h"
#include "bench/RatioReporter.h"
#include "cardfile/CardFileSchema.h"
#include "cardfile/FieldChanges.h"
#include "engine/sqlite/LongWork.h"
#include "frame/Session.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

namespace velmora::bench {

using namespace Qt::StringLiterals;
using std::chrono::steady_clock;

namespace {

constexpr int Rounds = 3;

/// The longest time in which no window could have been repainted.
class Standstill final {
 public:
  void Begin() {
    m_longest = {};
    m_last = steady_clock::now();
  }
  void Look() {
    const auto now = steady_clock::now();
    m_longest = std::max(m_longest, now - m_last);
    m_last = now;
  }
  [[nodiscard]] double Seconds() const { return std::chrono::duration<double>(m_longest).count(); }

 private:
  steady_clock::time_point m_last;
  steady_clock::duration m_longest{};
};

Standstill& TheStandstill() {
  static Standstill standstill;
  return standstill;
}

/// Opens the file of the cards as the session's, with the tables that a design needs.
void OpenAsCardFile() {
  db::SetLongWorkHook([] { TheStandstill().Look(); });
  Global().CardDb = Global().DBEngine().OpenDatabase(BenchFile::Instance().Path());
  Global().File().AppendTableDef(LocationTable());
}

DesignField NewField() { return {.Name = u"New"_s, .Kind = FieldKind::Date}; }

void AddEngine(benchmark::State& state) {
  for (auto _ : state) {
    MakeFieldColumn(NewField());
    EnterField(NewField(), 1);
    state.PauseTiming();
    DeleteField(NewField().Name);
    state.ResumeTiming();
  }
}

void AddBare(benchmark::State& state) {
  sqlite3* bare = BenchFile::Instance().Bare();
  for (auto _ : state) {
    db::Run(bare, u"ALTER TABLE MainData ADD COLUMN New DATE");
    db::Run(bare, u"INSERT INTO Location VALUES ('New', 1, 5)");
    state.PauseTiming();
    db::Run(bare, u"ALTER TABLE MainData DROP COLUMN New; DELETE FROM Location");
    state.ResumeTiming();
  }
}

void DeleteEngine(benchmark::State& state) {
  double longest = 0;
  for (auto _ : state) {
    state.PauseTiming();
    MakeFieldColumn(NewField());
    EnterField(NewField(), 1);
    TheStandstill().Begin();
    state.ResumeTiming();
    DeleteField(NewField().Name);
    TheStandstill().Look();
    longest = std::max(longest, TheStandstill().Seconds());
  }
  state.counters["standstill_s"] = longest;
}

void DeleteBare(benchmark::State& state) {
  sqlite3* bare = BenchFile::Instance().Bare();
  for (auto _ : state) {
    state.PauseTiming();
    db::Run(bare, u"ALTER TABLE MainData ADD COLUMN New DATE; INSERT INTO Location VALUES ('New', 1, 5)");
    state.ResumeTiming();
    db::Run(bare, u"BEGIN; DELETE FROM Location; ALTER TABLE MainData DROP COLUMN New; COMMIT");
  }
}

struct Pair {
  const char* Work;
  void (*Engine)(benchmark::State&);
  void (*Bare)(benchmark::State&);
};

constexpr std::array Pairs{Pair{"field added", AddEngine, AddBare},
                           Pair{"field deleted", DeleteEngine, DeleteBare}};

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) {
  using namespace velmora::bench;
  const QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  OpenAsCardFile();
  for (const Pair& pair : Pairs) {
    for (const auto& [side, run] : {std::pair{"/engine", pair.Engine}, std::pair{"/bare", pair.Bare}}) {
      benchmark::RegisterBenchmark((std::string(pair.Work) + side).c_str(), run)
          ->Unit(benchmark::kMillisecond)
          ->Iterations(Rounds)
          ->UseRealTime();
    }
  }
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  velmora::Global().CardDb.reset();
  return 0;
}
