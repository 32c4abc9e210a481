// SPDX-License-Identifier: MIT
#include "cardfile/NameRules.h"

#include "cardfile/CardFileSchema.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr QStringView Forbidden = u",.\\[]{}/<>~`:;()|!%^&*'?\"";

/// The checks that every name of the wizard meets first.
NameCheck CheckText(const QString& name) {
  if (HasForbiddenChar(name)) return NameCheck::ForbiddenCharacter;
  if (name == schema::CardNumber.View()) return NameCheck::CardNumberColumn;
  return NameCheck::Fine;
}

}  // namespace

QStringView ForbiddenCharacters() { return Forbidden; }

bool IsForbiddenChar(QChar character) { return Forbidden.contains(character); }

bool HasForbiddenChar(QStringView text) { return std::ranges::any_of(text, IsForbiddenChar); }

NameCheck CheckMainName(const QString& name, const QStringList& fields) {
  const NameCheck check = CheckText(name);
  if (check != NameCheck::Fine || name.isEmpty()) return check;
  return fields.contains(name, Qt::CaseInsensitive) ? NameCheck::Duplicate : NameCheck::Fine;
}

NameCheck CheckFieldName(const QString& name, const QString& mainField, const QStringList& otherFields) {
  const NameCheck check = CheckText(name);
  if (check != NameCheck::Fine || name.isEmpty()) return check;
  return name == mainField || otherFields.contains(name) ? NameCheck::Duplicate : NameCheck::Fine;
}

NameCheck CheckNewFieldName(const QString& name) {
  return HasForbiddenChar(name) ? NameCheck::ForbiddenCharacter : NameCheck::Fine;
}

NameCheck CheckNewColumn(const QString& name, const QStringList& columns) {
  return columns.contains(name) ? NameCheck::Duplicate : NameCheck::Fine;
}

std::optional<NameFault> FaultOf(const DesignField& field, const TakenNames& taken) {
  const auto has = [](const QStringList& names, const QString& name) {
    return names.contains(name, Qt::CaseInsensitive);
  };
  const QString& name = field.Name;
  for (const strings::Text& own : {schema::CardNumber, schema::Remarks}) {
    if (name.compare(own, Qt::CaseInsensitive) == 0) return NameFault::ProgramsColumn;
  }
  if (has(taken.Columns, name)) return NameFault::ColumnTaken;
  if (name.size() > LongestName(field.Kind)) return NameFault::TooLong;
  if (field.Kind == FieldKind::Text && has(taken.Tables, ValueListTable(name))) return NameFault::TableTaken;
  // Both columns of its name are those of a field that was deleted; one of them alone is somebody else's.
  const bool hasDate = has(taken.ReminderColumns, name);
  if (field.Kind == FieldKind::Date && hasDate != has(taken.ReminderColumns, AgentsColumn(name)))
    return NameFault::ReminderTaken;
  return std::nullopt;
}

int LongestName(FieldKind kind) {
  constexpr int longestName = 64;
  switch (kind) {
    case FieldKind::Text:
      return longestName - static_cast<int>(ValueListTable({}).size());
    case FieldKind::Date:
      return longestName - static_cast<int>(AgentsColumn({}).size());
    case FieldKind::Number:
    case FieldKind::YesNo:
      return longestName;
  }
  return longestName;
}

}  // namespace velmora
