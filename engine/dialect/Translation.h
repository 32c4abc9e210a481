// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/SqlParameter.h"
#include "engine/values/Schema.h"

namespace velmora::db {

/// A statement written out for SQLite.
struct Translation {
  /// The statement, its literals written as such; an explicit ORDER BY rowid where the user asked for no
  /// order.
  QString Sql;
  /// SELECT only: the output columns with their kinds. A computed column has the kind that fits it best.
  std::vector<Field> Columns;
  /// SELECT over the rows of one table, directly or through stored queries (no grouping, DISTINCT, join or
  /// union): that table's name in the file (StoredTableName); else empty. Then KeySql gives the rowids alone,
  /// in the same order, RowSql the output columns of the one row whose rowid is bound as ?1, and the name in
  /// the file of each column stands in SourceColumns (empty for a computed one).
  QString Table;
  QString KeySql;
  QString RowSql;
  QStringList SourceColumns;
  /// What is bound to Sql, KeySql and RowSql, from FirstParameter on; each may name fewer of them.
  std::vector<SqlParameter> Parameters;
};

}  // namespace velmora::db
