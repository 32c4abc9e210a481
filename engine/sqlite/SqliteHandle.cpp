// SPDX-License-Identifier: MIT
#include "engine/sqlite/SqliteHandle.h"

#include "engine/sqlite/FunctionError.h"
#include "engine/sqlite/LongWork.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

Error ErrorOf(sqlite3* connection, int result) {
  const QString detail = connection != nullptr ? QString::fromUtf8(sqlite3_errmsg(connection))
                                               : QString::fromUtf8(sqlite3_errstr(result));
  switch (result & 0xff) {
    case SQLITE_ERROR:
      if (connection == nullptr) break;
      if (const auto error = FunctionError(connection)) return *error;
      // What a statement was prepared for has gone meanwhile; SQLite has no code for it.
      if (detail.startsWith("no such column"_L1)) return {ErrorCode::UnknownParameter, detail};
      if (detail.startsWith("no such table"_L1)) return {ErrorCode::TableNotFound, detail};
      break;
    case SQLITE_FULL:
      return {ErrorCode::DiskFull, u"The disk is full: "_s + detail};
    case SQLITE_READONLY:
      return {ErrorCode::ReadOnlyDatabase, u"The file cannot be written: "_s + detail};
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return {ErrorCode::FileInUse, u"Another program is using the file: "_s + detail};
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
      return {ErrorCode::NotADatabase, u"The file is not a database, or is damaged: "_s + detail};
    case SQLITE_CANTOPEN:
      return {ErrorCode::CannotOpenFile, u"The file cannot be opened: "_s + detail};
    case SQLITE_CONSTRAINT:
      if (result == SQLITE_CONSTRAINT_UNIQUE || result == SQLITE_CONSTRAINT_PRIMARYKEY) {
        return {ErrorCode::DuplicateKey,
                u"The value is there already and may be there only once: "_s + detail};
      }
      break;
    default:
      break;
  }
  return {ErrorCode::Internal, detail};
}

void Check(sqlite3* connection, int result) {
  if (result == SQLITE_OK || result == SQLITE_ROW || result == SQLITE_DONE) return;
  if (result == SQLITE_INTERRUPT) RethrowFromHook();
  throw ErrorOf(connection, result);
}

ConnectionHandle OpenConnection(const QString& path, int flags) {
  sqlite3* raw = nullptr;
  const int result = sqlite3_open_v2(path.toUtf8().constData(), &raw, flags | SQLITE_OPEN_EXRESCODE, nullptr);
  ConnectionHandle connection(raw);
  Check(raw, result);
  return connection;
}

StatementHandle Prepare(sqlite3* connection, QStringView sql) {
  RefuseWithinHook();
  const QByteArray text = sql.toUtf8();
  sqlite3_stmt* raw = nullptr;
  const int result =
      sqlite3_prepare_v2(connection, text.constData(), static_cast<int>(text.size()) + 1, &raw, nullptr);
  StatementHandle statement(raw);
  Check(connection, result);
  return statement;
}

bool Step(sqlite3_stmt* statement) {
  const int result = sqlite3_step(statement);
  Check(sqlite3_db_handle(statement), result);
  return result == SQLITE_ROW;
}

void Run(sqlite3* connection, QStringView sql) {
  Check(connection, sqlite3_exec(connection, sql.toUtf8().constData(), nullptr, nullptr, nullptr));
}

std::int64_t QueryNumber(sqlite3* connection, QStringView sql) {
  const StatementHandle statement = Prepare(connection, sql);
  return Step(statement.get()) ? sqlite3_column_int64(statement.get(), 0) : 0;
}

QString ColumnText(sqlite3_stmt* statement, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  return QString::fromUtf8(text, sqlite3_column_bytes(statement, column));
}

}  // namespace velmora::db
