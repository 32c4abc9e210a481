// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlStoredForm.h"
#include "engine/values/Error.h"
#include "tests/engine/SampleFile.h"

#include <cstdlib>

using namespace velmora::db;

// Whatever the bytes are: a statement that runs, or one of the engine's errors. SQLite's own complaint (3000)
// would mean that it was given nonsense, and counts as a crash.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static SampleFile file;
  const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  try {
    const auto statement = ParseStatement(text);
    const QString stored = WriteStored(*statement);
    if (WriteStored(*ParseStatement(stored)) != stored) std::abort();
    const Translation translation = Translate(*statement, file);
    const StatementHandle prepared = Prepare(file.Handle(), translation.Sql);
    if (!translation.KeySql.isEmpty()) {
      const StatementHandle keys = Prepare(file.Handle(), translation.KeySql);
      const StatementHandle row = Prepare(file.Handle(), translation.RowSql);
    }
  } catch (const Error& error) {
    const bool isTooDeepForSqlite = error.Text().contains(QLatin1String("parser stack overflow")) ||
                                    error.Text().contains(QLatin1String("Expression tree is too large"));
    if (error.Code() == ErrorCode::Internal && !isTooDeepForSqlite) std::abort();
  }
  return 0;
}
