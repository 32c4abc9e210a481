// SPDX-License-Identifier: MIT
#include "engine/repair/Rebuild.h"

#include "engine/file/FileAccess.h"
#include "engine/file/FileConnection.h"
#include "engine/repair/RowWriter.h"
#include "engine/repair/Salvage.h"
#include "engine/sqlite/Quoting.h"

#include <algorithm>
#include <array>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LargestRootAt = 52;
constexpr qsizetype UserVersionAt = 60;
constexpr qsizetype IncrementalVacuumAt = 64;
constexpr qsizetype ApplicationIdAt = 68;
constexpr std::array Encodings{"UTF-8"_L1, "UTF-16le"_L1, "UTF-16be"_L1};

/// An entry of the list of tables, indexes, views and triggers.
struct Entry {
  QString Kind;
  QString Name;
  QString Table;
  std::uint32_t Root = 0;
  QString Sql;
};

Error ListDamaged(const QString& detail) {
  return {ErrorCode::NotADatabase, u"The list of tables in the file cannot be read: "_s + detail};
}

bool IsOwnOfSqlite(const QString& name) { return name.startsWith("sqlite_"_L1, Qt::CaseInsensitive); }

/// What an entry is for: its definition says it too, and in more letters than the word beside it.
QString EntryKindOf(const QString& word, const QString& sql) {
  for (const auto& [beginning, kind] : {std::pair{"CREATE TABLE "_L1, "table"_L1},
                                        {"CREATE INDEX "_L1, "index"_L1},
                                        {"CREATE UNIQUE INDEX "_L1, "index"_L1},
                                        {"CREATE VIEW "_L1, "view"_L1},
                                        {"CREATE TRIGGER "_L1, "trigger"_L1}}) {
    if (sql.startsWith(beginning, Qt::CaseInsensitive)) return kind;
  }
  if (word == "table"_L1 || (word == "index"_L1 && sql.isEmpty())) return word;
  throw ListDamaged(word + u": "_s + sql);
}

/// What a definition from a damaged or a stranger's file may do while it is run: define, and nothing else.
int AllowDefinition(void* mayQuery, int action, const char*, const char*, const char*, const char*) {
  switch (action) {
    case SQLITE_ATTACH:
    case SQLITE_DETACH:
    case SQLITE_PRAGMA:
    case SQLITE_CREATE_VTABLE:
    case SQLITE_DROP_VTABLE:
    case SQLITE_DROP_TABLE:
    case SQLITE_DROP_INDEX:
    case SQLITE_ALTER_TABLE:
    case SQLITE_TRANSACTION:
    case SQLITE_SAVEPOINT:
      return SQLITE_DENY;
    case SQLITE_SELECT:
    case SQLITE_RECURSIVE:
      return *static_cast<const bool*>(mayQuery) ? SQLITE_OK : SQLITE_DENY;
    default:
      return SQLITE_OK;
  }
}

void RunDefinition(sqlite3* connection, const Entry& entry) {
  bool mayQuery = entry.Kind == "view"_L1 || entry.Kind == "trigger"_L1;
  const QByteArray sql = entry.Sql.toUtf8();
  if (!sql.left(7).toUpper().startsWith("CREATE ")) throw ListDamaged(entry.Name);
  sqlite3_set_authorizer(connection, AllowDefinition, &mayQuery);
  sqlite3_stmt* raw = nullptr;
  const char* rest = nullptr;
  const int result =
      sqlite3_prepare_v2(connection, sql.constData(), static_cast<int>(sql.size()) + 1, &raw, &rest);
  const StatementHandle statement(raw);
  sqlite3_set_authorizer(connection, nullptr, nullptr);
  Check(connection, result);
  if (statement == nullptr || !QByteArrayView(rest).trimmed().isEmpty()) throw ListDamaged(entry.Name);
  Check(connection, sqlite3_step(statement.get()));
}

class Rebuilder final {
 public:
  Rebuilder(const DamagedPages& pages, const QString& path)
      : m_pages(pages), m_salvage(pages), m_new(OpenNew(path)) {}

  bool Run() {
    ReadList();
    db::Run(m_new.get(), Settings());
    db::Run(m_new.get(), u"BEGIN");
    for (const Entry& entry : m_entries) {
      if (entry.Kind == "table"_L1) MakeTableOf(entry);
    }
    // Unique keys stand before the rows come, so that of two rows with one key the first is kept.
    MakeOthers(true);
    m_salvage.Save(m_tables);
    if (m_salvage.HasMisfits()) throw ListDamaged(u"a table has more columns than are listed."_s);
    bool isComplete = true;
    for (const auto& writer : m_writers) isComplete = writer->Finish() && isComplete;
    MakeOthers(false);
    db::Run(m_new.get(), u"COMMIT");
    return isComplete && !m_hasLosses && !m_salvage.HasLosses();
  }

