// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlExpressionWriter.h"
#include "engine/dialect/SqlTranslator.h"
#include "engine/text/Collation.h"
#include "engine/values/Error.h"

#include <QHash>

#include <algorithm>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

ResultColumn ResultOf(const NamedColumn& column, const QString& source) {
  return {.Output = {.Name = column.Name, .Type = column.Value.Type, .Size = column.Value.Size},
          .Value = column.Value,
          .ColumnInFile = column.ColumnInFile,
          .Source = source};
}

QString NumberedName(std::size_t place) {
  constexpr std::size_t first = 1000;
  return u"Expr"_s + QString::number(first + place);
}

// Computed columns are numbered; columns of one name are told apart by their tables, and one that is asked
// for twice is numbered the second time.
void NameOutputs(std::vector<ResultColumn>& columns) {
  QHash<QString, std::size_t> seen;
  for (std::size_t place = 0; place < columns.size(); ++place) {
    ResultColumn& column = columns[place];
    if (column.Output.Name.isEmpty()) column.Output.Name = NumberedName(place);
    const QString folded = FoldName(column.Output.Name);
    const auto known = seen.constFind(folded);
    if (known == seen.cend()) {
      seen.insert(folded, place);
      continue;
    }
    ResultColumn& first = columns[*known];
    if (column.Source.isEmpty() || column.Source == first.Source) {
      column.Output.Name = NumberedName(place);
      continue;
    }
    const QString name = column.Output.Name;
    if (!first.Source.isEmpty() && first.Output.Name == name) first.Output.Name = first.Source + u'.' + name;
    column.Output.Name = column.Source + u'.' + name;
  }
}

/// Whether the column alone makes a unique key of the table: then its index gives the order, from either end.
bool IsUniqueKey(const BaseTable& base, const NamedColumn& column) {
  return std::any_of(base.Definition.Indexes.begin(), base.Definition.Indexes.end(), [&](const Index& index) {
    return index.Unique && index.Fields.size() == 1 && FoldName(index.Fields.front()) == column.Folded;
  });
}

/// A whole number as a sort key means the output column of that place.
std::optional<SqlValue> ByPlace(const Expression& key, const SelectParts& parts) {
  if (key.Kind != ExpressionKind::Number) return std::nullopt;
  bool isWhole = false;
  const qulonglong place = key.Text.toULongLong(&isWhole);
  if (!isWhole || place < 1 || place > parts.Columns.size()) {
    throw Error(ErrorCode::SyntaxInOrderBy, u"There is no output column %1 to sort by."_s.arg(key.Text));
  }
  return parts.Columns[place - 1].Value;
}

/// A name that no table has may be that of an output column.
std::optional<SqlValue> ByAlias(const Expression& key, const Scope& scope, const SelectParts& parts) {
  if (key.Kind != ExpressionKind::Column || !key.Qualifier.isEmpty()) return std::nullopt;
  if (ExpressionWriter::Find(key, scope)) return std::nullopt;
  const QString folded = FoldName(key.Text);
  for (const auto& column : parts.Columns) {
    if (FoldName(column.Output.Name) == folded) return column.Value;
  }
  return std::nullopt;
}

// Each part of UNION ALL numbers its rows, so that they come part by part and in the order of each.
QString UnionPartSql(SelectParts parts, int place, bool keepsRepeats) {
  parts.AsKeys = !keepsRepeats;
  if (!keepsRepeats && !parts.Top) {
    parts.Order.clear();
    return SelectSql(parts, true);
  }
  QString sql = u"SELECT *"_s;
  if (keepsRepeats) sql += u", %1 AS p, row_number() OVER () AS r"_s.arg(place);
  return sql + " FROM ("_L1 + SelectSql(parts, true) + u')';
}

QString AggregateOrder(const SelectParts& parts) { return parts.Base ? parts.Base->RowKey : QString(); }

}  // namespace

SelectParts Translator::ResolveOne(const SelectQuery& select, const Scope* outer,
                                   const std::vector<SortKey>& order) {
  FromParts from = ResolveFrom(select.From, outer);
  const Scope scope{.Sources = std::move(from.Sources), .Outer = outer};
  SelectParts parts;
  parts.From = std::move(from.Sql);
  parts.Conditions = std::move(from.Conditions);
  parts.Base = std::move(from.Base);
  parts.Distinct = select.Distinct;
  parts.Top = select.Top;
  if (select.Where) parts.Conditions.append(ExpressionWriter(*this, scope).Condition(select.Where->Value));

  parts.Grouped = !select.GroupBy.empty() || select.Having ||
                  std::any_of(select.Columns.begin(), select.Columns.end(),
                              [](const OutputColumn& column) { return HasAggregate(column.Source.Value); });
  for (const auto& key : select.GroupBy) {
    parts.GroupBy.append(AsKey(ExpressionWriter(*this, scope).Write(key.Value)));
  }
  for (const auto& column : select.Columns) AddOutput(column, scope, parts);
  NameOutputs(parts.Columns);
  if (select.Having) {
    ExpressionWriter writer(*this, scope);
    writer.AllowAggregates(parts.GroupBy, AggregateOrder(parts));
    parts.Having = writer.Condition(select.Having->Value);
  }
  AddOrder(order, scope, parts.Grouped ? parts.GroupBy : from.Order, parts);
  return parts;
}

