// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace velmora::db {

enum class FieldType { Text, Memo, Long, Double, Currency, YesNo, Date };

/// The width of a Text column that names none.
inline constexpr int DefaultTextSize = 255;
/// The longest name of a table, column, index or query, in characters.
inline constexpr int LongestName = 64;

/// A column: its name, kind and, for Text, its size in characters.
struct Field {
  QString Name;
  FieldType Type = FieldType::Text;
  int Size = DefaultTextSize;
};

/// An index; a primary one is unique too. Null keys may come more than once.
struct Index {
  QString Name;
  QStringList Fields;
  bool Unique = false;
  bool Primary = false;
};

/// The definition of a table: in memory until Database::AppendTableDef writes it, or read back from a file by
/// Database::TableDef. A copy; to change a stored table, use Database::AppendField and its like.
struct TableDef {
  QString Name;
  std::vector<Field> Fields;
  std::vector<Index> Indexes;

  /// The column of that name, without regard to case; null when there is none.
  [[nodiscard]] const Field* FindField(QStringView name) const;
};

}  // namespace velmora::db
