// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Database.h"
#include "engine/sqlite/SqliteHandle.h"

#include <QTemporaryDir>

namespace velmora::bench {

/// A card file of many cards, made once for a run: VELMORA_BENCH_CARDS of them, a million when it is not set.
class BenchFile final {
 public:
  static BenchFile& Instance();

  [[nodiscard]] const QString& Path() const { return m_path; }
  [[nodiscard]] int Cards() const { return m_cards; }
  /// A card number, another one each time, the same ones in each run.
  [[nodiscard]] int NextNumber();
  /// The engine's way in, and SQLite's own with the same settings.
  [[nodiscard]] db::Database& Engine() { return *m_engine; }
  [[nodiscard]] sqlite3* Bare() { return m_bare.get(); }
  [[nodiscard]] db::ConnectionHandle OpenBare() const;

 private:
  BenchFile();

  QTemporaryDir m_folder;
  QString m_path;
  int m_cards;
  unsigned m_random = 1;
  std::shared_ptr<db::Database> m_engine;
  db::ConnectionHandle m_bare;
};

}  // namespace velmora::bench
