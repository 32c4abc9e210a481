// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/SqlParameter.h"
#include "engine/values/Schema.h"

#include <QString>

#include <memory>
#include <optional>

namespace velmora::db {

/// What the translator asks about the file: its tables and stored queries, all names without regard to case.
class Catalog {
 public:
  virtual ~Catalog() = default;
  [[nodiscard]] virtual std::optional<TableDef> FindTable(QStringView name) const = 0;
  /// The text of a stored query.
  [[nodiscard]] virtual std::optional<QString> FindQuery(QStringView name) const = 0;
  /// The name of the stored table's rowid for SQLite ("rowid", or another alias when a column has that name).
  [[nodiscard]] virtual QString RowIdName(QStringView table) const = 0;
  /// The name under which SQLite knows a table or one of its columns, not quoted: as the user's, but for the
  /// few names that SQLite would trip over.
  [[nodiscard]] virtual QString StoredTableName(QStringView table) const = 0;
  [[nodiscard]] virtual QString StoredColumnName(QStringView table, QStringView column) const = 0;
};

enum class StatementKind { Select, Insert, Update, Delete };

/// A parsed statement. Immutable, shared.
class Statement;

/// Whether a statement may hold "?" for values that are given with it. A stored query may not.
enum class ParameterUse { Refused, Allowed };

/// A statement written out for SQLite.
struct Translation {
  StatementKind Kind = StatementKind::Select;
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

/// Parses one statement of the dialect; a trailing ";" and line ends anywhere are taken. Throws the engine's
/// syntax errors (3075, 3131, 3141, 3145...), and 3360 for one that nests too deep.
[[nodiscard]] std::shared_ptr<const Statement> ParseStatement(QStringView sql,
                                                              ParameterUse use = ParameterUse::Refused);
[[nodiscard]] StatementKind KindOf(const Statement& statement);
/// The statement in the engine's own form, as stored queries give their text back.
[[nodiscard]] QString WriteStored(const Statement& statement);
/// Writes the statement for SQLite. Throws 3061 for an unknown column, 3078 for a missing table, 3102 for
/// stored queries that name each other, 3464 for a condition that compares what cannot be compared, 3163,
/// 3349 or 3421 for a literal that the column it is put into can't take. `kinds` are those of the values that
/// are given with it, one for each "?": 3061 for too few, 3001 for too many.
[[nodiscard]] Translation Translate(const Statement& statement, const Catalog& catalog,
                                    const ParameterKinds& kinds = {});
/// "SELECT * FROM name" for a table or stored query, ready to translate.
[[nodiscard]] std::shared_ptr<const Statement> WholeOf(QStringView tableOrQuery);

}  // namespace velmora::db
