// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"

#include <QStringList>

#include <array>
#include <optional>
#include <vector>

namespace velmora {

/// A field of the query screen with the conditions that stand in its list.
struct QueryField {
  QString Name;
  /// Nothing for a name that the catalogue gives no kind.
  std::optional<FieldKind> Kind;
  /// Each line is one condition, as a picker wrote it: a text to look for, an operator and a number, "Yes" or
  /// "No", an operator of four characters and a date.
  QStringList Lines;
};

/// A query being put together, as it stands on the query screen: the fields of each page in their order.
struct QueryModel {
  std::array<std::vector<QueryField>, MaxPages> Pages;
  /// The saved query that this one narrows, by the name that the user sees; none for all cards.
  std::optional<QString> BaseQuery;
  QString UserName;
};

/// The WHERE part of the statement over the cards: empty when nothing narrows them. The lines of one text or
/// number field are alternatives in both; what the two differ in is the word between fields. In BuildWhereOr
/// the base query binds with the first field only. Nothing is quoted or escaped: the screens refuse an
/// apostrophe where the user types.
[[nodiscard]] QString BuildWhereAnd(const QueryModel& query);
[[nodiscard]] QString BuildWhereOr(const QueryModel& query);

}  // namespace velmora
