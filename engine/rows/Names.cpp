// SPDX-License-Identifier: MIT
#include "engine/rows/Names.h"

#include "engine/values/Error.h"
#include "engine/values/Schema.h"

#include <algorithm>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar Mark = u'.';
/// SQLite refuses tables whose names begin so.
constexpr auto Reserved = "sqlite_"_L1;
/// The one name of the row id that stays free for it, whatever the user's columns are called.
constexpr auto LastRowIdName = "_rowid_"_L1;
constexpr auto PrimaryEnd = ".Primary"_L1;

bool CannotStandInName(QChar character) {
  return character.unicode() < u' ' || character.unicode() == 0x7f ||
         QStringView(u".!`[]").contains(character);
}

Error BadName(QStringView name, const QString& reason) {
  return {ErrorCode::InvalidName, u"\"%1\" can't be a name: %2."_s.arg(name.toString(), reason)};
}

}  // namespace

QString CheckedName(QStringView name) {
  QStringView cleaned = name;
  while (cleaned.endsWith(u' ')) cleaned.chop(1);
  if (cleaned.isEmpty()) throw BadName(name, u"it is empty"_s);
  if (cleaned.startsWith(u' ')) throw BadName(name, u"it begins with a space"_s);
  const auto halves = std::count_if(cleaned.begin(), cleaned.end(),
                                    [](QChar character) { return character.isLowSurrogate(); });
  if (cleaned.size() - halves > LongestName)
    throw BadName(name, u"it has more than %1 characters"_s.arg(LongestName));
  if (std::any_of(cleaned.begin(), cleaned.end(), CannotStandInName)) {
    throw BadName(name, u"it holds one of . ! ` [ ] or a control character"_s);
  }
  return cleaned.toString();
}

QString TableNameInFile(const QString& name) {
  return name.startsWith(Reserved, Qt::CaseInsensitive) ? Mark + name : name;
}

QString TableNameOfUser(const QString& inFile) {
  return inFile.startsWith(Mark) && !IsHiddenTable(inFile) ? inFile.sliced(1) : inFile;
}

bool IsHiddenTable(QStringView inFile) {
  if (inFile.startsWith(Mark)) return !inFile.sliced(1).startsWith(Reserved, Qt::CaseInsensitive);
  return inFile.startsWith(Reserved, Qt::CaseInsensitive);
}

QString ColumnNameInFile(const QString& name) {
  return name.compare(LastRowIdName, Qt::CaseInsensitive) == 0 ? Mark + name : name;
}

QString ColumnNameOfUser(const QString& inFile) {
  return inFile.size() == LastRowIdName.size() + 1 && inFile.startsWith(Mark) &&
                 inFile.endsWith(LastRowIdName, Qt::CaseInsensitive)
             ? inFile.sliced(1)
             : inFile;
}

QString IndexNameInFile(const QString& tableInFile, const QString& index, bool primary) {
  return tableInFile + Mark + index + (primary ? QString(PrimaryEnd) : QString());
}

QString IndexNameOfUser(const QString& tableInFile, const QString& inFile) {
  const QString start = tableInFile + Mark;
  if (!inFile.startsWith(start, Qt::CaseInsensitive)) return inFile;
  const QString name = inFile.sliced(start.size());
  return IsPrimaryIndexName(name) ? name.chopped(PrimaryEnd.size()) : name;
}

bool IsPrimaryIndexName(QStringView inFile) { return inFile.endsWith(PrimaryEnd); }

}  // namespace velmora::db
