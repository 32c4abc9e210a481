// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/SqlTree.h"
#include "engine/dialect/SqlValue.h"

#include <map>

namespace velmora::db {

/// A column that expressions can name: of a table, a stored query or a nested SELECT.
struct NamedColumn {
  QString Name;
  QString Folded;
  SqlValue Value;
  /// Its name in the file when it is a column of the one table whose rows these are; else empty.
  QString ColumnInFile;
};

struct NamedSource {
  QString Folded;
  QString Name;
  std::vector<NamedColumn> Columns;
};

/// What names mean at one place of a statement; a nested SELECT also sees what is around it.
struct Scope {
  std::vector<NamedSource> Sources;
  const Scope* Outer = nullptr;
};

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

/// Writes one statement for SQLite. Stored queries over one table's rows are merged into what is asked of
/// them, so that a card found through a query costs no more than one found directly.
class Translator final {
 public:
  Translator(const Catalog& catalog, const ParameterKinds& kinds) : m_catalog(catalog), m_kinds(kinds) {}

  [[nodiscard]] Translation Run(const Statement& statement);

  // For the writer of expressions.
  [[nodiscard]] SelectParts Resolve(const SelectQuery& select, const Scope* outer);
  /// The one column of a nested SELECT, and the SELECT as SQL.
  struct OneColumn {
    SqlValue Value;
    QString Sql;
  };
  [[nodiscard]] OneColumn ResolveOneColumn(const SelectQuery& select, const Scope& outer, bool named);
  /// A value given with the statement.
  [[nodiscard]] SqlValue Parameter(std::size_t place);
  [[nodiscard]] QString NextAlias();
  /// Counts SQL that is written, so that queries which repeat each other cannot grow without bound.
  void Count(const QString& sql);

 private:
  [[nodiscard]] Translation RunSelect(const SelectQuery& select);
  [[nodiscard]] Translation RunInsert(const InsertQuery& insert);
  [[nodiscard]] Translation RunUpdate(const UpdateQuery& update);
  [[nodiscard]] Translation RunDelete(const DeleteQuery& erase);

  /// One SELECT without what UNION adds to it; `order` are the keys that it is to be sorted by.
  [[nodiscard]] SelectParts ResolveOne(const SelectQuery& select, const Scope* outer,
                                       const std::vector<SortKey>& order);
  [[nodiscard]] SelectParts ResolveUnion(const SelectQuery& select, const Scope* outer);
  [[nodiscard]] SelectParts ResolveQuery(const QString& name, const QString& text);
  [[nodiscard]] std::optional<SelectParts> ResolveWhole(const SelectQuery& select);

  [[nodiscard]] FromParts ResolveFrom(const std::vector<FromItem>& items, const Scope* outer);
  [[nodiscard]] FromParts ResolveItem(const FromItem& item, bool alone, const Scope* outer);
  [[nodiscard]] FromParts ResolveJoin(const FromItem& join, const Scope* outer);
  [[nodiscard]] FromParts ResolveTable(const TableDef& table, const QString& name);
  [[nodiscard]] FromParts Merged(SelectParts parts, const QString& name) const;
  [[nodiscard]] FromParts Derived(const SelectParts& parts, const QString& name);
  [[nodiscard]] FromParts ResolveTarget(const FromItem& target);

  void AddOutput(const OutputColumn& column, const Scope& scope, SelectParts& parts);
  void AddOrder(const std::vector<SortKey>& order, const Scope& scope, const QStringList& fallback,
                SelectParts& parts);

  const Catalog& m_catalog;
  const ParameterKinds& m_kinds;
  ParameterList m_parameters;
  int m_aliases = 0;
  int m_queries = 0;
  qsizetype m_written = 0;
  /// The stored queries being resolved, folded, outermost first.
  QStringList m_active;
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
