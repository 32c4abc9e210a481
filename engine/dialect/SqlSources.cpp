// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlExpressionWriter.h"
#include "engine/dialect/SqlTranslator.h"
#include "engine/sqlite/Quoting.h"
#include "engine/text/Collation.h"
#include "engine/values/Error.h"

#include <algorithm>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

NamedColumn Named(const Field& field, SqlValue value, QString inFile) {
  return {.Name = field.Name,
          .Folded = FoldName(field.Name),
          .Value = std::move(value),
          .ColumnInFile = std::move(inFile)};
}

bool IsInnerOnly(const FromItem& item) {
  return !item.IsJoin ||
         (item.Join == JoinKind::Inner && IsInnerOnly(item.Sides[0]) && IsInnerOnly(item.Sides[1]));
}

QLatin1StringView WordsOf(JoinKind kind) {
  switch (kind) {
    case JoinKind::Inner:
      return " INNER JOIN "_L1;
    case JoinKind::Left:
      return " LEFT JOIN "_L1;
    case JoinKind::Right:
      return " RIGHT JOIN "_L1;
  }
  Q_UNREACHABLE();
}

void Append(FromParts& to, FromParts more) {
  std::move(more.Sources.begin(), more.Sources.end(), std::back_inserter(to.Sources));
  to.Conditions += more.Conditions;
  to.Order += more.Order;
}

}  // namespace

FromParts Translator::ResolveTable(const TableDef& table, const QString& name) {
  const QString alias = NextAlias();
  const auto quoted = [&](const QString& column) { return alias + u'.' + QuoteName(column); };
  FromParts from;
  BaseTable base{.Definition = table,
                 .NameInFile = m_names.StoredTableName(table.Name),
                 .RowKey = quoted(m_names.RowIdName(table.Name))};
  from.Sql = QuoteName(base.NameInFile) + " AS "_L1 + alias;
  from.Order.append(base.RowKey);
  NamedSource source{.Folded = FoldName(name), .Name = name, .Columns = {}};
  for (const Field& field : table.Fields) {
    const QString inFile = m_names.StoredColumnName(table.Name, field.Name);
    source.Columns.push_back(Named(field, ColumnValue(quoted(inFile), field.Type, field.Size), inFile));
  }
  from.Sources.push_back(std::move(source));
  from.Base = std::move(base);
  return from;
}

FromParts Translator::Merged(SelectParts parts, const QString& name) const {
  FromParts from{.Sql = std::move(parts.From),
                 .Sources = {},
                 .Conditions = std::move(parts.Conditions),
                 .Order = std::move(parts.Order),
                 .Base = std::move(parts.Base)};
  NamedSource source{.Folded = FoldName(name), .Name = name, .Columns = {}};
  for (auto& column : parts.Columns) {
    source.Columns.push_back(Named(column.Output, std::move(column.Value), std::move(column.ColumnInFile)));
  }
  from.Sources.push_back(std::move(source));
  return from;
}

FromParts Translator::Derived(const SelectParts& parts, const QString& name) {
  const QString alias = NextAlias();
  FromParts from;
  from.Sql = u'(' + SelectSql(parts, true) + ") AS "_L1 + alias;
  NamedSource source{.Folded = FoldName(name), .Name = name, .Columns = {}};
  for (const auto& column : parts.Columns) {
    SqlValue value =
        ColumnValue(DerivedColumn(alias, source.Columns.size()), column.Output.Type, column.Output.Size);
    value.Kind = column.Value.Kind;
    source.Columns.push_back(Named(column.Output, std::move(value), {}));
  }
  from.Sources.push_back(std::move(source));
  return from;
}

FromParts Translator::ResolveItem(const FromItem& item, bool alone, const Scope* outer) {
  if (item.IsJoin) return ResolveJoin(item, outer);
  const QString& name = item.Alias.isEmpty() ? item.Name : item.Alias;
  std::optional<SelectParts> parts;
  if (item.Query != nullptr) {
    parts = Resolve(*item.Query, outer);
  } else if (const auto table = m_names.FindTable(item.Name)) {
    return ResolveTable(*table, name);
  } else if (const auto text = m_names.FindQuery(item.Name)) {
    parts = ResolveQuery(item.Name, *text);
  } else {
    throw Error(ErrorCode::TableNotFound, u"There is no table or query \"%1\"."_s.arg(item.Name));
  }
  // Beside others its conditions would act on their rows too.
  if (alone && parts->IsMergeable()) return Merged(std::move(*parts), name);
  if (!alone && !parts->Top) parts->Order.clear();
  return Derived(*parts, name);
}

FromParts Translator::ResolveJoin(const FromItem& join, const Scope* outer) {
  if (join.Sides[1].IsJoin && !(join.Join == JoinKind::Inner && IsInnerOnly(join.Sides[1]))) {
    throw Error(ErrorCode::JoinNotSupported, u"A join within a join is not supported here."_s);
  }
  FromParts from = ResolveItem(join.Sides[0], false, outer);
  FromParts right = ResolveItem(join.Sides[1], false, outer);
  from.Sql += WordsOf(join.Join) + right.Sql;
  from.Base.reset();
  Append(from, std::move(right));
  const Scope scope{.Sources = from.Sources, .Outer = outer};
  const QString condition = ExpressionWriter(*this, scope).Condition(join.On.Value);
  // Inner joins on the right have ended with a condition of their own; among inner joins it does not matter
  // which of them a condition belongs to.
  from.Sql += (join.Sides[1].IsJoin ? " AND "_L1 : " ON "_L1) + condition;
  return from;
}

FromParts Translator::ResolveFrom(const std::vector<FromItem>& items, const Scope* outer) {
  FromParts from;
  for (const auto& item : items) {
    FromParts next = ResolveItem(item, items.size() == 1, outer);
    if (items.size() == 1) return next;
    from.Sql += (from.Sql.isEmpty() ? QString() : u", "_s) + next.Sql;
    Append(from, std::move(next));
  }
  return from;
}

}  // namespace velmora::db
