// SPDX-License-Identifier: MIT
#include "bench/Pairs.h"

#include "bench/RatioReporter.h"

#include <QCoreApplication>

namespace velmora::bench {

int RunPairs(std::span<const Pair> pairs, int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  for (const Pair& pair : pairs) {
    const std::string work = pair.Work;
    const auto enter = [](const std::string& name, void (*run)(benchmark::State&)) {
      benchmark::RegisterBenchmark(name.c_str(), run)->Unit(benchmark::kMicrosecond)->UseRealTime();
    };
    enter(work + "/engine", pair.Engine);
    enter(work + "/bare", pair.Bare);
  }
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return 0;
}

std::int64_t Rows(sqlite3_stmt* statement) {
  std::int64_t rows = 0;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    for (int column = 0; column < sqlite3_column_count(statement); ++column) {
      benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
    }
    ++rows;
  }
  sqlite3_reset(statement);
  return rows;
}

}  // namespace velmora::bench
