// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace velmora {

/// The characters that no field name may hold: names become columns and stand in statements between brackets
/// and apostrophes.
[[nodiscard]] QStringView ForbiddenCharacters();
[[nodiscard]] bool IsForbiddenChar(QChar character);
[[nodiscard]] bool HasForbiddenChar(QStringView text);

/// What a check of a name finds. The screens show the message that goes with it.
enum class NameCheck {
  Fine,
  /// The text stays and is selected; no other check runs.
  ForbiddenCharacter,
  /// The name of the card's own number: the box is emptied, the focus is not forced back.
  CardNumberColumn,
  /// The main field, another field of the design or a column has the name: the box is emptied and gets the
  /// focus.
  Duplicate,
};

/// The wizard's main field against the fields of the design: case does not count.
[[nodiscard]] NameCheck CheckMainName(const QString& name, const QStringList& fields);
/// A field of the wizard against the main field and the other fields of the design: case counts, so that City
/// passes beside city. An empty text is never a duplicate.
[[nodiscard]] NameCheck CheckFieldName(const QString& name, const QString& mainField,
                                       const QStringList& otherFields);
/// The field editor's name when its box is left.
[[nodiscard]] NameCheck CheckNewFieldName(const QString& name);
/// The field editor's name when it is to be added, against all columns of the cards: case counts.
[[nodiscard]] NameCheck CheckNewColumn(const QString& name, const QStringList& columns);

}  // namespace velmora
