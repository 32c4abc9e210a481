// SPDX-License-Identifier: MIT
#pragma once

#include "engine/sqlite/SqliteHandle.h"

#include <QStringList>

namespace velmora::test {

/// A card file as any other SQLite tool sees it: a connection without our functions, comparison and settings.
class PlainSqlite final {
 public:
  explicit PlainSqlite(const QString& path)
      : m_handle(db::OpenConnection(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE)) {}

  void Run(QStringView sql) const { db::Run(m_handle.get(), sql); }
  [[nodiscard]] std::int64_t Number(QStringView sql) const { return db::QueryNumber(m_handle.get(), sql); }
  /// The rows, each as its values joined by "|".
  [[nodiscard]] QStringList Rows(QStringView sql) const {
    QStringList lines;
    const db::StatementHandle rows = db::Prepare(m_handle.get(), sql);
    while (sqlite3_step(rows.get()) == SQLITE_ROW) {
      QStringList values;
      for (int column = 0; column < sqlite3_column_count(rows.get()); ++column) {
        values.append(db::ColumnText(rows.get(), column));
      }
      lines.append(values.join(QLatin1Char('|')));
    }
    return lines;
  }

 private:
  db::ConnectionHandle m_handle;
};

}  // namespace velmora::test
