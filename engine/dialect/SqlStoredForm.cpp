// SPDX-License-Identifier: MIT
#include "engine/dialect/SqlStoredForm.h"

#include "engine/dialect/SqlLexer.h"

#include <array>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

// Texts that search stored statements count on these line ends, and on the one space behind FROM.
constexpr auto LineEnd = "\r\n"_L1;
constexpr auto Comma = ", "_L1;

QString Joined(const std::vector<WrittenExpression>& list) {
  QStringList texts;
  for (const auto& item : list) texts.append(item.Written);
  return texts.join(Comma);
}

QString WithAlias(const QString& source, const QString& alias) {
  return alias.isEmpty() ? source : source + " AS "_L1 + BracketedWhereNeeded(alias);
}

QString FromText(const FromItem& item) {
  if (item.Query != nullptr) return WithAlias(u'(' + item.QueryWritten + u')', item.Alias);
  if (!item.IsJoin) return WithAlias(BracketedWhereNeeded(item.Name), item.Alias);
  static constexpr std::array Words{" INNER JOIN "_L1, " LEFT JOIN "_L1, " RIGHT JOIN "_L1};
  const QString text = FromText(item.Sides[0]) + Words[static_cast<std::size_t>(item.Join)] +
                       FromText(item.Sides[1]) + " ON "_L1 + item.On.Written;
  return item.InParentheses ? u'(' + text + u')' : text;
}

QString OrderText(const std::vector<SortKey>& keys) {
  QStringList texts;
  // Ascending is what an order is when nothing is said.
  for (const auto& key : keys) texts.append(key.Descending ? key.Key.Written + " DESC"_L1 : key.Key.Written);
  return texts.join(Comma);
}

void AddWhere(QStringList& lines, const std::optional<WrittenExpression>& where) {
  if (where) lines.append("WHERE "_L1 + where->Written);
}

void AddSelect(QStringList& lines, const SelectQuery& select, const QString& before = {}) {
  QString head = before + "SELECT "_L1;
  if (select.Distinct) head += "DISTINCT "_L1;
  if (select.Top) head += "TOP "_L1 + QString::number(*select.Top) + u' ';
  QStringList columns;
  for (const auto& column : select.Columns) {
    const QString& alias = column.AliasWritten;
    columns.append(alias.isEmpty() ? column.Source.Written : column.Source.Written + " AS "_L1 + alias);
  }
  lines.append(head + columns.join(Comma));

  QStringList sources;
  for (const auto& item : select.From) sources.append(FromText(item));
  if (!sources.isEmpty()) lines.append("FROM "_L1 + sources.join(Comma));
  AddWhere(lines, select.Where);
  if (!select.GroupBy.empty()) lines.append("GROUP BY "_L1 + Joined(select.GroupBy));
  if (select.Having) lines.append("HAVING "_L1 + select.Having->Written);
  for (const auto& part : select.Unions) {
    AddSelect(lines, *part.Query, part.KeepsRepeats ? u"UNION ALL "_s : u"UNION "_s);
  }
  if (!select.OrderBy.empty()) lines.append("ORDER BY "_L1 + OrderText(select.OrderBy));
}

struct Writer {
  QStringList operator()(const SelectQuery& select) const {
    QStringList lines;
    AddSelect(lines, select);
    return lines;
  }

  QStringList operator()(const InsertQuery& insert) const {
    QString head = "INSERT INTO "_L1 + BracketedWhereNeeded(insert.Table);
    if (!insert.Columns.isEmpty()) head += " ("_L1 + insert.ColumnsWritten.join(Comma) + u')';
    QStringList lines{head};
    if (insert.Query != nullptr) {
      AddSelect(lines, *insert.Query);
    } else {
      lines.append("VALUES ("_L1 + Joined(insert.Values) + u')');
    }
    return lines;
  }

  QStringList operator()(const UpdateQuery& update) const {
    QStringList assignments;
    for (const auto& assignment : update.Assignments) {
      assignments.append(assignment.ColumnWritten + " = "_L1 + assignment.Value.Written);
    }
    QStringList lines{"UPDATE "_L1 + FromText(update.Table) + " SET "_L1 + assignments.join(Comma)};
    AddWhere(lines, update.Where);
    return lines;
  }

  QStringList operator()(const DeleteQuery& erase) const {
    QStringList lines{erase.Written.isEmpty() ? u"DELETE"_s : "DELETE "_L1 + erase.Written};
    lines.append("FROM "_L1 + FromText(erase.Table));
    AddWhere(lines, erase.Where);
    return lines;
  }
};

}  // namespace

QString WriteStored(const Statement& statement) {
  return std::visit(Writer{}, statement.Root()).join(LineEnd) + u';' + LineEnd;
}

}  // namespace velmora::db