 private:
  void ReadList();
  void MakeTableOf(const Entry& entry);
  void MakeTable(const Entry& entry);
  void MakeOthers(bool unique);
  [[nodiscard]] QString Settings() const;
  [[nodiscard]] QString NewestTable() const;

  const DamagedPages& m_pages;
  Salvage m_salvage;
  ConnectionHandle m_new;
  std::vector<Entry> m_entries;
  std::vector<SavedTable> m_tables;
  std::vector<std::unique_ptr<RowWriter>> m_writers;
  bool m_hasLosses = false;
};

void Rebuilder::ReadList() {
  SavedTable schema;
  schema.Root = 1;
  schema.Columns = {Affinity::Text, Affinity::Text, Affinity::Text, Affinity::Whole, Affinity::Text};
  schema.Put = [this](const SavedRow& saved) {
    const std::vector<RawValue>& values = saved.Row.Values;
    if (values.size() != 5 || !saved.Row.IsWhole) return;
    const auto text = [&](std::size_t at) { return QString::fromUtf8(values[at].Bytes); };
    m_entries.push_back({EntryKindOf(text(0), text(4)), text(1), text(2),
                         static_cast<std::uint32_t>(values[3].Whole), text(4)});
  };
  m_salvage.SaveSchema(schema);
  // A table that the list has lost could be saved no more, once the file is replaced.
  if (m_salvage.HasLosses() || m_entries.empty()) throw ListDamaged(u"it is incomplete."_s);
}

QString Rebuilder::Settings() const {
  const bool grows = m_pages.HeaderNumber(LargestRootAt) != 0;
  const int vacuum = !grows ? 0 : m_pages.HeaderNumber(IncrementalVacuumAt) != 0 ? 2 : 1;
  return u"PRAGMA page_size=%1; PRAGMA encoding='%2'; PRAGMA auto_vacuum=%3; PRAGMA user_version=%4; "
         "PRAGMA application_id=%5"_s.arg(m_pages.PageSize())
             .arg(Encodings[m_pages.Encoding() - 1])
             .arg(vacuum)
             .arg(static_cast<std::int32_t>(m_pages.HeaderNumber(UserVersionAt)))
             .arg(static_cast<std::int32_t>(m_pages.HeaderNumber(ApplicationIdAt)));
}

QString Rebuilder::NewestTable() const {
  const StatementHandle newest =
      Prepare(m_new.get(),
              u"SELECT name FROM sqlite_schema WHERE type = 'table' AND substr(name, 1, 7) <> 'sqlite_' "
              "ORDER BY rowid DESC LIMIT 1");
  Check(m_new.get(), sqlite3_step(newest.get()));
  return ColumnText(newest.get(), 0);
}

void Rebuilder::MakeTableOf(const Entry& entry) {
  try {
    MakeTable(entry);
  } catch (const Error& error) {
    // A definition that has been damaged fails in any way that SQL can fail.
    if (error.Code() != ErrorCode::Internal) throw;
    throw ListDamaged(entry.Name + u": "_s + error.Text());
  }
}

void Rebuilder::MakeTable(const Entry& entry) {
  SavedTable table;
  table.Root = entry.Root;
  // SQLite makes its own tables by itself. What its planner has counted it can count again.
  const bool isOwn = IsOwnOfSqlite(entry.Name);
  QString name = entry.Name;
  if (!isOwn) {
    RunDefinition(m_new.get(), entry);
    name = NewestTable();
    // The name stands in the file three times, and two outweigh a damaged third.
    if (name != entry.Name && entry.Name == entry.Table) {
      db::Run(m_new.get(), u"ALTER TABLE "_s + QuoteName(name) + u" RENAME TO "_s + QuoteName(entry.Name));
      name = entry.Name;
    }
  }
  if (isOwn && name != "sqlite_sequence"_L1) {
    table.Columns.assign(4, Affinity::Any);
    table.Put = [](const SavedRow&) {};
  } else {
    auto writer = std::make_unique<RowWriter>(m_new.get(), name);
    table.Columns = writer->Affinities();
    table.Put = [target = writer.get()](const SavedRow& row) { target->Put(row); };
    m_writers.push_back(std::move(writer));
  }
  m_tables.push_back(std::move(table));
}

void Rebuilder::MakeOthers(bool unique) {
  for (const Entry& entry : m_entries) {
    // An index without a text of its own belongs to a table's definition.
    if (entry.Kind == "table"_L1 || entry.Sql.isEmpty()) continue;
    const bool isUnique = entry.Sql.startsWith("CREATE UNIQUE "_L1, Qt::CaseInsensitive);
    if (isUnique != unique) continue;
    try {
      RunDefinition(m_new.get(), entry);
    } catch (const Error& error) {
      if (error.Code() == ErrorCode::DiskFull) throw;
      m_hasLosses = true;
    }
  }
}

}  // namespace

bool Rebuild(const DamagedPages& pages, const QString& path) { return Rebuilder(pages, path).Run(); }

}  // namespace velmora::db
