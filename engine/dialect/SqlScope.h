// SPDX-License-Identifier: MIT
#pragma once

#include "engine/dialect/SqlValue.h"

#include <vector>

namespace velmora::db {

/// A column that expressions can name: of a table, a stored query or a nested SELECT.
struct NamedColumn {
  QString Name;
  QString Folded;
  SqlValue Value;
  /// Its name in the file when it is a column of the one table whose rows these are; else empty.
  QString ColumnInFile;
};

struct NamedSource {
  QString Folded;
  QString Name;
  std::vector<NamedColumn> Columns;
};

/// What names mean at one place of a statement; a nested SELECT also sees what is around it.
struct Scope {
  std::vector<NamedSource> Sources;
  const Scope* Outer = nullptr;
};

}  // namespace velmora::db
