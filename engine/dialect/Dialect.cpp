// SPDX-License-Identifier: MIT
#include "engine/dialect/Dialect.h"

#include "engine/dialect/SqlParser.h"
#include "engine/dialect/SqlTranslator.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

std::shared_ptr<const Statement> ParseStatement(QStringView sql, ParameterUse use) {
  Parser parser(sql, use);
  Statement::Tree tree = parser.ParseStatement();
  return std::make_shared<const Statement>(std::move(tree), parser.Parameters());
}

StatementKind KindOf(const Statement& statement) {
  // The tree's alternatives stand in the order of the kinds.
  return static_cast<StatementKind>(statement.Root().index());
}

Translation Translate(const Statement& statement, const Catalog& catalog, const ParameterKinds& kinds) {
  return Translator(catalog, kinds).Run(statement);
}

std::shared_ptr<const Statement> WholeOf(QStringView tableOrQuery) {
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
