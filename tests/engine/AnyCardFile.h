// SPDX-License-Identifier: MIT
#pragma once

#include "engine/DBEngine.h"

namespace velmora::test {

/// Does with a file of unknown contents all that a user could: opens it, reads every row of every table, and
/// of every stored query, writes to it, compacts and repairs it. The engine may refuse any of it, by its own
/// errors alone. True when the file could be opened.
inline bool UseCardFile(const QString& path, const QString& copy) {
  const auto allowingErrors = [](const auto& work) {
    try {
      work();
      return true;
    } catch (const db::Error&) {
      return false;
    }
  };
  const auto readAll = [](db::Database& database, const QString& source) {
    constexpr int MostRows = 2000;
    db::Recordset rows = database.OpenRecordset(source);
    for (int row = 0; row < MostRows && !rows.AtEnd(); ++row, rows.MoveNext()) {
      for (int column = 0; column < rows.FieldCount(); ++column) {
        static_cast<void>(rows.At(column).TextOr(QString()));
      }
    }
  };
  const bool opened = allowingErrors([&] {
    const auto database = db::DBEngine().OpenDatabase(path);
    for (const QString& table : database->TableDefs()) {
      allowingErrors([&] { readAll(*database, table); });
      allowingErrors([&] {
        db::Recordset rows = database->OpenRecordset(table);
        if (rows.FieldCount() == 0) return;
        rows.AddNew();
        rows.Set(rows.FieldAt(0).Name, 1);
        rows.Update();
      });
    }
    for (const QString& query : database->QueryDefs()) {
      allowingErrors([&] { readAll(*database, query); });
    }
  });
  allowingErrors([&] { db::DBEngine().CompactDatabase(path, copy); });
  allowingErrors([&] { db::DBEngine().RepairDatabase(path); });
  allowingErrors([&] {
    const auto database = db::DBEngine().OpenDatabase(path);
    for (const QString& table : database->TableDefs()) allowingErrors([&] { readAll(*database, table); });
  });
  return opened;
}

}  // namespace velmora::test
