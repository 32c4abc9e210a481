// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

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

/// Why a field cannot be made although its name passes the checks.
enum class NameFault {
  /// A column of the cards has the name, in whatever case; the program's own columns are told apart.
  ColumnTaken,
  ProgramsColumn,
  /// A text field's value list would bear the name of a table that is there.
  TableTaken,
  /// A date field's reminder would write into the columns of another one, or of the program.
  ReminderTaken,
  /// The longest of the names that go with the field is longer than a name may be.
  TooLong,
};

/// The names that a card file has given. Names are the same without regard to case.
struct TakenNames {
  QStringList Columns;
  QStringList Tables;
  /// The columns of the table of reminders. Those that a deleted date field of the same name has left behind
  /// are no fault: they are met when the field is made.
  QStringList ReminderColumns;
};

[[nodiscard]] std::optional<NameFault> FaultOf(const DesignField& field, const TakenNames& taken);
/// How long the name of a field may be: its list or its reminders add to it.
[[nodiscard]] int LongestName(FieldKind kind);

}  // namespace velmora
