// SPDX-License-Identifier: MIT
#include "engine/rows/Connection.h"

#include "engine/dialect/Dialect.h"
#include "engine/file/FileCheck.h"
#include "engine/sqlite/ConnectionSettings.h"
#include "engine/sqlite/LongWork.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <map>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

QString RealName(const QString& path) { return QFileInfo(path).canonicalFilePath(); }

bool HasJournal(const QString& path) {
  const QFileInfo journal(RealName(path) + u"-journal"_s);
  return journal.exists() && journal.size() > 0;
}

/// A program that ended in the middle of a write leaves its journal; SQLite has just played it back.
void CheckAfterUncleanEnd(sqlite3* connection) {
  const StatementHandle check = Prepare(connection, u"PRAGMA quick_check(1)");
  static_cast<void>(Step(check.get()));
  const QString verdict = ColumnText(check.get(), 0);
  if (verdict != "ok"_L1) {
    throw Error(ErrorCode::NotADatabase, u"The file is damaged and needs to be repaired: %1"_s.arg(verdict));
  }
}

/// The name in a source that is no statement: as it stands, or in brackets.
QStringView NameIn(QStringView source) {
  const QStringView trimmed = source.trimmed();
  const bool isBracketed = trimmed.size() > 2 && trimmed.startsWith(u'[') && trimmed.endsWith(u']') &&
                           trimmed.indexOf(u']') == trimmed.size() - 1;
  return isBracketed ? trimmed.sliced(1, trimmed.size() - 2) : source;
}

bool BeginsAsStatement(QStringView source) {
  const QStringView trimmed = source.trimmed();
  if (trimmed.startsWith(u'(')) return true;
  for (const auto word : {"SELECT"_L1, "INSERT"_L1, "UPDATE"_L1, "DELETE"_L1}) {
    if (!trimmed.startsWith(word, Qt::CaseInsensitive)) continue;
    if (trimmed.size() == word.size() ||
        !(trimmed[word.size()].isLetterOrNumber() || trimmed[word.size()] == u'_')) {
      return true;
    }
  }
  return false;
}

Error WholeIsGone() { return {ErrorCode::Internal, u"The changes were taken back before they were done."_s}; }

}  // namespace

/// The open connections of this process. Each of them holds it, so that it outlives the last one wherever
/// that is kept.
class Neighbours final {
 public:
  static std::shared_ptr<Neighbours> Instance() {
    static const auto instance = std::make_shared<Neighbours>();
    return instance;
  }

  void Add(Connection& connection) {
    const std::scoped_lock guard(m_mutex);
    m_entries.insert_or_assign(&connection, Entry{RealName(connection.Path()), std::this_thread::get_id()});
  }
  void Remove(Connection& connection) {
    const std::scoped_lock guard(m_mutex);
    m_entries.erase(&connection);
  }
  void SettleOthers(Connection& writer) {
    for (Connection* const connection : OthersOf(writer)) connection->SettleOwnRows(false);
  }

 private:
  struct Entry {
    QString File;
    std::thread::id Thread;
    friend bool operator==(const Entry&, const Entry&) = default;
  };

  [[nodiscard]] std::vector<Connection*> OthersOf(Connection& writer) {
    const std::scoped_lock guard(m_mutex);
    std::vector<Connection*> others;
    const auto own = m_entries.find(&writer);
    if (own == m_entries.end()) return others;
    for (const auto& [connection, entry] : m_entries) {
      if (connection != &writer && entry == own->second) others.push_back(connection);
    }
    return others;
  }

  std::mutex m_mutex;
  std::map<Connection*, Entry> m_entries;
};

BorrowedStatement::BorrowedStatement(Connection& connection, QString sql, StatementHandle statement)
    : m_connection(&connection), m_sql(std::move(sql)), m_statement(std::move(statement)) {}

BorrowedStatement::~BorrowedStatement() {
  if (m_statement) m_connection->GiveBack(m_sql, std::move(m_statement));
}

bool BorrowedStatement::Step() {
  RefuseWithinHook();
  return db::Step(m_statement.get());
}

Connection::Connection(const QString& path, LockKind kind)
    : m_path(path),
      m_neighbours(Neighbours::Instance()),
      m_lock(std::make_unique<FileLock>(path, kind, BusyTimeout)) {
  CheckHeader(path);
  const bool hadJournal = HasJournal(path);
  m_handle = OpenConnection(path, SQLITE_OPEN_READWRITE);
  ConfigureConnection(m_handle.get());
  // The first read: a damaged header or schema shows here. A file in another journal mode is brought to ours.
  if (QueryNumber(m_handle.get(), u"SELECT count(*) FROM sqlite_schema") >= 0 &&
      sqlite3_db_readonly(m_handle.get(), "main") == 0) {
    Run(m_handle.get(), u"PRAGMA journal_mode = DELETE");
  }
  if (hadJournal && !HasJournal(path)) CheckAfterUncleanEnd(m_handle.get());
  m_catalogue = std::make_unique<Catalogue>(m_handle.get());
  m_neighbours->Add(*this);
}

Connection::~Connection() { Close(); }

sqlite3* Connection::Handle() const {
  RefuseWithinHook();
  if (!m_handle) throw Error(ErrorCode::ObjectClosed, u"The file has been closed."_s);
  return m_handle.get();
}

void Connection::Close() noexcept {
  m_neighbours->Remove(*this);
  for (OpenRows* const rows : m_openRows) rows->Abandon();
  m_openRows.clear();
  m_translations.clear();
  m_statements.clear();
  m_catalogue.reset();
  m_handle.reset();
  m_lock.reset();
}

