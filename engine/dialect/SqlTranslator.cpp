// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlTranslator.h"

#include "engine/dialect/SqlParser.h"
#include "engine/text/Collation.h"
#include "engine/values/Error.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

// Stored queries may repeat each other; people's stay far below these.
constexpr int MostQueries = 1000;
constexpr qsizetype LongestSql = qsizetype{8} * 1024 * 1024;

Error TooComplex() { return {ErrorCode::TooComplex, u"The query is too complex."_s}; }

}  // namespace

SqlValue Translator::Parameter(std::size_t place) {
  return ParameterValue(m_parameters, place, m_kinds[place]);
}

QString Translator::NextAlias() { return u't' + QString::number(++m_aliases); }

void Translator::Count(const QString& sql) {
  m_written += sql.size();
  if (m_written > LongestSql) throw TooComplex();
}

Translation Translator::Run(const Statement& statement) {
  if (m_kinds.size() < statement.Parameters()) {
    throw Error(ErrorCode::UnknownParameter,
                u"Too few parameters. Expected %1."_s.arg(statement.Parameters()));
  }
  if (m_kinds.size() > statement.Parameters()) {
    throw Error(ErrorCode::InvalidArgument,
                u"%1 values are given for %2 parameters."_s.arg(m_kinds.size()).arg(statement.Parameters()));
  }
  Translation translation = std::visit(
      [this](const auto& tree) {
        using Tree = std::decay_t<decltype(tree)>;
        if constexpr (std::is_same_v<Tree, SelectQuery>) {
          return RunSelect(tree);
        } else if constexpr (std::is_same_v<Tree, InsertQuery>) {
          return RunInsert(tree);
        } else if constexpr (std::is_same_v<Tree, UpdateQuery>) {
          return RunUpdate(tree);
        } else {
          return RunDelete(tree);
        }
      },
      statement.Root());
  translation.Parameters = m_parameters.Take();
  return translation;
}

Translation Translator::RunSelect(const SelectQuery& select) {
  SelectParts parts = Resolve(select, nullptr);
  Translation translation;
  translation.Sql = SelectSql(parts, false);
  QStringList outputs;
  for (const auto& column : parts.Columns) {
    translation.Columns.push_back(column.Output);
    translation.SourceColumns.append(column.ColumnInFile);
    outputs.append(OutputSql(column));
  }
  if (!parts.KeepsRows()) {
    translation.SourceColumns.fill(QString());
    return translation;
  }
  const QString& key = parts.Base->RowKey;
  translation.Table = parts.Base->NameInFile;
  translation.RowSql = u"SELECT %1 FROM %2 WHERE %3 = ?1"_s.arg(outputs.join(", "_L1), parts.From, key);
  ResultColumn keyColumn;
  keyColumn.Value = ColumnValue(key, FieldType::Long, 0);
  parts.Columns.assign(1, keyColumn);
  translation.KeySql = SelectSql(parts, false);
  return translation;
}

SelectParts Translator::Resolve(const SelectQuery& select, const Scope* outer) {
  if (!select.Unions.empty()) return ResolveUnion(select, outer);
  if (auto whole = ResolveWhole(select)) return std::move(*whole);
  return ResolveOne(select, outer, select.OrderBy);
}

// "SELECT * FROM query" is the query itself, whatever it is, its order and all.
std::optional<SelectParts> Translator::ResolveWhole(const SelectQuery& select) {
  const bool isWhole = select.Columns.size() == 1 && select.Columns[0].Kind == OutputKind::AllColumns &&
                       select.From.size() == 1 && !select.From[0].IsJoin && select.From[0].Query == nullptr &&
                       !select.Where && !select.Distinct && !select.Top && select.OrderBy.empty() &&
                       select.GroupBy.empty() && !select.Having;
  if (!isWhole || m_names.FindTable(select.From[0].Name)) return std::nullopt;
  const auto text = m_names.FindQuery(select.From[0].Name);
  if (!text) return std::nullopt;
  return ResolveQuery(select.From[0].Name, *text);
}

SelectParts Translator::ResolveQuery(const QString& name, const QString& text) {
  const QString folded = FoldName(name);
  if (m_active.contains(folded)) {
    throw Error(ErrorCode::CircularReference, u"Circular reference caused by \"%1\"."_s.arg(name));
  }
  constexpr qsizetype deepest = 50;
  if (++m_queries > MostQueries || m_active.size() >= deepest) throw TooComplex();
  const Statement::Tree tree = Parser(text, ParameterUse::Refused).ParseStatement();
  const auto* select = std::get_if<SelectQuery>(&tree);
  if (select == nullptr) {
    throw Error(ErrorCode::TableNotFound, u"\"%1\" gives no rows: it is an action query."_s.arg(name));
  }
  m_active.append(folded);
  SelectParts parts = Resolve(*select, nullptr);
  m_active.removeLast();
  return parts;
}

ExpressionContext::OneColumn Translator::ResolveOneColumn(const SelectQuery& select, const Scope& outer,
                                                          bool named) {
  SelectParts parts = Resolve(select, &outer);
  if (parts.Columns.size() != 1) {
    throw Error(ErrorCode::SubqueryColumns, u"A SELECT within an expression must give one column."_s);
  }
  if (!parts.Top && named) parts.Order.clear();
  return {parts.Columns[0].Value, SelectSql(parts, named)};
}

}  // namespace velmora::db
