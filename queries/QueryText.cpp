// SPDX-License-Identifier: MIT
#include "queries/QueryText.h"

#include "base/text/Numbers.h"
#include "cardfile/CardFileSchema.h"
#include "resources/strings.h"

#include <algorithm>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

/// The card's number and the main field, which every result has.
constexpr std::size_t fixedColumns = 2;
constexpr int numberKey = 1;

}  // namespace

QStringList ChoosableColumns(const db::TableDef& cards) {
  QStringList names;
  for (std::size_t i = fixedColumns; i < cards.Fields.size(); ++i) {
    const QString& name = cards.Fields[i].Name;
    if (name.trimmed() != schema::Remarks.View() && !name.startsWith("s_"_L1)) names += name;
  }
  return names;
}

QStringList WithColumns(QStringList chosen, const QStringList& further) {
  for (const QString& name : further) {
    if (!chosen.contains(name)) chosen += name;
  }
  return chosen;
}

QString ColumnListText(const QString& mainField, const QStringList& chosen) {
  QString list = u"[Index@],["_s + mainField + u']';
  for (const QString& name : chosen) list += u",["_s + name.trimmed() + u']';
  return list;
}

QString SelectText(const QString& columnList, const QString& where) {
  return u"SELECT "_s + columnList + u" FROM  MainData "_s + where;
}

QString StripSqlTail(QStringView sql) {
  QString stripped;
  while (!sql.isEmpty()) {
    const qsizetype lineEnd = sql.indexOf(u'\r');
    if (lineEnd < 0) {
      stripped += sql.chopped(1);
      break;
    }
    stripped += sql.first(lineEnd);
    stripped += u' ';
    sql = sql.sliced(std::min(lineEnd + 2, sql.size()));
  }
  const qsizetype end = stripped.indexOf(u';');
  return end < 0 ? stripped : stripped.first(end);
}

QStringList SortListItems(const QStringList& headings) {
  return QStringList{QString(), strings::query::Number} + headings.mid(1);
}

QString OrderByText(const std::array<SortKey, SortKeyCount>& keys, bool ascending) {
  QString order;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const SortKey& key = keys[i];
    if (key.Text.isEmpty() || key.ListIndex < numberKey) continue;
    const QString column = key.ListIndex == numberKey ? u"[Index@] "_s : u'[' + key.Text + u"] "_s;
    order += (order.isEmpty() ? u" ORDER BY "_s : u" , "_s) + column;
    if (i == 0) order += ascending ? u" ASC "_s : u" DESC "_s;
  }
  return order;
}

QString YesNoText(const QString& cell) { return LeadingNumber(cell) == 0.0 ? strings::No : strings::Yes; }

QString ResultFormat(const QStringList& headings) {
  QString format;
  for (const QString& heading : headings.mid(1)) format += u" |"_s + heading;
  return format;
}

}  // namespace velmora
