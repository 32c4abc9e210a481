// SPDX-License-Identifier: MIT
#pragma once

#include "engine/values/Value.h"
#include "tools/makedemo/Csv.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <utility>
#include <vector>

namespace velmora::demo {

// What goes into the session's card file, row by row. All throw db::Error.

using Values = std::vector<std::pair<QString, db::Value>>;

/// A contact of a card; what is empty is stored as an empty text.
struct Contact {
  QString FirstName;
  QString LastName;
  QString Street;
  QString City;
  QString PostalCode;
  QString Country;
  QString Position;
  QString Telephone;
  QString Fax;
  QString Email;
};

/// The rows of a table of data, by its name in the program's resources.
[[nodiscard]] std::vector<CsvRow> Table(const QString& name);

/// The person whom a row of customers names.
[[nodiscard]] Contact PersonOf(const CsvRow& row);

/// An empty text field of a card holds one space, as the card screens store it.
[[nodiscard]] QString Filled(const QString& text);

void AddRow(const QString& table, const Values& values);
void AddContact(std::int32_t card, const Contact& contact, bool active);
/// Keeps the values as those that a text field offers: each once, sorted, those of spaces left out.
void AddValueList(const QString& field, QStringList values);

}  // namespace velmora::demo
