// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"
#include "cardfile/FieldCatalogue.h"
#include "cardfile/PagePlan.h"

#include <QString>

#include <optional>
#include <span>
#include <vector>

namespace velmora {

/// The sizes that the plan of a card counts on, in twips.
namespace plan {
inline constexpr int FieldWidth = 1815;
inline constexpr int FieldHeight = 285;
inline constexpr int CheckWidth = 190;
inline constexpr int DesignedDateWidth = 1500;
}  // namespace plan

/// One field: its number over all pages, which is the index of its label and of its value control, and their
/// places.
struct PlannedField {
  int Index = 0;
  int Page = 0;
  QString Caption;
  /// Nothing for a catalogue row of an unknown code: it has a label and uses up a number, but has no value
  /// control.
  std::optional<FieldKind> Kind;
  int ValueWidth = 0;
  /// Nothing when the plan was left before it came to the places.
  std::optional<PagePlace> Value;
  std::optional<PagePlace> Label;
};

/// A page's button and its caption.
struct PlannedButton {
  PageButtonPlace At;
  QString Caption;
};

/// What a card screen builds from the catalogue.
struct CardPlan {
  /// Page after page, in reading order.
  std::vector<PlannedField> Fields;
  std::vector<PlannedButton> Buttons;
  /// The caption of the main field.
  QString NameCard;
  /// False when a row could not be used: then what follows it is missing. A page row without fields has no
  /// button to bear its title, and with it go all places of fields.
  bool Finished = false;
};

/// Plans a card from its catalogue, in twips. `firstButtonLeft` is the Left of the first page button.
[[nodiscard]] CardPlan PlanCard(std::span<const CatalogueRow> fields, std::span<const CatalogueRow> captions,
                                int firstButtonLeft);

}  // namespace velmora
