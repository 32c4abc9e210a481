// SPDX-License-Identifier: MIT
#include "engine/values/Schema.h"

#include "engine/text/Collation.h"

#include <algorithm>

namespace velmora::db {

const Field* TableDef::FindField(QStringView name) const {
  const auto exact =
      std::find_if(Fields.begin(), Fields.end(), [&](const Field& field) { return field.Name == name; });
  if (exact != Fields.end()) return &*exact;
  const QString folded = FoldName(name);
  const auto found = std::find_if(Fields.begin(), Fields.end(),
                                  [&](const Field& field) { return FoldName(field.Name) == folded; });
  return found == Fields.end() ? nullptr : &*found;
}

}  // namespace velmora::db
