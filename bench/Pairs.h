// SPDX-License-Identifier: MIT
#pragma once

#include "engine/sqlite/SqliteHandle.h"

#include <benchmark/benchmark.h>

#include <span>

namespace velmora::bench {

/// One piece of work, done by the program's engine and by bare SQLite.
struct Pair {
  const char* Work;
  void (*Engine)(benchmark::State&);
  void (*Bare)(benchmark::State&);
};

/// Measures the pairs, prints their times and how they compare.
int RunPairs(std::span<const Pair> pairs, int argc, char** argv);

/// Runs a statement of bare SQLite to its end, reading each column as a caller would; the number of rows.
std::int64_t Rows(sqlite3_stmt* statement);

}  // namespace velmora::bench
