// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlSelectParts.h"

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

constexpr int ShortRow = 50;

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

}  // namespace velmora::db