Catalogue& Connection::Current() {
  static_cast<void>(Handle());
  if (m_catalogue->Refresh()) m_translations.clear();
  return *m_catalogue;
}

std::shared_ptr<const Statement> Connection::Parse(QStringView source, bool isAction) {
  const QStringView name = NameIn(source);
  if (const StoredQuery* const query = m_catalogue->FindStoredQuery(name)) {
    auto stored = ParseStatement(query->Sql);
    const bool isSelect = stored->Kind() == StatementKind::Select;
    return isSelect && !isAction ? SelectAllFrom(name) : stored;
  }
  if (!isAction) {
    if (m_catalogue->HasTable(name)) return SelectAllFrom(name);
    if (!BeginsAsStatement(source)) {
      throw Error(ErrorCode::TableNotFound, u"There is no table or query \"%1\"."_s.arg(name));
    }
  }
  return ParseStatement(source, ParameterUse::Allowed);
}

std::shared_ptr<const Translation> Connection::Translated(QStringView source, bool isAction,
                                                          const ParameterKinds& kinds) {
  const Catalogue& catalogue = Current();
  QString key(isAction ? u'!' : u'?');
  for (const ParameterKind kind : kinds) key.append(static_cast<char16_t>(kind));
  key.append(u':').append(source);
  if (const auto* kept = m_translations.object(key)) return *kept;
  const auto statement = Parse(source, isAction);
  const bool isSelect = statement->Kind() == StatementKind::Select;
  if (isAction && isSelect) {
    throw Error(ErrorCode::SelectInExecute, u"A SELECT can't be executed; it has to be opened."_s);
  }
  if (!isAction && !isSelect) {
    throw Error(ErrorCode::ActionInOpenRecordset, u"The statement gives no rows; it has to be executed."_s);
  }
  auto translation = std::make_shared<const Translation>(Translate(*statement, catalogue, kinds));
  m_translations.insert(key, std::make_unique<std::shared_ptr<const Translation>>(translation).release());
  return translation;
}

std::shared_ptr<const Translation> Connection::TranslateSource(QStringView source,
                                                               const ParameterKinds& kinds) {
  return Translated(source, false, kinds);
}

std::shared_ptr<const Translation> Connection::TranslateAction(QStringView source,
                                                               const ParameterKinds& kinds) {
  return Translated(source, true, kinds);
}

void Connection::ForgetStructure() {
  m_translations.clear();
  if (m_catalogue) m_catalogue->Forget();
}

BorrowedStatement Connection::Borrow(const QString& sql) {
  sqlite3* const handle = Handle();
  const std::unique_ptr<StatementHandle> kept(m_statements.take(sql));
  return {*this, sql, kept ? std::move(*kept) : Prepare(handle, sql)};
}

void Connection::GiveBack(const QString& sql, StatementHandle statement) noexcept {
  if (!m_handle) return;
  // What reset says here is the failure of the last step, told already.
  sqlite3_reset(statement.get());
  sqlite3_clear_bindings(statement.get());
  m_statements.insert(sql, std::make_unique<StatementHandle>(std::move(statement)).release());
}

std::int64_t Connection::WriteCount() const { return sqlite3_total_changes64(Handle()); }

void Connection::SettleRows(bool onlyANewRow) {
  SettleOwnRows(onlyANewRow);
  m_neighbours->SettleOthers(*this);
}

void Connection::SettleOwnRows(bool onlyANewRow) {
  for (OpenRows* const rows : m_openRows) {
    if (!onlyANewRow || !rows->TakesNewRows()) rows->Settle();
  }
}

void Connection::AsOneTransaction(const std::function<void()>& changes) {
  SettleRows(false);
  Transaction whole(*this);
  const auto done = qScopeGuard([this, outer = std::exchange(m_takesParts, true)] { m_takesParts = outer; });
  try {
    changes();
    whole.Commit();
  } catch (...) {
    ForgetStructure();
    throw;
  }
}

Transaction::Transaction(Connection& connection)
    : m_connection(connection), m_isPart(connection.m_takesParts) {
  if (m_isPart) {
    // A savepoint outside a transaction would be one of its own, and commit what should have gone.
    if (sqlite3_get_autocommit(connection.Handle()) != 0) throw WholeIsGone();
    connection.Borrow(u"SAVEPOINT Part"_s).Step();
    return;
  }
  const bool isWithinAnother = sqlite3_get_autocommit(connection.Handle()) == 0;
  try {
    connection.Borrow(u"BEGIN IMMEDIATE"_s).Step();
  } catch (...) {
    // It can be interrupted after it has begun. One that is open already belongs to somebody else.
    if (!isWithinAnother) RollBack();
    throw;
  }
}

Transaction::~Transaction() {
  if (m_isOpen) RollBack();
}

void Transaction::RollBack() noexcept {
  sqlite3* const handle = m_connection.HandleOrNull();
  if (handle == nullptr) return;
  // Some failures have made SQLite roll back already.
  if (sqlite3_get_autocommit(handle) != 0) return;
  sqlite3_exec(handle, m_isPart ? "ROLLBACK TO Part; RELEASE Part" : "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::Commit() {
  m_connection.Borrow(m_isPart ? u"RELEASE Part"_s : u"COMMIT"_s).Step();
  m_isOpen = false;
}

}  // namespace velmora::db
