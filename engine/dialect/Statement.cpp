// SPDX-License-Identifier: MIT
#include "engine/dialect/Statement.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

StatementKind Statement::Kind() const {
  // The tree's alternatives stand in the order of the kinds.
  return static_cast<StatementKind>(m_tree.index());
}

std::shared_ptr<const Statement> SelectAllFrom(QStringView tableOrQuery) {
  SelectQuery select;
  OutputColumn all;
  all.Kind = OutputKind::AllColumns;
  all.Source.Written = u"*"_s;
  select.Columns.push_back(std::move(all));
  FromItem source;
  source.Name = tableOrQuery.toString();
  select.From.push_back(std::move(source));
  return std::make_shared<const Statement>(std::move(select), 0);
}

}  // namespace velmora::db
