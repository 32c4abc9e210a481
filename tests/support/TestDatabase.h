// SPDX-License-Identifier: MIT
#pragma once

#include "engine/DBEngine.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

namespace velmora::test {

/// A database of a test's own, in a folder that goes with it.
class TestDatabase final {
 public:
  explicit TestDatabase(const QString& name = QStringLiteral("cards.ddb"))
      : m_path(m_folder.filePath(name)), m_database(db::DBEngine().CreateDatabase(m_path, {})) {}

  [[nodiscard]] db::Database& operator*() const { return *m_database; }
  [[nodiscard]] db::Database* operator->() const { return m_database.get(); }
  [[nodiscard]] const std::shared_ptr<db::Database>& Shared() const { return m_database; }
  [[nodiscard]] const QString& Path() const { return m_path; }
  [[nodiscard]] QString PathOf(const QString& name) const { return m_folder.filePath(name); }

  void Close() { m_database->Close(); }
  void Reopen() {
    m_database->Close();
    m_database = db::DBEngine().OpenDatabase(m_path);
  }

  /// Makes a table of columns given as {name, kind} or {name, kind, size}.
  void Table(const QString& name, std::vector<db::Field> fields, std::vector<db::Index> indexes = {}) const {
    m_database->AppendTableDef({name, std::move(fields), std::move(indexes)});
  }
  /// Adds a row: {{column, value}, ...}.
  void Add(QStringView table, const std::vector<std::pair<QString, db::Value>>& values) const {
    db::Recordset rows = m_database->OpenRecordset(table);
    rows.AddNew();
    for (const auto& [column, value] : values) rows.Set(column, value);
    rows.Update();
  }
  /// The rows of a source, each as its values joined by "|"; Null is "-".
  [[nodiscard]] QStringList Rows(QStringView source) const {
    QStringList lines;
    for (db::Recordset rows = m_database->OpenRecordset(source); !rows.AtEnd(); rows.MoveNext()) {
      QStringList values;
      for (int column = 0; column < rows.FieldCount(); ++column) {
        values.append(rows.At(column).TextOr(QStringLiteral("-")));
      }
      lines.append(values.join(QLatin1Char('|')));
    }
    return lines;
  }

 private:
  QTemporaryDir m_folder;
  QString m_path;
  std::shared_ptr<db::Database> m_database;
};

/// The engine's error number that a call ends with; 0 when it ends well.
inline int ErrorNumberOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const db::Error& error) {
    EXPECT_FALSE(error.Text().isEmpty());
    return error.Number();
  }
  return 0;
}

}  // namespace velmora::test
