// SPDX-License-Identifier: MIT
#include "queries/WhereGenerator.h"

#include "resources/strings.h"

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

/// A date's line begins with its operator, spaces filling it up.
constexpr qsizetype operatorLength = 4;

QString DateComparison(const QString& line) {
  return line.left(operatorLength) + u" DateValue('"_s + line.mid(operatorLength).trimmed() + u"') "_s;
}

QString FirstLine(const QueryField& field, const QString& line) {
  QString name = u'[' + field.Name + u"] "_s;
  if (!field.Kind) return name;
  switch (*field.Kind) {
    case FieldKind::Text:
      return name + u" Like '*"_s + line.trimmed() + u"*'"_s;
    case FieldKind::Number:
      return name + line;
    case FieldKind::YesNo:
      return name + u" = "_s + (line.contains(strings::No.View()) ? u"FALSE"_s : u"TRUE"_s);
    case FieldKind::Date:
      return name + DateComparison(line);
  }
  return name;
}

QString FurtherLine(const QString& clause, const QueryField& field, const QString& line) {
  if (!field.Kind) return clause;
  switch (*field.Kind) {
    case FieldKind::Text:
      // Blanks around a further line are part of what is looked for; stored queries were made so.
      return clause + u" OR ["_s + field.Name + u"] "_s + u" Like '*"_s + line + u"*'"_s;
    case FieldKind::Number:
      return clause + u" OR ["_s + field.Name + u"] "_s + line;
    case FieldKind::YesNo:
      return clause;
    case FieldKind::Date:
      return u'(' + clause + u" AND ["_s + field.Name + u"]  "_s + DateComparison(line) + u')';
  }
  return clause;
}

QString ClauseOf(const QueryField& field) {
  QString clause;
  for (const QString& line : field.Lines)
    clause = clause.isEmpty() ? FirstLine(field, line) : FurtherLine(clause, field, line);
  return clause;
}

QString BaseCondition(const QueryModel& query) {
  return u" WHERE ([Index@] = ANY ( Select [Index@] From ["_s + *query.BaseQuery + u'&' + query.UserName +
         u"])) "_s;
}

QString BuildWhere(const QueryModel& query, const QString& join) {
  QString where;
  for (const auto& page : query.Pages) {
    for (const QueryField& field : page) {
      const QString clause = ClauseOf(field);
      if (clause.isEmpty()) continue;
      if (!where.isEmpty()) {
        where += join + u'(' + clause + u')';
      } else if (query.BaseQuery.has_value()) {
        where = BaseCondition(query) + u"AND ("_s + clause + u") "_s;
      } else {
        where = u"WHERE ("_s + clause + u')';
      }
    }
  }
  if (where.isEmpty() && query.BaseQuery.has_value()) where = BaseCondition(query);
  return where;
}

}  // namespace

QString BuildWhereAnd(const QueryModel& query) { return BuildWhere(query, u" AND "_s); }

QString BuildWhereOr(const QueryModel& query) { return BuildWhere(query, u" OR "_s); }

}  // namespace velmora
