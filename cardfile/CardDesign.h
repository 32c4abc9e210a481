// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <vector>

namespace velmora {

/// What a card may hold, not counting its main field.
inline constexpr int MaxPages = 10;
inline constexpr int MaxFieldsOnPage = 21;
inline constexpr int MaxFields = 100;

/// The kinds of a field, in the order in which the user picks them from a list.
enum class FieldKind : std::int32_t { Text, Number, YesNo, Date };

/// Codes of the catalogue's rows. A field's code is its kind plus FirstField.
namespace catalogue {
inline constexpr std::int32_t MainField = 0;
inline constexpr std::int32_t Page = 1;
inline constexpr std::int32_t FirstField = 2;
}  // namespace catalogue

[[nodiscard]] constexpr std::int32_t TypeOf(FieldKind kind) {
  return static_cast<std::int32_t>(kind) + catalogue::FirstField;
}

struct DesignField {
  QString Name;
  FieldKind Kind = FieldKind::Text;
};

struct DesignPage {
  QString Title;
  std::vector<DesignField> Fields;
};

/// The shape of a card as the user draws it up before its file exists. Page p is Pages[p - 1]; a page without
/// fields leaves a gap in the numbers.
struct CardDesign {
  QString MainField;
  std::array<DesignPage, MaxPages> Pages;
};

}  // namespace velmora
