// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"

#include <QString>

#include <array>
#include <optional>
#include <span>
#include <vector>

namespace velmora {

/// What the query screen is built from. The element number of a field's button and list is its position in
/// Fields.
struct QueryFields {
  struct Entry {
    QString Caption;
    int Page = 0;
    /// As the field's name tells it: nothing when a page bears the name too.
    std::optional<FieldKind> Kind;
  };
  /// Page by page, each in the order of the catalogue.
  std::vector<Entry> Fields;
  /// Element i stands for page i + 1: its title, or its number with a space before it.
  std::array<QString, MaxPages> PageCaptions;
};

/// Whether each page has fields.
[[nodiscard]] std::array<bool, MaxPages> PagesInUse(std::span<const QueryFields::Entry> fields);

/// Reads the design of the open file. Gives nothing at all while it has no cards; throws db::Error when there
/// is no file or the fields cannot be read.
[[nodiscard]] QueryFields ReadQueryFields();

/// The main field's column in the table of the cards, as that table spells it. Throws db::Error when there is
/// none.
[[nodiscard]] QString MainColumn();

}  // namespace velmora
