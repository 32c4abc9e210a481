// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/NameSource.h"
#include "engine/dialect/SqlExpressionContext.h"
#include "engine/dialect/Statement.h"
#include "engine/dialect/Translation.h"

namespace velmora::db {

/// Writes one statement for SQLite. Stored queries over one table's rows are merged into what is asked of
/// them, so that a card found through a query costs no more than one found directly.
class Translator final : private ExpressionContext {
 public:
  Translator(const NameSource& names, const ParameterKinds& kinds) : m_names(names), m_kinds(kinds) {}

  [[nodiscard]] Translation Run(const Statement& statement);

 private:
  [[nodiscard]] SelectParts Resolve(const SelectQuery& select, const Scope* outer) override;
  [[nodiscard]] OneColumn ResolveOneColumn(const SelectQuery& select, const Scope& outer,
                                           bool named) override;
  [[nodiscard]] SqlValue Parameter(std::size_t place) override;
  [[nodiscard]] QString NextAlias() override;
  void Count(const QString& sql) override;

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

  const NameSource& m_names;
  const ParameterKinds& m_kinds;
  ParameterList m_parameters;
  int m_aliases = 0;
  int m_queries = 0;
  qsizetype m_written = 0;
  /// The stored queries being resolved, folded, outermost first.
  QStringList m_active;
};

}  // namespace velmora::db
