// SPDX-License-Identifier: MIT
#include "queries/SavedQueries.h"

#include "base/system/Failures.h"
#include "resources/strings.h"

#include <algorithm>
#include <array>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar ownerMark = u'&';
constexpr QStringView readsCards = u"From MainData";
constexpr std::array<QStringView, 3> otherLists{u"From Meeting", u"From Agent", u"From PriceList"};

bool Has(const QString& sql, QStringView text) { return sql.contains(text, Qt::CaseInsensitive); }

}  // namespace

QString StoredQueryName(const QString& displayName, const QString& userName) {
  return displayName + ownerMark + userName;
}

QString DisplayNameOf(const QString& storedName) { return storedName.section(ownerMark, 0, 0); }

bool IsQueryOf(const QString& storedName, const QString& userName) {
  const qsizetype mark = storedName.indexOf(ownerMark);
  return mark >= 0 && QStringView(storedName).sliced(mark + 1) == userName;
}

QStringList FillQueryNames(db::Database& file, const QString& userName) {
  QStringList names;
  for (const QString& stored : file.QueryDefs()) {
    if (IsQueryOf(stored, userName)) names += DisplayNameOf(stored);
  }
  return names;
}

QStringList FillQueryList(db::Database& file, const QString& userName) {
  QStringList names;
  for (const QString& stored : file.QueryDefs()) {
    if (IsQueryOf(stored, userName) && QuerySqlHas(file, stored, readsCards.toString()))
      names += DisplayNameOf(stored);
  }
  return names;
}

bool QueryExists(db::Database& file, const QString& name) {
  const QString wanted = name.trimmed();
  return std::ranges::any_of(file.QueryDefs(), [&](const QString& stored) {
    return stored.trimmed().compare(wanted, Qt::CaseInsensitive) == 0;
  });
}

bool QuerySqlHas(db::Database& file, const QString& name, const QString& text) {
  bool has = false;
  Trap([&] { has = Has(file.QueryDefOf(name).SQL, text); });
  return has;
}

bool QueryFails(db::Database& file, const QString& name) {
  return !Trap([&] { file.OpenRecordset(name).Close(); });
}

bool DeleteQuery(db::Database& file, const QString& name) {
  // Case does not count, as with any name in the file; spaces around the name do.
  if (!file.QueryDefs().contains(name, Qt::CaseInsensitive)) return false;
  file.DeleteQueryDef(name);
  return true;
}

QString QueryNameOrDefault(const QString& typed) {
  return typed.trimmed().isEmpty() ? strings::query::MyQuery : typed;
}

NewQueryName CheckNewQueryName(db::Database& file, const QString& typed, const QString& baseQuery,
                               const QString& userName) {
  const QString name = typed.trimmed();
  if (name == baseQuery) return NewQueryName::SameAsBase;
  return QueryExists(file, StoredQueryName(name, userName)) ? NewQueryName::Taken : NewQueryName::Free;
}

void StoreNewQuery(db::Database& file, const QString& storedName, const QString& sql, NewQueryName found) {
  if (found == NewQueryName::Taken) {
    file.ReplaceQueryDef(storedName, sql);
  } else {
    file.CreateQueryDef(storedName, sql);
  }
}

OpenQuery OpenOrDelete(db::Database& file, const QString& name) {
  if (!QueryFails(file, name)) return OpenQuery::Show;
  file.DeleteQueryDef(name);
  return OpenQuery::Deleted;
}

ReturnStep DecideReturn(db::Database& file, const QString& lastQuery) {
  if (lastQuery.isEmpty() || QueryFails(file, lastQuery)) return ReturnStep::Nothing;
  return ReadsOtherList(file.QueryDefOf(lastQuery).SQL) ? ReturnStep::OtherList : ReturnStep::Show;
}

bool ReadsOtherList(const QString& sql) {
  return std::ranges::any_of(otherLists, [&](QStringView text) { return Has(sql, text); });
}

}  // namespace velmora
