// SPDX-License-Identifier: MIT
#include "bench/BenchFile.h"
#include "bench/Pairs.h"
#include "engine/DBEngine.h"

#include <benchmark/benchmark.h>

#include <array>

namespace velmora::bench {

using namespace Qt::StringLiterals;

namespace {

BenchFile& File() { return BenchFile::Instance(); }

void OpenEngine(benchmark::State& state) {
  const QString path = File().Path();
  for (auto _ : state) {
    const auto database = db::DBEngine().OpenDatabase(path);
    benchmark::DoNotOptimize(
        database->OpenRecordset(u"SELECT * FROM MainData WHERE [Index@] = 500")[u"Name"]);
  }
}

void OpenBare(benchmark::State& state) {
  for (auto _ : state) {
    const db::ConnectionHandle connection = File().OpenBare();
    const auto statement = db::Prepare(connection.get(), u"SELECT * FROM MainData WHERE \"Index@\" = 500");
    benchmark::DoNotOptimize(Rows(statement.get()));
  }
}

void SeekEngine(benchmark::State& state) {
  for (auto _ : state) {
    const QString sql = u"SELECT * FROM MainData WHERE [Index@] = "_s + QString::number(File().NextNumber());
    benchmark::DoNotOptimize(File().Engine().OpenRecordset(sql)[u"Name"]);
  }
}

void SeekBare(benchmark::State& state) {
  for (auto _ : state) {
    const QString sql =
        u"SELECT * FROM MainData WHERE \"Index@\" = "_s + QString::number(File().NextNumber());
    const auto statement = db::Prepare(File().Bare(), sql);
    benchmark::DoNotOptimize(Rows(statement.get()));
  }
}

void SeekKeptEngine(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(File().Engine().OpenRecordset(u"SELECT * FROM MainData WHERE [Index@] = ?",
                                                           {File().NextNumber()})[u"Name"]);
  }
}

void SeekKeptBare(benchmark::State& state) {
  const auto statement = db::Prepare(File().Bare(), u"SELECT * FROM MainData WHERE \"Index@\" = ?1");
  for (auto _ : state) {
    sqlite3_bind_int(statement.get(), 1, File().NextNumber());
    benchmark::DoNotOptimize(Rows(statement.get()));
  }
}

void StepEngine(benchmark::State& state) {
  for (auto _ : state) {
    const QString sql =
        u"SELECT * FROM MainData WHERE [Index@] > %1 ORDER BY [Index@]"_s.arg(File().NextNumber());
    const db::Recordset rows = File().Engine().OpenRecordset(sql);
    if (!rows.AtEnd()) benchmark::DoNotOptimize(rows[u"Name"]);
  }
}

void StepBare(benchmark::State& state) {
  for (auto _ : state) {
    const QString sql = u"SELECT * FROM MainData WHERE \"Index@\" > %1 ORDER BY \"Index@\" LIMIT 1"_s.arg(
        File().NextNumber());
    const auto statement = db::Prepare(File().Bare(), sql);
    benchmark::DoNotOptimize(Rows(statement.get()));
  }
}

void ScanEngine(benchmark::State& state) {
  for (auto _ : state) {
    const db::Recordset rows =
        File().Engine().OpenRecordset(u"SELECT [Index@], [Name] FROM MainData WHERE [Name] LIKE '*sson 77*'");
    benchmark::DoNotOptimize(rows.RecordCount());
  }
}

void ScanBare(benchmark::State& state) {
  const auto statement =
      db::Prepare(File().Bare(), u"SELECT rowid FROM MainData WHERE \"Name\" LIKE '%sson 77%'");
  for (auto _ : state) benchmark::DoNotOptimize(Rows(statement.get()));
}

void CountEngine(benchmark::State& state) {
  for (auto _ : state) {
    const db::Recordset rows = File().Engine().OpenRecordset(u"SELECT * FROM MainData");
    benchmark::DoNotOptimize(rows.RecordCount());
  }
}

void CountBare(benchmark::State& state) {
  const auto statement = db::Prepare(File().Bare(), u"SELECT rowid FROM MainData ORDER BY rowid");
  std::vector<std::uint32_t> keys;
  for (auto _ : state) {
    keys.clear();
    while (sqlite3_step(statement.get()) == SQLITE_ROW) {
      keys.push_back(static_cast<std::uint32_t>(sqlite3_column_int64(statement.get(), 0)));
    }
    sqlite3_reset(statement.get());
  }
  benchmark::DoNotOptimize(keys);
}

void LastEngine(benchmark::State& state) {
  for (auto _ : state) {
    db::Recordset rows = File().Engine().OpenRecordset(u"SELECT * FROM MainData ORDER BY [Index@]");
    rows.MoveLast();
    benchmark::DoNotOptimize(rows[u"Name"]);
  }
}

void LastBare(benchmark::State& state) {
  const auto statement = db::Prepare(File().Bare(), u"SELECT rowid FROM MainData ORDER BY \"Index@\"");
  for (auto _ : state) benchmark::DoNotOptimize(Rows(statement.get()));
}

void SortEngine(benchmark::State& state) {
  for (auto _ : state) {
    const db::Recordset rows = File().Engine().OpenRecordset(u"SELECT * FROM MainData ORDER BY [Name]");
    benchmark::DoNotOptimize(rows.RecordCount());
  }
}

void SortBare(benchmark::State& state) {
  const auto statement = db::Prepare(File().Bare(), u"SELECT rowid FROM MainData ORDER BY \"Name\"");
  for (auto _ : state) benchmark::DoNotOptimize(Rows(statement.get()));
}

constexpr int RowsOfAPage = 50;

void PageEngine(benchmark::State& state) {
  db::Recordset rows =
      File().Engine().OpenRecordset(u"SELECT [Index@], [Name], [Field 1], [Field 2] FROM MainData");
  benchmark::DoNotOptimize(rows.RecordCount());
  for (auto _ : state) {
    const int first = File().NextNumber();
    for (int row = 0; row < RowsOfAPage && first + row < File().Cards(); ++row) {
      rows.MoveTo(first + row);
      for (int column = 0; column < rows.FieldCount(); ++column) benchmark::DoNotOptimize(rows.At(column));
    }
  }
}

void PageBare(benchmark::State& state) {
  const auto statement = db::Prepare(
      File().Bare(), u"SELECT \"Index@\", \"Name\", \"Field 1\", \"Field 2\" FROM MainData WHERE rowid = ?1");
  for (auto _ : state) {
    const int first = File().NextNumber();
    for (int row = 0; row < RowsOfAPage; ++row) {
      sqlite3_bind_int(statement.get(), 1, first + row);
      benchmark::DoNotOptimize(Rows(statement.get()));
    }
  }
}

void SaveEngine(benchmark::State& state) {
  int change = 0;
  for (auto _ : state) {
    const QString sql = u"SELECT * FROM MainData WHERE [Index@] = "_s + QString::number(File().NextNumber());
    db::Recordset rows = File().Engine().OpenRecordset(sql);
    rows.Edit();
    rows.Set(u"Field 3", QString::number(++change));
    rows.Update();
  }
}

void SaveBare(benchmark::State& state) {
  const auto statement =
      db::Prepare(File().Bare(), u"UPDATE MainData SET \"Field 3\" = ?1 WHERE \"Index@\" = ?2");
  int change = 0;
  for (auto _ : state) {
    sqlite3_bind_int(statement.get(), 1, --change);
    sqlite3_bind_int(statement.get(), 2, File().NextNumber());
    benchmark::DoNotOptimize(Rows(statement.get()));
  }
}

constexpr std::array Pairs{Pair{"open to the first card", OpenEngine, OpenBare},
                           Pair{"card by number", SeekEngine, SeekBare},
                           Pair{"card by number as a value", SeekKeptEngine, SeekKeptBare},
                           Pair{"next card", StepEngine, StepBare},
                           Pair{"substring scan", ScanEngine, ScanBare},
                           Pair{"all rows counted", CountEngine, CountBare},
                           Pair{"last by number", LastEngine, LastBare},
                           Pair{"sort by text", SortEngine, SortBare},
                           Pair{"50 rows of a grid", PageEngine, PageBare},
                           Pair{"save", SaveEngine, SaveBare}};

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) { return velmora::bench::RunPairs(velmora::bench::Pairs, argc, argv); }
