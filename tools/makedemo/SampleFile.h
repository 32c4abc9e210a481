// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"
#include "engine/values/Value.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace velmora::demo {

/// What a field of a sample is called, and its value on the card of that place, counted from 0.
struct SampleField {
  QString Name;
  FieldKind Kind = FieldKind::Text;
  std::function<db::Value(std::size_t place)> Of;
};

struct SamplePage {
  QString Title;
  std::vector<SampleField> Fields;
};

/// A stored query, with its conditions as they stand in the lists of the query screen.
struct SampleQuery {
  QString Name;
  QStringList Columns;
  std::vector<std::pair<QString, QStringList>> Conditions;
  /// Whether a card must meet the conditions of all fields, or those of one are enough.
  bool All = true;
  /// The query that this one narrows, by the name that the user sees.
  std::optional<QString> Base;
};

/// A sample: its design and, field by field, what its cards hold.
struct Sample {
  QString MainField;
  /// The names of the cards, one for each.
  QStringList Names;
  std::function<QString(std::size_t place)> Remarks;
  std::vector<SamplePage> Pages;
  /// The text fields whose values are kept for them.
  QStringList ValueLists;
  std::vector<SampleQuery> Queries;
};

/// A text as the program takes it: typographic apostrophes in place of plain ones; nothing is one space.
[[nodiscard]] QString Entry(QString text);

/// The number of the card of that place.
[[nodiscard]] std::int32_t CardAt(std::size_t place);

/// Makes the card file of a sample at the path; `addMore` adds what stands beside the cards. The file comes
/// into its place when it is whole, and is the same at every run. Throws db::Error.
void MakeSampleFile(const QString& path, const Sample& sample, const std::function<void()>& addMore = {});

}  // namespace velmora::demo
