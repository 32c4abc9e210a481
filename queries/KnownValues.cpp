// SPDX-License-Identifier: MIT
#include "queries/KnownValues.h"

#include "cardfile/CardFileSchema.h"
#include "cardfile/ValueLists.h"
#include "frame/Session.h"

#include <optional>

namespace velmora {

using namespace Qt::StringLiterals;

QStringList PickableValues(const QString& field) {
  QStringList values;
  QString value;
  // A value that is the table's own name does not count as one.
  QString before = ValueListTable(field);
  for (const std::optional<QString>& row : ValueLists(Global().File()).RowsOf(field)) {
    value = row.value_or(value);
    const QString trimmed = value.trimmed();
    if (!trimmed.isEmpty() && value != u"*"_s && trimmed != before) values += value;
    before = trimmed;
  }
  return values;
}

}  // namespace velmora
