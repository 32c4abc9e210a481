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

}  // namespace velmora