void Translator::AddOutput(const OutputColumn& column, const Scope& scope, SelectParts& parts) {
  if (column.Kind != OutputKind::Value) {
    const QString qualifier = FoldName(column.Qualifier);
    const std::size_t before = parts.Columns.size();
    for (const auto& source : scope.Sources) {
      if (!qualifier.isEmpty() && source.Folded != qualifier) continue;
      for (const auto& named : source.Columns) parts.Columns.push_back(ResultOf(named, source.Name));
    }
    if (parts.Columns.size() > before && !parts.Grouped) return;
    throw Error(parts.Grouped ? ErrorCode::NotInAggregate : ErrorCode::UnknownParameter,
                u"\"%1\" can't be used here."_s.arg(column.Source.Written));
  }
  const Expression& expression = column.Source.Value;
  ExpressionWriter writer(*this, scope);
  if (parts.Grouped) writer.AllowAggregates(parts.GroupBy, AggregateOrder(parts));
  ResultColumn result;
  result.Value = writer.Write(expression);
  const bool isColumn = expression.Kind == ExpressionKind::Column;
  if (const auto found = isColumn ? ExpressionWriter::Find(expression, scope) : std::nullopt) {
    result = ResultOf(*found->Column, found->Source->Name);
    if (found->IsOuter) result.ColumnInFile.clear();
  }
  result.Output.Type = result.Value.Type;
  result.Output.Size = result.Value.Size;
  if (!column.Alias.isEmpty()) {
    result.Output.Name = column.Alias;
    result.Source.clear();
  }
  parts.Columns.push_back(std::move(result));
}

void Translator::AddOrder(const std::vector<SortKey>& order, const Scope& scope, const QStringList& fallback,
                          SelectParts& parts) {
  for (const auto& [written, descending] : order) {
    const Expression& key = written.Value;
    auto value = ByPlace(key, parts);
    if (!value) value = ByAlias(key, scope, parts);
    if (!value) {
      ExpressionWriter writer(*this, scope);
      if (parts.Grouped) writer.AllowAggregates(parts.GroupBy, AggregateOrder(parts));
      value = writer.Write(key);
    }
    parts.Order.append(AsKey(*value) + (descending ? " DESC"_L1 : ""_L1));
  }
  // A unique index can be walked from its end only when the row id runs the same way.
  if (order.size() == 1 && order[0].Descending && parts.KeepsRows() &&
      order[0].Key.Value.Kind == ExpressionKind::Column) {
    const auto found = ExpressionWriter::Find(order[0].Key.Value, scope);
    if (found && !found->Column->ColumnInFile.isEmpty() && IsUniqueKey(*parts.Base, *found->Column)) {
      parts.Order.append(parts.Base->RowKey + " DESC"_L1);
      return;
    }
  }
  // Rows that the keys leave equal keep the order in which they were put in.
  for (const QString& key : fallback) {
    if (!parts.Order.contains(key)) parts.Order.append(key);
  }
}

SelectParts Translator::ResolveUnion(const SelectQuery& select, const Scope* outer) {
  static const std::vector<SortKey> noOrder;
  const bool keepsRepeats = std::all_of(select.Unions.begin(), select.Unions.end(),
                                        [](const UnionPart& part) { return part.KeepsRepeats; });
  SelectParts first = ResolveOne(select, outer, noOrder);
  FromParts from = Derived(first, {});
  const QString alias = from.Sql.mid(from.Sql.lastIndexOf(u' ') + 1);
  const std::size_t width = first.Columns.size();
  QString compound = UnionPartSql(std::move(first), 0, keepsRepeats);
  int place = 0;
  for (const auto& part : select.Unions) {
    SelectParts next = ResolveOne(*part.Query, outer, noOrder);
    if (next.Columns.size() != width) {
      throw Error(ErrorCode::UnionColumns, u"The parts of a UNION must have the same number of columns."_s);
    }
    compound += (part.KeepsRepeats ? " UNION ALL "_L1 : " UNION "_L1) +
                UnionPartSql(std::move(next), ++place, keepsRepeats);
  }
  SelectParts parts;
  parts.From = u'(' + compound + ") AS "_L1 + alias;
  QStringList fallback;
  for (const auto& column : from.Sources[0].Columns) {
    parts.Columns.push_back(ResultOf(column, {}));
    if (!keepsRepeats) fallback.append(AsKey(column.Value));
  }
  if (keepsRepeats) fallback = QStringList{alias + u".p"_s, alias + u".r"_s};
  const Scope scope{.Sources = std::move(from.Sources), .Outer = nullptr};
  AddOrder(select.OrderBy, scope, fallback, parts);
  return parts;
}

}  // namespace velmora::db
