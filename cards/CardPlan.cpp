// SPDX-License-Identifier: MIT
#include "cards/CardPlan.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr PagePlace FirstValue{.Left = 1215, .Top = 960};
constexpr PagePlace FirstLabel{.Left = 200, .Top = 960};
/// The labels of all columns but the first stand this much nearer to their left neighbour.
constexpr int LabelShift = 150;

int WidthOf(FieldKind kind) { return kind == FieldKind::YesNo ? plan::CheckWidth : plan::FieldWidth; }

/// False at a row without a name, which no label can show.
bool PlanFields(CardPlan& card, std::span<const CatalogueRow> rows) {
  int index = 0;
  for (int page = 1; page <= MaxPages; ++page) {
    for (const CatalogueRow& row : rows) {
      if (row.Tab != page || row.Type < catalogue::FirstField) continue;
      if (!row.Name) return false;
      const auto kind = FieldKindOf(row);
      card.Fields.push_back({.Index = index++,
                             .Page = page,
                             .Caption = *row.Name,
                             .Kind = kind,
                             .ValueWidth = kind ? WidthOf(*kind) : 0,
                             .Value = {},
                             .Label = {}});
    }
  }
  return true;
}

/// A page is in use when it has a value control.
std::array<bool, MaxPages> PagesInUse(const CardPlan& card) {
  std::array<bool, MaxPages> used{};
  for (const PlannedField& field : card.Fields) {
    if (field.Kind) used.at(static_cast<std::size_t>(field.Page - 1)) = true;
  }
  return used;
}

/// False at a row that cannot be used: the first without a name, another that names a page without a button.
bool PlanCaptions(CardPlan& card, std::span<const CatalogueRow> rows) {
  if (rows.empty() || !rows.front().Name) return false;
  card.NameCard = *rows.front().Name;
  const auto elementOf = [](const PlannedButton& planned) { return planned.At.Element; };
  for (const CatalogueRow& row : rows.subspan(1)) {
    if (!row.Name) continue;
    const auto button = std::ranges::find(card.Buttons, row.Tab - 1, elementOf);
    if (button == card.Buttons.end()) return false;
    button->Caption = *row.Name;
  }
  for (PlannedButton& button : card.Buttons) {
    if (button.Caption.trimmed().isEmpty()) button.Caption = QString::number(button.At.Element + 1);
  }
  return true;
}

void PlaceValues(std::span<PlannedField*> page) {
  const std::vector<PagePlace> places = ColumnPlaces(page.size(), FirstValue);
  for (std::size_t i = 0; i < page.size(); ++i) {
    page[i]->Value = places[i];
    if (page[i]->Kind == FieldKind::Text) page[i]->ValueWidth += PageWidening(page.size());
  }
}

void PlaceLabels(std::span<PlannedField*> page) {
  const std::vector<PagePlace> places = ColumnPlaces(page.size(), FirstLabel);
  for (std::size_t i = 0; i < page.size(); ++i) {
    const int shift = i < plan::FieldsInColumn ? 0 : LabelShift;
    page[i]->Label = PagePlace{.Left = places[i].Left - shift, .Top = places[i].Top};
  }
}

void PlaceFields(CardPlan& card) {
  for (int page = 1; page <= MaxPages; ++page) {
    std::vector<PlannedField*> labels;
    std::vector<PlannedField*> values;
    for (PlannedField& field : card.Fields) {
      if (field.Page != page) continue;
      labels.push_back(&field);
      if (field.Kind) values.push_back(&field);
    }
    PlaceValues(values);
    PlaceLabels(labels);
  }
}

}  // namespace

CardPlan PlanCard(std::span<const CatalogueRow> fields, std::span<const CatalogueRow> captions,
                  int firstButtonLeft) {
  CardPlan card;
  if (!PlanFields(card, fields)) return card;
  for (const PageButtonPlace& button : PageButtons(PagesInUse(card), firstButtonLeft))
    card.Buttons.push_back({.At = button, .Caption = {}});
  if (!PlanCaptions(card, captions)) return card;
  PlaceFields(card);
  card.Finished = true;
  return card;
}

}  // namespace velmora
