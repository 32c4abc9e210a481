// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlTranslator.h"

#include "engine/dialect/SqlExpressionWriter.h"
#include "engine/text/Collation.h"
#include "engine/values/Error.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

// Stored queries may repeat each other; people's stay far below these.
constexpr int MostQueries = 1000;
constexpr qsizetype LongestSql = qsizetype{8} * 1024 * 1024;
constexpr int ShortRow = 50;

Error TooComplex() { return {ErrorCode::TooComplex, u"The query is too complex."_s}; }

QString Half(const QStringList& conditions, qsizetype first, qsizetype last, const QString& between) {
  if (last - first <= ShortRow) return u'(' + conditions.mid(first, last - first).join(between) + u')';
  const qsizetype middle = first + (last - first) / 2;
  return u'(' + Half(conditions, first, middle, between) + between + Half(conditions, middle, last, between) +
         u')';
}

}  // namespace

QString JoinedConditions(const QStringList& conditions, QLatin1StringView word) {
  if (conditions.size() == 1) return conditions.front();
  return Half(conditions, 0, conditions.size(), u' ' + word + u' ');
}

QString WhereSql(const QStringList& conditions) {
  return conditions.isEmpty() ? QString() : " WHERE "_L1 + JoinedConditions(conditions, "AND"_L1);
}

QString DerivedColumn(const QString& alias, std::size_t place) {
  return alias + u".c"_s + QString::number(place + 1);
}

QString OutputSql(const ResultColumn& column) {
  return column.Value.IsCondition ? Plain(column.Value) : column.Value.Sql;
}

QString SelectSql(const SelectParts& parts, bool named) {
  QStringList columns;
  for (const auto& column : parts.Columns) {
    const QString sql = parts.Distinct || parts.AsKeys ? AsKey(column.Value) : OutputSql(column);
    columns.append(named ? sql + " AS c"_L1 + QString::number(columns.size() + 1) : sql);
  }
  QString sql = (parts.Distinct ? u"SELECT DISTINCT "_s : u"SELECT "_s) + columns.join(", "_L1);
  if (!parts.From.isEmpty()) sql += " FROM "_L1 + parts.From;
  sql += WhereSql(parts.Conditions);
  if (!parts.GroupBy.isEmpty()) sql += " GROUP BY "_L1 + parts.GroupBy.join(", "_L1);
  if (!parts.Having.isEmpty()) sql += " HAVING "_L1 + parts.Having;
  if (!parts.Order.isEmpty()) sql += " ORDER BY "_L1 + parts.Order.join(", "_L1);
  if (parts.Top) sql += " LIMIT "_L1 + QString::number(*parts.Top);
  return sql;
}

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
  translation.Kind = StatementKind::Select;
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
  if (!isWhole || m_catalog.FindTable(select.From[0].Name)) return std::nullopt;
  const auto text = m_catalog.FindQuery(select.From[0].Name);
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
  const auto statement = ParseStatement(text);
  const auto* select = std::get_if<SelectQuery>(&statement->Root());
  if (select == nullptr) {
    throw Error(ErrorCode::TableNotFound, u"\"%1\" gives no rows: it is an action query."_s.arg(name));
  }
  m_active.append(folded);
  SelectParts parts = Resolve(*select, nullptr);
  m_active.removeLast();
  return parts;
}

Translator::OneColumn Translator::ResolveOneColumn(const SelectQuery& select, const Scope& outer,
                                                   bool named) {
  SelectParts parts = Resolve(select, &outer);
  if (parts.Columns.size() != 1) {
    throw Error(ErrorCode::SubqueryColumns, u"A SELECT within an expression must give one column."_s);
  }
  if (!parts.Top && named) parts.Order.clear();
  return {parts.Columns[0].Value, SelectSql(parts, named)};
}

}  // namespace velmora::db
