// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/Statement.h"
#include "engine/dialect/Translation.h"
#include "engine/file/FileLock.h"
#include "engine/rows/Catalogue.h"

#include <QCache>

#include <functional>
#include <set>

namespace velmora::db {

class Connection;
class Neighbours;

/// Rows that are still being fetched, or may be: what a Recordset shows to its connection.
class OpenRows {
 public:
  virtual ~OpenRows() = default;
  /// Fetches what is left, because the rows are about to change. Never throws: a failure is kept for the next
  /// who asks for rows.
  virtual void Settle() noexcept = 0;
  /// Lets go of all statements, because the connection closes.
  virtual void Abandon() noexcept = 0;
  /// Whether a row that is added elsewhere may come up among the rest without harm.
  [[nodiscard]] virtual bool TakesNewRows() const noexcept = 0;
};

/// A prepared statement lent by its connection; goes back, reset and unbound, when the loan ends.
class BorrowedStatement final {
 public:
  BorrowedStatement(Connection& connection, QString sql, StatementHandle statement);
  ~BorrowedStatement();
  BorrowedStatement(BorrowedStatement&&) noexcept = default;
  BorrowedStatement& operator=(BorrowedStatement&&) = delete;

  [[nodiscard]] sqlite3_stmt* get() const noexcept { return m_statement.get(); }
  /// True when there is a row. Throws.
  bool Step();

 private:
  Connection* m_connection;
  QString m_sql;
  StatementHandle m_statement;
};

/// One SQLite connection with all that goes with it: the mark of use on the file, kept statements and
/// translations, what the file holds, and the rows that are open on it. Shared by the Database and its
/// recordsets; after Close every use throws 3420.
class Connection final {
 public:
  /// Opens a file that exists. Throws as DBEngine::OpenDatabase.
  Connection(const QString& path, LockKind kind);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  [[nodiscard]] const QString& Path() const noexcept { return m_path; }
  [[nodiscard]] sqlite3* Handle() const;
  /// The same, but null once the file is closed.
  [[nodiscard]] sqlite3* HandleOrNull() const noexcept { return m_handle.get(); }
  void Close() noexcept;

  /// What the file holds now, changes by other programs included.
  [[nodiscard]] Catalogue& Current();
  /// A statement or the name of a table or stored query, written out for SQLite; kept for the next time that
  /// values of the same kinds are given with it.
  [[nodiscard]] std::shared_ptr<const Translation> TranslateSource(QStringView source,
                                                                   const ParameterKinds& kinds);
  [[nodiscard]] std::shared_ptr<const Translation> TranslateAction(QStringView source,
                                                                   const ParameterKinds& kinds);
  /// To be called after every change of the structure or of the stored queries.
  void ForgetStructure();

  [[nodiscard]] BorrowedStatement Borrow(const QString& sql);
  /// Changes with every row that this connection writes.
  [[nodiscard]] std::int64_t WriteCount() const;

  void Register(OpenRows& rows) { m_openRows.insert(&rows); }
  void Unregister(OpenRows& rows) noexcept { m_openRows.erase(&rows); }
  /// Before a write: fetches what open rows still have to fetch, on this connection and on others of this
  /// thread to the same file, whose reading would keep the write waiting for ever.
  void SettleRows(bool onlyANewRow);
  /// Runs changes as one transaction, of which the transactions within are parts. What was known of the file
  /// is forgotten when they are taken back.
  void AsOneTransaction(const std::function<void()>& changes);

 private:
  friend class BorrowedStatement;
  friend class Transaction;
  friend class Neighbours;
  void SettleOwnRows(bool onlyANewRow);
  void GiveBack(const QString& sql, StatementHandle statement) noexcept;
  [[nodiscard]] std::shared_ptr<const Statement> Parse(QStringView source, bool isAction);
  [[nodiscard]] std::shared_ptr<const Translation> Translated(QStringView source, bool isAction,
                                                              const ParameterKinds& kinds);

  static constexpr int KeptStatements = 64;
  static constexpr int KeptTranslations = 64;

  QString m_path;
  std::shared_ptr<Neighbours> m_neighbours;
  // The lock goes last: whatever else holds the file must be closed by then.
  std::unique_ptr<FileLock> m_lock;
  ConnectionHandle m_handle;
  std::unique_ptr<Catalogue> m_catalogue;
  QCache<QString, StatementHandle> m_statements{KeptStatements};
  QCache<QString, std::shared_ptr<const Translation>> m_translations{KeptTranslations};
  std::set<OpenRows*> m_openRows;
  /// Whether a transaction that begins now is a part of one that is open.
  bool m_takesParts = false;
};

/// A transaction; rolled back when it goes without Commit. Takes the right to write at once. Within
/// AsOneTransaction it is a part: committed or rolled back by itself, and gone with the whole.
class Transaction final {
 public:
  explicit Transaction(Connection& connection);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void Commit();

 private:
  void RollBack() noexcept;

  Connection& m_connection;
  const bool m_isPart;
  bool m_isOpen = true;
};

}  // namespace velmora::db
