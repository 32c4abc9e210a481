// SPDX-License-Identifier: MIT
#include "engine/dialect/Dialect.h"

#include "engine/dialect/SqlParser.h"
#include "engine/dialect/SqlTranslator.h"

namespace velmora::db {

std::shared_ptr<const Statement> ParseStatement(QStringView sql, ParameterUse use) {
  Parser parser(sql, use);
  Statement::Tree tree = parser.ParseStatement();
  return std::make_shared<const Statement>(std::move(tree), parser.Parameters());
}

Translation Translate(const Statement& statement, const NameSource& names, const ParameterKinds& kinds) {
  return Translator(names, kinds).Run(statement);
}

}  // namespace velmora::db
