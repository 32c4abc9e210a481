// SPDX-License-Identifier: MIT
#include "cards/CardPlan.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr int FirstRowTop = 960;
constexpr int RowDistance = 300;
constexpr int LowestTop = 2900;
constexpr int ColumnDistance = 3120;
constexpr int FirstValueLeft = 1215;
constexpr int FirstLabelLeft = 200;
/// The labels of all columns but the first stand this much nearer to their left neighbour.
constexpr int LabelShift = 150;

/// After this many buttons beside the first one a new row begins; there is no third row.
constexpr int ButtonsBeforeWrap = 4;

/// How much wider the text fields of a page become that leaves columns empty.
struct Widening {
  int below;
  int width;
};
constexpr std::array<Widening, 2> Widenings{{{8, 6120}, {15, 1500}}};

int WideningOf(std::ptrdiff_t fieldsOnPage) {
  const auto found =
      std::ranges::find_if(Widenings, [&](const Widening& entry) { return fieldsOnPage < entry.below; });
  return found == Widenings.end() ? 0 : found->width;
}

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

bool IsInUse(const CardPlan& card, int page) {
  return std::ranges::any_of(card.Fields,
                             [&](const PlannedField& field) { return field.Page == page && field.Kind; });
}

void PlanButtons(CardPlan& card, int firstLeft) {
  card.Buttons.push_back({.Index = 0, .Where = {firstLeft, 0}, .Caption = {}});
  Place next{firstLeft + plan::ButtonWidth, 0};
  int placed = 0;
  for (int index = 1; index < MaxPages; ++index) {
    if (!IsInUse(card, index + 1)) continue;
    card.Buttons.push_back({.Index = index, .Where = next, .Caption = {}});
    next.Left += plan::ButtonWidth;
    if (++placed == ButtonsBeforeWrap) next = {firstLeft, next.Top + plan::ButtonHeight};
  }
}

/// False at a row that cannot be used: the first without a name, another that names a page without a button.
bool PlanCaptions(CardPlan& card, std::span<const CatalogueRow> rows) {
  if (rows.empty() || !rows.front().Name) return false;
  card.NameCard = *rows.front().Name;
  for (const CatalogueRow& row : rows.subspan(1)) {
    if (!row.Name) continue;
    const auto button = std::ranges::find(card.Buttons, row.Tab - 1, &PlannedButton::Index);
    if (button == card.Buttons.end()) return false;
    button->Caption = *row.Name;
  }
  for (PlannedButton& button : card.Buttons) {
    if (button.Caption.trimmed().isEmpty()) button.Caption = QString::number(button.Index + 1);
  }
  return true;
}

/// Walks down a page's columns of seven rows, from left to right.
class Column final {
 public:
  Column(int left, int widening) : m_place{left, FirstRowTop}, m_widening(widening) {}

  Place Next() {
    const Place place = m_place;
    m_place.Top += RowDistance;
    if (m_place.Top > LowestTop) {
      m_place = {m_place.Left + ColumnDistance + m_widening, FirstRowTop};
      m_isFirst = false;
    }
    return place;
  }
  [[nodiscard]] bool IsFirst() const { return m_isFirst; }

 private:
  Place m_place;
  int m_widening;
  bool m_isFirst = true;
};

void PlaceValues(std::span<PlannedField*> page) {
  const int widening = WideningOf(std::ranges::ssize(page));
  Column column(FirstValueLeft, widening);
  for (PlannedField* field : page) {
    field->Value = column.Next();
    if (field->Kind == FieldKind::Text) field->ValueWidth += widening;
  }
}

void PlaceLabels(std::span<PlannedField*> page) {
  Column column(FirstLabelLeft, WideningOf(std::ranges::ssize(page)));
  for (PlannedField* field : page) {
    const int shift = column.IsFirst() ? 0 : LabelShift;
    Place place = column.Next();
    place.Left -= shift;
    field->Label = place;
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
  PlanButtons(card, firstButtonLeft);
  if (!PlanCaptions(card, captions)) return card;
  PlaceFields(card);
  card.Finished = true;
  return card;
}

}  // namespace velmora
