// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/SqlScope.h"

#include <optional>

namespace velmora::db {

/// The table whose rows a SELECT gives, one for each row.
struct BaseTable {
  TableDef Definition;
  QString NameInFile;
  /// The alias and the row id as SQL.
  QString RowKey;
};

struct ResultColumn {
  Field Output;
  SqlValue Value;
  QString ColumnInFile;
  /// Where it comes from, for "T.c" when two sources have a column of the name.
  QString Source;
};

/// The resolved parts of a FROM clause.
struct FromParts {
  QString Sql;
  std::vector<NamedSource> Sources;
  QStringList Conditions;
  /// The order of the rows when nothing else is asked.
  QStringList Order;
  /// One table's rows, directly or through stored queries.
  std::optional<BaseTable> Base;
};

/// A SELECT written out clause by clause.
struct SelectParts {
  std::vector<ResultColumn> Columns;
  QString From;
  QStringList Conditions;
  QStringList GroupBy;
  QString Having;
  QStringList Order;
  std::optional<std::int64_t> Top;
  bool Distinct = false;
  bool Grouped = false;
  /// The rows will be told apart by their outputs.
  bool AsKeys = false;
  std::optional<BaseTable> Base;

  [[nodiscard]] bool KeepsRows() const { return Base && !Distinct && !Grouped; }
  /// Whether a statement over it may be merged with it.
  [[nodiscard]] bool IsMergeable() const { return KeepsRows() && !Top; }
};

/// The SELECT as SQL; its columns named c1, c2... when another SELECT is to name them.
[[nodiscard]] QString SelectSql(const SelectParts& parts, bool named);
/// " WHERE ..." or nothing.
[[nodiscard]] QString WhereSql(const QStringList& conditions);
/// Conditions or alternatives as one; balanced, because SQLite counts the depth of a row of them.
[[nodiscard]] QString JoinedConditions(const QStringList& conditions, QLatin1StringView word);
[[nodiscard]] QString OutputSql(const ResultColumn& column);
/// The name of a derived table's column, counted from 0.
[[nodiscard]] QString DerivedColumn(const QString& alias, std::size_t place);

}  // namespace velmora::db
