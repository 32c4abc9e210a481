// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/SqlSelectParts.h"
#include "engine/dialect/SqlTree.h"

namespace velmora::db {

/// What the writer of expressions asks of the statement around them: the SELECTs nested in them, the values
/// given with it, names that are still free.
class ExpressionContext {
 public:
  virtual ~ExpressionContext() = default;

  /// A nested SELECT, which also sees what is around it.
  [[nodiscard]] virtual SelectParts Resolve(const SelectQuery& select, const Scope* outer) = 0;
  /// The one column of a nested SELECT, and the SELECT as SQL.
  struct OneColumn {
    SqlValue Value;
    QString Sql;
  };
  [[nodiscard]] virtual OneColumn ResolveOneColumn(const SelectQuery& select, const Scope& outer,
                                                   bool named) = 0;
  /// A value given with the statement.
  [[nodiscard]] virtual SqlValue Parameter(std::size_t place) = 0;
  [[nodiscard]] virtual QString NextAlias() = 0;
  /// Counts SQL that is written, so that queries which repeat each other cannot grow without bound.
  virtual void Count(const QString& sql) = 0;
};

}  // namespace velmora::db
