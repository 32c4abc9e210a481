// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/SqlTree.h"

#include <cstddef>
#include <memory>
#include <utility>
#include <variant>

namespace velmora::db {

enum class StatementKind { Select, Insert, Update, Delete };

/// Whether a statement may hold "?" for values that are given with it. A stored query may not.
enum class ParameterUse { Refused, Allowed };

/// A parsed statement. Immutable, shared.
class Statement final {
 public:
  using Tree = std::variant<SelectQuery, InsertQuery, UpdateQuery, DeleteQuery>;
  Statement(Tree tree, std::size_t parameters) : m_tree(std::move(tree)), m_parameters(parameters) {}
  [[nodiscard]] StatementKind Kind() const;
  [[nodiscard]] const Tree& Root() const { return m_tree; }
  /// How many "?" stand in it.
  [[nodiscard]] std::size_t Parameters() const { return m_parameters; }

 private:
  Tree m_tree;
  std::size_t m_parameters;
};

/// "SELECT * FROM name" for a table or stored query, ready to translate.
[[nodiscard]] std::shared_ptr<const Statement> SelectAllFrom(QStringView tableOrQuery);

}  // namespace velmora::db
