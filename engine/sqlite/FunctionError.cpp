// SPDX-License-Identifier: MIT
#include "engine/sqlite/FunctionError.h"

#include <sqlite3.h>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

// An error's number travels in front of its text, for want of another way through SQLite.
constexpr auto ErrorMark = "velmora "_L1;

}  // namespace

void SetError(sqlite3_context* context, const Error& error) {
  const QByteArray text = (ErrorMark + QString::number(error.Number()) + ": "_L1 + error.Text()).toUtf8();
  sqlite3_result_error(context, text.constData(), static_cast<int>(text.size()));
}

std::optional<Error> FunctionError(sqlite3* connection) {
  const QString text = QString::fromUtf8(sqlite3_errmsg(connection));
  if (!text.startsWith(ErrorMark)) return std::nullopt;
  const qsizetype end = text.indexOf(": "_L1);
  const int number = QStringView(text).mid(ErrorMark.size(), end - ErrorMark.size()).toInt();
  return Error(static_cast<ErrorCode>(number), text.mid(end + 2));
}

}  // namespace velmora::db
